// SPDX-License-Identifier: GPL-3.0-or-later
// The built page behind a small server of its own, and the browsers that Debian has.
import { existsSync, mkdtempSync, rmSync } from "node:fs";
import { readFile } from "node:fs/promises";
import { createHash } from "node:crypto";
import { createServer } from "node:http";
import { tmpdir } from "node:os";
import { extname, join, normalize } from "node:path";
import { fileURLToPath } from "node:url";
import { gzipSync } from "node:zlib";
import puppeteer from "puppeteer-core";
import { hasWebKit, launchWebKit } from "./webkit.mjs";

export const built = fileURLToPath(new URL("../../build/web/", import.meta.url));

const types = {
  ".html": "text/html; charset=utf-8", ".js": "text/javascript", ".css": "text/css", ".wasm": "application/wasm",
  ".svg": "image/svg+xml", ".png": "image/png", ".woff2": "font/woff2", ".txt": "text/plain; charset=utf-8",
  ".wav": "audio/wav", ".mp3": "audio/mpeg", ".webmanifest": "application/manifest+json",
};
const packed = new Set([".html", ".js", ".css", ".wasm", ".svg", ".txt", ".wav", ".webmanifest"]);

/** @type {Map<string, Buffer>} by their etags */
const zipped = new Map();

/** Serves a folder; counts what goes over the wire. `broken` names what is answered with an error, `lost` what with none, `extra` more files; `before` is waited for; behind the text `cut` the line is gone. */
export async function serve(folder = built) {
  const site = { url: "", requests: [], bytes: 0, music: 0, broken: new Set(), lost: new Set(), extra: new Map(), before: (_path) => {}, cut: "", close: () => {} };
  const server = createServer(async (request, response) => {
    let path = decodeURIComponent(new URL(request.url, "http://x").pathname);
    if (path.endsWith("/")) path += "index.html";
    site.requests.push(path);
    await site.before(path);
    if (site.lost.has(path)) return request.socket.destroy();
    const extension = extname(path);
    try {
      if (site.broken.has(path)) throw new Error("broken");
      let body = site.extra.get(path) ?? (await readFile(join(folder, normalize(path))));
      const etag = `"${createHash("sha256").update(body).digest("hex").slice(0, 16)}"`;
      if (request.headers["if-none-match"] === etag) return response.writeHead(304, { etag }).end();
      if (site.cut && body.includes(site.cut)) {
        response.writeHead(200, { "content-type": types[extension] });
        response.write(body.subarray(0, body.indexOf(site.cut) + site.cut.length));
        return request.socket.end();
      }
      const headers = {
        "content-type": types[extension] ?? "application/octet-stream", "cache-control": "max-age=600", etag,
      };
      if (packed.has(extension)) {
        if (!zipped.has(etag)) zipped.set(etag, gzipSync(body, { level: 9 }));
        body = zipped.get(etag);
        headers["content-encoding"] = "gzip";
      }
      site.bytes += body.length;
      if (path.startsWith("/music/")) site.music += body.length;
      response.writeHead(200, headers).end(body);
    } catch {
      response.writeHead(site.broken.has(path) ? 500 : 404).end();
    }
  });
  await new Promise((resolve) => server.listen(0, "127.0.0.1", resolve));
  site.url = `http://localhost:${server.address().port}/`;
  site.close = () => (server.closeAllConnections(), server.close());
  return site;
}

const programs = { chrome: "/usr/bin/chromium", firefox: "/usr/bin/firefox-esr" };
export const engines = Object.keys(programs).filter((engine) => existsSync(programs[engine]));
if (hasWebKit) engines.push("webkit");

/** A browser that nobody has used; `alone` makes its windows private ones. */
export async function launch(engine = "chrome", options = {}) {
  if (engine === "webkit") return launchWebKit();
  const userDataDir = mkdtempSync(join(tmpdir(), "sollevinodue-web-"));
  const browser = await puppeteer.launch({
    browser: engine,
    executablePath: programs[engine],
    headless: true,
    userDataDir: engine === "chrome" ? userDataDir : undefined,
    args: engine === "chrome" ? [
      "--no-sandbox", "--disable-gpu", "--no-first-run", "--disable-background-networking", "--disable-component-update",
      "--disable-sync", "--mute-audio", ...(options.alone ? ["--incognito"] : []),
    ] : [],
    extraPrefsFirefox: { "media.volume_scale": "0.0", "browser.privatebrowsing.autostart": options.alone === true },
    defaultViewport: null,
  });
  const close = browser.close.bind(browser);
  browser.close = async () => {
    await close();
    rmSync(userDataDir, { recursive: true, force: true });
  };
  return browser;
}

