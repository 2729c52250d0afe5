// `import { field, clean } from 'gabarito/headless'`: the whole field and the batch rules without a page, for workers
// and servers.

import { load } from './headless_core.js';

const core = await load(fetch(new URL('./headless.wasm', import.meta.url)));

export const field = core.field;
export const clean = core.clean;
export type { Clean, Field, Properties } from './headless_core.js';
