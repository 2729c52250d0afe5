// <gabarito-field>: the field as a form control of the page.

import { Event, surfacePlace, untold, type FieldNews, type Held } from './bridge.js';
import { kindOf, kinds, maskNumber } from './kinds.js';
import type { Page } from './page.js';
import { Property, wordsOf, type PropertyName } from './properties.js';
import { styleRoot } from './styles.js';
import { Typing } from './typing.js';
import { FieldView, margin, type Owner } from './view.js';

const question = 292;
const critical = 16;
const populated = kinds.gbCidadeEstadoPopulado!.number;
const plainCity = kinds.gbCidadeEstado!.number;
const twipsAnEm = 160;

// On a server there are no elements: the class is there, and nobody makes one.
const Base = (globalThis.HTMLElement ?? class {}) as typeof HTMLElement;

// What the page decides about a message before it is shown. `answer` is 6 Yes or 7 No to a question, else 1.
export interface Refusal {
  title: string | null;
  text: string;
  question: boolean;
  answer: number;
}

export interface KeyUp {
  keyCode: number;
  shift: number;
}

// A field that is freshly placed has some of these otherwise; an attribute that is not there is off.
const defaults: [PropertyName, Value][] = [
  ['appearance', 0],
  ['maxLength', 0],
  ['usarFundoPastel', false],
  ['trataEnterComoTab', false],
  ['preencherDatasInvalidasComDataDeHoje', false],
];

const idle = (work: () => void) => (globalThis.requestIdleCallback ?? setTimeout)(work);

// One observer for all fields.
let sizes: ResizeObserver | undefined;
const resized = new WeakMap<Element, GabaritoField>();

type Value = string | number | boolean | readonly string[];

export class GabaritoField extends Base implements Owner {
  static readonly formAssociated = true;
  static readonly observedAttributes = [
    'mask', 'mask-text', 'max-length', 'combo-itens', 'appearance', 'usar-fundo-pastel', 'trata-enter-como-tab',
    'preencher-datas-invalidas-com-data-de-hoje', 'cnpj-alfanumerico', 'value', 'readonly', 'required', 'placeholder', 'aria-label',
  ];
  // The module, once for all elements; set by index.ts.
  private static page: Page | undefined;
  private static readonly waiting: GabaritoField[] = [];
  static source: () => Promise<Page> = () => Promise.reject(new Error('no module'));

  readonly root!: ShadowRoot;
  readonly frame!: HTMLElement;
  private readonly internals!: ElementInternals;
  private readonly properties = new Map<PropertyName, Value>();
  private view: FieldView | undefined;
  private plain: HTMLInputElement | undefined; // until the module is there, and when it cannot be had
  private note: HTMLElement | undefined;
  private typing: Typing | undefined; // from the first time that something happens in the field
  private committed = ''; // the value as the last check left it
  private valueBefore = ''; // the same when the focus came in
  private pending: string | undefined; // a value for a field that is not there yet
  private dirty = false; // a person has changed something since
  private refusal = ''; // the message of the last refusal
  private spoken = false; // the check in progress has refused
  private formDisabled = false;
  private failure = false;

  get host(): HTMLElement {
    return this;
  }

  constructor() {
    super();
    this.internals = this.attachInternals();
    this.internals.role = 'group';
    this.root = this.attachShadow({ mode: 'open', delegatesFocus: true });
    this.frame = this.ownerDocument.createElement('div');
    this.frame.className = 'frame';
    this.frame.setAttribute('part', 'frame');
    this.root.append(this.frame);
    styleRoot(this.root);
    this.root.addEventListener('focusin', (event) => this.focusIn(event as FocusEvent));
    this.root.addEventListener('input', (event) => {
      if (this.listen()) this.typing!.handleEvent(event);
    });
    this.root.addEventListener('focusout', (event) => this.focusOut(event as FocusEvent));
  }

  // --- Life ---------------------------------------------------------------------------------------------------------

  connectedCallback(): void {
    for (const name of ['mask', 'maskText', 'value', 'comboItens', 'disabled', 'required', 'readOnly'] as const) {
      this.upgrade(name);
    }
    if (this.view || this.plain) return;
    this.form?.addEventListener('submit', this.beforeSubmit, true);
    if (GabaritoField.page) return this.startSoon(GabaritoField.page);
    this.makePlain();
    GabaritoField.source().then(
      (page) => this.startSoon((GabaritoField.page = page)),
      () => this.fail(),
    );
  }

