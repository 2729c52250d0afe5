// `import 'gabarito'` defines the element <gabarito-field>. On a server, where there are no elements, nothing happens.

import { GabaritoField } from './element.js';
import { Page } from './page.js';

let page: Promise<Page> | undefined;
let address = () => new URL('./gabarito.wasm', import.meta.url);
let table = () => new URL('./municipios.txt', import.meta.url);

// Where the module lies when it is not beside this script, as after a bundler that does not take it along. Before
// the first field is on the page.
export function setModuleAddress(url: string | URL): void {
  address = () => new URL(url, document.baseURI);
  table = () => new URL('./municipios.txt', address());
}

GabaritoField.source = () => {
  // A moment later: fields that stand on the page already come before the script that imports this one.
  page ??= Promise.resolve().then(() => new Page(table).load(fetch(address())));
  return page;
};

// Two copies of the package on one page: the first one serves all fields.
if (globalThis.customElements && !customElements.get('gabarito-field')) {
  customElements.define('gabarito-field', GabaritoField);
}

export { GabaritoField };
export type { KeyUp } from './element.js';
export type { Refusal } from './messages.js';
