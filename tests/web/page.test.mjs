// SPDX-License-Identifier: GPL-3.0-or-later
// What a person does with the page, in each browser: play a hand, with a mouse and with fingers, use menus, boxes, names.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { fileURLToPath } from "node:url";
import { after, before, describe, test } from "node:test";
import { built, click, deal, engines, launch, open, ready, serve, sleep, status, table, things, until } from "./browser.mjs";

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
    const now = await until(async () => (await status(page)).match(/^(Tocca a .*: pescate|Mano finita: .*)$/)?.[0], "my turn");
    if (now.startsWith("Mano finita")) return turn;
    await press((await thing("Tallone")).at);
    await until(drawn, "the card drawn");
    const { mano } = await table(page);
    const cards = mano.length > 3 ? meld(mano).slice(0, mano.length - 1) : []; // one is left to throw away
    for (const card of cards) {
      await pick((await slots())[mano.indexOf(card)].at);
      await until(async () => (await table(page)).mano.includes(`*${card}`), `${card} selected`);
    }
    if (cards.length > 0) {
      await press((await thing("Calate le carte scelte")).at);
      await until(async () => (await table(page)).mano.length === mano.length - cards.length, `${cards} laid`);
    }
    // Always another place: who always throws away what was drawn may play for ever.
    const left = await slots();
    await press(left[turn % left.length].at);
    const over = async () => (await status(page)).startsWith("Mano finita");
    await until(async () => !(await drawn()) || (await table(page)).turno[0] === "2" || (await over()), "the card discarded");
  }
  throw new Error("a hand without an end");
}