  // Fields that come together are measured together, before the first of them changes the page: one layout for all.
  private startSoon(page: Page): void {
    const { waiting } = GabaritoField;
    if (waiting.push(this) > 1) return;
    queueMicrotask(() => {
      const fields = waiting.splice(0).filter((field) => field.isConnected && !field.view);
      const widths = fields.map((field) => field.measured());
      fields.forEach((field, i) => field.start(page, widths[i]!));
      idle(() => fields.forEach((field) => field.dressAll()));
    });
  }

  disconnectedCallback(): void {
    // A move is a way out and a way in at once: only what stays out ends.
    queueMicrotask(() => {
      if (this.isConnected || !this.view) return;
      this.pending = this.value;
      this.stop();
    });
  }

  adoptedCallback(): void {
    styleRoot(this.root);
  }

  // Properties set before the element's script was there.
  private upgrade(name: 'mask' | 'maskText' | 'value' | 'comboItens' | 'disabled' | 'required' | 'readOnly'): void {
    if (!Object.hasOwn(this, name)) return;
    const value = this[name];
    delete this[name];
    (this as Record<string, unknown>)[name] = value;
  }

  private makePlain(): void {
    const input = this.ownerDocument.createElement('input');
    input.className = 'box wide plain';
    input.setAttribute('part', 'box');
    input.style.width = '100%';
    input.value = this.pending ?? this.getAttribute('value') ?? '';
    this.shownLabel = this.getAttribute('aria-label') ?? '';
    this.dress(input, 0);
    input.addEventListener('input', () => {
      this.dirty = true;
      this.internals.setFormValue(input.value);
    });
    this.plain = input;
    this.frame.append(input);
    this.internals.setFormValue(input.value);
  }

  private fail(): void {
    if (this.failure) return;
    this.failure = true;
    this.tell('O campo não pôde ser carregado: o que for digitado segue sem conferência.', false);
  }

  private start(page: Page, width: number): void {
    const typed = this.plain && this.dirty ? this.plain.value : undefined;
    const focused = this.plain !== undefined && this.root.activeElement === this.plain;
    this.plain?.remove();
    this.plain = undefined;
    const view = page.add((number) => new FieldView(page, number, this)) as FieldView;
    this.view = view;
    view.width = width;
    page.send(view.number, Event.create, width, this.line, 0, untold);
    this.setAll();
    page.send(view.number, Event.sync);
    const text = typed ?? this.pending ?? this.getAttribute('value') ?? '';
    if (text === '') this.settle();
    else this.write(text);
    this.pending = undefined;
    if (this.formDisabled || this.hasAttribute('disabled')) this.set('enabled', false);
    sizes ??= new ResizeObserver((changes) => changes.forEach(({ target }) => resized.get(target)?.resize()));
    resized.set(this.frame, this);
    sizes.observe(this.frame);
    if (focused || (this.autofocus && this.ownerDocument.activeElement === this.ownerDocument.body)) this.focus();
    this.validate();
  }

  private stop(): void {
    sizes?.unobserve(this.frame);
    this.typing?.stop();
    this.typing = undefined;
    this.form?.removeEventListener('submit', this.beforeSubmit, true);
    const view = this.view;
    this.view = undefined;
    view?.close();
    this.frame.replaceChildren();
  }

  // --- Size ---------------------------------------------------------------------------------------------------------

  private readonly line = 315; // twips, of one line of the design font

  private measured(): number {
    const width = this.frame.clientWidth;
    const size = parseFloat(getComputedStyle(this.frame).fontSize) || 16;
    return Math.max(Math.round((width / size) * twipsAnEm) - 2 * margin, 0);
  }

  private measure(): boolean {
    const twips = this.measured();
    if (!this.view || twips === this.view.width) return false;
    this.view.width = twips;
    return true;
  }

  // A layout empties the boxes of a date, as the field does everywhere; what a person sees must outlive a turn of the
  // phone, so the text is put back.
  resize(): void {
    const view = this.view;
    if (!view || !this.measure()) return;
    const shown = view.shownText();
    const focused = this.matches(':focus-within');
    view.page.send(view.number, Event.size, view.width, this.line);
    if (shown !== view.shownText() && !focused) this.write(this.dirty ? shown : this.committed);
  }

