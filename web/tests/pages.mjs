// Pages of the tests: one HTML text each, under a strict policy, with the package beside it.
import assert from 'node:assert/strict';
import { after, afterEach, before } from 'node:test';
import { launch, settle } from '../script/browsers.mjs';
import { Keyboard } from '../script/keyboard.mjs';
import { serve } from '../serve.mjs';

const dist = new URL('../dist/', import.meta.url).pathname;
const policy =
  "default-src 'none'; img-src 'self'; script-src 'self' 'wasm-unsafe-eval'; style-src 'self'; " +
  "connect-src 'self'; require-trusted-types-for 'script'; trusted-types 'none'";

export const browsers = (process.env.BROWSERS ?? 'chromium firefox').split(' ');

// What the tests ask of a field again and again, in the page: `f.id` is the element.
const helper = `
globalThis.f = new Proxy({
  boxes: (id) => [...document.getElementById(id).shadowRoot.querySelectorAll('.box:not([hidden])')],
  texts: (id) => f.boxes(id).map((box) => box.value),
  active: (id) => f.boxes(id).indexOf(document.getElementById(id).shadowRoot.activeElement),
  said: (id) => document.getElementById(id).shadowRoot.querySelector('.message')?.textContent ?? '',
  submits: () => events.filter((it) => it.startsWith('submit')).length,
  ready: () => Promise.all([...document.querySelectorAll('gabarito-field')].map(async (field) => {
    while (!field.shadowRoot.querySelector('.box:not(.plain)')) await new Promise((go) => setTimeout(go, 5));
  })),
}, { get: (own, name) => own[name] ?? document.getElementById(name) });
globalThis.events = [];
for (const type of ['input', 'change', 'submit', 'reset', 'gabarito-refused', 'gabarito-keyup']) {
  document.addEventListener(type, (event) => {
    events.push(type + ' ' + event.target.id);
    if (type === 'submit') event.preventDefault();
  });
}
globalThis.sent = (form) => Object.fromEntries(new FormData(form));
`;

// One browser and one server for a describe block; `open` gives a page with the keyboard on it.
export function browserFixture(name) {
  const fixture = { name, pages: new Map(), opened: [] };
  before(async () => {
    fixture.server = await serve([dist], {
      headers: { 'content-security-policy': policy },
      answer: (pathname, _request, response) => {
        const body = pathname === '/helper.js' ? helper : fixture.pages.get(pathname);
        if (body === undefined) return fixture.refuse?.(pathname, response) ?? false;
        const type = pathname.endsWith('.js') ? 'text/javascript' : 'text/html; charset=utf-8';
        response.writeHead(200, { 'content-type': type, 'content-security-policy': policy });
        response.end(body);
        return true;
      },
    });
    fixture.browser = await launch(name);
    if (name !== 'firefox') {
      const context = fixture.browser.defaultBrowserContext();
      const allowed = ['clipboard-read', 'clipboard-write', 'clipboard-sanitized-write'];
      await context.overridePermissions(new URL(fixture.server.address).origin, allowed);
    }
  });
  after(async () => {
    await fixture.browser.close();
    fixture.server.close();
  });
  // Of a test that has failed too.
  afterEach(() => Promise.all(fixture.opened.splice(0).map((page) => page.close())));
  // A file that cannot be had while `play` runs.
  fixture.without = (file, play) => fixture.late(file, (come) => (come(true), play()));
  // A file that is on its way until `play` lets it come, or lets it be lost.
  fixture.late = async (file, play) => {
    let come;
    const gate = new Promise((go) => (come = go));
    fixture.refuse = async (pathname, response) =>
      pathname === file && (await gate) === true && (response.writeHead(500).end(), true);
    try {
      await play(come);
    } finally {
      come();
      fixture.refuse = undefined;
    }
  };
  const script = '<script type="module" src="/gabarito.js"></script>';
  fixture.open = async (body, { ready = true, head = script } = {}) => {
    const address = `/test${fixture.pages.size}.html`;
    fixture.pages.set(
      address,
      `<!doctype html><html lang="pt-BR"><title>Teste</title><script src="/helper.js"></script>${head}
      <body><main>${body}</main>`,
    );
    const page = await fixture.browser.newPage();
    fixture.opened.push(page);
    page.faults = [];
    page.on('pageerror', (error) => page.faults.push(String(error)));
    await page.goto(fixture.server.address.slice(0, -1) + address);
    await page.bringToFront();
    if (ready) await page.evaluate(() => f.ready());
    page.keys = await Keyboard.on(page, name);
    page.write = async (text) => {
      for (const letter of text) await page.keys.key({ vk: 0, shift: 0, character: letter.charCodeAt(0) });
      await settle(page);
    };
    page.tells = async (ask, expected) => assert.deepEqual(await page.evaluate(ask), expected);
    // Puppeteer's own waiting evaluates a text in the page, which the policy forbids.
    page.until = async (ask) => {
      for (const end = Date.now() + 20000; !(await page.evaluate(ask)); ) assert.ok(Date.now() < end, String(ask));
    };
    page.press = async (key, shift = 0) => {
      await page.keys.named(key, shift);
      await settle(page);
    };
    return page;
  };
  return fixture;
}
