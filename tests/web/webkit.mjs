// SPDX-License-Identifier: GPL-3.0-or-later
// WebKit's small browser through WebDriver, as far as the tests need it, under the names that puppeteer has for it. It has
// no page without a window, so it brings a display. It can't tell what a page complains of, nor run anything in front of
// the page's scripts.
import { spawn } from "node:child_process";
import { once } from "node:events";
import { existsSync } from "node:fs";

const driverProgram = "/usr/bin/WebKitWebDriver";
export const hasWebKit = existsSync(driverProgram);

const keys = {
  Tab: "\uE004", Enter: "\uE007", Alt: "\uE00A", Escape: "\uE00C", End: "\uE010", Home: "\uE011", ArrowLeft: "\uE012",
  ArrowUp: "\uE013", ArrowRight: "\uE014", ArrowDown: "\uE015", F10: "\uE03A",
};
const elementKey = "element-6066-11e4-a52e-4f735466cecf";

/** What a program writes first. */
async function firstLine(stream) {
  const [line] = await once(stream, "data");
  return line.toString().trim();
}

class Page {
  constructor(call) {
    this.call = call;
    const pointer = (...actions) =>
      this.act({ type: "pointer", id: "mouse", parameters: { pointerType: "mouse" }, actions });
    const key = (...actions) =>
      this.act({ type: "key", id: "keys", actions: actions.map(([type, name]) => ({ type, value: keys[name] ?? name })) });
    this.mouse = {
      click: (x, y, { button = "left" } = {}) => {
        const number = ["left", "middle", "right"].indexOf(button);
        return pointer(
          { type: "pointerMove", x: Math.round(x), y: Math.round(y), duration: 0 },
          { type: "pointerDown", button: number }, { type: "pointerUp", button: number });
      },
    };
    this.keyboard = {
      press: (name) => key(["keyDown", name], ["keyUp", name]),
      down: (name) => key(["keyDown", name]),
      up: (name) => key(["keyUp", name]),
      type: (text) => key(...Array.from(text, (letter) => [["keyDown", letter], ["keyUp", letter]]).flat()),
    };
  }

  act(source) {
    return this.call("POST", "/actions", { actions: [source] });
  }
  on() {}
  goto(url) {
    return this.call("POST", "/url", { url });
  }
  reload() {
    return this.call("POST", "/refresh", {});
  }
  /** The size of the page, not of the window around it. */
  async setViewport({ width, height }) {
    await this.call("POST", "/window/rect", { width, height });
    const [w, h] = await this.evaluate(() => [innerWidth, innerHeight]);
    await this.call("POST", "/window/rect", { width: 2 * width - w, height: 2 * height - h });
  }
  async evaluate(asked, ...args) {
    const script = `const done = arguments[arguments.length - 1], args = [...arguments].slice(0, -1);
      (async () => (${asked})(...args))().then((value) => done({ value }), (error) => done({ error: String(error) }));`;
    const { value, error } = await this.call("POST", "/execute/async", { script, args });
    if (error) throw new Error(error);
    return value;
  }
  $eval(selector, asked) {
    return this.evaluate(`(selector) => (${asked})(document.querySelector(selector))`, selector);
  }
  $$eval(selector, asked) {
    return this.evaluate(`(selector) => (${asked})([...document.querySelectorAll(selector)])`, selector);
  }
  async $(selector) {
    const found = await this.call("POST", "/elements", { using: "css selector", value: selector });
    const id = found[0]?.[elementKey];
    return id ? { click: () => this.call("POST", `/element/${id}/click`, {}) } : null;
  }
  async waitForFunction(asked, { timeout = 30000, polling = 50 } = {}) {
    for (const end = Date.now() + timeout; !(await this.evaluate(asked)); ) {
      if (Date.now() > end) throw new Error(`it never came: ${asked}`);
      await new Promise((done) => setTimeout(done, polling));
    }
  }
  async waitForSelector(selector) {
    await this.waitForFunction(`() => document.querySelector(${JSON.stringify(selector)})?.isConnected`);
    return this.$(selector);
  }
}

/** A browser with one page at a time; each opened one is one that nobody has used. */
export async function launchWebKit() {
  const xvfb = spawn("Xvfb", ["-displayfd", "1", "-screen", "0", "1920x1600x24", "-nolisten", "tcp"], { stdio: ["ignore", "pipe", "ignore"] });
  const display = `:${await firstLine(xvfb.stdout)}`;
  const port = 20000 + (process.pid % 20000);
  const driver = spawn(driverProgram, [`--port=${port}`], { env: { ...process.env, DISPLAY: display }, stdio: "ignore" });
  let session = "";
  const call = async (method, path, body) => {
    const answer = await fetch(`http://127.0.0.1:${port}${session}${path}`, { method, body: body && JSON.stringify(body) });
    const { value } = await answer.json();
    if (!answer.ok) throw new Error(`${path}: ${value.message}`);
    return value;
  };
  const end = async () => {
    if (session) await call("DELETE", "");
    session = "";
  };
  for (let tries = 0; ; ++tries) {
    try {
      if ((await call("GET", "/status")).ready) break;
    } catch (error) {
      if (tries === 100) throw error;
    }
    await new Promise((done) => setTimeout(done, 100));
  }
  return {
    createBrowserContext: async () => ({
      newPage: async () => {
        await end();
        session = `/session/${(await call("POST", "/session", { capabilities: {} })).sessionId}`;
        await call("POST", "/timeouts", { script: 120000 });
        return new Page(call);
      },
    }),
    close: async () => {
      await end().catch(() => {});
      driver.kill();
      xvfb.kill();
    },
  };
}
