import assert from "node:assert/strict";
import { after, before, beforeEach, afterEach, test } from "node:test";
import { pathToFileURL } from "node:url";
import { launch, serve } from "./browser.mjs";

const sites = process.env.SITES;
let browser, server, page, requests, failures;

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
  requests = [];
  failures = [];
  page.on("requestfailed", (request) => {
    if (!isLeft(request)) failures.push(request.url());
  });
  page.on("response", (response) => {
    requests.push(new URL(response.url()).pathname);
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

const inSight = (element) =>
  element.evaluate((e) => {
    const { top, bottom } = e.getBoundingClientRect();
    return top >= -1 && bottom <= innerHeight + 1;
  });

async function checkNavigation(expected) {
  const links = await frame("NavigationFrame").locator("a").all();
  const texts = await Promise.all(links.map((link) => link.textContent()));
  if (expected) assert.deepEqual(texts, expected);
  let images = 0;
  for (const [i, link] of links.entries()) {
    const { text, anchor } = await follow(link);
    const heading = anchor
      ? text.locator(`a[name="${anchor}"] :is(h1,h2,h3,h4,h5,h6)`)
      : text.locator("p.maintitle");
    assert.equal(await heading.textContent(), texts[i]);
    assert.ok(await inSight(heading), `${texts[i]} is in sight`);
    images += await checkImages(text);
  }
  assert.ok(images > 0, "there are images");
}

async function checkImages(document) {
  const images = await document.locator("img").all();
  for (const image of images)
    assert.ok((await image.evaluate((e) => e.naturalWidth)) > 0, "an image has loaded");
  return images.length;
}

const cells = (table) =>
  table.locator("tr").evaluateAll((rows) =>
    rows.map((row) => [...row.cells].map((cell) => cell.textContent.replaceAll("\u00a0", "_"))));

async function checkChapter(document, title) {
  assert.equal(await document.locator("h1").first().textContent(), title);
  const text = await document.locator("a + p").first().innerText();
  assert.equal(text.replaceAll("\u00a0", " "),
    "a < b &lt; c > d     tab\nsecond line: 20 \u00b0C, \u56f3");
  assert.deepEqual(await cells(document.locator("table").nth(0)), [
    ["Stress \u03c3", ":", " 12", ".", "50", "_N/mm\u00b2"],
    ["Cycles", ":", "400", "_", "_"],
    ["Material", ":", "_<S355> & co", "_"],
  ]);
  assert.deepEqual(await cells(document.locator("table").nth(1)), [
    ["Node", "Displacement [\u00b5m]"],
    ["A<1> & \u03b1", "-0.250"],
    ["007", "_"],
  ]);
  assert.deepEqual(await document.locator("table").nth(1).locator("th").count(), 2);
}

test("the frame set shows the navigation and the text", async () => {
  await open("frames/index.html");
  assert.equal(await page.title(), "Bridge \u00c4 1");
  assert.deepEqual(page.frames().slice(1).map((f) => f.name()), ["NavigationFrame", "TextFrame"]);
  assert.equal(await frame("TextFrame").locator("p.maintitle").textContent(), "Bridge \u00c4 1");
  const chapters = [1, 2, 3].flatMap((i) =>
    [`Chapter ${i}`, `Details of Chapter ${i}`, `Tables of Chapter ${i}`]);
  await checkNavigation(["Bridge \u00c4 1", ...chapters]);
  assert.ok(requests.includes("/frames/Corp.gif"), "the background is fetched");
});

test("pages hold what the application put in", async () => {
  await open("frames/page3.html");
  await checkChapter(page, "Chapter 2");
  await open("single/index.html");
  await checkChapter(page, "Chapter 1");
  assert.equal(await checkImages(page), 1);
  assert.ok(requests.includes("/single/Corp.gif"), "the background is fetched");
  const caption = page.locator("center", { hasText: "Figure" }).last();
  assert.equal((await caption.textContent()).trim(), "Figure 1");
});

test("local files are read as UTF-8", async () => {
  await page.goto(pathToFileURL(`${sites}/single/index.html`).href);
  await checkChapter(page, "Chapter 1");
});

test("the reload page ends at the last heading", async () => {
  for (const [site, heading] of [["frames", "Tables of Chapter 3"], ["single", "Tables of Chapter 1"]]) {
    await open(`${site}/reload.html`);
    assert.equal(await page.title(), "Bridge \u00c4 1");
    const last = frame("TextFrame").locator("h4").last();
    assert.equal(await last.textContent(), heading);
    await page.waitForTimeout(100); // scrolling follows the load
    assert.ok(await inSight(last), `${heading} is in sight`);
  }
});

test("the example's report can be read from one end to the other", async () => {
  await open("truss/index.html");
  await checkNavigation();
  const { text } = await follow(frame("NavigationFrame").locator("a", { hasText: /^Scene$/ }));
  const scene = await text.locator("a", { hasText: "[Full page]" }).evaluate((a) => a.href);
  assert.match(await (await page.request.get(scene)).text(), /^#VRML V2\.0 utf8\n/);
});
