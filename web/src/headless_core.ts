// The field without a page, over src/headless/headless.cpp.

import { maskNumber } from './kinds.js';
import { Module, type Source } from './module.js';
import { Property, type PropertyName } from './properties.js';

export interface Properties {
  maskText?: string;
  maxLength?: number;
  comboItens?: readonly string[];
  appearance?: number;
  enabled?: boolean;
  trataEnterComoTab?: boolean;
  preencherDatasInvalidasComDataDeHoje?: boolean;
  cnpjAlfanumerico?: boolean;
}

// What became of a value: `ok` when the field has nothing against it, and else what it says.
export interface Clean {
  ok: boolean;
  value: string;
  messages: string[];
}

// A run-time error of the field, by number.
export class FieldError extends Error {
  override readonly name = 'FieldError';
  constructor(
    readonly number: number,
    message: string,
  ) {
    super(message);
  }
}

const wide = new TextDecoder('utf-16le', { ignoreBOM: true });

const keptFields = 64; // of `clean`, one for each kind and its properties

export interface Headless {
  // One value through the rules of a kind, as `gabarito batch` does with a line.
  clean(mask: string | number, text: string, properties?: Properties): Clean;
  // A whole field, to be driven as a person would.
  field(mask: string | number, properties?: Properties): Field;
}

export class Field {
  private readonly number: number;

  constructor(
    private readonly module: Module,
    mask: string | number,
    properties: Properties = {},
  ) {
    this.number = this.exports.hl_new!() as number;
    // The words before the mask, whose layout shows them; the pattern of the author sets the mask by itself.
    for (const [name, value] of Object.entries(properties)) {
      if (name !== 'maskText') this.set(name as PropertyName, value as string);
    }
    this.mask = mask;
    if (properties.maskText !== undefined) this.set('maskText', properties.maskText);
    this.said();
  }

  get mask(): number {
    return Number(this.get('mask'));
  }
  set mask(mask: string | number) {
    const number = typeof mask === 'number' ? mask : maskNumber(mask);
    if (number === undefined) throw new RangeError(`no kind is called ${mask}`);
    this.set('mask', number);
  }

  // Reading runs the check; what it says is in `said`.
  get text(): string {
    return this.get('text');
  }
  set text(text: string) {
    this.set('text', text);
  }

  get comboListCount(): number {
    return Number(this.get('comboListCount'));
  }
  get comboListIndex(): number {
    return Number(this.get('comboListIndex'));
  }
  set comboListIndex(index: number) {
    this.set('comboListIndex', index);
  }

  set(name: PropertyName, value: string | number | boolean | readonly string[]): void {
    const text = Array.isArray(value) ? value.join('\0') : typeof value === 'string' ? value : '';
    this.run('hl_set', this.number, Property[name], Number(value) || 0, this.put(text));
  }

  get(name: PropertyName): string {
    this.run('hl_get', this.number, Property[name]);
    return this.taken();
  }

  type(text: string): void {
    this.run('hl_type', this.number, this.put(text));
  }
  press(virtualKey: number, shift = 0): void {
    this.run('hl_press', this.number, virtualKey, shift);
  }
  paste(text: string): void {
    this.run('hl_paste', this.number, this.put(text));
  }

  // The messages since the last call.
  said(): string[] {
    this.run('hl_said', this.number);
    return this.taken().split('\0').slice(0, -1);
  }

  clean(text: string): Clean {
    this.run('hl_clean', this.number, this.put(text));
    const value = this.taken();
    const messages = this.said();
    return { ok: messages.length === 0, value: messages.length === 0 ? value : '', messages };
  }

  // The field is not needed any more.
  end(): void {
    this.exports.hl_end!(this.number);
  }

  private get exports() {
    return this.module.exports;
  }

  private put(text: string): number {
    const at = (this.exports.hl_room!(text.length) as number) >> 1;
    const { units } = this.module.view();
    for (let i = 0; i < text.length; i++) units[at + i] = text.charCodeAt(i);
    return text.length;
  }

  private taken(): string {
    const start = (this.exports.hl_text!() as number) >> 1;
    const { units } = this.module.view();
    return wide.decode(units.subarray(start, start + (this.exports.hl_size!() as number)));
  }

  private run(name: string, ...given: number[]): void {
    const error = this.exports[name]!(...given) as number;
    if (error !== 0) throw new FieldError(error, this.taken());
  }
}

export async function load(source: Source | Promise<Source>): Promise<Headless> {
  const module = await Module.load(source);
  const kept = new Map<string, Field>();
  return {
    field: (mask, properties) => new Field(module, mask, properties),
    clean: (mask, text, properties) => {
      const key = JSON.stringify([mask, properties]);
      const field = kept.get(key) ?? new Field(module, mask, properties);
      // The one used last goes to the end.
      kept.delete(key);
      kept.set(key, field);
      if (kept.size > keptFields) {
        const [oldest] = kept.entries().next().value!;
        kept.get(oldest)!.end();
        kept.delete(oldest);
      }
      return field.clean(text);
    },
  };
}
