// SPDX-License-Identifier: GPL-3.0-or-later
// The page paints the deck as the browser itself paints SVG.
import assert from "node:assert/strict";
import { readFileSync, readdirSync } from "node:fs";
import { test } from "node:test";
import { fileURLToPath } from "node:url";
import { engines, launch, open, serve } from "./browser.mjs";

const deck = fileURLToPath(new URL("../../build/release/assets/cards/deck/", import.meta.url));
const drawings = readdirSync(deck).filter((name) => name.endsWith(".svg")).map((name) => [name, readFileSync(deck + name, "utf8")]);

/** In the page: the drawings with their largest difference of a colour from the browser's own picture, beyond `most`. */
async function otherwise(drawings, most) {
  const [width, height] = [264, 420]; // where an edge's own difference is small
  const { Drawing } = await import("/drawing.js");
  const pixels = (paint) => {
    const context = Object.assign(document.createElement("canvas"), { width, height }).getContext("2d", { willReadFrequently: true });
    paint(context);
    return context.getImageData(0, 0, width, height).data;
  };
  const found = [];
  for (const [name, text] of drawings) {
    const image = new Image();
    image.src = `data:image/svg+xml,${encodeURIComponent(text.replace("<svg", '<svg preserveAspectRatio="none"'))}`;
    await image.decode();
    const own = pixels((context) => context.drawImage(image, 0, 0, width, height));
    const ours = pixels((context) => new Drawing(text).paint(context, width, height));
    const worst = ours.reduce((worst, value, i) => Math.max(worst, Math.abs(value - own[i])), 0);
    if (worst > most) found.push([name, worst]);
  }
  return found;
}

for (const engine of engines)
  test(`the deck in ${engine}`, async () => {
    assert.equal(drawings.length, 54);
    const site = await serve();
    site.extra.set("/index.html", "<!DOCTYPE html>").set("/drawing.js", readFileSync(new URL("../../src/window/web/page/drawing.js", import.meta.url)));
    const browser = await launch(engine);
    try {
      const page = await open(browser, site, { wait: false });
      assert.deepEqual(await page.evaluate(otherwise, drawings, 100), []);
    } finally {
      await browser.close();
      site.close();
    }
  });
