// A headless browser on sites served from a directory of this machine.

import { readFile } from "node:fs/promises";
import { createServer } from "node:http";
import { extname, join, normalize } from "node:path";
import { chromium } from "playwright-core";

const types = {
  ".html": "text/html; charset=utf-8",
  ".css": "text/css",
  ".gif": "image/gif",
  ".png": "image/png",
  ".svg": "image/svg+xml",
  ".wrl": "model/vrml",
};

async function answer(root, request, response) {
  const path = normalize(decodeURIComponent(new URL(request.url, "http://localhost").pathname));
  try {
    const body = await readFile(join(root, path));
    response.writeHead(200, { "Content-Type": types[extname(path)] ?? "application/octet-stream" });
    response.end(body);
  } catch {
    response.writeHead(404).end();
  }
}

export async function serve(root) {
  const server = createServer((request, response) => answer(root, request, response));
  await new Promise((resolve) => server.listen(0, "127.0.0.1", resolve));
  return { url: `http://127.0.0.1:${server.address().port}`, close: () => server.close() };
}

export function launch() {
  return chromium.launch({
    executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
    args: [
      "--no-sandbox",
      "--disable-gpu",
      "--disable-quic",
      "--no-first-run",
      "--disable-background-networking",
      "--disable-component-update",
      "--disable-sync",
    ],
  });
}
