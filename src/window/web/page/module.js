// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The game's module and the page it plays on. Texts cross as strings; all else as the module's header says.

/**
 * What the game asks of the page. Boxes are in grid units, colours 0xRRGGBB.
 * @typedef {object} Page
 * @property {(x1: number, y1: number, x2: number, y2: number) => void} repaint
 * @property {(text: string, font: string, points: number, height: number) => number} text_width in grid units
 * @property {(kind: number, x1: number, y1: number, x2: number, y2: number, rgb: number, picture: number) => void} mark
 * @property {(x1: number, y1: number, rgb: number, text: string, font: string, points: number) => void} mark_text
 * @property {(sentence: string) => void} say what has happened
 * @property {(milliseconds: number) => void} timer
 * @property {(shape: number) => void} pointer
 * @property {(entry: number, enabled: boolean, checked: boolean) => void} entry
 * @property {(control: Control) => void} control
 * @property {(question: boolean, text: string) => void} box
 * @property {() => void} beep
 * @property {() => number} time_of_day
 * @property {() => void} end
 * @property {() => void} wake
 * @property {(device: number, command: number, name: string) => void} device
 * @property {(device: number) => boolean} device_plays
 * @property {() => string} names a character for each byte
 * @property {(bytes: string) => void} keep_names
 */

/** @typedef {{id: number, visible: boolean, x1: number, y1: number, x2: number, y2: number, order: number, text: string}} Control */
/** @typedef {{id: number, level: number, checkable: boolean, caption: string}} Entry */

/**
 * A thing on the table, as table_words.h tells it. The key stays the same whatever lies there; group is the key of its
 * list, or "".
 * @typedef {object} Thing
 * @property {string} key
 * @property {number} role 0 label, 1 button, 2 list, 3 item
 * @property {boolean} left
 * @property {boolean} right
 * @property {boolean} selectable
 * @property {boolean} selected
 * @property {string} group
 * @property {[number, number, number, number]} box
 * @property {string} name
 */

/**
 * What the page may call; see window_web.cpp.
 * @typedef {object} Exports
 * @property {WebAssembly.Memory} memory
 * @property {() => void} _initialize
 * @property {(width: number, height: number) => void} load
 * @property {(width: number, height: number) => void} resize
 * @property {() => void} resume
 * @property {() => void} marks
 * @property {(x1: number, y1: number, x2: number, y2: number) => void} newest_mark
 * @property {() => void} things
 * @property {() => void} menu_captions
 * @property {(panel: number) => void} panel_words
 * @property {() => void} table_words
 * @property {() => number} pixels_to_a_point
 * @property {(button: number, x: number, y: number) => void} mouse_down
 * @property {(button: number, x: number, y: number) => void} mouse_move
 * @property {(entry: number) => void} menu_pick
 * @property {() => void} timer_fires
 * @property {(code: number) => void} music_done
 * @property {(panel: number) => void} panel_click
 * @property {() => number} letters_room
 * @property {(field: number, length: number) => void} name_typed
 * @property {(yes: number) => void} answer
 */

const encoder = new TextEncoder();
const decoder = new TextDecoder();

export class Game {
  /**
   * @param {WebAssembly.Module} module
   * @param {Page} page
   */
  static start(module, page) {
    const game = new Game(page);
    const instance = new WebAssembly.Instance(module, game.imports());
    game.exports = /** @type {Exports} */ (/** @type {unknown} */ (instance.exports));
    game.exports._initialize();
    return game;
  }

  /** @param {Page} page @private */
  constructor(page) {
    this.page = page;
    /** @type {Exports} */
    this.exports = /** @type {any} */ (undefined);
    /** @private */
    this.answer = "";
    /** @private @type {Entry[]} */
    this.captions = [];
    /** @private @type {Thing[]} */
    this.seen = [];
  }

  /** All that lies on the table, in reading order, a list in front of its items. */
  things() {
    this.seen = [];
    this.exports.things();
    return this.seen;
  }

  /** The menu in order, its first level the bar. */
  menu() {
    this.captions = [];
    this.exports.menu_captions();
    return this.captions;
  }

  /** @param {number} panel */
  panelText(panel) {
    this.exports.panel_words(panel);
    return this.answer;
  }

  /** The table as text, for a report of a fault. */
  tableText() {
    this.exports.table_words();
    return this.answer;
  }

  /** @param {number} field @param {string} text */
  nameTyped(field, text) {
    const at = this.exports.letters_room();
    const { written } = encoder.encodeInto(text, new Uint8Array(this.exports.memory.buffer, at, 256));
    this.exports.name_typed(field, written);
  }

  /** @private */
  imports() {
    /** @param {number} at @param {number} length */
    const bytes = (at, length) => new Uint8Array(this.exports.memory.buffer, at, length);
    /** @param {number} at @param {number} length */
    const text = (at, length) => decoder.decode(bytes(at, length));
    const { page } = this;
    /** @type {Record<string, (...values: number[]) => number | void>} */
    const operations = {
      text: (at, length) => void (this.answer = text(at, length)),
      repaint: (x1, y1, x2, y2) => page.repaint(x1, y1, x2, y2),
      text_width: (at, length, font, fontLength, points, height) =>
        page.text_width(text(at, length), text(font, fontLength), points, height),
      mark: (kind, x1, y1, x2, y2, rgb, picture) => page.mark(kind, x1, y1, x2, y2, rgb, picture),
      mark_text: (x1, y1, rgb, at, length, font, fontLength, points) =>
        page.mark_text(x1, y1, rgb, text(at, length), text(font, fontLength), points),
      thing: (kind, index, role, left, right, selectable, selected, groupKind, group, x1, y1, x2, y2, at, length) =>
        void this.seen.push({
          key: `${kind} ${index}`, role, left: left !== 0, right: right !== 0, selectable: selectable !== 0,
          selected: selected !== 0, group: groupKind === 0 ? "" : `${groupKind} ${group}`, box: [x1, y1, x2, y2],
          name: text(at, length),
        }),
      say: (at, length) => page.say(text(at, length)),
      timer: (milliseconds) => page.timer(milliseconds),
      pointer: (shape) => page.pointer(shape),
      entry: (entry, enabled, checked) => page.entry(entry, enabled !== 0, checked !== 0),
      entry_caption: (id, level, checkable, at, length) =>
        void this.captions.push({ id, level, checkable: checkable !== 0, caption: text(at, length) }),
      control: (id, visible, x1, y1, x2, y2, order, at, length) =>
        page.control({ id, visible: visible !== 0, x1, y1, x2, y2, order, text: text(at, length) }),
      box: (question, at, length) => page.box(question !== 0, text(at, length)),
      beep: () => page.beep(),
      time_of_day: () => page.time_of_day(),
      end: () => page.end(),
      wake: () => page.wake(),
      device: (device, command, at, length) => page.device(device, command, text(at, length)),
      device_plays: (device) => Number(page.device_plays(device)),
      names: (at, room) => {
        const kept = page.names().slice(0, room);
        bytes(at, kept.length).set(Array.from(kept, (letter) => letter.charCodeAt(0)));
        return kept.length;
      },
      keep_names: (at, length) => page.keep_names(String.fromCharCode(...bytes(at, length))),
    };
    // The library below writes nowhere.
    const nothing = () => 0;
    return { page: operations, wasi_snapshot_preview1: { fd_close: nothing, fd_seek: nothing, fd_write: nothing } };
  }
}
