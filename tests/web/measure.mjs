// SPDX-License-Identifier: GPL-3.0-or-later
// measure.mjs [RUNS]: what a first visit costs in Chromium. Navigation to the painted table in turn with a bare page of
// a canvas and a menu bar, each in a profile that nobody has used; bytes over the wire; the heap behind a dealt hand.
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
const painted = async (site) => {
  const page = await open(browser, site);
  const time = await page.evaluate(() => performance.getEntriesByName("table")[0].startTime);
  await page.browserContext().close();
  return time;
};
const times = { page: [], bare: [] };
for (let run = -1; run < runs; ++run)
  for (const [what, site] of [["bare", other], ["page", game]]) {
    const time = await painted(site);
    if (run >= 0) times[what].push(time);
  }
const sorted = (list) => [...list].sort((a, b) => a - b);
const median = (list) => sorted(list)[Math.floor(list.length / 2)];
for (const [what, list] of Object.entries(times))
  console.log(`${what}: median ${median(list).toFixed(0)} ms, least ${sorted(list)[0].toFixed(0)} ms`);
console.log(`ratio of the medians ${(median(times.page) / median(times.bare)).toFixed(2)}, of the least ${(sorted(times.page)[0] / sorted(times.bare)[0]).toFixed(2)}`);

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
