// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The table for who does not see it: an element, unseen, over each thing on the canvas. A press of it is a click in its
// middle. Where the right button does something else than the left, a second element stands for it; the menu key does
// the same.

import { grid } from "./table.js";

/** @typedef {import("./module.js").Thing} Thing */
/** @typedef {import("./module.js").Game} Game */

const button = 1, list = 2; // roles
const keptSentences = 20;

export class Things {
  /**
   * @param {HTMLElement} holder
   * @param {HTMLElement} news
   * @param {Game} game
   */
  constructor(holder, news, game) {
    /** @private */
    this.holder = holder;
    /** @private */
    this.news = news;
    /** @private */
    this.game = game;
    /** @private @type {Map<string, HTMLElement>} by the keys of the things */
    this.elements = new Map();
    /** @private @type {Map<Element, Thing>} of the elements that can be pressed */
    this.pressed = new Map();
    /** @private what is shown now */
    this.shown = "";

    holder.addEventListener("click", (event) => this.press(event, event.target instanceof HTMLElement && event.target.dataset.right === ""));
    holder.addEventListener("contextmenu", (event) => this.press(event, true));
  }

  /** @param {string} sentence */
  say(sentence) {
    const line = document.createElement("p");
    line.textContent = sentence;
    this.news.append(line);
    while (this.news.childElementCount > keptSentences) this.news.firstElementChild?.remove();
  }

  /** Elements stay the same as long as their things do, so that nobody who stands on one is thrown off. */
  update() {
    const things = this.game.things();
    const now = JSON.stringify(things);
    if (now === this.shown) return;
    this.shown = now;
    this.pressed.clear();

    const focused = document.activeElement;
    const before = this.elements;
    this.elements = new Map();
    /** @type {Map<HTMLElement, Element | null>} the place behind the newest child of each holder */
    const next = new Map();
    for (const thing of things) {
      const holder = this.elements.get(thing.group) ?? this.holder;
      const kind = holder !== this.holder ? "LI" : thing.role === list ? "UL" : thing.role === button ? "BUTTON" : "P";
      const known = before.get(thing.key);
      const element = known?.tagName === kind ? known : document.createElement(kind);
      this.elements.set(thing.key, element);
      const at = next.has(holder) ? next.get(holder) ?? null : holder.firstElementChild;
      if (element !== at) holder.insertBefore(element, at);
      next.set(holder, element.nextElementSibling);
      this.show(element, thing);
    }
    for (const [holder, rest] of next)
      for (let old = rest; old; ) {
        const gone = old;
        old = old.nextElementSibling;
        gone.remove();
      }
    if (focused && this.holder !== focused && !focused.isConnected) this.holder.querySelector("button")?.focus();
  }

  /** @param {HTMLElement} element @param {Thing} thing @private */
  show(element, thing) {
    if (thing.role === list) {
      element.setAttribute("aria-label", thing.name);
      return;
    }
    const [x1, y1, x2, y2] = thing.box;
    const { style } = element;
    style.left = `${(x1 * 100) / grid.width}%`;
    style.top = `${(y1 * 100) / grid.height}%`;
    style.width = `${((x2 - x1) * 100) / grid.width}%`;
    style.height = `${((y2 - y1) * 100) / grid.height}%`;
    if (element.tagName !== "LI") {
      element.textContent = thing.name;
      if (thing.role === button) this.pressable(/** @type {HTMLButtonElement} */ (element), thing);
    } else if (!thing.left && !thing.right) {
      element.textContent = thing.name;
    } else {
      const first = inside(element, 0);
      first.textContent = thing.name;
      this.pressable(first, thing);
      if (thing.selectable && !(thing.left && thing.right)) first.setAttribute("aria-pressed", String(thing.selected));
      else first.removeAttribute("aria-pressed");
      if (thing.left && thing.right) {
        const second = inside(element, 1);
        second.textContent = `Scegliete ${thing.name}`;
        second.dataset.right = "";
        second.tabIndex = -1;
        this.pressable(second, thing);
        second.setAttribute("aria-pressed", String(thing.selected));
      } else {
        element.children[1]?.remove();
      }
    }
  }

  /** @param {HTMLButtonElement} element @param {Thing} thing @private */
  pressable(element, thing) {
    this.pressed.set(element, thing);
    if (thing.left || thing.right) element.removeAttribute("aria-disabled");
    else element.setAttribute("aria-disabled", "true");
  }

  /** @param {Event} event @param {boolean} right @private */
  press(event, right) {
    const thing = event.target instanceof Element && this.pressed.get(event.target);
    if (!thing || !(thing.left || thing.right)) return;
    event.preventDefault();
    const [x1, y1, x2, y2] = thing.box;
    this.game.exports.mouse_down((right && thing.right) || !thing.left ? 2 : 1, (x1 + x2) / 2, (y1 + y2) / 2);
  }
}

/** The button of that number in a list's item. @param {HTMLElement} item @param {number} n */
function inside(item, n) {
  if (!(item.firstElementChild instanceof HTMLButtonElement)) item.textContent = "";
  while (item.childElementCount <= n) item.append(document.createElement("button"));
  return /** @type {HTMLButtonElement} */ (item.children[n]);
}
