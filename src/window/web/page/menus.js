// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The menu bar, after the pattern for menu bars of the ARIA authoring practices: one stop of the tab key, arrows within,
// letters by the "&" of the captions. Alt and a letter opens from anywhere, F10 goes to the bar.

/** @typedef {import("./module.js").Entry} Entry */

/** A caption without its "&", where that stood, and the letter behind it; else the first. @param {string} caption */
export function caption(caption) {
  const at = caption.indexOf("&");
  const text = caption.replace("&", "");
  return { text, at, letter: text[Math.max(at, 0)].toLowerCase() };
}

/** The words of a caption, the letter underlined. @param {string} words */
export function captionNodes(words) {
  const { text, at } = caption(words);
  if (at < 0) return [text];
  const underlined = document.createElement("u");
  underlined.textContent = text[at];
  return [text.slice(0, at), underlined, text.slice(at + 1)];
}

export class Menus {
  /**
   * @param {HTMLElement} nav
   * @param {Entry[]} entries in order, each level deeper opened by the entry before
   * @param {(entry: number) => void} pick
   */
  constructor(nav, entries, pick) {
    /** @private */
    this.pick = pick;
    /** @private @type {Map<number, HTMLElement>} */
    this.items = new Map();
    /** @private @type {Map<HTMLElement, {id: number, letter: string, at: number}>} */
    this.known = new Map();

    /** @type {HTMLElement[]} */
    const lists = [];
    lists[1] = this.list("menubar");
    lists[1].setAttribute("aria-label", "Menu");
    entries.forEach((entry, i) => {
      const opens = entries[i + 1]?.level > entry.level;
      const holder = document.createElement("li");
      holder.setAttribute("role", "none");
      const item = document.createElement("span");
      item.setAttribute("role", entry.checkable ? "menuitemcheckbox" : "menuitem");
      item.tabIndex = i === 0 ? 0 : -1;
      item.append(...captionNodes(entry.caption));
      holder.append(item);
      lists[entry.level].append(holder);
      this.items.set(entry.id, item);
      this.known.set(item, { id: entry.id, ...caption(entry.caption) });
      if (opens) {
        item.setAttribute("aria-haspopup", "menu");
        item.setAttribute("aria-expanded", "false");
        lists[entry.level + 1] = this.list("menu");
        lists[entry.level + 1].setAttribute("aria-label", caption(entry.caption).text);
        holder.append(lists[entry.level + 1]);
      }
    });
    nav.append(lists[1]);
    /** @private */
    this.bar = lists[1];

    nav.addEventListener("pointerdown", (event) => {
      const item = this.itemOf(event.target);
      if (!item || event.button !== 0) return;
      event.preventDefault();
      if (opens(item) && !isTop(item)) this.expand(item, item.getAttribute("aria-expanded") !== "true");
      else if (opens(item) && this.openTop() === item) this.close();
      else if (opens(item)) this.focus(item), this.expand(item, true);
    });
    nav.addEventListener("click", (event) => {
      const item = this.itemOf(event.target);
      // A screen reader clicks without a pointer.
      if (item && opens(item) && event.detail === 0) this.expand(item, item.getAttribute("aria-expanded") !== "true");
      else if (item && !opens(item)) this.act(item);
    });
    nav.addEventListener("pointerover", (event) => {
      const item = this.itemOf(event.target);
      if (!item || event.pointerType === "touch" || !this.openTop()) return;
      this.focus(item);
      if (isTop(item) && this.openTop() !== item) {
        this.close();
        this.focus(item);
        if (opens(item)) this.expand(item, true);
      }
    });
    nav.addEventListener("keydown", (event) => this.key(event));
    document.addEventListener("pointerdown", (event) => {
      if (!(event.target instanceof Node && nav.contains(event.target))) this.close();
    });
    document.addEventListener("keydown", (event) => this.keyFromAnywhere(event));
    nav.addEventListener("focusout", (event) => {
      if (!(event.relatedTarget instanceof Node && nav.contains(event.relatedTarget))) this.close();
    });
  }

  /** @param {number} id @param {boolean} enabled @param {boolean} checked */
  show(id, enabled, checked) {
    const item = this.items.get(id);
    if (!item) return;
    if (item.getAttribute("role") === "menuitemcheckbox") item.setAttribute("aria-checked", String(checked));
    if (enabled) item.removeAttribute("aria-disabled");
    else item.setAttribute("aria-disabled", "true");
  }

  /** @param {string} role @private */
  list(role) {
    const list = document.createElement("ul");
    list.setAttribute("role", role);
    return list;
  }

  /** @param {EventTarget | null} target @returns {HTMLElement | null} @private */
  itemOf(target) {
    return target instanceof Element ? target.closest("[role^=menuitem]") : null;
  }

