// SPDX-License-Identifier: GPL-3.0-or-later
// Plays on the page's module what a person did at the desktop's silent window (bench/played_hands), and comes to the
// same two numbers: one over all tables, one over all that was shown and heard. Runs in Node and in a page.

const ranks = ["", "A", "2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K"];
const selected = 1000, marker = 1000, lastOfDeck = 104;
const controls = ["carta", "name 1", "name 2", "name 3", "name 4", "area", "rim", "help", "rules", "info"];

/** FNV-1a of 64 bits, in two halves. */
class Number64 {
  low = 0x84222325;
  high = 0xcbf29ce4;
  fold(byte) {
    const low = ((this.low ^ byte) >>> 0) * 0x1b3;
    this.high = (Math.imul(this.high, 0x1b3) + Math.floor(low / 2 ** 32) + (this.low ^ byte) * 256) >>> 0;
    this.low = low >>> 0;
  }
  value = () => (BigInt(this.high) << 32n) | BigInt(this.low);
}

const name = (card) => ranks[((card - 1) % 13) + 1] + "HDCS"[Math.floor((card - 1) / 13) % 4] + (card > 52 ? "'" : "");
const codes = new Map(Array.from({ length: lastOfDeck }, (_, i) => [name(i + 1), i + 1]));
codes.set("|", marker).set("?", 0);

const number = (v) => {
  const hundredth = (Math.sign(v) * Math.round(Math.abs(Math.fround(v)) * 100)) / 100;
  return Object.is(hundredth, -0) ? "-0" : String(Number(hundredth.toPrecision(6)));
};
const pair = (x, y) => ` ${number(x)},${number(y)}`;
const colour = (rgb) => ` ${rgb >> 16}.${(rgb >> 8) & 255}.${rgb & 255}`;

/** What the silent window notes, from what the module asks of a page. */
class Record {
  lines = [];
  marks = 0;
  now = 0;
  due = undefined;
  box = null;
  told = null; // the mark that was given last

  constructor(day) {
    this.day = day;
    const say = (line) => void this.lines.push(line);
    const kinds = ["fill", "outline", "line"];
    this.page = {
      repaint: (...box) => {
        this.told = null;
        this.game.exports.newest_mark(...box);
        const all = box.join() === "0,0,1024,768";
        this.marks = 0;
        if (all && !this.told) this.game.exports.marks(); // only an empty surface has been cleared
        say(this.told ?? (all && this.marks === 0 ? "clear" : `wipe${pair(box[0], box[1])}${pair(box[2], box[3])}`));
      },
      mark: (kind, x1, y1, x2, y2, rgb, picture) => {
        ++this.marks;
        this.told = kind === 3 ? `picture ${picture > 52 ? `back ${picture - 53}` : name(picture)}${pair(x1, y1)}`
          : kinds[kind] + pair(x1, y1) + pair(x2, y2) + colour(rgb);
      },
      mark_text: (x1, y1, rgb, text, font, points) => {
        ++this.marks;
        this.told = `text "${text}"${pair(x1, y1)} ${font} ${number(points)}${colour(rgb)}`;
      },
      text_width: (text, _font, _points, height) =>
        Math.fround(Math.fround(new TextEncoder().encode(text).length * height) * Math.fround(0.55)),
      timer: (milliseconds) => {
        this.due = this.now + milliseconds;
        say(`wait ${milliseconds}`);
      },
      pointer: (shape) => say(`pointer ${shape === 11 ? "hourglass" : shape === 10 ? "up arrow" : "arrow"}`),
      entry: (entry, enabled, checked) =>
        say(`menu ${this.captions.get(entry)}${enabled ? "" : " off"}${checked ? " checked" : ""}`),
      control: (c) =>
        say(`control ${controls[c.id]} ${c.visible ? "shown" : "hidden"}${pair(c.x1, c.y1)}${pair(c.x2, c.y2)}` +
          ` order ${c.order} "${c.text}"`),
      box: (question, text) => {
        say(`${question ? "question" : "box"} ${text}`);
        this.box = question ? 0 : 1; // no to every question
      },
      beep: () => say("beep"),
      time_of_day: () => Math.fround((this.day + this.now / 1000) % 86400),
      end: () => say("end"),
      wake: () => {},
      say: () => {},
      device: (device, command, what) => {
        const who = device === 0 ? "music" : "effects";
        if (command === 0) this[who] = what;
        else say(`${who} ${["", `open ${this[who]}`, "close", "play", "rewind"][command]}`);
      },
      device_plays: () => true,
      names: () => this.names ?? "",
      keep_names: (bytes) => {
        this.names = bytes;
        say(`keep names ${bytes.replace(/[\r\n]/g, "?")}`);
      },
    };
  }

