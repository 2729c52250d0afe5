import { again, spent } from './clock.js';
import { dress } from './others.js';

const main = document.querySelector('main');
globalThis.spent = spent;
globalThis.again = again;

globalThis.wasmBytes = () => globalThis.gabaritoPage?.module.exports.memory.buffer.byteLength ?? 0;

const isTaken = (field) => field.shadowRoot.querySelector('.box:not(.plain)') !== null;
const taken = (field) => new Promise((resolve) => {
  const look = () => (isTaken(field) ? resolve() : setTimeout(look));
  look();
});

function field() {
  const made = document.createElement('gabarito-field');
  made.setAttribute('mask', 'gbCPF');
  return made;
}

globalThis.start = async () => {
  // The bytes are there: what is measured is what the page has to do with them.
  await Promise.all(['/gabarito.js', '/gabarito.wasm'].map(async (file) => (await fetch(file)).arrayBuffer()));
  const at = performance.now();
  const { GabaritoField } = await import('/gabarito.js');
  const made = field();
  main.append(made);
  await taken(made);
  const time = performance.now() - at;
  globalThis.gabaritoPage = await GabaritoField.source();
  made.remove();
  return time;
};

globalThis.one = async (kind) => {
  if (kind === 'gabarito') {
    await globalThis.start();
    const made = field();
    main.append(made);
    await taken(made);
    made.focus();
    return;
  }
  const input = document.createElement('input');
  main.append(input);
  dress[kind](input);
  input.focus();
};

// Returns when the last one takes keys.
globalThis.thousand = async (kind) => {
  const piece = document.createDocumentFragment();
  const inputs = [];
  for (let i = 0; i < 1000; i++) {
    const made = kind === 'gabarito' ? field() : document.createElement('input');
    inputs.push(made);
    piece.append(made);
  }
  main.append(piece);
  if (kind !== 'gabarito') globalThis.kept = inputs.map(dress[kind]);
  else while (!isTaken(inputs.at(-1))) await undefined;
};

// All of it is on the screen, and what was put off is done.
globalThis.quiet = () => new Promise((resolve) => {
  requestAnimationFrame(() => requestAnimationFrame(() => requestIdleCallback(resolve)));
});
