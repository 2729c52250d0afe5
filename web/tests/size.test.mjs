// What a page loads before its first field works: script with styles, and module.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { brotliCompressSync, constants, gzipSync } from 'node:zlib';

const brotli = (data) => brotliCompressSync(data, { params: { [constants.BROTLI_PARAM_QUALITY]: 11 } });
const gzip = (data) => gzipSync(data, { level: 9 });

test('the first load is at most 60 kB with brotli, 75 kB with gzip', () => {
  const files = ['gabarito.js', 'gabarito.wasm'].map((name) => readFileSync(new URL(`../dist/${name}`, import.meta.url)));
  const size = (pack) => files.reduce((sum, file) => sum + pack(file).length, 0);
  assert.ok(size(brotli) <= 60_000, `${size(brotli)} bytes with brotli`);
  assert.ok(size(gzip) <= 75_000, `${size(gzip)} bytes with gzip`);
});
