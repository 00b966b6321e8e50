// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The page: it puts the game's parts together and hands events on to the game.

import { Controls, messageBox } from "./controls.js";
import { Menus } from "./menus.js";
import { Game } from "./module.js";
import { Sound } from "./sound.js";
import { Table, firstFace, grid } from "./table.js";
import { Things } from "./things.js";

const holdTime = 800; // milliseconds, of a finger, where the browser has no time of its own: the right button
const stillDistance = 10; // pixels; a finger that goes further means nothing
const namesKey = "Players";

/** @param {string} id */
const element = (id) => /** @type {HTMLElement} */ (document.getElementById(id));

/** In place of the game. @param {string} words @param {string} button */
function say(words, button) {
  const dark = document.createElement("div");
  dark.className = "dark";
  const word = document.createElement("p");
  word.className = "word";
  word.role = "status";
  const again = document.createElement("button");
  again.textContent = button;
  again.addEventListener("click", () => location.reload());
  word.replaceChildren(words, again);
  dark.append(word);
  element("table").append(dark);
  document.getElementById("word")?.remove();
  word.id = "word";
  element("bar").remove();
  element("controls").replaceChildren();
  element("things").replaceChildren();
  return again;
}

/** @param {string} text */
const lines = (text) => text.trimEnd().split("\n");

/** Bytes that stand in the page. @param {string} id @returns {Uint8Array<ArrayBuffer>} */
function bytes(id) {
  const digits = element(id).textContent ?? "";
  if ("fromHex" in Uint8Array) return /** @type {any} */ (Uint8Array).fromHex(digits);
  return Uint8Array.from({ length: digits.length / 2 }, (_, i) => parseInt(digits.slice(2 * i, 2 * i + 2), 16));
}

/** The table's two fonts; a browser that takes none from a page plays with others. */
function loadFonts() {
  const fonts = [["Tavolo", "bold"], ["Titolo", "title"]].map(([name, id]) => new FontFace(name, bytes(id), { weight: "700" }));
  for (const font of fonts) document.fonts.add(font);
  return Promise.allSettled(fonts.map((font) => font.load()));
}

/** The drawings of the faces. */
async function fetchFaces() {
  const answer = await fetch("cards.txt");
  if (!answer.ok) throw new Error(`cards.txt: ${answer.status}`);
  return lines(await answer.text());
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
  const table = new Table(canvas, lines(element("backs").textContent ?? ""));
  const fonts = loadFonts();
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
      say("Arrivederci!", "Giocate ancora").focus(); // a page can't close itself
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

  const game = Game.start(new WebAssembly.Module(bytes("game")), page);
  const things = new Things(element("things"), element("news"), game);
  table.game = game;
  menus = new Menus(element("bar"), game.menu(), (entry) => game.exports.menu_pick(entry));
  table.measure();
  await fonts;
  element("word").remove();
  game.exports.load(table.size.width, table.size.height);
  game.exports.resume();
  table.paint();
  performance.mark("table");

  listen(canvas, table, game);
  await new Promise((done) => requestAnimationFrame(() => setTimeout(done))); // the table is shown
  things.update();
  Object.assign(globalThis, { tavolo: () => game.tableText() }); // for who reports a fault
  table.pictures.add(firstFace, await fetchFaces());
  setTimeout(() => void navigator.serviceWorker?.register("service-worker.js").catch(() => {}), 200);
}

/** @param {HTMLCanvasElement} canvas @param {Table} table @param {Game} game */
function listen(canvas, table, game) {
  /** @param {MouseEvent} event @returns {[number, number]} in grid units */
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
    if (document.activeElement instanceof HTMLElement) document.activeElement.blur();
    if (event.pointerType !== "touch") return;
    if (finger || !event.isPrimary) return lift();
    const { pointerId: id, clientX: x, clientY: y } = event;
    finger = { id, x, y, place: at(event), timer: setTimeout(hold, holdTime) };
  });
  // For each button, where the pointer goes down but once for all that are held.
  canvas.addEventListener("mousedown", (event) => {
    event.preventDefault(); // what a press has opened keeps the focus
    game.exports.mouse_down(numbers[event.button] ?? 0, ...at(event));
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
  canvas.addEventListener("touchend", (event) => event.preventDefault()); // no mouse events follow a finger
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

start().catch((error) => {
  console.error(error);
  say("Una parte del gioco non è arrivata.", "Riprovate");
});
