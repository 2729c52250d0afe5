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

const server = await serve([dist, out, here]);
const browser = await launch('chromium', { args: ['--no-sandbox', '--enable-precise-memory-info', '--js-flags=--expose-gc'] });
const page = await browser.newPage();
page.on('pageerror', (error) => { throw error; });
const median = (numbers) => numbers.sort((a, b) => a - b)[numbers.length >> 1];
const rounds = 9;

async function fresh() {
  await page.goto(`${server.address}bench.html`);
  return page;
}

// From the first line of the script to a field that takes keys, the bytes in the cache.
const starts = [];
for (let i = 0; i < rounds; i++) {
  await fresh();
  starts.push(await page.evaluate(() => globalThis.start()));
}

// The time of the handlers of one key, from its keydown to behind its input event; the browser's own work in between
// is in all three alike.
const kinds = ['plain', 'gabarito', 'imask', 'maskito'];
const keys = Object.fromEntries(kinds.map((kind) => [kind, []]));
for (let i = 0; i < rounds; i++) {
  for (const kind of kinds) {
    await fresh();
    await page.evaluate((it) => globalThis.one(it), kind);
    await page.keyboard.type('11144477735');
    keys[kind].push(await page.evaluate(() => globalThis.spent() / 11));
    await page.evaluate(() => globalThis.again());
  }
}

const made = Object.fromEntries(kinds.map((kind) => [kind, []]));
const memory = Object.fromEntries(kinds.map((kind) => [kind, []]));
const cdp = await page.createCDPSession();
for (let i = 0; i < 5; i++) {
  for (const kind of kinds) {
    await fresh();
    await page.evaluate(() => globalThis.start());
    await cdp.send('HeapProfiler.collectGarbage');
    const before = await cdp.send('Runtime.getHeapUsage');
    const wasm = await page.evaluate(() => globalThis.wasmBytes());
    made[kind].push(await page.evaluate((it) => globalThis.thousand(it), kind));
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
for (const kind of kinds) figures[`a key of a CPF, microseconds: ${kind}`] = (median(keys[kind]) * 1000).toFixed(0);
for (const kind of kinds) figures[`1,000 fields made, ms: ${kind}`] = median(made[kind]).toFixed(0);
for (const kind of kinds) figures[`memory a field, kB: ${kind}`] = (median(memory[kind]) / 1000).toFixed(1);
for (const [name, figure] of Object.entries(figures)) console.log(`${name.padEnd(48)} ${figure}`);
