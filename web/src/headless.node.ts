// The same for Node, which reads the module from its own disk.

import { readFile } from 'node:fs/promises';
import { load } from './headless_core.js';

const core = await load(readFile(new URL('./headless.wasm', import.meta.url)).then((bytes) => new Uint8Array(bytes)));

export const field = core.field;
export const clean = core.clean;
export type { Clean, Field, Properties } from './headless_core.js';