  /** The game goes on, any box answered. */
  goOn() {
    const { resume, answer } = this.game.exports;
    do {
      const yes = this.box;
      this.box = null;
      if (yes !== null) answer(yes);
      resume();
    } while (this.box !== null);
  }
}

/** Folds the table as C++ does: codes of hands and melds, totals, counts. */
function foldTable(text, into) {
  const groups = {};
  let group;
  for (const word of text.split(" ")) {
    if (/^[a-z]+2?$/.test(word)) groups[(group = word)] = [];
    else if (word !== "") groups[group].push(word);
  }
  const add = (value) => {
    into.fold(value & 255);
    into.fold((value >> 8) & 255);
  };
  const of = (key) => (groups[key] ?? []).map((w) => (w[0] === "*" ? codes.get(w.slice(1)) + selected : codes.get(w)));
  for (const p of ["", "2"]) {
    const hand = of(`mano${p}`);
    add(hand.length);
    hand.forEach(add);
    of(`calate${p}`).forEach(add);
    add(Number(groups[`totale${p}`][0]));
  }
  const pile = of("pozzo");
  add(pile.length);
  if (pile.length > 0) add(pile.at(-1));
  const stock = of("tallone").length;
  add(stock > 0 || pile.length > 0 ? lastOfDeck + 1 - stock : 0); // of the next card; none while the cards are dealt
  for (const key of ["turno", "azione", "pescato"]) add(Number(groups[key][0]));
}

/** The two numbers. `lines`, if it is given, gets all that was shown and heard, to be looked at. */
export async function play(Game, bytes, script, lines) {
  const tables = [], shown = [];
  const encoder = new TextEncoder();
  const module = await WebAssembly.compile(bytes);
  let record;
  for (const event of script.split("\n")) {
    const [what, ...rest] = event.split(" ");
    const n = rest.map(Number);
    const game = record?.game;
    if (what === "series") {
      tables.push(new Number64());
      shown.push(new Number64());
    } else if (what === "open") {
      record = new Record(n[2]);
      record.game = Game.start(module, record.page);
      record.captions = new Map(record.game.menu().map((entry) => [entry.id, entry.caption]));
      record.game.exports.load(n[0], n[1]);
      record.goOn();
    } else if (what === "look") {
      foldTable(game.tableText(), tables.at(-1));
      record.marks = 0;
      game.exports.marks();
      lines?.push(...record.lines, `marks ${record.marks}`);
      const all = record.lines.map((line) => `${line}\n`).join("") + record.marks;
      for (const byte of encoder.encode(all)) shown.at(-1).fold(byte);
      record.lines = [];
    } else if (what !== "") {
      if (what === "timer") record.now = record.due;
      switch (what) {
        case "click": game.exports.mouse_down(...n); break;
        case "move": game.exports.mouse_move(0, ...n); break;
        case "menu": game.exports.menu_pick(...n); break;
        case "timer": game.exports.timer_fires(); break;
        case "tune": game.exports.music_done(...n); break;
        case "resize": game.exports.resize(...n); break;
        case "type": game.nameTyped(n[0], rest[1] ?? ""); break;
        default: throw new Error(event);
      }
      record.goOn();
    }
  }
  const hex = (value) => BigInt.asUintN(64, value).toString(16);
  return { tables: hex(tables[0].value()), shown: hex(shown[0].value() ^ (shown[1].value() * 31n)) };
}