  // --- Properties ---------------------------------------------------------------------------------------------------

  attributeChangedCallback(name: string, _before: string | null, text: string | null): void {
    switch (name) {
      case 'mask':
        return this.set('mask', maskNumber(text ?? '') ?? kinds.gbNenhuma!.number);
      case 'mask-text':
        if (text !== null) this.set('maskText', text);
        return;
      case 'max-length':
        return this.set('maxLength', Math.min(Math.max(Math.trunc(Number(text)) || 0, 0), 32767));
      case 'combo-itens':
        return this.set('comboItens', wordsOf(text ?? ''));
      case 'appearance':
        return this.set('appearance', text === '3d' || text === '1' ? 1 : 0);
      case 'usar-fundo-pastel':
        return this.set('usarFundoPastel', text !== null && text !== 'false');
      case 'trata-enter-como-tab':
        return this.set('trataEnterComoTab', text !== null && text !== 'false');
      case 'preencher-datas-invalidas-com-data-de-hoje':
        return this.set('preencherDatasInvalidasComDataDeHoje', text !== null && text !== 'false');
      case 'cnpj-alfanumerico':
        return this.set('cnpjAlfanumerico', text !== null && text !== 'false');
      case 'value':
        if (!this.dirty && this.isConnected) this.write(text ?? '');
        return;
      case 'required':
        return this.validate();
      default:
        this.dressAll();
    }
  }

  private set(name: PropertyName, value: Value): void {
    this.properties.set(name, value);
    if (!this.view) return;
    const kept = name === 'mask' || name === 'maskText' || name === 'comboItens' ? undefined : this.value;
    this.hand(name, value);
    if (name === 'mask' || name === 'maskText') {
      this.clearRefusal();
      this.dressAll();
      this.write('');
    } else if (kept !== undefined && this.view.shownText() === '' && kept !== '') {
      this.write(kept);
    }
  }

  private hand(name: PropertyName, value: Value, held?: Held): void {
    const view = this.view!;
    if (name === 'mask' && value === populated) return this.showMunicipios();
    if (name === 'appearance') this.frame.classList.toggle('deep', value === 1);
    if (name === 'enabled') this.frame.classList.toggle('off', value === false);
    const text = Array.isArray(value) ? value.join('\0') : typeof value === 'string' ? value : '';
    view.page.send(view.number, Event.set, Property[name], Number(value) || 0, 0, held, text);
  }

  // The words before the mask, whose layout shows them.
  private setAll(): void {
    const order: PropertyName[] = ['appearance', 'comboItens', 'maxLength', 'usarFundoPastel', 'trataEnterComoTab',
      'preencherDatasInvalidasComDataDeHoje', 'cnpjAlfanumerico', 'mask', 'maskText'];
    const mask = this.properties.get('mask') ?? kinds.gbNenhuma!.number;
    this.properties.set('mask', mask);
    for (const [name, value] of defaults) if (!this.properties.has(name)) this.properties.set(name, value);
    for (const name of order) {
      const value = this.properties.get(name);
      if (value !== undefined && (name !== 'maskText' || mask === kinds.gbDefUsr!.number)) this.hand(name, value, untold);
    }
  }

  private showMunicipios(): void {
    const view = this.view!;
    const show = (mask: number) => view.page.send(view.number, Event.set, Property.mask, mask);
    if (view.page.hasMunicipios) {
      show(populated);
      return;
    }
    show(populated);
    this.tell('Carregando os municípios…', false);
    view.page.wantMunicipios().then((there) => {
      if (this.view !== view || this.properties.get('mask') !== populated) return;
      const typed = view.shownText();
      const focused = this.matches(':focus-within');
      show(there ? populated : plainCity);
      if (there) this.tell('', false);
      else this.tell('Sem conexão: a lista de municípios não pôde ser carregada. Digite a cidade e escolha o estado.', false);
      this.write(typed !== '' ? typed : this.wanted);
      if (focused) this.focus();
    });
  }

  get mask(): string {
    const number = this.maskValue;
    return Object.keys(kinds).find((name) => kinds[name]!.number === number) ?? String(number);
  }
  set mask(mask: string | number) {
    this.setAttribute('mask', String(mask));
  }

