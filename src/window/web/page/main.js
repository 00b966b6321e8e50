// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The page: it fetches the game's parts, puts them together and hands events on to the game.

import { Controls, messageBox } from "./controls.js";
import { Menus } from "./menus.js";
import { Game } from "./module.js";
import { Sound } from "./sound.js";
import { Table, fonts, grid } from "./table.js";
import { Things } from "./things.js";

const holdTime = 800; // milliseconds, of a finger, where the browser has no time of its own: the right button
const stillDistance = 10; // pixels; a finger that goes further means nothing
const namesKey = "Players";

/** @param {string} id */
const element = (id) => /** @type {HTMLElement} */ (document.getElementById(id));

/** In place of the game. @param {string} words @param {string} button */
function say(words, button) {
  const word = element("word");
  word.className = "word";
  const again = document.createElement("button");
  again.textContent = button;
  again.addEventListener("click", () => location.reload());
  word.replaceChildren(words, again);
  return again;
}

/** @param {string} file */
async function fetched(file) {
  const answer = await fetch(file);
  if (!answer.ok) throw new Error(`${file}: ${answer.status}`);
  return answer;
}

/** The names, where the browser lets a page keep something; else for as long as the page is open. */
class Names {
  bytes = "";

  read() {
    try {
      return localStorage.getItem(namesKey) ?? this.bytes;
    } catch {
      return this.bytes;
    }
  }

  /** @param {string} bytes */
  keep(bytes) {
    this.bytes = bytes;
    try {
      localStorage.setItem(namesKey, bytes);
    } catch {
      // full, or refused
    }
  }
}

async function start() {
  const canvas = /** @type {HTMLCanvasElement} */ (element("surface"));
  const letters = Promise.all(fonts.map((font) => document.fonts.load(font)));
  const drawings = fetched("cards.txt").then((file) => file.text());
  const bytes = await fetched("table.wasm").then((file) => file.arrayBuffer());
  const table = new Table(canvas);
  const names = new Names();
  /** @type {Menus | null} */
  let menus = null;
  /** @type {number | undefined} */
  let timer;
  const sound = new Sound(() => game.exports.music_done(1));
  const controls = new Controls(element("controls"), table, () => game);

  /** @type {import("./module.js").Page} */
  const page = {
    repaint: () => table.repaint(),
    text_width: (text, font, points) => table.textWidth(text, font, points),
    mark: (...values) => table.mark(...values),
    mark_text: (...values) => table.text(...values),
    timer: (milliseconds) => {
      clearTimeout(timer);
      timer = setTimeout(() => game.exports.timer_fires(), milliseconds);
    },
    pointer: (shape) => {
      canvas.className = shape === 10 ? "up" : shape === 11 ? "wait" : "";
    },
    entry: (entry, enabled, checked) => menus?.show(entry, enabled, checked),
    control: (control) => controls.show(control),
    box: (question, text) => messageBox(question, text, (yes) => game.exports.answer(Number(yes))),
    beep: () => sound.beep(),
    time_of_day: () => {
      const now = new Date();
      return (now.getTime() - new Date(now).setHours(0, 0, 0, 0)) / 1000;
    },
    end: () => {
      clearTimeout(timer);
      farewell();
    },
    wake: () => {
      if (!awake) queueMicrotask(goOn);
      awake = true;
    },
    say: (sentence) => things.say(sentence),
    device: (device, command, name) => sound.command(device, command, name),
    device_plays: (device) => sound.plays(device),
    names: () => names.read(),
    keep_names: (bytes) => names.keep(bytes),
  };

  let awake = false;
  const goOn = () => {
    awake = false;
    game.exports.resume();
    things.update();
  };

  const game = await Game.start(bytes, page);
  const things = new Things(element("things"), element("news"), game);
  table.game = game;
  menus = new Menus(element("bar"), game.menu(), (entry) => game.exports.menu_pick(entry));
  table.measure();
  await letters;
  table.pictures.drawings = (await drawings).split("\n");
  element("word").remove();
  game.exports.load(table.size.width, table.size.height);
  goOn();
  await table.paintWhole();
  performance.mark("table");

  listen(canvas, table, game);
  Object.assign(globalThis, { tavolo: () => game.tableText() }); // for who reports a fault
  setTimeout(() => {
    void table.pictures.prepare(Array.from({ length: 52 }, (_, i) => i + 1));
    void navigator.serviceWorker?.register("service-worker.js").catch(() => {});
  }, 200);
}

