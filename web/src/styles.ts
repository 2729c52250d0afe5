// The look of the field. Lengths are in em, so that the whole follows the page's font and zoom; colours come
// from the page's own scheme. Every visible piece is a part, every decision a custom property.

const css = `
:host {
  display: inline-block;
  box-sizing: border-box;
  inline-size: 15em;
  max-inline-size: 100%;
  vertical-align: top;
  --_accent: var(--gabarito-accent, light-dark(#0a66c2, #6cb2ff));
  --_surface: var(--gabarito-surface, light-dark(#fff, #16191d));
  --_ink: var(--gabarito-ink, light-dark(#1b1f24, #e8eaed));
  --_quiet: var(--gabarito-quiet, light-dark(#59626d, #a3adb8));
  --_line: var(--gabarito-line, light-dark(#7b8591, #6d7884));
  --_danger: var(--gabarito-danger, light-dark(#b3261e, #ff8a80));
  --_radius: var(--gabarito-radius, .5em);
}
:host([hidden]) { display: none; }
:host([block]) { display: block; inline-size: 100%; }
.frame {
  position: relative;
  box-sizing: content-box;
  display: block;
  direction: ltr; /* numbers and Portuguese, on any page */
  block-size: var(--_height, 2.5em);
  border: 1px solid var(--_line);
  border-radius: var(--_radius);
  background: var(--_surface);
  color: var(--_ink);
  transition: border-color .12s, box-shadow .12s;
  cursor: text;
}
.frame.deep { box-shadow: inset 0 1px 2px rgb(0 0 0 / .08); }
.frame:hover { border-color: var(--_ink); }
.frame:focus-within {
  border-color: var(--_accent);
  outline: 2px solid var(--_accent);
  outline-offset: 0;
}
:host([data-refused]) .frame { border-color: var(--_danger); }
:host([data-refused]) .frame:focus-within { outline-color: var(--_danger); border-color: var(--_danger); }
.frame.off { background: color-mix(in srgb, var(--_line) 12%, var(--_surface)); border-style: dashed; cursor: not-allowed; }
.off .box, .off .separator { color: var(--_quiet); -webkit-text-fill-color: currentColor; }
.box, .separator, .open { position: absolute; top: 0; block-size: 100%; box-sizing: border-box; }
.box {
  margin: 0;
  border: 0;
  padding: 0 .3em;
  border-radius: calc(var(--_radius) - 1px);
  background: transparent;
  color: inherit;
  font: inherit;
  font-variant-numeric: tabular-nums;
  letter-spacing: inherit;
  outline: 0;
  appearance: none;
}
.wide { inset-inline: 0; inline-size: 100%; }
.box.wide { padding-inline: .75em; }
.box.short { text-align: center; padding-inline: 0; }
.box.tinted { background: color-mix(in srgb, var(--_tint) var(--gabarito-tint, 45%), var(--_surface)); }
.box.masked { font-family: var(--gabarito-mask-font, ui-monospace, "DejaVu Sans Mono", Menlo, Consolas, monospace); }
.box.listed { padding-inline-end: 2.4em; }
.box.listed:not(.wide) { padding-inline: .1em 1.9em; text-align: start; }
.box::selection { background: var(--_accent); color: var(--_surface); }
.template {
  position: absolute; inset-block: 0; inset-inline-start: 0;
  display: flex; align-items: center; padding-inline: .75em; white-space: pre; pointer-events: none;
  color: var(--_quiet); font-family: var(--gabarito-mask-font, ui-monospace, "DejaVu Sans Mono", Menlo, Consolas, monospace);
}
.separator {
  display: flex; align-items: center; justify-content: center;
  color: var(--_quiet); white-space: pre; user-select: none; pointer-events: none;
}
.open {
  inset-inline-end: 0; inline-size: 2.4em; border: 0; padding: 0; background: none; color: var(--_quiet);
  font: inherit; cursor: pointer; display: grid; place-items: center;
}
.open::before {
  content: ""; inline-size: .5em; block-size: .5em; border: solid currentColor; border-width: 0 .13em .13em 0;
  transform: translateY(-.15em) rotate(45deg);
}
.open[aria-expanded="true"]::before { transform: translateY(.1em) rotate(225deg); }
.list {
  position: fixed; inset: auto; margin: 0; padding: .25em; box-sizing: border-box; overflow-y: auto; direction: ltr;
  overscroll-behavior: contain;
  border: 1px solid var(--_line); border-radius: var(--_radius);
  background: var(--_surface); color: var(--_ink); font: inherit;
  box-shadow: 0 .5em 1.5em rgb(0 0 0 / .2);
  z-index: 2147483647;
}
.rail { position: relative; }
.option {
  position: absolute; inset-inline: 0; box-sizing: border-box; padding: 0 .6em;
  display: flex; align-items: center; white-space: pre;
  border-radius: calc(var(--_radius) - .2em); cursor: pointer;
}
.option span { overflow: hidden; text-overflow: ellipsis; }
.option:hover { background: color-mix(in srgb, var(--_accent) 12%, transparent); }
.option[aria-selected="true"] { background: var(--_accent); color: var(--_surface); }
.message { font-size: .875em; line-height: 1.35; direction: ltr; color: var(--_danger); }
.message:not(:empty) { padding-block-start: .35em; }
.message.note { color: var(--_quiet); }
@media (forced-colors: active) {
  .frame:focus-within { outline-color: Highlight; }
  .option[aria-selected="true"] { background: Highlight; color: HighlightText; forced-color-adjust: none; }
  .box.tinted { background: Field; }
}
@media (prefers-reduced-motion: reduce) { .frame { transition: none; } }
`;

const sheets = new WeakMap<Document, CSSStyleSheet>();

// One sheet a document: all fields share it, and an element that moves to another document takes that one's.
export function styleRoot(root: ShadowRoot): void {
  const document = root.ownerDocument;
  if (!document.defaultView) return; // of a template: nothing shows there
  let sheet = sheets.get(document);
  if (!sheet) {
    sheet = new document.defaultView.CSSStyleSheet();
    sheet.replaceSync(css);
    sheets.set(document, sheet);
  }
  root.adoptedStyleSheets = [sheet];
}
