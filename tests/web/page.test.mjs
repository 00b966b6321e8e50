// SPDX-License-Identifier: GPL-3.0-or-later
// What a person does with the page, in each browser: play a hand, with a mouse and with fingers, use menus, boxes, names.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { click, deal, engines, launch, open, ready, serve, sleep, status, table, things, until } from "./browser.mjs";

/** The largest set or run among cards as "10H", or none. */
function meld(cards) {
  const rank = (card) => "A 2 3 4 5 6 7 8 9 10 J Q K".split(" ").indexOf(card.replace(/[HDCS]'?$/, ""));
  const suit = (card) => card.match(/[HDCS]/)[0];
  const first = new Map(cards.map((card) => [`${suit(card)}${rank(card)}`, card]));
  let best = [];
  for (const card of cards) {
    const set = [..."HDCS"].map((s) => first.get(`${s}${rank(card)}`)).filter(Boolean);
    const run = [];
    for (let r = rank(card); first.has(`${suit(card)}${r}`); ++r) run.push(first.get(`${suit(card)}${r}`));
    for (const found of [set, run]) if (found.length > best.length) best = found;
  }
  return best.length > 2 ? best : [];
}

/** A hand to its end, by presses alone: draw from the stock, lay what can be laid, discard. */
async function playHand(page, { press, pick }) {
  const thing = async (start) => (await things(page)).find(({ name }) => name.startsWith(start));
  const slots = async () => (await things(page)).filter(({ list }) => list?.startsWith("La vostra mano"));
  const drawn = async () => (await table(page)).pescato[0] === "1";
  await deal(page, press);
  for (let turn = 0; turn < 300; ++turn) {
    const now = await until(async () => (await status(page)).match(/^(Tocca a .*: pesca|Mano finita: .*)$/)?.[0], "my turn");
    if (now.startsWith("Mano finita")) return turn;
    await press((await thing("Tallone")).at);
    await until(drawn, "the card drawn");
    const { mano } = await table(page);
    const cards = mano.length > 3 ? meld(mano) : [];
    for (const card of cards) {
      await pick((await slots())[mano.indexOf(card)].at);
      await until(async () => (await table(page)).mano.includes(`*${card}`), `${card} selected`);
    }
    if (cards.length > 0) {
      await press((await thing("Calate le carte scelte")).at);
      await until(async () => (await table(page)).mano.length === mano.length - cards.length, `${cards} laid`);
    }
    await press((await slots()).at(-1).at);
    await until(async () => !(await drawn()) || (await table(page)).turno[0] === "2", "the card discarded");
  }
  throw new Error("a hand without an end");
}

for (const engine of engines)
  describe(engine, () => {
    let browser, site;
    before(async () => void ([browser, site] = [await launch(engine), await serve()]));
    after(async () => (await browser.close(), site.close()));

    test("a hand with the mouse, and the next one", async () => {
      const page = await open(browser, site, { fast: 40 });
      const mouse = {
        press: ([x, y]) => page.mouse.click(x, y),
        pick: ([x, y]) => page.mouse.click(x, y, { button: "right" }),
      };
      await playHand(page, mouse);
      await page.keyboard.press("F10");
      await page.keyboard.press("Enter");
      await page.keyboard.press("c");
      await until(async () => (await table(page)).game[0] === "2", "the next hand");
      assert.deepEqual(page.said, []);
    });

    test("a hand with a finger on a tablet that stands upright", async () => {
      const page = await open(browser, site, { fast: 40, touch: true, width: 820, height: 1180, ratio: 2 });
      const finger = {
        press: ([x, y]) => page.touchscreen.tap(x, y),
        pick: async ([x, y]) => {
          const touch = await page.touchscreen.touchStart(x, y);
          await sleep(400);
          await touch.end();
        },
      };
      await playHand(page, finger);
      assert.deepEqual(page.said, []);
    });
  });
