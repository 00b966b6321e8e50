// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the page for when there is no line. One version is one cache, filled whole before it is used; the next one takes
// over when no page of this one is open. Tunes are kept as they are heard.
const version = "VERSION";
const files = ["FILES"];
const shell = `page ${version}`;
const tunes = "tunes TUNES";

self.addEventListener("install", (event) => {
  event.waitUntil(
    caches.open(shell).then((cache) => cache.addAll(files.map((file) => new Request(file, { cache: "no-cache" })))),
  );
});

self.addEventListener("activate", (event) => {
  event.waitUntil(
    caches.keys().then((names) =>
      Promise.all(names.filter((name) => name !== shell && name !== tunes).map((name) => caches.delete(name))),
    ),
  );
});

self.addEventListener("fetch", (event) => {
  const url = new URL(event.request.url);
  if (event.request.method !== "GET" || url.origin !== location.origin) return;
  if (url.pathname.includes("/music/")) event.respondWith(tune(event.request));
  else event.respondWith(caches.open(shell).then((cache) => cache.match(event.request, { ignoreSearch: true })).then((kept) => kept ?? fetch(event.request)));
});

async function tune(request) {
  const cache = await caches.open(tunes);
  const kept = await cache.match(request);
  if (kept) return kept;
  const answer = await fetch(request);
  if (answer.ok) await cache.put(request, answer.clone()).catch(() => {}); // full: it plays all the same
  return answer;
}
