// Takes the pictures of the documentation: node scripts/screenshots.mjs SITES IMAGES

import { launch, serve } from "../tests/browser/browser.mjs";

const [sites, images] = process.argv.slice(2);
const server = await serve(sites);
const browser = await launch();
const page = await browser.newPage({ viewport: { width: 1200, height: 760 } });

async function showFirstLoadCase(image) {
  await page.goto(`${server.url}/truss/index.html`);
  const navigation = page.frame({ name: "NavigationFrame" });
  await navigation.locator("a", { hasText: "Load case" }).first().click();
  await page.frame({ name: "TextFrame" }).locator("img").waitFor();
  await page.waitForTimeout(300);
  await page.screenshot({ path: `${images}/${image}` });
}

await showFirstLoadCase("frames.png");
// Without the look of the kit: with the stylesheets of a report that has none.
await page.route("**/*.css", (route) =>
  route.fulfill({ path: `${sites}/frames/${new URL(route.request().url()).pathname.split("/").pop()}` }));
await showFirstLoadCase("frames-without-look.png");
await page.unroute("**/*.css");

await page.setViewportSize({ width: 900, height: 420 });
await page.goto(`${server.url}/beam/index.html`);
await page.screenshot({ path: `${images}/single.png` });

await browser.close();
server.close();
