// The page on which a script plays: a field between two plain entries, over the module that has the interpreter in it
// (src/hosts/web/script). run.mjs carries out as real input what a line asks of a person.

import { Event } from '../src/bridge.js';
import { Page, type View } from '../src/page.js';
import { nextTabStop } from '../src/tab_order.js';
import { styleRoot } from '../src/styles.js';
import { Typing } from '../src/typing.js';
import { FieldView } from '../src/view.js';

interface Request {
  do: 'key' | 'paste' | 'select';
  start?: number;
  length?: number;
}

interface Step {
  fault?: string;
  written: string;
  requests: Request[];
}

const host = document.createElement('div');
host.id = 'field';
document.querySelector('#after')!.before(host);
const root = host.attachShadow({ mode: 'open' });
const frame = document.createElement('div');
frame.className = 'frame';
root.append(frame);
styleRoot(root);

const page = await new Page(() => new URL('municipios.txt', import.meta.url)).load(fetch('script.wasm'));
await page.wantMunicipios();
page.places.set(1, document.querySelector<HTMLElement>('#before')!);
page.places.set(2, document.querySelector<HTMLElement>('#after')!);
// Tab goes round the form, as on the other stages.
page.tabsRound = true;

for (const [place, backwards] of [[1, true], [2, false]] as const) {
  const edge = page.places.get(place)!;
  edge.addEventListener('keydown', (event) => {
    if (event.key !== 'Tab' || event.shiftKey !== backwards) return;
    event.preventDefault();
    nextTabStop(edge, backwards, true)?.focus();
  });
}

const nothing = () => {};
const view = page.add(
  (number) =>
    new FieldView(page, number, {
      host, root, frame,
      dress: nothing, showed: nothing, left: nothing, changed: nothing, beep: nothing,
      message: () => 1,
      keyUp: (code, shift) => [code, shift],
    }),
) as FieldView;
new Typing(view, { readOnly: false, edited: nothing, changed: nothing, entered: nothing, written: nothing }, root);
root.addEventListener('focusin', (event) => {
  const place = view.placeOf(event.target);
  if (place >= 0) page.send(view.number, Event.focus, place);
});

const { exports } = page.module;
const utf8 = new TextDecoder();

function put(text: string): void {
  const bytes = new TextEncoder().encode(text);
  const at = exports.gs_room!(bytes.length) as number;
  new Uint8Array(exports.memory.buffer, at, bytes.length).set(bytes);
}

function taken(): string {
  const at = exports.gs_text!() as number;
  return utf8.decode(new Uint8Array(exports.memory.buffer, at, exports.gs_size!() as number));
}

function written(): string {
  exports.gs_written!();
  return taken();
}

// What has the focus tells what it holds.
function handOver(): void {
  const place = view.placeOf(root.activeElement);
  if (place >= 0) page.send(view.number, Event.sync, 0, 0, 0, view.held(place));
}

export const stage = {
  begin(firstLine: string): boolean {
    put(firstLine);
    const mine = (exports.gs_begin!() as number) !== 0;
    if (!mine) return false;
    page.forget(view as View);
    view.reset();
    for (const entry of page.places.values()) (entry as HTMLInputElement).value = '';
    page.places.get(1)!.focus();
    page.leave(page.places.get(1)!);
    written();
    return true;
  },
  line(line: string): Step {
    handOver();
    put(line);
    if ((exports.gs_line!() as number) !== 0) return { fault: taken(), written: written(), requests: [] };
    // Shows what the models have become.
    page.send(view.number, Event.sync);
    exports.gs_requests!();
    const requests = JSON.parse(taken()) as Request[];
    for (const request of requests) {
      if (request.do !== 'select') continue;
      const active = (root.activeElement ?? document.activeElement) as HTMLInputElement;
      const end = Math.min((request.start ?? 0) + (request.length ?? 0), active.value.length);
      active.setSelectionRange(request.start ?? 0, end);
    }
    return { written: written(), requests };
  },
  written,
};

declare global {
  interface Window {
    stage: typeof stage;
  }
}
window.stage = stage;
