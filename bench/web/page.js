import { dress } from './others.js';

const main = document.querySelector('main');
let total = 0;
let began = 0;
// Around all handlers: the first that hears a key, and the last that hears what came of it.
addEventListener('keydown', () => { began = performance.now(); }, true);
function stop() {
  if (began !== 0) total += performance.now() - began;
  began = 0;
}
addEventListener('input', () => stop());

globalThis.wasmBytes = () => globalThis.gabaritoPage?.module.exports.memory.buffer.byteLength ?? 0;

const taken = (field) => new Promise((resolve) => {
  const look = () => (field.shadowRoot.querySelector('.box:not(.plain)') ? resolve() : setTimeout(look));
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
globalThis.spent = () => total;
globalThis.again = () => { total = 0; };

globalThis.thousand = async (kind) => {
  const at = performance.now();
  const piece = document.createDocumentFragment();
  const inputs = [];
  for (let i = 0; i < 1000; i++) {
    const made = kind === 'gabarito' ? field() : document.createElement('input');
    inputs.push(made);
    piece.append(made);
  }
  main.append(piece);
  if (kind === 'gabarito') await taken(inputs.at(-1));
  else globalThis.kept = inputs.map(dress[kind]);
  return performance.now() - at;
};
