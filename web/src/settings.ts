// The properties of the field as attributes and properties of its element.

import { FormControl } from './form_control.js';
import { kinds, maskName, maskNumber } from './kinds.js';
import { wordsOf, type PropertyName } from './properties.js';

export type Value = string | number | boolean | readonly string[];

const isOn = (text: string | null) => text !== null && text !== 'false';
const longest = 32767;

export abstract class FieldSettings extends FormControl {
  static readonly observedAttributes: readonly string[] = [
    'mask', 'mask-text', 'max-length', 'combo-itens', 'appearance', 'usar-fundo-pastel', 'trata-enter-como-tab',
    'preencher-datas-invalidas-com-data-de-hoje', 'cnpj-alfanumerico',
  ];
  protected readonly settings = new Map<PropertyName, Value>();

  // Keeps the value, and hands it to the field when there is one.
  protected abstract set(name: PropertyName, value: Value): void;

  attributeChangedCallback(name: string, _before: string | null, text: string | null): void {
    switch (name) {
      case 'mask':
        return this.set('mask', maskNumber(text ?? '') ?? kinds.gbNenhuma!.number);
      case 'mask-text':
        if (text !== null) this.set('maskText', text);
        return;
      case 'max-length':
        return this.set('maxLength', Math.min(Math.max(Math.trunc(Number(text)) || 0, 0), longest));
      case 'combo-itens':
        return this.set('comboItens', wordsOf(text ?? ''));
      case 'appearance':
        return this.set('appearance', text === '3d' || text === '1' ? 1 : 0);
      default:
        this.set(name.replace(/-(.)/g, (_, letter: string) => letter.toUpperCase()) as PropertyName, isOn(text));
    }
  }

  protected get maskValue(): number {
    return (this.settings.get('mask') as number | undefined) ?? kinds.gbNenhuma!.number;
  }

  get mask(): string {
    return maskName(this.maskValue);
  }
  set mask(mask: string | number) {
    this.setAttribute('mask', String(mask));
  }

  get maskText(): string {
    return (this.settings.get('maskText') as string | undefined) ?? '';
  }
  set maskText(text: string) {
    this.setAttribute('mask-text', text);
  }

  get comboItens(): readonly string[] {
    return (this.settings.get('comboItens') as readonly string[] | undefined) ?? [];
  }
  set comboItens(words: readonly string[]) {
    this.set('comboItens', (words ?? []).map(String));
  }

  get maxLength(): number {
    return (this.settings.get('maxLength') as number | undefined) ?? 0;
  }
  set maxLength(length: number) {
    this.setAttribute('max-length', String(length));
  }

  get appearance(): number {
    return (this.settings.get('appearance') as number | undefined) ?? 0;
  }
  set appearance(look: number) {
    this.setAttribute('appearance', String(look));
  }

  get usarFundoPastel(): boolean {
    return this.settings.get('usarFundoPastel') === true;
  }
  set usarFundoPastel(on: boolean) {
    this.toggleAttribute('usar-fundo-pastel', on);
  }

  get trataEnterComoTab(): boolean {
    return this.settings.get('trataEnterComoTab') === true;
  }
  set trataEnterComoTab(on: boolean) {
    this.toggleAttribute('trata-enter-como-tab', on);
  }

  get preencherDatasInvalidasComDataDeHoje(): boolean {
    return this.settings.get('preencherDatasInvalidasComDataDeHoje') === true;
  }
  set preencherDatasInvalidasComDataDeHoje(on: boolean) {
    this.toggleAttribute('preencher-datas-invalidas-com-data-de-hoje', on);
  }

  get cnpjAlfanumerico(): boolean {
    return this.settings.get('cnpjAlfanumerico') === true;
  }
  set cnpjAlfanumerico(on: boolean) {
    this.toggleAttribute('cnpj-alfanumerico', on);
  }
}
