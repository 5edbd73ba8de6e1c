// Takes the pictures of the documentation: node screenshots.mjs SITES IMAGES

import { launch, serve } from "./browser.mjs";

const [sites, images] = process.argv.slice(2);
const server = await serve(sites);
const browser = await launch();
const page = await browser.newPage({ viewport: { width: 1360, height: 900 } });

await page.goto(`${server.url}/truss/index.html`);
const navigation = page.frame({ name: "NavigationFrame" });
await navigation.locator("a", { hasText: "Load case" }).first().click();
await page.frame({ name: "TextFrame" }).locator("img").waitFor();
await page.waitForTimeout(300);
await page.screenshot({ path: `${images}/frames.png` });

await page.setViewportSize({ width: 900, height: 420 });
await page.goto(`${server.url}/beam/index.html`);
await page.screenshot({ path: `${images}/single.png` });

await browser.close();
server.close();