/**
 * The page of a site in a window of that size, once the table is there. What it complains of is kept in `said`. `before`
 * runs in the page before its own scripts; `fast` makes its waits so many times shorter and stops its clock, from which
 * the game shuffles: each hand is the same, since a rare one doesn't end within 300 turns of the tests' simple player.
 */
export async function open(browser, site, options = {}) {
  const { width = 1366, height = 736, ratio = 1, touch = false, fast = 1, before, context, wait = true } = options;
  const page = await (context ?? (await browser.createBrowserContext())).newPage();
  page.said = [];
  page.on("console", (message) => page.said.push(message.text()));
  page.on("pageerror", (error) => page.said.push(String(error)));
  await page.setViewport({ width, height, deviceScaleFactor: ratio, hasTouch: touch, isMobile: false });
  const hasten = (times) => {
    const real = window.setTimeout;
    window.setTimeout = (done, milliseconds) => real(done, milliseconds === 800 ? 300 : milliseconds / times);
    const { Date } = window;
    window.Date = class extends Date {
      constructor(...of) {
        super(...(of.length > 0 ? of : [2026, 10, 23, 20, 50]));
      }
    };
  };
  if (fast > 1) await page.evaluateOnNewDocument?.(hasten, fast);
  if (before) await page.evaluateOnNewDocument(before);
  await page.goto(site.url).catch((error) => wait && Promise.reject(error));
  if (wait) await ready(page);
  if (fast > 1 && !page.evaluateOnNewDocument) await page.evaluate(hasten, fast);
  return page;
}

export const ready = (page) =>
  page.waitForFunction(() => performance.getEntriesByName("table").length > 0, { polling: 50 });
export const sleep = (milliseconds) => new Promise((done) => setTimeout(done, milliseconds));

/** Where a place of the table, in grid units, is in the window. */
export async function place(page, x, y) {
  const box = await page.$eval("#surface", (canvas) => canvas.getBoundingClientRect().toJSON());
  return [box.x + (x * box.width) / 1024, box.y + (y * box.height) / 768];
}

/** A press at a place of the table, in grid units. */
export async function click(page, x, y, button = "left") {
  await page.mouse.click(...(await place(page, x, y)), { button });
}

/** What lies on the table, as a screen reader has it: names, middles in the window, buttons. */
export const things = (page) =>
  page.evaluate(() =>
    Array.from(document.querySelectorAll("#things p, #things li, #things > button"), (element) => {
      const { x, y, width, height } = element.getBoundingClientRect();
      const name = (element.firstElementChild ?? element).textContent;
      return { name, list: element.parentElement.getAttribute("aria-label"), at: [x + width / 2, y + height / 2] };
    }));
export const status = async (page) => (await things(page))[0]?.name ?? "";

/** The table as text, split into its groups. */
export async function table(page) {
  const groups = {};
  let group;
  for (const word of (await page.evaluate(() => globalThis.tavolo())).split(" ").filter(Boolean))
    if (/^[a-z]+2?$/.test(word)) groups[(group = word)] = [];
    else groups[group].push(word);
  return groups;
}

/** Waits until something holds, and returns it. */
export async function until(wanted, what = String(wanted), milliseconds = 60000) {
  for (const end = Date.now() + milliseconds; Date.now() < end; await sleep(30)) {
    const now = await wanted();
    if (now) return now;
  }
  throw new Error(`it never came: ${what}`);
}

/** The cut, up to the person's first turn. `press(at)` clicks. */
export async function deal(page, press) {
  await until(async () => {
    if (await page.$("dialog")) await page.keyboard.press("Enter");
    const deck = (await things(page)).find((thing) => thing.name.startsWith("Mazzo"));
    if (deck) await press(deck.at);
    return (await status(page)).startsWith("Tocca a");
  }, "the first turn");
}