/** @param {HTMLCanvasElement} canvas @param {Table} table @param {Game} game */
function listen(canvas, table, game) {
  /** @param {PointerEvent} event @returns {[number, number]} in grid units */
  const at = (event) => [
    (event.offsetX * grid.width) / table.size.width,
    (event.offsetY * grid.height) / table.size.height,
  ];
  const numbers = [1, 4, 2]; // of the left, the middle and the right button

  // A finger: a tap is the left button, a hold the right one, a finger that moves or is not alone is nothing.
  /** @type {{id: number, x: number, y: number, place: [number, number], timer: number} | null} */
  let finger = null;
  const lift = () => {
    clearTimeout(finger?.timer);
    finger = null;
  };
  const hold = () => {
    const place = finger?.place;
    lift();
    if (place) game.exports.mouse_down(2, ...place);
  };

  canvas.addEventListener("pointerdown", (event) => {
    const place = at(event);
    if (document.activeElement instanceof HTMLElement) document.activeElement.blur();
    if (event.pointerType !== "touch") return game.exports.mouse_down(numbers[event.button] ?? 0, ...place);
    if (finger || !event.isPrimary) return lift();
    finger = { id: event.pointerId, x: event.clientX, y: event.clientY, place, timer: setTimeout(hold, holdTime) };
  });
  canvas.addEventListener("pointermove", (event) => {
    if (event.pointerType !== "touch") {
      const button = event.buttons & 1 ? 1 : event.buttons & 2 ? 2 : event.buttons & 4;
      game.exports.mouse_move(button, ...at(event));
    } else if (finger && Math.hypot(event.clientX - finger.x, event.clientY - finger.y) > stillDistance) {
      lift();
    }
  });
  canvas.addEventListener("pointerup", (event) => {
    if (event.pointerId !== finger?.id) return;
    const { place } = finger;
    lift();
    game.exports.mouse_down(1, ...place);
  });
  canvas.addEventListener("pointercancel", lift);
  canvas.addEventListener("contextmenu", hold); // the browser's own time for a finger; a mouse has none down
  // What a press has opened keeps the focus, and is not itself pressed by the mouse events that follow a finger.
  for (const what of ["mousedown", "touchend"]) canvas.addEventListener(what, (event) => event.preventDefault());
  document.addEventListener("contextmenu", (event) => {
    if (!(event.target instanceof HTMLInputElement)) event.preventDefault();
  });

  const resized = () => {
    if (table.measure()) game.exports.resize(table.size.width, table.size.height);
    table.paint();
  };
  new ResizeObserver(resized).observe(canvas);
  addEventListener("resize", resized);
  const watchRatio = () =>
    matchMedia(`(resolution: ${devicePixelRatio}dppx)`).addEventListener(
      "change", () => { resized(); watchRatio(); }, { once: true });
  watchRatio();
}

/** A page can't close itself. */
function farewell() {
  const dark = document.createElement("div");
  dark.className = "dark";
  const word = document.createElement("p");
  word.id = "word";
  dark.append(word);
  element("table").append(dark);
  element("bar").remove();
  element("controls").replaceChildren();
  element("things").replaceChildren();
  say("Arrivederci!", "Giocate ancora").focus();
}

start().catch((error) => {
  console.error(error);
  if (!document.getElementById("word")) {
    const word = document.createElement("p");
    word.id = "word";
    element("table").append(word);
  }
  say("Una parte del gioco non è arrivata.", "Riprovate");
});
