// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What lies over the table: the name fields, the two shapes of the names page, the three panels, and the message boxes.

import { captionNodes, caption } from "./menus.js";

/** @typedef {import("./module.js").Control} Control */
/** @typedef {import("./module.js").Game} Game */

const firstField = 1, lastField = 4, frontShape = 5, backShape = 6, help = 7, rules = 8, about = 9;
const longestName = 7;
const smallPoints = 7.8, largePoints = 12;

export class Controls {
  /**
   * @param {HTMLElement} holder
   * @param {import("./table.js").Table} table
   * @param {() => Game} game
   */
  constructor(holder, table, game) {
    /** @private */
    this.holder = holder;
    /** @private */
    this.table = table;
    /** @private */
    this.game = game;
    /** @private @type {Map<number, HTMLElement>} made when they are first shown */
    this.elements = new Map();
  }

  /** @param {Control} control */
  show(control) {
    if (control.id < firstField) return;
    let element = this.elements.get(control.id);
    if (!element && !control.visible) return;
    if (!element) {
      element = this.make(control.id);
      this.elements.set(control.id, element);
      this.holder.append(element);
    }
    const { width, height } = this.table.size;
    const left = Math.round((control.x1 * width) / 1024);
    const top = Math.round((control.y1 * height) / 768);
    const tall = Math.round((control.y2 * height) / 768) - top;
    const { style } = element;
    const wasHidden = element.hidden;
    element.hidden = !control.visible;
    style.left = `${left}px`;
    style.top = `${top}px`;
    style.width = `${Math.round((control.x2 * width) / 1024) - left}px`;
    style.zIndex = String(control.order);
    const points = control.id === help || control.id === rules ? largePoints : smallPoints;
    const letters = Math.max(1, Math.round(points * this.game().exports.pixels_to_a_point()));
    style.fontSize = `${letters}px`;
    if (control.id >= help) {
      // Grows down to show its text, at most to the bottom of the table.
      style.minHeight = `${Math.min(tall, height - top)}px`;
      style.maxHeight = `${height - top}px`;
      style.padding = `${Math.floor(letters / 3)}px`;
      if (control.visible && wasHidden) element.focus({ preventScroll: true });
    } else {
      style.height = `${tall}px`;
    }
    if (element instanceof HTMLInputElement && element.value !== control.text)
      element.value = control.text.slice(0, longestName);
    // Not for a finger: it would bring up the keyboard on the screen.
    if (control.id === firstField && control.visible && wasHidden && !matchMedia("(pointer: coarse)").matches)
      queueMicrotask(() => /** @type {HTMLInputElement} */ (element).select());
  }

  /** @param {number} id @returns {HTMLElement} @private */
  make(id) {
    if (id === frontShape || id === backShape) {
      const shape = document.createElement("div");
      shape.className = "shape";
      shape.style.background = id === frontShape ? "rgb(128 128 0)" : "rgb(192 192 0)";
      shape.hidden = true;
      return shape;
    }
    if (id <= lastField) {
      const field = document.createElement("input");
      field.maxLength = longestName;
      field.autocomplete = "off";
      field.spellcheck = false;
      field.setAttribute("aria-label", id === firstField ? "Player1 (you)" : `Player${id}`);
      field.addEventListener("input", () => this.game().nameTyped(id, field.value));
      field.hidden = true;
      return field;
    }
    const panel = document.createElement("div");
    panel.className = id === about ? "panel bordered" : "panel";
    panel.tabIndex = 0;
    panel.setAttribute("role", "region");
    panel.setAttribute("aria-label", id === rules ? "Regole" : id === help ? "Help" : "Info");
    panel.textContent = this.game().panelText(id);
    panel.addEventListener("pointerdown", (event) => {
      if (event.offsetX < panel.clientWidth) event.pointerType === "touch" || this.game().exports.panel_click(id);
    });
    // A finger scrolls; only a tap closes.
    panel.addEventListener("click", (event) => {
      if (!panel.hidden && event.offsetX < panel.clientWidth) this.game().exports.panel_click(id);
    });
    panel.hidden = true;
    return panel;
  }
}

/**
 * A box with the text alone; it holds the page until it has been answered.
 * @param {boolean} question
 * @param {string} text
 * @param {(yes: boolean) => void} answered
 */
export function messageBox(question, text, answered) {
  const dialog = document.createElement("dialog");
  const title = document.createElement("h2");
  title.textContent = "SollevinoDue";
  title.id = "box-title";
  const words = document.createElement("p");
  words.textContent = text;
  words.id = "box-words";
  dialog.setAttribute("aria-labelledby", title.id);
  dialog.setAttribute("aria-describedby", words.id);
  const row = document.createElement("div");
  /** @param {boolean} yes */
  const close = (yes) => {
    if (!dialog.open) return;
    dialog.close();
    dialog.remove();
    answered(yes);
  };
  /** @type {Map<string, boolean>} */
  const letters = new Map();
  for (const [label, yes] of /** @type {[string, boolean][]} */ (question ? [["&Sì", true], ["&No", false]] : [["OK", true]])) {
    const button = document.createElement("button");
    button.append(...captionNodes(label));
    button.addEventListener("click", () => close(yes));
    row.append(button);
    if (question) letters.set(caption(label).letter, yes);
  }
  dialog.addEventListener("keydown", (event) => {
    const yes = letters.get(event.key.toLowerCase());
    if (yes === undefined || event.ctrlKey || event.metaKey) return;
    event.preventDefault();
    close(yes);
  });
  dialog.addEventListener("cancel", (event) => {
    event.preventDefault();
    close(!question);
  });
  dialog.append(title, words, row);
  document.body.append(dialog);
  dialog.showModal();
  row.querySelector("button")?.focus();
}
