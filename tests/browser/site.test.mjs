import assert from "node:assert/strict";
import { after, before, beforeEach, afterEach, test } from "node:test";
import { pathToFileURL } from "node:url";
import { inSight, launch, serve } from "./browser.mjs";

const sites = process.env.SITES;
let browser, server, page, failures;

before(async () => {
  server = await serve(sites);
  browser = await launch();
});

after(async () => {
  await browser?.close();
  server?.close();
});

// The browser has no viewer for VRML: it stops to load an embedded scene. A page that a click left
// before it was there is no failure either.
const isLeft = (request) =>
  request.url().endsWith(".wrl") || request.failure().errorText === "net::ERR_ABORTED";

beforeEach(async () => {
  page = await browser.newPage({ viewport: { width: 1200, height: 800 } });
  failures = [];
  page.on("requestfailed", (request) => {
    if (!isLeft(request)) failures.push(request.url());
  });
  page.on("response", (response) => {
    if (response.status() >= 400 && !response.url().endsWith("/favicon.ico"))
      failures.push(`${response.status()} ${response.url()}`);
  });
});

afterEach(async () => {
  await page.close();
  assert.deepEqual(failures, [], "requests that failed");
});

const open = (path) => page.goto(`${server.url}/${path}`, { waitUntil: "load" });
const frame = (name) => page.frame({ name });

// Goes where a link of the navigation frame leads and returns the text frame.
async function follow(link) {
  const href = await link.evaluate((a) => a.href);
  await link.click();
  await assert.doesNotReject(
    page.waitForFunction((url) => window.frames.TextFrame.location.href === url, href));
  const text = frame("TextFrame");
  await text.waitForLoadState("load");
  return { text, anchor: new URL(href).hash.slice(1) };
}

// Follows all links of the navigation frame: each leads to its heading; there are images.
async function checkNavigation() {
  const links = await frame("NavigationFrame").locator("a").all();
  const texts = await Promise.all(links.map((link) => link.textContent()));
  let images = 0;
  for (const [i, link] of links.entries()) {
    const { text, anchor } = await follow(link);
    const heading = anchor
      ? text.locator(`a[name="${anchor}"] :is(h1,h2,h3,h4,h5,h6)`)
      : text.locator("p.maintitle");
    assert.equal(await heading.textContent(), texts[i]);
    assert.ok(await inSight(heading), `${texts[i]} is in sight`);
    for (const image of await text.locator("img").all())
      assert.ok((await image.evaluate((e) => e.naturalWidth)) > 0 && ++images, "an image has loaded");
  }
  assert.ok(images > 0, "there are images");
}

test("local files are read as UTF-8", async () => {
  await page.goto(pathToFileURL(`${sites}/single/index.html`).href);
  const text = await page.locator("a + p").first().innerText();
  assert.equal(text.replaceAll("\u00a0", " "),
    "a < b &lt; c > d     tab\nsecond line: 20 \u00b0C, \u56f3");
});

test("the reload page ends at the last heading", async () => {
  for (const [site, heading] of [["frames", "End of Chapter 3"], ["single", "End of Chapter 1"]]) {
    await open(`${site}/reload.html`);
    const last = frame("TextFrame").locator("h4").last();
    assert.equal(await last.textContent(), heading);
    await page.waitForTimeout(100); // scrolling follows the load
    assert.ok(await inSight(last), `${heading} is in sight`);
  }
});

test("the example's report can be read from one end to the other", async () => {
  await open("truss/index.html");
  assert.deepEqual(page.frames().slice(1).map((f) => f.name()), ["NavigationFrame", "TextFrame"]);
  await checkNavigation();
  const { text } = await follow(frame("NavigationFrame").locator("a", { hasText: /^Scene$/ }));
  const scene = await text.locator("a", { hasText: "[Full page]" }).evaluate((a) => a.href);
  assert.match(await (await page.request.get(scene)).text(), /^#VRML V2\.0 utf8\n/);
});