  private get maskValue(): number {
    return (this.properties.get('mask') as number | undefined) ?? kinds.gbNenhuma!.number;
  }

  get maskText(): string {
    return (this.properties.get('maskText') as string | undefined) ?? '';
  }
  set maskText(text: string) {
    this.setAttribute('mask-text', text);
  }

  get comboItens(): readonly string[] {
    return (this.properties.get('comboItens') as readonly string[] | undefined) ?? [];
  }
  set comboItens(words: readonly string[]) {
    this.set('comboItens', words.map(String));
    if (this.view && this.maskValue === kinds.gbListaNoCombo!.number) this.hand('mask', this.maskValue);
  }

  get maxLength(): number {
    return (this.properties.get('maxLength') as number | undefined) ?? 0;
  }
  set maxLength(length: number) {
    this.setAttribute('max-length', String(length));
  }

  get appearance(): number {
    return (this.properties.get('appearance') as number | undefined) ?? 0;
  }
  set appearance(look: number) {
    this.setAttribute('appearance', String(look));
  }

  get usarFundoPastel(): boolean {
    return this.properties.get('usarFundoPastel') === true;
  }
  set usarFundoPastel(on: boolean) {
    this.toggleAttribute('usar-fundo-pastel', on);
  }

  get trataEnterComoTab(): boolean {
    return this.properties.get('trataEnterComoTab') === true;
  }
  set trataEnterComoTab(on: boolean) {
    this.toggleAttribute('trata-enter-como-tab', on);
  }

  get preencherDatasInvalidasComDataDeHoje(): boolean {
    return this.properties.get('preencherDatasInvalidasComDataDeHoje') === true;
  }
  set preencherDatasInvalidasComDataDeHoje(on: boolean) {
    this.toggleAttribute('preencher-datas-invalidas-com-data-de-hoje', on);
  }

  get cnpjAlfanumerico(): boolean {
    return this.properties.get('cnpjAlfanumerico') === true;
  }
  set cnpjAlfanumerico(on: boolean) {
    this.toggleAttribute('cnpj-alfanumerico', on);
  }

  get comboListCount(): number {
    return this.view?.listCount ?? 0;
  }

  get comboListIndex(): number {
    return Number(this.read('comboListIndex') ?? -1);
  }
  set comboListIndex(index: number) {
    const view = this.view;
    if (view) view.page.send(view.number, Event.set, Property.comboListIndex, index);
    this.settle();
  }

  private read(name: PropertyName): string | undefined {
    const view = this.view;
    return view?.page.send(view.number, Event.get, Property[name]).result;
  }

  // --- Value --------------------------------------------------------------------------------------------------------

  // The value as a form submits it: as the last check left it or, while a person is at work on it, what is shown.
  // Reading it checks nothing.
  get value(): string {
    if (!this.view) return this.plain?.value ?? this.pending ?? '';
    return this.dirty ? this.view.shownText() : this.committed;
  }
  set value(text: string) {
    this.dirty = false;
    const value = text == null ? '' : String(text);
    if (this.view) this.write(value);
    else {
      this.pending = value;
      if (this.plain) this.plain.value = value;
      this.internals.setFormValue(value);
    }
  }

  // The property of the field: reading it runs the check, which can show a message, move the focus and rewrite the
  // boxes.
  get text(): string {
    if (!this.view) return this.value;
    this.check();
    return this.committed;
  }
  set text(text: string) {
    this.value = text;
  }

  // Runs the check; true when the field has nothing against its value.
  check(): boolean {
    if (!this.view) return true;
    this.clearRefusal();
    this.spoken = false;
    this.read('text');
    this.dirty = false;
    this.settle();
    return !this.spoken;
  }

  apagaCampos(): void {
    if (this.view) this.view.page.send(this.view.number, Event.clear);
    this.settle();
  }

  private wanted = ''; // what was written last, for a list that comes later

  private write(text: string): void {
    const view = this.view;
    if (!view) return;
    this.wanted = text;
    view.page.send(view.number, Event.write, 0, 0, 0, undefined, text);
    this.settle();
  }

  // Nothing of a value is no value: a bare "/" or "#" is not submitted.
  private settle(): void {
    this.dirty = false;
    const value = this.value;
    this.internals.setFormValue(value, value);
    this.validate();
  }

