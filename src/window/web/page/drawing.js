// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// A drawing painted on a canvas: the part of SVG that the deck is written in. As an image each drawing would be a document
// of its own to the browser, which comes late and takes longer to set up than to paint.

/** What an element hands on to those in it, and what it is at the root. */
const inherited = {
  fill: "#000", stroke: "none", "stroke-width": "1", "stroke-linecap": "butt", "stroke-linejoin": "miter",
  "fill-opacity": "1", "fill-rule": "nonzero",
};

/** @typedef {typeof inherited} Style */

export class Drawing {
  /** @param {string} text an SVG document */
  constructor(text) {
    const { documentElement } = new DOMParser().parseFromString(text, "image/svg+xml");
    /** @private */
    this.size = numbers(documentElement, "width", "height");
    /** @private @type {{path: Path2D, matrix: DOMMatrix, style: Style}[]} in the order of painting */
    this.shapes = [];
    for (const child of documentElement.children) this.add(child, new DOMMatrix(), inherited);
  }

  /** @param {Element} element @param {DOMMatrix} around @param {Style} style @private */
  add(element, around, style) {
    if (!(element instanceof SVGGraphicsElement) || element instanceof SVGDefsElement) return;
    const own = { ...style };
    for (const name of /** @type {(keyof Style)[]} */ (Object.keys(own))) own[name] = element.getAttribute(name) ?? own[name];
    const moved = element.transform.baseVal.consolidate()?.matrix;
    const matrix = moved ? around.multiply(moved) : around;
    const path = outline(element);
    const used = element.ownerDocument.getElementById(element.getAttribute("xlink:href")?.slice(1) ?? "");
    if (path) this.shapes.push({ path, matrix, style: own });
    else for (const child of used ? [used] : element.children) this.add(child, matrix, own);
  }

  /** Fills that size, whatever the drawing's own. @param {CanvasRenderingContext2D} context @param {number} width @param {number} height */
  paint(context, width, height) {
    context.miterLimit = 4; // of SVG
    const whole = new DOMMatrix().scale(width / this.size[0], height / this.size[1]);
    for (const { path, matrix, style } of this.shapes) {
      context.setTransform(whole.multiply(matrix));
      if (style.fill !== "none") {
        context.fillStyle = style.fill;
        context.globalAlpha = Number(style["fill-opacity"]);
        context.fill(path, /** @type {CanvasFillRule} */ (style["fill-rule"]));
      }
      if (style.stroke !== "none") {
        context.strokeStyle = style.stroke;
        context.globalAlpha = 1;
        context.lineWidth = Number(style["stroke-width"]);
        context.lineCap = /** @type {CanvasLineCap} */ (style["stroke-linecap"]);
        context.lineJoin = /** @type {CanvasLineJoin} */ (style["stroke-linejoin"]);
        context.stroke(path);
      }
    }
  }
}

/** @param {Element} element @param {string[]} names */
const numbers = (element, ...names) => names.map((name) => Number(element.getAttribute(name)));

/** Null for an element that only holds others. @param {Element} element */
function outline(element) {
  if (element.localName === "path") return new Path2D(element.getAttribute("d") ?? "");
  const path = new Path2D();
  if (element.localName === "rect") {
    const [x, y, width, height, round] = numbers(element, "x", "y", "width", "height", "rx");
    path.roundRect(x, y, width, height, round);
  } else if (element.localName === "circle") {
    const [x, y, r] = numbers(element, "cx", "cy", "r");
    path.arc(x, y, r, 0, 2 * Math.PI);
  } else if (element.localName === "ellipse") {
    const [x, y, rx, ry] = numbers(element, "cx", "cy", "rx", "ry");
    path.ellipse(x, y, rx, ry, 0, 0, 2 * Math.PI);
  } else return null;
  return path;
}
