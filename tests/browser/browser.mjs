// A headless browser on sites served from a directory of this machine.

import { readFile } from "node:fs/promises";
import { createServer } from "node:http";
import { extname, join, normalize } from "node:path";
import playwright from "playwright-core";

const types = {
  ".html": "text/html",
  ".css": "text/css",
  ".gif": "image/gif",
  ".png": "image/png",
  ".svg": "image/svg+xml",
  ".wrl": "model/vrml",
};

// With a character set the server names that of the pages, without one it says nothing.
async function answer(root, charset, request, response) {
  const path = normalize(decodeURIComponent(new URL(request.url, "http://localhost").pathname));
  try {
    const body = await readFile(join(root, path));
    const type = types[extname(path)] ?? "application/octet-stream";
    const suffix = charset && type === "text/html" ? `; charset=${charset}` : "";
    response.writeHead(200, { "Content-Type": type + suffix });
    response.end(body);
  } catch {
    response.writeHead(404).end();
  }
}

export async function serve(root, charset = "utf-8") {
  const server = createServer((request, response) => answer(root, charset, request, response));
  await new Promise((resolve) => server.listen(0, "127.0.0.1", resolve));
  return { url: `http://127.0.0.1:${server.address().port}`, close: () => server.close() };
}

// The Firefox of the system, driven by WebDriver BiDi; the driver's own Firefox is another one.
export function launchFirefox() {
  return playwright._bidiFirefox.launch({ executablePath: process.env.FIREFOX ?? "/usr/bin/firefox-esr" });
}

export function launch() {
  return playwright.chromium.launch({
    executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
    args: ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
      "--disable-component-update", "--disable-sync"],
  });
}

// Is an element within the window?
export const inSight = (element) =>
  element.evaluate((e) => {
    const { top, bottom } = e.getBoundingClientRect();
    return top >= -1 && bottom <= innerHeight + 1;
  });
