// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The two voices. A browser lets a page sound from the first click or key on; what is due before waits for it. What
// cannot be had or played is silent.

const effectFiles = { carta: "carta.wav", Notify: "Notify.mp3" };

/** What the game knows of a device: the name it has set, the one that is open, and whether that stands at its start. */
class Device {
  name = "";
  /** @type {string | null} */
  opened = null;
  atStart = false;
}

export class Sound {
  /** @param {() => void} done a tune has played to its end, the breath of silence behind it included */
  constructor(done) {
    /** @private */
    this.done = done;
    /** @private */
    this.devices = [new Device(), new Device()];
    /** @private @type {AudioContext | null} null until the page may sound */
    this.context = null;
    /** @private @type {Map<string, AudioBuffer>} */
    this.effects = new Map();
    /** @private @type {Map<string, AudioBufferSourceNode>} */
    this.sounding = new Map();
    /** @private @type {HTMLAudioElement | null} */
    this.tune = null;
    /** @private Counts starts and cuts: a tune that arrives late is of no interest. */
    this.tuneNumber = 0;
    /** @private @type {string | null} */
    this.due = null;
    /** @private the tune that was begun last has turned out not to play */
    this.failed = false;
    /** @private @type {string | null} the tune that could not be fetched */
    this.missed = null;
    addEventListener("online", () => this.missed !== null && void this.play(this.missed));
    for (const event of ["pointerdown", "pointerup", "keydown"])
      addEventListener(event, () => this.unlock(), { capture: true, passive: true });
  }

  /** @param {number} device @param {number} command @param {string} name */
  command(device, command, name) {
    const d = this.devices[device];
    const music = device === 0;
    switch (command) {
      case 0: d.name = name; break;
      case 1: d.opened = d.name; d.atStart = true; break;
      case 2: if (d.opened !== null && music) this.stop(); d.opened = null; break;
      case 3:
        if (d.opened === null || !d.atStart) return;
        d.atStart = false;
        if (music) void this.play(d.opened);
        else this.effect(d.opened);
        break;
      case 4: d.atStart = true; break;
    }
  }

  /** False once it is known that what was begun last can't be heard. @param {number} device */
  plays(device) {
    return device !== 0 || !this.failed;
  }

  beep() {
    const { context } = this;
    if (!context) return;
    const tone = context.createOscillator();
    const gain = context.createGain();
    tone.frequency.value = 750;
    gain.gain.value = 0.1;
    tone.connect(gain).connect(context.destination);
    tone.start();
    tone.stop(context.currentTime + 0.12);
  }

  /** @private */
  unlock() {
    if (this.context) {
      if (this.context.state !== "running") void this.context.resume().catch(() => {});
    } else {
      try {
        this.context = new AudioContext();
      } catch {
        return;
      }
      for (const [name, file] of Object.entries(effectFiles)) void this.load(name, file);
    }
    if (this.due !== null) void this.play(this.due);
  }

  /** @param {string} name @param {string} file @private */
  async load(name, file) {
    try {
      const answer = await fetch(`sounds/${file}`);
      if (answer.ok && this.context)
        this.effects.set(name, await this.context.decodeAudioData(await answer.arrayBuffer()));
    } catch {
      // silent
    }
  }

  /** The same sound starts again, another rings out beside it. @param {string} name @private */
  effect(name) {
    const buffer = this.effects.get(name);
    if (!buffer || !this.context) return;
    this.sounding.get(name)?.stop();
    const source = this.context.createBufferSource();
    source.buffer = buffer;
    source.connect(this.context.destination);
    source.start();
    this.sounding.set(name, source);
  }

  /** @private */
  stop() {
    ++this.tuneNumber;
    this.due = null;
    this.missed = null;
    if (!this.tune) return;
    this.tune.pause();
    URL.revokeObjectURL(this.tune.src);
    this.tune = null;
  }

  /** @param {string} name @private */
  async play(name) {
    this.failed = false;
    if (this.tune?.title === name && this.due === null) {
      this.tune.currentTime = 0; // the same again
      void this.tune.play().catch(() => {});
      return;
    }
    this.stop();
    this.due = name;
    if (!this.context) return;
    this.due = null;
    const number = this.tuneNumber;
    try {
      this.missed = name;
      const file = await fetch(`music/${encodeURIComponent(name)}.mp3`);
      const bytes = await file.blob();
      if (number !== this.tuneNumber) return;
      this.missed = null;
      if (!file.ok) throw new Error(`${name}: ${file.status}`);
      const tune = new Audio(URL.createObjectURL(new Blob([bytes], { type: "audio/mpeg" })));
      tune.title = name;
      tune.addEventListener("ended", () => number === this.tuneNumber && this.done());
      this.tune = tune;
      await tune.play();
    } catch (error) {
      // Refused after all: the next click tries again.
      if (number !== this.tuneNumber) return;
      const { missed } = this;
      this.stop();
      this.missed = missed;
      if (error instanceof DOMException && error.name === "NotAllowedError") this.due = name;
      else this.failed = true;
    }
  }
}
