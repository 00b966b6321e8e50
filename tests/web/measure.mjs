// SPDX-License-Identifier: GPL-3.0-or-later
// measure.mjs [RUNS]: what a first visit costs in Chromium. Navigation to the painted table, and to the end of the frame
// that shows it, in turn with a bare page of a canvas and a menu bar, each in a profile that nobody has used; bytes over
// the wire; the heap behind a dealt hand.
import { deal, launch, open, serve, sleep } from "./browser.mjs";

const runs = Number(process.argv[2] ?? 15);
const bare = `<!DOCTYPE html><meta charset="utf-8"><link rel="stylesheet" href="bare.css">
<nav><span>Partita</span><span>Regole</span><span>Opzioni</span><span>Suoni</span><span>Musica</span><span>Info</span><span>Help</span><span>Esci</span></nav>
<canvas id="surface"></canvas><script type="module" src="bare.js"></script>`;
const css = "body { margin: 0 } nav { background: #efefef } span { padding: .25em .6em } canvas { width: 100%; height: 700px }";
const script = `const canvas = document.getElementById("surface"), { width, height } = canvas.getBoundingClientRect();
canvas.width = width; canvas.height = height;
const context = canvas.getContext("2d", { alpha: false });
context.fillStyle = "#007000"; context.fillRect(0, 0, width, height); performance.mark("table");`;

const game = await serve();
const other = await serve();
other.extra.set("/index.html", bare).set("/bare.css", css).set("/bare.js", script);
const browser = await launch("chrome");
const before = () => {
  const mark = performance.mark.bind(performance);
  performance.mark = (name) => {
    requestAnimationFrame(() => setTimeout(() => mark("shown")));
    return mark(name);
  };
};
const visit = async (site) => {
  const page = await open(browser, site, { before });
  await page.waitForFunction(() => performance.getEntriesByName("shown").length > 0);
  const times = await page.evaluate(() => ["table", "shown"].map((name) => performance.getEntriesByName(name)[0].startTime));
  await page.browserContext().close();
  return times;
};
const times = { table: { page: [], bare: [] }, shown: { page: [], bare: [] } };
for (let run = -1; run < runs; ++run)
  for (const [what, site] of [["bare", other], ["page", game]]) {
    const [table, shown] = await visit(site);
    if (run < 0) continue;
    times.table[what].push(table);
    times.shown[what].push(shown);
  }
const sorted = (list) => [...list].sort((a, b) => a - b);
const median = (list) => sorted(list)[Math.floor(list.length / 2)];
for (const [what, { page, bare }] of Object.entries(times)) {
  const both = (of) => `${of(page).toFixed(0)} ms, ${(of(page) / of(bare)).toFixed(2)} of the bare page's ${of(bare).toFixed(0)}`;
  console.log(`${what}: median ${both(median)}; least ${both((list) => sorted(list)[0])}`);
}

const visited = await serve();
const page = await open(browser, visited, { fast: 40 });
await page.evaluate(() => navigator.serviceWorker.ready);
await deal(page, ([x, y]) => page.mouse.click(x, y));
await sleep(500);
console.log(`first visit with a dealt hand: ${visited.bytes - visited.music} bytes without music`);
const { usedSize, totalSize, embedderHeapUsedSize = 0, backingStorageSize = 0 } = await (await page.createCDPSession()).send("Runtime.getHeapUsage");
const mb = (bytes) => (bytes / 1e6).toFixed(1);
console.log(`heap: ${mb(usedSize)} of ${mb(totalSize)} MB, the browser's own ${mb(embedderHeapUsedSize)}, module and buffers ${mb(backingStorageSize)}`);

await browser.close();
for (const site of [game, other, visited]) site.close();
