#ifndef VORKTRLookStyles_h
#define VORKTRLookStyles_h

namespace VORKit
{

// The stylesheets of the built-in look. The pages are in their oldest form: tags for centring that
// nobody closes, empty paragraphs, line breaks as distance; some rules undo what that does.

// Both begin so.
constexpr const char* SharedLook = R"css(:root {
  --ink: #1c2733;
  --quiet: #52606d;
  --accent: #1f4e79;
  --line: #cbd3dc;
  --tint: #eaf0f6;
  --font: system-ui, -apple-system, "Segoe UI", Roboto, "Noto Sans", "DejaVu Sans", sans-serif;
  color-scheme: light;
}

html { -webkit-text-size-adjust: none; text-size-adjust: none; }

)css";

constexpr const char* MainLook =
    R"css(/* A frame set knows no width of a device: a phone shows it as if it were 980 pixels wide. */
@media (max-device-width: 600px) and (min-width: 601px) { html { font-size: 220%; } }

body {
  box-sizing: border-box;
  max-width: 62rem;
  margin: 0 auto;
  padding: 1rem clamp(1rem, 4vw, 3rem) 4rem;
  background-color: #fff;
  color: var(--ink);
  font: 1rem/1.55 var(--font);
}

body, p, h1, h2, h3, h4, h5, h6 { text-align: left; overflow-wrap: break-word; }
p { max-width: 44rem; margin: 0 0 .9rem; }
p:empty, br:has(+ center) { display: none; }
a, figure, .tablecaption { scroll-margin-top: 1rem; }
a:link, a:visited { color: #0b5cad; text-underline-offset: .15em; }

.maintitle, h1, h2, h3, h4, h5, h6 { max-width: none; color: var(--accent); line-height: 1.25; }
.maintitle { margin: 1.5rem 0 2rem; padding-bottom: .6rem; border-bottom: .2rem solid; font-size: 2.1rem; font-weight: 650; }
h1 { margin: 2.2rem 0 1rem; padding-bottom: .3rem; border-bottom: 1px solid var(--line); font-size: 1.7rem; }
h2 { margin: 2rem 0 .8rem; font-size: 1.35rem; }
h3 { margin: 1.8rem 0 .6rem; font-size: 1.1rem; }
h4, h5, h6 { margin: 1.4rem 0 .5rem; color: var(--ink); font-size: 1rem; }

/* Lists are tables without padding, the parts of a float in cells of their own. */
table {
  margin: .6rem auto 1.4rem 0;
  border: 0;
  border-spacing: 0;
  color: inherit;
  font-size: .9375rem;
  font-variant-numeric: tabular-nums;
  line-height: 1.4;
}
td, th { padding: 0; vertical-align: baseline; }
table:not([cellpadding]) td { padding: .12rem 0; }
table:not([cellpadding]) td:nth-child(-n+2) { padding-right: .8rem; }
table:not([cellpadding]) td:nth-child(2) { color: var(--quiet); }
td[align="right"], table:not([cellpadding]) td[align="right"] ~ td:not(:last-child) { white-space: nowrap; }

table[cellpadding] { border-top: 1px solid var(--line); }
table[cellpadding] > tbody > tr > * { padding: .34rem .8rem; border: 0 solid var(--line); border-bottom-width: 1px; }
table[cellpadding] p { margin: 0; }
table[border="2"] { border: 1px solid var(--line); border-bottom-width: 0; }
table[border="2"] > tbody > tr > * + * { border-left-width: 1px; }
center > table { margin-inline: auto; }
th { background-color: var(--tint); color: var(--ink); font-weight: 600; }
tr:first-child:has(> th + th) > th { position: sticky; z-index: 1; top: 0; vertical-align: bottom; }

figure { margin: 1.4rem 0; text-align: center; }
img, embed, video { max-width: 100%; height: auto; }
figcaption, .tablecaption, center > center { color: var(--quiet); font-size: .9375rem; }
figcaption { max-width: 44rem; margin: .4rem auto 0; }
.tablecaption { max-width: 44rem; margin: 1.6rem auto .4rem; }
.tablecaption + br { display: none; }

@media screen and (max-width: 600px) {
  .maintitle { font-size: 1.6rem; }
  h1 { font-size: 1.4rem; }
  h2 { font-size: 1.2rem; }
  /* A wide table scrolls by itself, its header in sight. */
  table[cellpadding] { display: block; width: fit-content; max-width: 100%; max-height: 85vh; overflow: auto; }
  table[cellpadding] > tbody > tr > * { padding: .3rem .5rem; }
}

@page { margin: 18mm 16mm; }

@media print {
  :root { --ink: #000; --quiet: #333; --accent: #000; --line: #999; --tint: transparent; }
  html { font-size: 10pt; }
  body { max-width: none; padding: 0; }
  p, figcaption, .tablecaption { max-width: none; orphans: 3; widows: 3; }
  .maintitle, a:first-child > * { margin-top: 0; }
  a:has(> h1, > h2, > h3, > h4, > h5, > h6) { display: block; }
  a:has(> h1, > h2, > h3, > h4, > h5, > h6), .tablecaption { break-after: avoid; }
  tr, img, figure, .maintitle { break-inside: avoid; }
  img { max-height: 220mm; }
  a:link, a:visited { color: inherit; text-decoration: none; }
  table[cellpadding] { border: 0; }
  table[cellpadding] > tbody > tr > * { padding: .5mm 2mm; }
  table[cellpadding] > tbody > tr:first-child > * { border-top-width: 1px; }
  /* As a group the header row comes again on each sheet. */
  tbody:has(> tr:first-child > th + th) { display: contents; }
  tr:first-child:has(> th + th) { display: table-header-group; break-inside: avoid; }
  tr:first-child > th { position: static; }
  embed { display: none; }
}
)css";

constexpr const char* NavigationLook =
    R"css(:root { --side: .55rem; --gap: .22rem; --step: .9rem; }

/* A fifth of a phone: letters and distances that long words find room beside. */
@media (max-device-width: 600px) { :root { --side: .2rem; --gap: .4rem; --step: .4rem; font-size: 150%; } }

body {
  margin: 0;
  padding: 1rem var(--side) 2rem;
  background-color: #f3f6f9;
  color: var(--ink);
  font: .875rem/1.35 var(--font);
}

a { display: block; padding: var(--gap) var(--side); border-radius: .25rem; color: inherit; text-decoration: none; }
a:hover, a:focus-visible { background-color: #dfe8f1; }
nobr { white-space: normal; overflow-wrap: anywhere; }
h1, h2, h3, h4, h5, h6 { margin: 0; font-size: inherit; font-weight: 400; }
h1 { color: var(--accent); font-weight: 600; }
h2 { padding-left: var(--step); }
h3 { padding-left: calc(2 * var(--step)); }
h4, h5, h6 { padding-left: calc(3 * var(--step)); }
h3, h4, h5, h6 { color: var(--quiet); }
a:first-of-type { margin-bottom: .6rem; border-bottom: 1px solid var(--line); border-radius: 0; }
)css";

} // namespace VORKit

#endif