for (const engine of engines)
  describe(engine, () => {
    const unlessWebKit = { skip: engine === "webkit" && "asks more than WebDriver gives" };
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

    test("a hand with a finger on a tablet that stands upright", unlessWebKit, async () => {
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

    const checked = (page) => page.$$eval("[aria-checked=true]", (all) => all.map((entry) => entry.textContent));
    const here = (page) => page.evaluate(() => document.activeElement.textContent);
    const keys = async (page, ...all) => {
      for (const key of all) await page.keyboard.press(key);
    };
    const alt = async (page, letter) => {
      await page.keyboard.down("Alt");
      await page.keyboard.press(letter);
      await page.keyboard.up("Alt");
    };
    const names = (page) => page.$$eval("#controls input", (all) => all.filter((f) => !f.hidden).map((f) => f.value));

    test("menus by the keyboard alone", async () => {
      const page = await open(browser, site);
      await keys(page, "F10", "ArrowRight", "ArrowRight", "ArrowDown", "ArrowRight", "End", "Enter");
      assert.deepEqual(await checked(page), ["Alta", "Si", "MODO SEQUENZIALE", "Adagio sostenuto"]);
      await alt(page, "m");
      await keys(page, "ArrowUp", "ArrowDown", "Enter");
      assert.deepEqual(await checked(page), ["Alta", "Si", "Nessuna"]);
      await keys(page, "F10", "ArrowLeft");
      assert.equal(await here(page), "Esci");
      await keys(page, "ArrowRight", "ArrowDown", "Escape");
      assert.equal(await here(page), "Partita");
      assert.equal(await page.$("[aria-expanded=true]"), null);
      await keys(page, "Tab");
      assert.equal(await here(page), "Mazzo, tagliate");
    });

    test("every entry does what it says, and each panel closes by a press", async () => {
      const page = await open(browser, site);
      for (const caption of await page.$$eval("[role=menuitemcheckbox]", (all) => all.map((entry) => entry.textContent))) {
        await page.evaluate((c) => [...document.querySelectorAll("[role=menuitemcheckbox]")].find((e) => e.textContent === c).click(), caption);
        assert.ok((await checked(page)).includes(caption), caption);
      }
      for (const letter of "rih") {
        await alt(page, letter);
        const panel = await page.waitForSelector(".panel:not([hidden])");
        await panel.click();
        assert.equal(await page.$(".panel:not([hidden])"), null);
      }
      assert.deepEqual(page.said, []);
    });

    test("a question holds the game still; Esci says farewell, with a way back", unlessWebKit, async () => {
      const page = await open(browser, site);
      await click(page, 512, 384);
      await click(page, 512, 384);
      while (await page.$("dialog")) {
        await keys(page, "Enter");
        await click(page, 512, 384);
        await click(page, 512, 384);
      }
      await alt(page, "e");
      const held = await page.evaluate(() => globalThis.tavolo());
      await sleep(3000);
      assert.equal(await page.evaluate(() => globalThis.tavolo()), held);
      await keys(page, "n");
      await until(async () => (await page.evaluate(() => globalThis.tavolo())) !== held, "the game goes on");
      await alt(page, "e");
      await keys(page, "s");
      const back = await page.waitForSelector("#word button");
      assert.match(await page.$eval("#word", (word) => word.textContent), /^Arrivederci/);
      await Promise.all([page.waitForNavigation(), back.click()]);
      await ready(page);
    });

    test("names are kept, and a browser that keeps nothing plays on", async () => {
      for (const refuse of [undefined, engine !== "webkit" && (() => {
        for (const what of ["getItem", "setItem"])
          Storage.prototype[what] = () => { throw new DOMException("no", "QuotaExceededError"); };
      })]) {
        if (refuse === false) continue;
        const page = await open(browser, site, { before: refuse });
        await keys(page, "F10", "Enter", "n");
        await page.waitForSelector("#controls input");
        await page.keyboard.type("Zoë");
        await click(page, 113, 121);
        await until(async () => (await names(page)).length === 0, "the page of names closed");
        await keys(page, "F10", "Enter", "n");
        assert.deepEqual(await until(async () => (await names(page)).length && names(page)), ["ZOË", "PLAYER2"]);
        await page.reload();
        await ready(page);
        await keys(page, "F10", "Enter", "n");
        assert.deepEqual(await until(async () => (await names(page)).length && names(page)), refuse ? ["Player1", "Player2"] : ["ZOË", "PLAYER2"]);
        assert.deepEqual(page.said, []);
      }
    });

    test("in a private window, where the storage is full to the last letter", unlessWebKit, async (t) => {
      const alone = await launch(engine, { alone: true });
      t.after(() => alone.close());
      const page = await open(alone, site, { context: alone.defaultBrowserContext() });
      const full = await page.evaluate(() => {
        for (let piece = "x".repeat(1 << 20), n = 0; piece; )
          try {
            localStorage.setItem(`full ${n++}`, piece);
          } catch {
            piece = piece.slice(piece.length / 2 + 0.5);
          }
        return Object.values(localStorage).join("").length;
      });
      assert.ok(full > 1e6, `${full} letters fill it`);
      await keys(page, "F10", "Enter", "n");
      await page.waitForSelector("#controls input");
      await page.keyboard.type("Zoë");
      await click(page, 113, 121);
      await until(async () => (await names(page)).length === 0, "the page of names closed");
      assert.equal(await page.evaluate(() => localStorage.getItem("Players")), null);
      await keys(page, "F10", "Enter", "n");
      assert.deepEqual(await until(async () => (await names(page)).length && names(page)), ["ZOË", "PLAYER2"]);
      await click(page, 113, 121);
      await until(async () => (await names(page)).length === 0, "the page of names closed again");
      await click(page, 512, 384);
      await until(async () => (await status(page)).endsWith("per voi"), "the cut");
      assert.deepEqual(page.said, []);
    });

    test("a part that does not arrive is told, and asked for again", unlessWebKit, async () => {
      for (const part of ['id="game">', "/cards.txt"]) {
        if (part.startsWith("/")) site.broken.add(part);
        else site.cut = part;
        const page = await open(browser, site, { wait: false });
        await page.waitForFunction(() => getComputedStyle(document.getElementById("word")).visibility === "visible", { timeout: 20000 });
        site.broken.clear();
        site.cut = "";
        const again = await page.$("#word button, #word a");
        await Promise.all([page.waitForNavigation(), again.click()]);
        await ready(page);
      }
    });

    test("a browser that doesn't read digits itself shows the same table", unlessWebKit, async () => {
      const picture = async (before) => {
        const page = await open(browser, site, { before });
        return page.$eval("#surface", (canvas) => canvas.getContext("2d").getImageData(1000, 300, 366, 200).data.join(" "));
      };
      const title = await picture();
      assert.ok(title.includes("255 255 255"));
      assert.equal(await picture(() => delete Uint8Array.fromHex), title);
    });

    test("without scripts a sentence says what is missing", { skip: engine !== "chrome" && "cannot be asked" }, async () => {
      const page = await (await browser.createBrowserContext()).newPage();
      await page.setJavaScriptEnabled(false);
      await page.goto(site.url);
      assert.match(await page.$eval("noscript", (sentence) => sentence.innerText), /JavaScript/);
    });

    test("tunes begin with the first press, and follow each other", unlessWebKit, async () => {
      site.extra.set("/music/Adagio sostenuto.mp3", readFileSync(`${built}sounds/Notify.mp3`));
      site.requests.length = 0;
      const page = await open(browser, site);
      const tunes = () => site.requests.filter((path) => path.startsWith("/music/"));
      assert.deepEqual(tunes(), []);
      await click(page, 512, 384);
      await until(() => tunes().length === 2, "the second tune");
      assert.deepEqual(tunes(), ["/music/Adagio sostenuto.mp3", "/music/Allegretto.mp3"]);
      assert.deepEqual(page.said, []);
    });

    test("a tune that could not be fetched is asked for again when the line is back", unlessWebKit, async () => {
      const page = await open(browser, site);
      const tune = "/music/Adagio sostenuto.mp3";
      const asked = () => site.requests.filter((path) => path === tune).length;
      // The worker would keep it from an earlier hearing.
      await page.evaluate(() => caches.keys().then((all) => Promise.all(all.map((name) => caches.delete(name)))));
      const before = asked();
      site.lost.add(tune);
      await click(page, 512, 384);
      await until(() => asked() > before, "the tune asked for");
      await sleep(300);
      site.lost.clear();
      const tried = asked();
      await page.evaluate(() => dispatchEvent(new Event("online")));
      await until(() => asked() > tried, "the tune asked for again");
    });

    test("one visit is enough to play without a line; a new version replaces the old one whole", unlessWebKit, async (t) => {
      const own = await serve();
      t.after(() => own.close());
      const context = await browser.createBrowserContext();
      const first = await open(browser, own, { context });
      await first.evaluate(() => navigator.serviceWorker.ready);
      const index = readFileSync(`${built}index.html`).toString();
      const worker = readFileSync(`${built}service-worker.js`).toString();
      own.extra.set("/index.html", index.replace("<html ", "<html id=renewed ")).set("/service-worker.js", worker.replace(/page \$\{version\}/, "page renewed"));
      const renewed = (page) => page.evaluate(() => document.documentElement.id);
      await first.reload();
      await ready(first);
      assert.equal(await renewed(first), "");
      await first.evaluate(async () => {
        const registration = await navigator.serviceWorker.ready;
        await registration.update();
        while (!registration.waiting) await new Promise((done) => setTimeout(done, 50));
      });
      await (await context.newPage()).goto("about:blank");
      await first.close();
      await sleep(500);
      own.close();
      const second = await open(browser, own, { context });
      assert.equal(await renewed(second), "renewed");
      await click(second, 512, 384);
      await until(async () => (await status(second)).endsWith("per voi"), "the cut");
    });

    test("a first visit is one request for the table, one round for the rest, at most 150 kB", unlessWebKit, async (t) => {
      const own = await serve();
      t.after(() => own.close());
      let answer;
      const cut = new Promise((done) => (answer = done));
      own.before = (path) => path !== "/index.html" && cut;
      const page = await open(browser, own, { fast: 40 });
      await click(page, 512, 384);
      await until(async () => (await status(page)).endsWith("per voi"), "the cut");
      const white = () => page.evaluate(() => {
        const canvas = document.querySelector("#surface");
        const { data } = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height / 4);
        return data.filter((value, i) => i % 4 === 0 && value > 240).length;
      });
      const without = await white();
      answer();
      await until(async () => (await white()) > without + 500, "a face");
      await until(() => own.requests.includes("/service-worker.js"), "what a later visit needs");
      const known = ["/index.html", "/cards.txt", "/icons/32.png", "/manifest.webmanifest"];
      const sounds = (path) => path.startsWith("/sounds/") || path.startsWith("/music/"); // behind the first press
      const round = own.requests.slice(0, own.requests.indexOf("/service-worker.js"));
      assert.deepEqual(round.filter((path) => !known.includes(path) && !sounds(path)), []);
      await page.evaluate(() => navigator.serviceWorker.ready);
      await sleep(300);
      assert.ok(own.bytes - own.music <= 150000, `${own.bytes - own.music} bytes`);
    });

    test("cards end on the pixels they should, at every size and ratio", unlessWebKit, async () => {
      const page = await open(browser, site);
      await click(page, 512, 384);
      await until(async () => (await status(page)).endsWith("per voi"), "the cut");
      // Chromium tells nobody of a ratio that its tools have changed alone.
      const ratioAlone = engine === "chrome" ? [] : [[1366, 736, 2], [1366, 736, 3]];
      for (const [width, height, deviceScaleFactor] of [
        [1366, 736, 1], ...ratioAlone, [1360, 730, 2], [2732, 1472, 0.5], [455, 245, 3], [390, 844, 3], [820, 1180, 2], [1024, 600, 1.25],
      ]) {
        await page.setViewport({ width, height, deviceScaleFactor });
        const off = () => page.evaluate(() => {
          const canvas = document.querySelector("#surface");
          const { style } = [...document.querySelectorAll("#things p")].find((p) => p.textContent.startsWith("La carta di"));
          const [left, top, width, height] = ["left", "top", "width", "height"].map((side) => parseFloat(style[side]) / 100);
          const [x1, x2] = [left, left + width].map((x) => Math.round(x * canvas.width));
          const y1 = Math.round(top * canvas.height);
          // From the first to behind the last pixel that is not the table's green.
          const painted = (...box) => {
            const row = canvas.getContext("2d").getImageData(...box).data;
            const is = Array.from({ length: row.length / 4 }, (_, i) => row[4 * i] !== 0 || row[4 * i + 1] !== 112);
            return [is.indexOf(true), is.lastIndexOf(true) + 1];
          };
          const across = painted(0, Math.round((top + height / 2) * canvas.height), canvas.width, 1);
          const down = painted(Math.round(0.1 * x1 + 0.9 * x2), 0, 1, Math.round(canvas.height / 4));
          const box = canvas.getBoundingClientRect();
          return [
            canvas.width - Math.round(box.width * devicePixelRatio), canvas.height - Math.round(box.height * devicePixelRatio),
            across[0] - x1, across[1] - x2, down[0] - y1,
          ];
        });
        await until(async () => (await off()).every((n) => Math.abs(n) <= 1), `${width} by ${height} at ${deviceScaleFactor}`, 5000)
          .catch(async (error) => assert.fail(`${error.message}: ${await off()}`));
      }
    });

    test("no violation of accessibility", unlessWebKit, async () => {
      const page = await open(browser, site, { fast: 40 });
      const axe = readFileSync(fileURLToPath(import.meta.resolve("axe-core/axe.min.js"))).toString();
      const look = async (what) => {
        const { violations } = await page.evaluate(`${axe}; axe.run(document)`);
        assert.deepEqual(violations.map(({ id, nodes }) => [id, nodes[0].html]), [], what);
      };
      await look("opening");
      await keys(page, "F10", "Enter");
      await look("a menu");
      await keys(page, "n");
      await page.waitForSelector("#controls input");
      await look("names");
      await alt(page, "r");
      await look("rules");
      await alt(page, "e");
      await look("a question");
      await keys(page, "n");
      await deal(page, ([x, y]) => page.mouse.click(x, y));
      await look("a hand");
    });

    test("while it waits nothing runs", unlessWebKit, async () => {
      const page = await open(browser, site, { before: () => {
        globalThis.ran = 0;
        for (const what of ["setTimeout", "setInterval", "requestAnimationFrame", "queueMicrotask"]) {
          const real = window[what];
          window[what] = (done, ...rest) => real(() => (++globalThis.ran, done()), ...rest);
        }
      } });
      await sleep(2000);
      const ran = () => page.evaluate(() => globalThis.ran);
      const spent = async () => engine === "chrome" ? (await page.metrics()).ScriptDuration + (await page.metrics()).LayoutDuration : 0;
      const before = [await ran(), await spent()];
      await sleep(5000);
      assert.equal(await ran(), before[0]);
      assert.ok((await spent()) - before[1] < 0.02, "5 s of waiting cost 20 ms");
    });

    test("an hour later it is as it was", { skip: engine !== "chrome" && "has no clock of its own" }, async () => {
      const page = await open(browser, site);
      const held = await page.evaluate(() => globalThis.tavolo());
      const session = await page.createCDPSession();
      const passed = new Promise((done) => session.once("Emulation.virtualTimeBudgetExpired", done));
      await session.send("Emulation.setVirtualTimePolicy", { policy: "advance", budget: 3600000 });
      await passed;
      await session.send("Emulation.setVirtualTimePolicy", { policy: "advance" });
      assert.equal(await page.evaluate(() => globalThis.tavolo()), held);
      await click(page, 512, 384);
      await until(async () => (await status(page)).endsWith("per voi"), "the cut");
      assert.deepEqual(page.said, []);
    });

    test("forth and back", unlessWebKit, async () => {
      const page = await open(browser, site);
      await page.goto("about:blank");
      await page.evaluate(() => history.back()).catch(() => {});
      await ready(page);
      await click(page, 512, 384);
      await until(async () => (await status(page)).endsWith("per voi"), "the cut");
    });
  });
