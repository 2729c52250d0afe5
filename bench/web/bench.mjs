// The field on a page beside others, in one run and one page: first load, start, a CPF typed, a thousand fields.
// bench/web/run prepares and starts it; the others come from npm for this bench alone.
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import path from 'node:path';
import { gzipSync, brotliCompressSync, constants } from 'node:zlib';
import { fileURLToPath } from 'node:url';
import { build } from '../../web/node_modules/esbuild/lib/main.js';
import { launch } from '../../web/script/browsers.mjs';
import { serve } from '../../web/serve.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const dist = path.join(here, '../../web/dist');
const out = path.join(here, 'node_modules/.bench');

await build({ entryPoints: [path.join(here, 'others.js')], bundle: true, minify: true, format: 'esm', outfile: path.join(out, 'others.js'), logLevel: 'error' });

const brotli = (data) => brotliCompressSync(data, { params: { [constants.BROTLI_PARAM_QUALITY]: 11 } }).length;
const parts = ['gabarito.js', 'gabarito.wasm'].map((name) => readFileSync(path.join(dist, name)));
const size = {
  brotli: parts.reduce((sum, part) => sum + brotli(part), 0),
  gzip: parts.reduce((sum, part) => sum + gzipSync(part, { level: 9 }).length, 0),
};
const table = readFileSync(path.join(dist, 'municipios.txt'));

// Isolated, so that the clock of the page is a fine one.
const headers = { 'cross-origin-opener-policy': 'same-origin', 'cross-origin-embedder-policy': 'require-corp' };
const server = await serve([dist, out, here], { headers });
const browser = await launch('chromium', { args: ['--no-sandbox', '--enable-precise-memory-info', '--js-flags=--expose-gc'] });
const page = await browser.newPage();
page.on('pageerror', (error) => { throw error; });
const median = (numbers) => numbers.sort((a, b) => a - b)[numbers.length >> 1];
const rounds = 9;

let loads = 0;
async function fresh(hash = '') {
  await page.goto(`${server.address}bench.html?${++loads}${hash}`);
  await page.waitForFunction(() => globalThis.quiet !== undefined);
}

// From the first line of the script to a field that takes keys, the bytes in the cache.
const starts = [];
for (let i = 0; i < rounds; i++) {
  await fresh();
  starts.push(await page.evaluate(() => globalThis.start()));
}

// The time of all scripts for one key, of a CPF typed once and of the tenth.
const kinds = ['plain', 'gabarito', 'imask', 'maskito'];
const perKind = () => Object.fromEntries(kinds.map((kind) => [kind, []]));
const firstKeys = perKind();
const laterKeys = perKind();
const cpf = '11144477735';
async function typed() {
  await page.evaluate(() => globalThis.again());
  await page.keyboard.type(cpf);
  return (await page.evaluate(() => globalThis.quiet().then(globalThis.spent))) / cpf.length;
}
for (let i = 0; i < rounds; i++) {
  for (const kind of kinds) {
    await fresh('#keys');
    if (!(await page.evaluate(() => crossOriginIsolated))) throw new Error('the clock of the page is a coarse one');
    await page.evaluate((it) => globalThis.one(it), kind);
    firstKeys[kind].push(await typed());
    for (let again = 0; again < 9; again++) {
      for (const _ of cpf) await page.keyboard.press('Backspace');
      if (again < 8) await page.keyboard.type(cpf);
    }
    laterKeys[kind].push(await typed());
  }
}

// What the page's own thread does for them, by its own clock: other work on the machine is not in it. First until the
// last field takes keys, then until all are on the screen and the page is quiet.
const made = perKind();
const shown = perKind();
const memory = perKind();
const cdp = await page.createCDPSession();
await cdp.send('Performance.enable', { timeDomain: 'threadTicks' });
async function busy() {
  const { metrics } = await cdp.send('Performance.getMetrics');
  return metrics.find(({ name }) => name === 'TaskDuration').value * 1000;
}
for (let i = 0; i < rounds; i++) {
  for (const kind of kinds) {
    await fresh();
    await page.evaluate(() => globalThis.start());
    await page.evaluate(() => globalThis.quiet());
    await cdp.send('HeapProfiler.collectGarbage');
    const before = await cdp.send('Runtime.getHeapUsage');
    const wasm = await page.evaluate(() => globalThis.wasmBytes());
    const began = await busy();
    await page.evaluate((it) => globalThis.thousand(it), kind);
    made[kind].push((await busy()) - began);
    await page.evaluate(() => globalThis.quiet());
    shown[kind].push((await busy()) - began);
    await cdp.send('HeapProfiler.collectGarbage');
    const after = await cdp.send('Runtime.getHeapUsage');
    const grown = (await page.evaluate(() => globalThis.wasmBytes())) - wasm;
    const native = (after.embedderHeapUsedSize ?? 0) - (before.embedderHeapUsedSize ?? 0);
    memory[kind].push((after.usedSize - before.usedSize + native + grown) / 1000);
  }
}
await browser.close();
server.close();

const figures = {
  'first load, kB with brotli': (size.brotli / 1000).toFixed(1),
  'first load, kB with gzip': (size.gzip / 1000).toFixed(1),
  'municipalities, kB with brotli': (brotli(table) / 1000).toFixed(1),
  'start to a field that takes keys, ms': median(starts).toFixed(1),
};
const rows = [
  ['a key of the first CPF, microseconds', firstKeys, 1000, 0],
  ['a key of the tenth CPF, microseconds', laterKeys, 1000, 0],
  ['1,000 fields made, ms', made, 1, 0],
  ['1,000 fields made and shown, ms', shown, 1, 0],
  ['memory a field, kB', memory, 0.001, 1],
];
for (const [name, found, scale, digits] of rows) {
  for (const kind of kinds) figures[`${name}: ${kind}`] = (median(found[kind]) * scale).toFixed(digits);
}
for (const [name, figure] of Object.entries(figures)) console.log(`${name.padEnd(48)} ${figure}`);
