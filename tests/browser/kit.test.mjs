import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { after, before, test } from "node:test";
import { inSight, launch, launchFirefox, serve } from "./browser.mjs";

const sites = process.env.SITES;
const browsers = { Chromium: launch, Firefox: launchFirefox };
let server;
before(async () => (server = await serve(sites, "")));
after(() => server.close());

// What reaches out of the page to the right, of the elements that a selector finds.
const tooWide = (page, selector) =>
  page.locator(selector).evaluateAll((elements) =>
    elements.filter((e) => e.getBoundingClientRect().right > innerWidth).map((e) => e.outerHTML));

for (const [name, start] of Object.entries(browsers)) {
  // Runs steps on a page of the kit's site; all that is fetched comes from there.
  const onPage = (title, width, path, steps) =>
    test(`${name}: ${title}`, async () => {
      const browser = await start();
      try {
        const page = await browser.newPage({ viewport: { width, height: 800 } });
        const requests = [];
        page.on("request", (request) => requests.push(request.url()));
        await page.goto(`${server.url}/${path}`, { waitUntil: "load" });
        await steps(page);
        assert.deepEqual(requests.filter((url) => !url.startsWith(server.url)), []);
        assert.ok(requests.length > 0);
      } finally {
        await browser.close();
      }
    });

  onPage("pages name their character set to a server that does not", 1280, "kit/page1.html", async (page) => {
    const charset = () => page.evaluate(() => document.characterSet);
    assert.equal(await charset(), "UTF-8");
    assert.equal(await page.locator("p").last().textContent(), "Br\u00fccke, \u03c3 in N/mm\u00b2");
    for (const other of ["page2.html", "page3.html", "page4.html", "navigation.html"]) {
      await page.goto(`${server.url}/kit/${other}`);
      assert.equal(await charset(), "UTF-8", other);
    }
    await page.goto(`${server.url}/frames/page2.html`); // the report library's own pages do not
    assert.notEqual(await charset(), "UTF-8");
    await page.goto(`${server.url}/kit/index.html`);
    assert.equal(await page.title(), "Br\u00fccke");
  });

  onPage("links lead to captions on other pages", 1280, "kit/index.html", async (page) => {
    const frame = (name) => page.frames().find((f) => new URL(f.url()).pathname.startsWith(`/kit/${name}`));
    assert.equal(await frame("navigation").locator("h2").first().innerText(), "Tables in mPa");
    for (const [link, anchor, caption] of [
      ["Figure 1", "page2.html#Figure1", "Figure 1: Wide \u03c3"],
      ["Table 1", "page3.html#Table1", "Table 1: Many numbers"],
    ]) {
      await frame("navigation").locator("a", { hasText: "End" }).click();
      await page.waitForFunction(() => frames.TextFrame.document.querySelector("h1")?.textContent === "End");
      await frame("page").locator("a", { hasText: link }).click();
      await page.waitForFunction((url) => frames.TextFrame.location.href.endsWith(url), anchor);
      await frame("page").waitForLoadState("load");
      const target = frame("page").locator(anchor.slice(anchor.indexOf("#")));
      assert.ok((await target.textContent()).includes(caption));
      assert.ok(await inSight(target));
    }
  });

  for (const width of [1280, 390]) {
    onPage(`nothing but wide tables scrolls sideways at ${width} pixels`, width, "kit/page4.html", async (page) => {
      assert.deepEqual(await tooWide(page, "p, h1"), []);
      await page.goto(`${server.url}/kit/page2.html`);
      assert.deepEqual(await tooWide(page, "img, figcaption"), []);
      assert.equal(await page.locator("img").getAttribute("alt"), "A circle");
      assert.ok(await page.locator("img").evaluate((e) => e.naturalWidth > 0 && e.width > 300));
      await page.goto(`${server.url}/kit/page3.html`);
      assert.deepEqual(await tooWide(page, "h2, .tablecaption"), []);
      // The header stays in sight wherever the table is scrolled.
      await page.locator("td", { hasText: "150" }).first().scrollIntoViewIfNeeded();
      assert.ok(await inSight(page.locator("th").first()));
      const scrolls = await page.evaluate(() => document.scrollingElement.scrollWidth > innerWidth);
      assert.equal(scrolls, width > 600); // on a phone the table scrolls, not the page
    });
  }
}

test("a report on paper has all its pages and a bookmark for each heading", () => {
  const { status, stdout, stderr } = spawnSync("/usr/bin/python3", ["-c", `
import json, pikepdf, sys
def flat(items):
    for item in items:
        yield [item.title, pdf.pages.index(pikepdf.Page(item.destination[0]))]
        yield from flat(item.children)
with pikepdf.open(sys.argv[1]) as pdf, pdf.open_outline() as outline:
    links = ["/Dest" in link for page in pdf.pages for link in page.get("/Annots", [])]
    print(json.dumps([len(pdf.pages), list(flat(outline.root)), sum(links)]))
`, `${sites}/truss.pdf`], { encoding: "utf-8" });
  assert.equal(status, 0, stderr);
  const [sheets, bookmarks, links] = JSON.parse(stdout);
  assert.equal(sheets, 15);
  const chapter = ["Displacements", "Bar forces and stresses", "Loads and reactions", "Loads", "Reactions",
    "Check of the solution"];
  assert.deepEqual(bookmarks.map(([title]) => title), ["25-bar transmission tower", "Model", "Nodes", "Bars",
    "Materials", "Connections and areas", "Scene", "Load case torsion", ...chapter, "Load case wires", ...chapter]);
  assert.deepEqual(bookmarks.find(([title]) => title === "Load case wires"), ["Load case wires", 10]);
  assert.equal(links, 10);
});