  private validate(): void {
    const anchor = this.view?.inputs.find((input) => input && !input.hidden);
    if (this.refusal !== '') this.internals.setValidity({ customError: true }, this.refusal, anchor);
    else if (this.hasAttribute('required') && !/[\p{L}\p{N}]/u.test(this.value)) {
      this.internals.setValidity({ valueMissing: true }, 'Preencha este campo.', anchor ?? this.plain);
    } else this.internals.setValidity({});
    this.toggleAttribute('data-refused', this.refusal !== '');
    for (const input of this.view?.inputs ?? []) {
      if (this.refusal !== '') input?.setAttribute('aria-invalid', 'true');
      else input?.removeAttribute('aria-invalid');
    }
  }

  // --- The form -----------------------------------------------------------------------------------------------------

  get form(): HTMLFormElement | null {
    return this.internals.form;
  }
  get type(): string {
    return 'gabarito-field';
  }
  get name(): string {
    return this.getAttribute('name') ?? '';
  }
  set name(name: string) {
    this.setAttribute('name', name);
  }
  get required(): boolean {
    return this.hasAttribute('required');
  }
  set required(on: boolean) {
    this.toggleAttribute('required', on);
  }
  get readOnly(): boolean {
    return this.hasAttribute('readonly');
  }
  set readOnly(on: boolean) {
    this.toggleAttribute('readonly', on);
  }
  get disabled(): boolean {
    return this.hasAttribute('disabled');
  }
  set disabled(on: boolean) {
    this.toggleAttribute('disabled', on);
  }
  get validity(): ValidityState {
    return this.internals.validity;
  }
  get validationMessage(): string {
    return this.internals.validationMessage;
  }
  get willValidate(): boolean {
    return this.internals.willValidate;
  }
  checkValidity(): boolean {
    return this.internals.checkValidity();
  }
  reportValidity(): boolean {
    return this.internals.reportValidity();
  }

  formAssociatedCallback(form: HTMLFormElement | null): void {
    form?.addEventListener('submit', this.beforeSubmit, true);
  }
  formDisabledCallback(disabled: boolean): void {
    this.formDisabled = disabled;
    if (this.view) this.set('enabled', !disabled);
    if (this.plain) this.plain.disabled = disabled;
  }
  formResetCallback(): void {
    this.clearRefusal();
    this.value = this.getAttribute('value') ?? '';
  }
  formStateRestoreCallback(state: string | File | FormData | null): void {
    if (typeof state === 'string') this.value = state;
  }

  // What is still being typed is checked before it goes.
  private readonly beforeSubmit = (event: globalThis.Event): void => {
    if (this.form !== event.target || !this.dirty || this.check()) return;
    event.preventDefault();
    event.stopImmediatePropagation();
  };

  edited(): void {
    this.dirty = true;
    this.clearRefusal();
    this.internals.setFormValue(this.value);
    this.validate();
  }

  changed(): void {
    this.edited();
    this.dispatchEvent(new InputEvent('input', { bubbles: true, composed: true }));
  }

  // A program has written a value while the focus is elsewhere.
  written(text: string): void {
    this.write(text);
    this.dispatchEvent(new globalThis.Event('change', { bubbles: true }));
  }

  entered(): void {
    if (this.trataEnterComoTab) return;
    if (this.check()) this.form?.requestSubmit();
  }

  // --- Focus --------------------------------------------------------------------------------------------------------

  override focus(options?: FocusOptions): void {
    if (!this.view) return this.plain?.focus(options) ?? super.focus(options);
    this.view.page.send(this.view.number, Event.focus, surfacePlace);
  }

  // True when it has begun just now.
  private listen(): boolean {
    if (!this.view || this.typing) return false;
    this.typing = new Typing(this.view, this, this.root);
    return true;
  }

  private focusIn(event: FocusEvent): void {
    this.listen();
    const view = this.view;
    const place = view?.placeOf(event.target) ?? -1;
    if (!view) return;
    if (!this.contains(event.relatedTarget as Node | null) && event.relatedTarget !== this) (this.valueBefore = this.committed);
    if (place >= 0) view.page.send(view.number, Event.focus, place);
  }

  // To another element: that one's focusin tells. To none: nobody else will. A window that is left keeps its focus.
  private focusOut(event: FocusEvent): void {
    const view = this.view;
    if (!view || event.relatedTarget !== null || this.root.activeElement === event.target) return;
    if ((event.target as HTMLElement).hidden) return;
    setTimeout(() => {
      if (this.view === view && !this.matches(':focus-within') && this.ownerDocument.hasFocus()) view.page.leave(null);
    });
  }

