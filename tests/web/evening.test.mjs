// SPDX-License-Identifier: GPL-3.0-or-later
// The module plays the same matches as the desktop and shows the same, in Node and in the browsers.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { test } from "node:test";
import { fileURLToPath } from "node:url";
import { built, engines, launch, open, serve } from "./browser.mjs";
import { Game } from "../../src/window/web/page/module.js";
import { play } from "./evening.js";

const file = (name) => readFileSync(fileURLToPath(new URL(name, import.meta.url)));
const script = file("../../build/web-test/evening").toString();
const [tables, shown] = file("../played_hands.txt").toString().trim().split("\n").slice(-2);
const wanted = { tables, shown: shown.match(/^shown (\w+)/)[1] };

const digits = readFileSync(`${built}index.html`, "utf8").match(/id="game">([0-9a-f]+)</)[1];
const module = Buffer.from(digits, "hex"); // the page's own

test("an evening in Node", async () => {
  assert.deepEqual(await play(Game, module, script), wanted);
});

for (const engine of engines)
  test(`an evening in ${engine}`, async () => {
    const site = await serve();
    site.extra.set("/index.html", "<!DOCTYPE html>").set("/module.js", file("../../src/window/web/page/module.js")).set("/evening.js", file("evening.js")).set("/evening.txt", script).set("/table.wasm", module);
    const browser = await launch(engine);
    try {
      const page = await open(browser, site, { wait: false });
      const numbers = await page.evaluate(async () => {
        const [{ Game }, { play }] = await Promise.all([import("/module.js"), import("/evening.js")]);
        const [module, script] = await Promise.all(["/table.wasm", "/evening.txt"].map((name) => fetch(name)));
        return play(Game, await module.arrayBuffer(), await script.text());
      });
      assert.deepEqual(numbers, wanted);
    } finally {
      await browser.close();
      site.close();
    }
  });