  /** @private */
  openTop() {
    return itemsOf(this.bar).find((item) => item.getAttribute("aria-expanded") === "true");
  }

  /** @param {HTMLElement} item @private */
  focus(item) {
    if (isTop(item)) for (const top of itemsOf(this.bar)) top.tabIndex = top === item ? 0 : -1;
    item.focus();
  }

  /** @param {HTMLElement} item @param {boolean} open @private */
  expand(item, open) {
    if (item.getAttribute("aria-disabled") === "true") open = false;
    item.setAttribute("aria-expanded", String(open));
  }

  /** @private */
  fold() {
    for (const item of this.items.values()) if (opens(item)) item.setAttribute("aria-expanded", "false");
  }

  /** @private */
  close() {
    this.fold();
    const focused = document.activeElement;
    if (focused instanceof HTMLElement && this.bar.contains(focused)) focused.blur();
  }

  /** @param {HTMLElement} item @private */
  act(item) {
    if (item.getAttribute("aria-disabled") === "true") return;
    if (opens(item)) {
      this.expand(item, true);
      const first = itemsOf(menuOf(item))[0];
      if (item.getAttribute("aria-expanded") === "true") this.focus(first);
      return;
    }
    this.close();
    this.pick(this.known.get(item)?.id ?? -1);
  }

  /** @param {KeyboardEvent} event @private */
  key(event) {
    const item = this.itemOf(event.target);
    if (!item || event.ctrlKey || event.metaKey || event.altKey) return;
    const list = /** @type {HTMLElement} */ (item.closest("ul"));
    const items = itemsOf(list);
    const at = items.indexOf(item);
    const top = isTop(item);
    /** @param {number} step */
    const neighbour = (step) => items[(at + step + items.length) % items.length];
    /** @param {number} step */
    const sideways = (step) => {
      const tops = itemsOf(this.bar);
      const from = tops.findIndex((t) => t.parentElement?.contains(item));
      const open = this.openTop() !== undefined;
      const next = tops[(from + step + tops.length) % tops.length];
      this.close();
      this.focus(next);
      if (open && opens(next)) this.act(next);
    };
    const above = /** @type {HTMLElement | null} */ (list.previousElementSibling);
    switch (event.key) {
      case "ArrowRight":
        if (!top && opens(item)) this.act(item);
        else sideways(1);
        break;
      case "ArrowLeft":
        if (!top && above && !isTop(above)) this.expand(above, false), this.focus(above);
        else sideways(-1);
        break;
      case "ArrowDown":
        if (!top) this.focus(neighbour(1));
        else if (opens(item)) this.act(item);
        break;
      case "ArrowUp":
        if (top && opens(item)) {
          this.act(item);
          this.focus(itemsOf(menuOf(item)).at(-1) ?? item);
        } else if (!top) this.focus(neighbour(-1));
        break;
      case "Home": this.focus(items[0]); break;
      case "End": this.focus(items[items.length - 1]); break;
      case "Enter":
      case " ": this.act(item); break;
      case "Escape":
        if (above) this.expand(above, false), this.focus(above);
        else this.close();
        break;
      case "Tab": this.fold(); return; // from here to the next place
      default: {
        if (event.key.length !== 1) return;
        const rest = [...items.slice(at + 1), ...items.slice(0, at + 1)];
        let same = rest.filter((i) => this.known.get(i)?.letter === event.key.toLowerCase());
        const underlined = same.filter((i) => Number(this.known.get(i)?.at) >= 0);
        if (underlined.length > 0) same = underlined;
        if (same.length === 0) return;
        this.focus(same[0]);
        if (same.length === 1) this.act(same[0]);
      }
    }
    event.preventDefault();
    event.stopPropagation();
  }

  /** @param {KeyboardEvent} event @private */
  keyFromAnywhere(event) {
    if (document.querySelector("dialog[open]") || event.ctrlKey || event.metaKey) return;
    const tops = itemsOf(this.bar);
    const item =
      event.key === "F10" && !event.shiftKey ? tops[0]
      : event.altKey ? tops.find((top) => this.known.get(top)?.letter === event.key.toLowerCase())
      : undefined;
    if (!item) return;
    event.preventDefault();
    this.close();
    this.focus(item);
    if (event.altKey) this.act(item);
  }
}

/** @param {HTMLElement} item */
const opens = (item) => item.hasAttribute("aria-haspopup");
/** @param {HTMLElement} item */
const isTop = (item) => item.closest("ul")?.getAttribute("role") === "menubar";
/** @param {HTMLElement} item */
const menuOf = (item) => /** @type {HTMLElement} */ (item.nextElementSibling);
/** @param {HTMLElement} list @returns {HTMLElement[]} */
const itemsOf = (list) => Array.from(list.children, (li) => /** @type {HTMLElement} */ (li.firstElementChild));
