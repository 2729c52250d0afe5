// The WebAssembly module: fetched once a page, however many fields there are.

export interface Calls {
  // A message of a field. Returns the button: 1 OK, 6 Yes, 7 No.
  message(field: number, text: string, title: string | null, flags: number): number;
  // The event of the program: returns what the key code and the shift mask become.
  keyUp(field: number, code: number, shift: number): [number, number];
  beep(field: number): void;
  // The focus goes on to the tab stop behind a field, or in front of it.
  tab(field: number, backwards: boolean): void;
}

export interface Views {
  words: Int32Array;
  units: Uint16Array;
}

type Exports = Record<string, CallableFunction> & { memory: WebAssembly.Memory };
export type Source = Response | BufferSource;

// What the clock on the wall shows, as milliseconds of a calendar without time zones.
function wallClock(): number {
  const now = new Date();
  return now.getTime() - now.getTimezoneOffset() * 60000;
}

// With so many significant digits, as a whole number and the power of ten that belongs to it. A value right between
// two goes to the even one, as everywhere in the field and unlike toExponential alone: of that the longest form is
// asked, in which such a value stands whole.
function significant(value: number, digits: number): [number, number] {
  const written = (places: number) => value.toExponential(places).replace('.', '').split('e') as [string, string];
  const [whole, power] = written(100);
  const kept = whole.slice(0, digits);
  const isEven = /^50*$/.test(whole.slice(digits)) && Number(kept.at(-1)) % 2 === 0;
  const [coefficient, exponent] = isEven ? [kept, power] : written(digits - 1);
  return [Number(coefficient), Number(exponent) - (digits - 1)];
}

const wide = new TextDecoder('utf-16le', { ignoreBOM: true });

export class Module {
  readonly exports: Exports;
  private views: Views = { words: new Int32Array(0), units: new Uint16Array(0) };

  private constructor(instance: WebAssembly.Instance) {
    this.exports = instance.exports as unknown as Exports;
    this.exports._initialize?.();
  }

  static async load(source: Source | Promise<Source>, calls?: Calls): Promise<Module> {
    let module: Module;
    const text = (address: number, units: number) =>
      wide.decode(new Uint16Array(module.exports.memory.buffer, address, units));
    const imports = {
      env: {
        emscripten_notify_memory_growth: () => {},
        gb_now: wallClock,
        gb_message: (field: number, at: number, size: number, title: number, titleSize: number, flags: number) =>
          calls?.message(field, text(at, size), titleSize < 0 ? null : text(title, titleSize), flags) ?? 1,
        gb_key_up: (field: number, code: number, shift: number) => {
          const [newCode, newShift] = calls?.keyUp(field, code, shift) ?? [code, shift];
          return (newShift << 16) | (newCode & 0xffff);
        },
        gb_number: (at: number, size: number, exponent: number) =>
          Number(`${String.fromCharCode(...new Uint8Array(module.exports.memory.buffer, at, size))}e${exponent}`),
        gb_digits: (value: number, digits: number, at: number) => {
          const [coefficient, exponent] = significant(value, digits);
          module.view().words[at >> 2] = exponent;
          return coefficient;
        },
        gb_beep: (field: number) => calls?.beep(field),
        gb_tab: (field: number, backwards: number) => calls?.tab(field, backwards !== 0),
      },
      wasi_snapshot_preview1: {
        proc_exit: (status: number) => {
          throw new Error(`gabarito ended with status ${status}`);
        },
        environ_get: () => 0,
        environ_sizes_get: () => 0,
      },
    };
    module = new Module(await instantiate(await source, imports));
    return module;
  }

  // The memory as words and as 16-bit units, made anew when it has grown.
  view(): Views {
    const { buffer } = this.exports.memory;
    if (this.views.words.buffer !== buffer) {
      this.views = { words: new Int32Array(buffer), units: new Uint16Array(buffer) };
    }
    return this.views;
  }
}

async function instantiate(source: Source, imports: WebAssembly.Imports): Promise<WebAssembly.Instance> {
  if (typeof Response === 'undefined' || !(source instanceof Response)) {
    return (await WebAssembly.instantiate(source as BufferSource, imports)).instance;
  }
  if (!source.ok) throw new Error(`${source.url}: ${source.status}`);
  // A server that does not know the type of the file must not keep the field from working.
  const streams = source.headers.get('content-type')?.startsWith('application/wasm') ?? false;
  const result = streams
    ? await WebAssembly.instantiateStreaming(source, imports)
    : await WebAssembly.instantiate(await source.arrayBuffer(), imports);
  return result.instance;
}
