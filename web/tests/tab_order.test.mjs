// Where a field that jumps puts the focus: wherever the browser's own Tab key goes.
import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { build } from 'esbuild';
import { browserFixture, browsers } from './pages.mjs';

const entry = new URL('../src/tab_order.ts', import.meta.url).pathname;
const body = `
  <input id="second" tabindex="2"><input id="first" tabindex="1"><input type="hidden">
  <a id="no-link">a</a><a id="link" href="#x">a</a><div id="plain" tabindex="0"></div>
  <input id="off" disabled><fieldset disabled><legend><input id="legend"></legend><input id="off-inside"></fieldset>
  <div inert><button>inert</button></div><div hidden><button>hidden</button></div>
  <form><input type="radio" name="r"><input type="radio" name="r" id="checked" checked><input type="radio" name="r"></form>
  <input type="radio" name="r" id="alone">
  <details><summary id="summary">s</summary><button id="shut">shut</button></details>
  <details open><summary id="summary-open">s</summary><button id="open">open</button></details>
  <div contenteditable id="editable"></div><div tabindex="-1"><button id="in-minus">b</button></div>
  <div id="host"><template shadowrootmode="open"><input id="in-2"><slot></slot><input id="in-1" tabindex="1"></template>
    <button id="slotted-2">b</button><button id="slotted-1" tabindex="1">b</button></div>
  <div tabindex="-1"><template shadowrootmode="open"><input id="in-host-out"></template></div>
  <div id="delegates"><template shadowrootmode="open" shadowrootdelegatesfocus><input id="delegated"></template></div>
  <button id="end">end</button>`;
const walk = `
  globalThis.active = () => {
    let at = document.activeElement;
    while (at.shadowRoot?.activeElement) at = at.shadowRoot.activeElement;
    return at;
  };
  globalThis.walk = (backwards) => {
    const seen = [];
    for (let at = active(); at; at = nextTabStop(at, backwards)) seen.push(at.id);
    return seen;
  };`;

for (const name of browsers) {
  describe(`tab order in ${name}`, () => {
    const fixture = browserFixture(name);
    test('is that of the Tab key, forwards and backwards', async () => {
      const bundled = await build({ entryPoints: [entry], bundle: true, format: 'iife', globalName: 'order', write: false });
      const script = `${bundled.outputFiles[0].text}\nglobalThis.nextTabStop = order.nextTabStop;${walk}`;
      fixture.pages.set('/tab_order.js', script);
      const page = await fixture.open(body, { ready: false, head: '<script src="/tab_order.js"></script>' });
      for (const [backwards, from, to] of [[false, 'first', 'end'], [true, 'end', 'first']]) {
        await page.evaluate((id) => document.getElementById(id).focus(), from);
        const ours = await page.evaluate((back) => globalThis.walk(back), backwards);
        const theirs = [from];
        if (backwards) await page.keyboard.down('Shift');
        while (theirs.at(-1) !== to && theirs.length < 40) {
          await page.keyboard.press('Tab');
          theirs.push(await page.evaluate(() => globalThis.active().id));
        }
        if (backwards) await page.keyboard.up('Shift');
        assert.deepEqual(ours, theirs);
      }
      assert.deepEqual(page.faults, []);
    });
  });
}
