// SPDX-License-Identifier: GPL-3.0-or-later
// The built page behind a small server of its own, and the browsers that Debian has.
import { existsSync, mkdtempSync, rmSync } from "node:fs";
import { readFile } from "node:fs/promises";
import { createServer } from "node:http";
import { tmpdir } from "node:os";
import { extname, join, normalize } from "node:path";
import { fileURLToPath } from "node:url";
import { gzipSync } from "node:zlib";
import puppeteer from "puppeteer-core";

export const built = fileURLToPath(new URL("../../build/web/", import.meta.url));

const types = {
  ".html": "text/html; charset=utf-8", ".js": "text/javascript", ".css": "text/css", ".wasm": "application/wasm",
  ".svg": "image/svg+xml", ".png": "image/png", ".woff2": "font/woff2", ".txt": "text/plain; charset=utf-8",
  ".wav": "audio/wav", ".mp3": "audio/mpeg", ".webmanifest": "application/manifest+json",
};
const packed = new Set([".html", ".js", ".css", ".wasm", ".svg", ".txt", ".wav", ".webmanifest"]);

/** Serves a folder; counts what goes over the wire. `broken` names what is answered with an error, `extra` more files. */
export async function serve(folder = built) {
  const site = { url: "", requests: [], bytes: 0, broken: new Set(), extra: new Map(), close: () => {} };
  const server = createServer(async (request, response) => {
    let path = decodeURIComponent(new URL(request.url, "http://x").pathname);
    if (path.endsWith("/")) path += "index.html";
    site.requests.push(path);
    const extension = extname(path);
    try {
      if (site.broken.has(path)) throw new Error("broken");
      let body = site.extra.get(path) ?? (await readFile(join(folder, normalize(path))));
      const headers = { "content-type": types[extension] ?? "application/octet-stream", "cache-control": "max-age=600" };
      if (packed.has(extension)) {
        body = gzipSync(body, { level: 9 });
        headers["content-encoding"] = "gzip";
      }
      site.bytes += body.length;
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

/** A browser that nobody has used. */
export async function launch(engine = "chrome", options = {}) {
  const userDataDir = mkdtempSync(join(tmpdir(), "sollevinodue-web-"));
  const browser = await puppeteer.launch({
    browser: engine,
    executablePath: programs[engine],
    headless: true,
    userDataDir: engine === "chrome" ? userDataDir : undefined,
    args: engine === "chrome" ? [
      "--no-sandbox", "--disable-gpu", "--no-first-run", "--disable-background-networking", "--disable-component-update",
      "--disable-sync", "--mute-audio", ...(options.args ?? []),
    ] : [],
    extraPrefsFirefox: { "media.volume_scale": "0.0" },
    defaultViewport: null,
  });
  const close = browser.close.bind(browser);
  browser.close = async () => {
    await close();
    rmSync(userDataDir, { recursive: true, force: true });
  };
  return browser;
}

/** The page of a site in a window of that size, once the table is there. What it says and what it breaks is kept. */
export async function open(browser, site, { width = 1366, height = 736, ratio = 1, touch = false, path = "" } = {}) {
  const context = await browser.createBrowserContext();
  const page = await context.newPage();
  page.said = [];
  page.on("console", (message) => page.said.push(message.text()));
  page.on("pageerror", (error) => page.said.push(String(error)));
  await page.setViewport({ width, height, deviceScaleFactor: ratio, hasTouch: touch, isMobile: false });
  await page.goto(site.url + path);
  await ready(page);
  return page;
}

export const ready = (page) => page.waitForFunction(() => performance.getEntriesByName("table").length > 0);

/** Where a place of the table, in grid units, is in the window. */
export async function place(page, x, y) {
  const box = await page.$eval("#surface", (canvas) => canvas.getBoundingClientRect().toJSON());
  return [box.x + (x * box.width) / 1024, box.y + (y * box.height) / 768];
}

/** A press at a place of the table. */
export async function click(page, x, y, button = "left") {
  await page.mouse.click(...(await place(page, x, y)), { button });
}

/** The table as text, split into its groups. */
export async function table(page) {
  const text = await page.evaluate(() => globalThis.tavolo());
  const groups = {};
  let group = "";
  for (const word of text.split(" ").filter(Boolean)) {
    if (/^[a-z]+2?$/.test(word)) groups[(group = word)] = [];
    else groups[group].push(word);
  }
  return groups;
}

/** Waits until the table is as wanted. */
export async function until(page, wanted, milliseconds = 60000) {
  for (const end = Date.now() + milliseconds; Date.now() < end; await new Promise((r) => setTimeout(r, 50))) {
    const now = await table(page);
    if (wanted(now)) return now;
  }
  throw new Error(`the table never came: ${await page.evaluate(() => globalThis.tavolo())}`);
}
