// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The table: the marks of the game's surface on a canvas, in device pixels.

import { Drawing } from "./drawing.js";

export const grid = { width: 1024, height: 768 };
const rightMargin = 4; // free at the right edge for a text, grid units
const large = 160; // letters are drawn and measured in this size for all, so that they keep their widths

/** Every edge goes through this one rounding, halves away from zero. @param {number} v */
const round = (v) => Math.sign(v) * Math.floor(Math.abs(v) + 0.5);

/** @param {string} name as the game asks for it */
const family = (name) => `${large}px ${name === "Brush Script MT" ? "Titolo" : "Tavolo"}`;

/** @param {number} rgb */
const colour = (rgb) => `#${rgb.toString(16).padStart(6, "0")}`;

export const firstFace = 1;
const firstBack = 53; // of the pictures

/** The 54 pictures, each painted once for a size. */
class Pictures {
  /**
   * @param {string[]} backs SVG documents
   * @param {() => void} repaint
   */
  constructor(backs, repaint) {
    /** @private */
    this.repaint = repaint;
    /** @private @type {string[]} */
    this.texts = [];
    /** @private @type {Drawing[]} read when they are first painted */
    this.drawings = [];
    /** @private @type {Map<string, HTMLCanvasElement>} */
    this.painted = new Map();
    /** @private whether one was asked for before it was there */
    this.missed = false;
    this.add(firstBack, backs);
  }

  /** @param {number} first @param {string[]} texts SVG documents */
  add(first, texts) {
    texts.forEach((text, i) => (this.texts[first + i] = text));
    if (this.missed) this.repaint();
  }

  forgetSizes() {
    this.painted.clear();
  }

  /** Nothing while it is not there yet. @param {number} picture @param {number} width @param {number} height */
  get(picture, width, height) {
    const key = `${picture} ${width} ${height}`;
    const known = this.painted.get(key);
    if (known) return known;
    const drawing = this.drawing(picture);
    if (!drawing) {
      this.missed = true;
      return null;
    }
    const canvas = document.createElement("canvas");
    canvas.width = width;
    canvas.height = height;
    const context = canvas.getContext("2d");
    if (context) drawing.paint(context, width, height);
    this.painted.set(key, canvas);
    return canvas;
  }

  /** @param {number} picture @private */
  drawing(picture) {
    const text = this.texts[picture];
    if (text && !this.drawings[picture]) this.drawings[picture] = new Drawing(text);
    return this.drawings[picture];
  }
}

export class Table {
  /**
   * @param {HTMLCanvasElement} canvas
   * @param {string[]} backs drawings
   */
  constructor(canvas, backs) {
    /** @private */
    this.canvas = canvas;
    const context = canvas.getContext("2d", { alpha: false });
    if (!context) throw new Error("no canvas");
    /** @private */
    this.context = context;
    /** @type {import("./module.js").Game | null} nothing is painted without one */
    this.game = null;
    this.pictures = new Pictures(backs, () => this.repaint());
    /** @private the frame that will paint, or 0 */
    this.frame = 0;
    /** @private @type {Map<string, {ascent: number, descent: number}>} */
    this.metrics = new Map();
    /** Size in CSS pixels, and device pixels to one of them. */
    this.size = { width: 1, height: 1, ratio: 1 };
  }

  /** Takes the size that the canvas has on the screen. True if it is another one. */
  measure() {
    const box = this.canvas.getBoundingClientRect();
    const ratio = window.devicePixelRatio;
    const size = { width: Math.max(1, round(box.width)), height: Math.max(1, round(box.height)), ratio };
    const width = Math.max(1, round(box.width * ratio));
    const height = Math.max(1, round(box.height * ratio));
    const other = size.width !== this.size.width || size.height !== this.size.height;
    if (width !== this.canvas.width || height !== this.canvas.height) {
      this.canvas.width = width;
      this.canvas.height = height;
      this.pictures.forgetSizes();
    }
    this.size = size;
    return other;
  }

  /** Soon, once, however often it is asked for. */
  repaint() {
    if (this.game && this.frame === 0) this.frame = requestAnimationFrame(() => this.paint());
  }

  paint() {
    cancelAnimationFrame(this.frame);
    this.frame = 0;
    const { context } = this;
    context.setTransform(1, 0, 0, 1, 0, 0);
    context.fillStyle = colour(0x007000);
    context.fillRect(0, 0, this.canvas.width, this.canvas.height);
    this.game?.exports.marks();
  }

  /** @param {number} v */
  x(v) {
    return round((v * this.canvas.width) / grid.width);
  }
  /** @param {number} v */
  y(v) {
    return round((v * this.canvas.height) / grid.height);
  }

  /** @param {number} kind @param {number} x1 @param {number} y1 @param {number} x2 @param {number} y2 @param {number} rgb @param {number} picture */
  mark(kind, x1, y1, x2, y2, rgb, picture) {
    const { context } = this;
    const [x, y] = [this.x(x1), this.y(y1)];
    const [w, h] = [this.x(x2) - x, this.y(y2) - y];
    // Of lines and frames: no more than a grid unit, the same on both axes.
    const t = Math.max(1, Math.floor(Math.min(this.canvas.width / grid.width, this.canvas.height / grid.height)));
    context.fillStyle = colour(rgb);
    if (kind === 0) {
      context.fillRect(x, y, w, h);
    } else if (kind === 1) {
      context.fillRect(x, y, w, t);
      context.fillRect(x, y + h - t, w, t);
      context.fillRect(x, y, t, h);
      context.fillRect(x + w - t, y, t, h);
    } else if (kind === 2) {
      context.fillRect(x, y, Math.max(w, t), Math.max(h, t));
    } else if (w > 0 && h > 0) {
      const drawn = this.pictures.get(picture, w, h);
      if (drawn) context.drawImage(drawn, x, y);
    }
  }

  /**
   * The cell of a text is as high as its font's size. A text that would run off the right edge is drawn smaller.
   * @param {number} x1 @param {number} y1 @param {number} rgb @param {string} text @param {string} font @param {number} points
   */
  text(x1, y1, rgb, text, font, points) {
    const { context } = this;
    const { ascent, descent } = this.setFont(font);
    const size = points * (this.game?.exports.pixels_to_a_point() ?? 1) * this.size.ratio;
    const measured = context.measureText(text);
    const x = this.x(x1);
    const room = this.x(grid.width - rightMargin) - x;
    const right = Math.max(measured.width, measured.actualBoundingBoxRight);
    const fit = Math.min(size / large, room > 0 ? room / right : 1);
    context.setTransform(fit, 0, 0, fit, x, round(this.y(y1) + (size * ascent) / (ascent + descent)));
    context.fillStyle = colour(rgb);
    context.fillText(text, 0, 0);
    context.setTransform(1, 0, 0, 1, 0, 0);
  }

  /** In grid units. @param {string} text @param {string} font @param {number} points */
  textWidth(text, font, points) {
    this.setFont(font);
    const ems = this.context.measureText(text).width / large;
    return (ems * points * (this.game?.exports.pixels_to_a_point() ?? 1) * grid.width) / this.size.width;
  }

  /** @param {string} name @private */
  setFont(name) {
    const { context } = this;
    context.font = `bold ${family(name)}`;
    context.fontKerning = "none";
    context.textRendering = "geometricPrecision";
    context.textBaseline = "alphabetic";
    let metrics = this.metrics.get(name);
    if (!metrics) {
      const measured = context.measureText("x");
      metrics = { ascent: measured.fontBoundingBoxAscent, descent: measured.fontBoundingBoxDescent };
      this.metrics.set(name, metrics);
    }
    return metrics;
  }
}