  // --- What the field says ------------------------------------------------------------------------------------------

  showed(news: FieldNews): void {
    if (news.value !== undefined) this.committed = /[\p{L}\p{N}]/u.test(news.value) ? news.value : '';
  }

  // The field has been left and has had its say.
  left(): void {
    if (this.dirty && this.refusal === '') {
      // Leaving completes what the boxes show, 5/3/24 to 05/03/2024; the value is that of a look after it.
      const view = this.view;
      view?.page.send(view.number, Event.check);
      this.settle();
    }
    if (this.committed !== this.valueBefore) {
      this.valueBefore = this.committed;
      this.dispatchEvent(new globalThis.Event('change', { bubbles: true }));
    }
  }

  message(text: string, title: string | null, flags: number): number {
    const asks = flags === question;
    const detail: Refusal = { title, text, question: asks, answer: asks ? 7 : 1 };
    const event = new CustomEvent('gabarito-refused', { detail, bubbles: true, composed: true, cancelable: true });
    const shown = this.dispatchEvent(event);
    if (flags === critical) {
      this.spoken = true;
      this.refusal = text;
    }
    this.validate();
    if (!shown) return detail.answer;
    const view = this.ownerDocument.defaultView;
    if (asks) return view?.confirm(text) ? 6 : 7;
    if (this.getAttribute('messages') === 'modal') view?.alert(text);
    else this.tell(text, true);
    return 1;
  }

  keyUp(code: number, shift: number): [number, number] {
    const detail: KeyUp = { keyCode: code, shift };
    this.dispatchEvent(new CustomEvent('gabarito-keyup', { detail, bubbles: true, composed: true }));
    return [detail.keyCode, detail.shift];
  }

  beep(): void {
    this.dispatchEvent(new CustomEvent('gabarito-beep', { bubbles: true, composed: true }));
  }

  private tell(text: string, refused: boolean): void {
    if (!this.note) {
      if (text === '') return;
      this.note = this.ownerDocument.createElement('div');
      this.note.id = 'message';
      this.note.setAttribute('part', 'message');
      this.note.setAttribute('role', 'status');
      this.root.append(this.note);
      this.dressAll();
    }
    this.note.className = refused ? 'message' : 'message note';
    this.note.textContent = text;
  }

  private clearRefusal(): void {
    if (this.refusal === '') return;
    this.refusal = '';
    this.tell('', true);
    this.validate();
  }

  // --- Names and hints ----------------------------------------------------------------------------------------------

  private get label(): string {
    const own = this.getAttribute('aria-label');
    if (own) return own;
    const labels = [...(this.internals.labels ?? [])] as HTMLElement[];
    return labels.map((label) => label.textContent?.trim() ?? '').join(' ') || this.mask;
  }

  dress(input: HTMLInputElement, place: number): void {
    const kind = kindOf(this.maskValue);
    const box = kind.boxes?.[place === 4 ? 1 : place > 4 ? place - 5 : place];
    input.setAttribute('aria-label', box ?? this.shownLabel);
    input.inputMode = kind.inputMode ?? 'text';
    input.autocomplete = (this.getAttribute('autocomplete') ?? kind.autocomplete ?? 'off') as AutoFill;
    input.spellcheck = kind.prose ?? false;
    input.setAttribute('autocapitalize', 'off');
    input.enterKeyHint = this.trataEnterComoTab ? 'next' : 'done';
    input.readOnly = this.readOnly;
    input.placeholder = kind.boxes ? '' : (this.getAttribute('placeholder') ?? '');
    if (this.hasAttribute('required')) input.setAttribute('aria-required', 'true');
    else input.removeAttribute('aria-required');
    if (this.note) input.setAttribute('aria-describedby', 'message');
  }

  // Looking for labels goes through the whole page: for each field once, when the page has time.
  private shownLabel = '';

  private dressAll(): void {
    this.shownLabel = this.label;
    if (this.plain) this.dress(this.plain, 0);
    this.view?.inputs.forEach((input, place) => input && this.dress(input, place));
    this.internals.ariaLabel = this.shownLabel;
  }
}
