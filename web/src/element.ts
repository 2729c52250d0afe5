// <gabarito-field>: the field as a form control of the page.

import { Event, surfacePlace, untold, type FieldNews, type Held } from './bridge.js';
import { FieldValue, asTyped } from './field_value.js';
import { kindOf, kinds, type Kind } from './kinds.js';
import { Messages } from './messages.js';
import { labelledBy, labelsOf, nameEntry } from './names.js';
import type { Page } from './page.js';
import { Property, type PropertyName } from './properties.js';
import { FieldSettings, type Value } from './settings.js';
import { forgetSize, measure, observeSize, usualWidth } from './sizes.js';
import { styleRoot } from './styles.js';
import { Typing } from './typing.js';
import { FieldView, type Owner } from './view.js';

const populated = kinds.gbCidadeEstadoPopulado!.number;
const plainCity = kinds.gbCidadeEstado!.number;
const custom = kinds.gbDefUsr!.number;

// In which a new field takes over what it was asked for: words before the mask whose layout shows them.
const order: readonly PropertyName[] = ['appearance', 'comboItens', 'maxLength', 'usarFundoPastel', 'trataEnterComoTab',
  'preencherDatasInvalidasComDataDeHoje', 'cnpjAlfanumerico', 'mask', 'maskText'];

export interface KeyUp {
  keyCode: number;
  shift: number;
}

const idle = (work: () => void) => (globalThis.requestIdleCallback ?? setTimeout)(work);

/**
 * @tag gabarito-field
 * @attr {string} name - As on an input: what the value is called in the form.
 * @attr {boolean} disabled - As on an input.
 * @attr {boolean} autofocus - As on an input.
 * @attr {string} autocomplete - As on an input; without it each kind says what it is.
 * @attr {"modal"} messages - Messages in the browser's own boxes instead of under the field.
 * @attr {boolean} block - As wide as what the element stands in.
 * @cssprop --gabarito-accent - Colour of focus, selection and chosen entry.
 * @cssprop --gabarito-surface - Colour of the ground.
 * @cssprop --gabarito-ink - Colour of the text.
 * @cssprop --gabarito-quiet - Colour of separators and notes.
 * @cssprop --gabarito-line - Colour of the border.
 * @cssprop --gabarito-danger - Colour of refusals.
 * @cssprop --gabarito-radius - Radius of the corners.
 * @cssprop --gabarito-tint - Strength of the pastel.
 * @cssprop --gabarito-mask-font - Font of the author's own pattern.
 * @event gabarito-refused - The field has something to say; cancelable. The detail is a Refusal.
 * @csspart frame - What looks like the entry.
 * @csspart box - Each entry of the field.
 * @csspart separator - What stands between two boxes.
 * @csspart template - The signs of the empty places of the author's own pattern.
 * @csspart open - The button that opens the list.
 * @csspart list - The list.
 * @csspart option - An entry of the list.
 * @csspart message - What the field says.
 */
export class GabaritoField extends FieldValue implements Owner {
  static override readonly observedAttributes = [
    ...FieldSettings.observedAttributes, 'value', 'readonly', 'required', 'placeholder', 'aria-label', 'aria-labelledby',
  ];
  // The module, once for all elements; set by index.ts.
  private static page: Page | undefined;
  private static readonly waiting = new Set<GabaritoField>();
  private static unnamed: GabaritoField[] = [];
  static source: () => Promise<Page> = () => Promise.reject(new Error('no module'));

  readonly root: ShadowRoot;
  readonly frame: HTMLElement;
  label = ''; // as looked for last
  protected readonly messages: Messages;
  private typing: Typing | undefined; // from the first time that something happens in the field
  private valueBefore = ''; // the same when the focus came in
  private offline = false; // without the municipalities, which could not be had

  get host(): HTMLElement {
    return this;
  }
  get kind(): Kind {
    return kindOf(this.shownMask);
  }

  constructor() {
    super();
    this.internals.role = 'group';
    this.root = this.attachShadow({ mode: 'open', delegatesFocus: true });
    this.messages = new Messages(this, this.root, () => this.view?.page.boxed());
    this.frame = this.ownerDocument.createElement('div');
    this.frame.className = 'frame';
    this.frame.setAttribute('part', 'frame');
    this.root.append(this.frame);
    styleRoot(this.root);
    this.root.addEventListener('focusin', (event) => this.focusIn(event as FocusEvent));
    this.root.addEventListener('focusout', (event) => this.focusOut(event as FocusEvent));
  }

  // --- Life ---------------------------------------------------------------------------------------------------------

  connectedCallback(): void {
    // A page may have set properties before the element's script was there: they would stand in front of these.
    for (const name of Object.keys(this)) if (name in GabaritoField.prototype) this.upgrade(name);
    if (this.view) return;
    if (GabaritoField.page) return this.startSoon(GabaritoField.page);
    if (this.plain) return;
    this.makePlain();
    GabaritoField.source().then(
      (page) => this.startSoon((GabaritoField.page = page)),
      () => {
        this.messages.tell('O campo não pôde ser carregado: o que for digitado segue sem conferência.');
        this.nameAll();
      },
    );
  }

  // Fields that come together start together: those that a person may have seen already are measured before the first
  // of them changes the page.
  private startSoon(page: Page): void {
    const { waiting } = GabaritoField;
    if (waiting.add(this).size > 1) return;
    queueMicrotask(() => {
      const fields = [...waiting].filter((field) => field.isConnected && !field.view && !field.awaits(page));
      waiting.clear();
      const widths = fields.map(({ plain, frame }) => (plain && measure(frame)) || usualWidth());
      fields.forEach((field, i) => field.start(page, widths[i]!));
      GabaritoField.nameSoon(fields);
    });
  }

  // Whether the municipalities have to come first: an empty list would refuse all that a person types.
  private awaits(page: Page): boolean {
    if (this.shownMask !== populated || page.hasMunicipios) return false;
    if (!this.plain) this.makePlain();
    this.messages.tell('Carregando os municípios…');
    page.wantMunicipios().then((there) => {
      this.offline = !there;
      this.messages.tell(
        there || this.maskValue !== populated
          ? ''
          : 'Sem conexão: a lista de municípios não pôde ser carregada. Digite a cidade e escolha o estado.',
      );
      this.startSoon(page);
    });
    return true;
  }

  // When the page has time.
  private static nameSoon(fields: GabaritoField[]): void {
    const first = this.unnamed.length === 0;
    this.unnamed = this.unnamed.concat(fields);
    if (!first) return;
    idle(() => {
      const labels = labelsOf(this.unnamed);
      for (const field of this.unnamed.splice(0)) field.nameAll(labels);
    });
  }

  disconnectedCallback(): void {
    // A move is a way out and a way in at once: only what stays out ends.
    queueMicrotask(() => {
      if (this.isConnected || !this.view) return;
      this.pending = this.state;
      this.stop();
    });
  }

  adoptedCallback(): void {
    // Firefox 140 makes a plain element of the other document of it.
    if (!(this instanceof GabaritoField)) Object.setPrototypeOf(this, GabaritoField.prototype);
    styleRoot(this.root);
    this.view?.page.watch(this.ownerDocument);
  }

  private upgrade(name: string): void {
    const value: unknown = Reflect.get(this, name);
    Reflect.deleteProperty(this, name);
    Reflect.set(this, name, value);
  }

  private makePlain(): void {
    const input = this.ownerDocument.createElement('input');
    input.className = 'box wide plain';
    input.setAttribute('part', 'box');
    input.value = this.pending === undefined ? (this.getAttribute('value') ?? '') : this.value;
    input.disabled = this.matches(':disabled');
    input.addEventListener('input', () => {
      this.dirty = true;
      this.submitNow();
    });
    input.addEventListener('change', () => this.plain && this.tellChange());
    this.plain = input;
    this.frame.append(input);
    this.submitNow();
    GabaritoField.nameSoon([this]);
  }

  private start(page: Page, width: number): void {
    const { plain } = this;
    const typed = plain && this.dirty ? plain.value : undefined;
    const focused = plain !== undefined && this.root.activeElement === plain;
    this.plain = undefined; // Chromium tells a change of what is removed
    plain?.remove();
    this.root.addEventListener('input', this.firstInput);
    const view = page.add((number) => new FieldView(page, number, this)) as FieldView;
    this.view = view;
    view.width = width;
    const text = typed ?? this.pending ?? this.getAttribute('value') ?? '';
    this.pending = undefined;
    this.create(view, focused || text === (typed ?? '') || text.startsWith(asTyped));
    if (focused) view.first?.focus(); // the field itself would choose the box
    if (text === '') this.settle();
    else if (typed) this.writeTyped(typed, focused);
    else this.restore(text);
    if (this.matches(':disabled')) this.set('enabled', false);
    observeSize(this);
    if (typed && !focused) this.tellChange();
    if (!focused && this.autofocus && this.ownerDocument.activeElement === this.ownerDocument.body) this.focus();
  }

  // Mostly a field is a kind and no more, and one call makes it.
  private create(view: FieldView, told: boolean): void {
    const more = order.filter((name) => this.settings.has(name) && (name !== 'maskText' || this.maskValue === custom));
    const alone = more.length === 0 || (more.length === 1 && more[0] === 'mask');
    const mask = alone ? this.shownMask : kinds.gbNenhuma!.number;
    view.page.send(view.number, Event.create, view.width, mask, 0, alone && told ? undefined : untold);
    if (alone) return;
    for (const name of more) this.hand(name, this.settings.get(name)!, untold);
    if (told) view.page.send(view.number, Event.sync);
  }

  private stop(): void {
    forgetSize(this);
    this.typing?.stop();
    this.typing = undefined;
    const view = this.view;
    this.view = undefined;
    this.offline = false;
    view?.close();
    view?.reset();
  }

  resize(width: number): void {
    const view = this.view;
    if (!view || width === view.width) return;
    view.width = width;
    view.page.send(view.number, Event.size, width);
  }

  // The kind as it can be shown.
  private get shownMask(): number {
    return this.offline && this.maskValue === populated ? plainCity : this.maskValue;
  }

  // --- Properties ---------------------------------------------------------------------------------------------------

  override attributeChangedCallback(name: string, before: string | null, text: string | null): void {
    if (FieldSettings.observedAttributes.includes(name)) return super.attributeChangedCallback(name, before, text);
    if (name === 'value') {
      if (!this.dirty && this.isConnected) this.write(text ?? '');
      return;
    }
    if (name === 'required') this.validate();
    if (this.view || this.plain) this.nameAll();
  }

  protected set(name: PropertyName, value: Value): void {
    this.settings.set(name, value);
    const { view } = this;
    if (!view) return;
    if (value === populated && name === 'mask' && !view.page.hasMunicipios) {
      this.stop();
      this.value = '';
      return this.startSoon(view.page);
    }
    const kept = name === 'mask' || name === 'maskText' || name === 'comboItens' ? '' : this.state;
    this.hand(name, value);
    if (name === 'mask' || name === 'maskText') {
      this.clearRefusal();
      this.nameAll();
      this.write('');
    } else if (name === 'comboItens') {
      if (this.maskValue === kinds.gbListaNoCombo!.number) this.hand('mask', this.maskValue);
    } else if (kept !== '' && view.page.look(view.number) === '') {
      this.restore(kept);
    }
  }

  private hand(name: PropertyName, value: Value, held?: Held): void {
    const view = this.view!;
    if (name === 'mask') value = this.shownMask;
    if (name === 'appearance') this.frame.classList.toggle('deep', value === 1);
    if (name === 'enabled') this.frame.classList.toggle('off', value === false);
    const text = Array.isArray(value) ? value.join('\0') : typeof value === 'string' ? value : '';
    view.page.send(view.number, Event.set, Property[name], Number(value) || 0, 0, held, text);
  }

  get comboListCount(): number {
    return this.view?.listCount ?? 0;
  }

  get comboListIndex(): number {
    return Number(this.read('comboListIndex') ?? -1);
  }
  set comboListIndex(index: number) {
    const { view } = this;
    if (view) view.page.send(view.number, Event.set, Property.comboListIndex, index);
    this.settle();
  }

  // --- What a person does -------------------------------------------------------------------------------------------

  edited(): void {
    this.dirty = true;
    this.clearRefusal();
    this.submitNow();
  }

  changed(): void {
    this.edited();
    this.dispatchEvent(new InputEvent('input', { bubbles: true, composed: true }));
  }

  // A program has written a value while the focus is elsewhere.
  written(text: string): void {
    this.write(text);
    this.tellChange();
  }

  private tellChange(): void {
    this.dispatchEvent(new globalThis.Event('change', { bubbles: true }));
  }

  entered(): void {
    if (this.trataEnterComoTab) return;
    if (this.check()) this.form?.requestSubmit();
  }

  override focus(options?: FocusOptions): void {
    if (!this.view) return this.plain?.focus(options) ?? super.focus(options);
    this.view.page.send(this.view.number, Event.focus, surfacePlace);
  }

  // Hears from now on what happens in the entries.
  private listen(view: FieldView): void {
    if (this.typing) return;
    this.root.removeEventListener('input', this.firstInput);
    this.typing = new Typing(view, this, this.root);
    this.messages.prepare();
    this.nameEntries();
  }

  // A program may write into an entry that never had the focus.
  private readonly firstInput = (event: globalThis.Event): void => {
    if (!this.view) return;
    this.listen(this.view);
    this.typing!.handleEvent(event);
  };

  private focusIn(event: FocusEvent): void {
    const { view } = this;
    if (!view) return;
    this.listen(view);
    const place = view.placeOf(event.target);
    if (!this.contains(event.relatedTarget as Node | null) && event.relatedTarget !== this) {
      this.valueBefore = this.committed;
    }
    if (place >= 0) view.page.send(view.number, Event.focus, place);
  }

  // To another element: that one's focusin tells. To none: nobody else will. A window that is left keeps its focus.
  private focusOut(event: FocusEvent): void {
    const { view } = this;
    if (!view || event.relatedTarget !== null || this.root.activeElement === event.target) return;
    if ((event.target as HTMLElement).hidden) return;
    setTimeout(() => {
      if (this.view === view && !this.matches(':focus-within') && this.ownerDocument.hasFocus()) view.page.leave(null);
    });
  }

  // --- What the field does ------------------------------------------------------------------------------------------

  showed(news: FieldNews): void {
    if (news.value === undefined) return;
    // Nothing of a value is no value: a bare "/" or "#" is not submitted.
    const nothing = news.value !== '' && this.view?.page.look(news.field) === '';
    this.committed = nothing ? '' : news.value;
  }

  // The field has been left and has had its say.
  left(): void {
    if (this.dirty && this.messages.refusal === '') {
      // Leaving completes what the boxes show, 5/3/24 to 05/03/2024; the value is that of a look after it.
      const { view } = this;
      view?.page.send(view.number, Event.check);
      this.settle();
    }
    if (this.committed !== this.valueBefore) {
      this.valueBefore = this.committed;
      this.tellChange();
    }
  }

  message(text: string, title: string | null, flags: number): number {
    const answer = this.messages.message(text, title, flags);
    this.nameEntries();
    this.validate();
    return answer;
  }

  keyUp(code: number, shift: number): [number, number] {
    const detail: KeyUp = { keyCode: code, shift };
    this.dispatchEvent(new CustomEvent('gabarito-keyup', { detail, bubbles: true, composed: true }));
    return [detail.keyCode, detail.shift];
  }

  beep(): void {
    this.dispatchEvent(new CustomEvent('gabarito-beep', { bubbles: true, composed: true }));
  }

  // --- Names --------------------------------------------------------------------------------------------------------

  dress(input: HTMLInputElement, place: number): void {
    nameEntry(input, place, this);
    if (this.messages.refusal) input.setAttribute('aria-invalid', 'true');
  }

  private nameAll(labels = labelsOf([this])): void {
    this.label = labelledBy(this) || this.getAttribute('aria-label') || labels.get(this) || this.mask;
    if (this.plain) nameEntry(this.plain, -1, this);
    this.nameEntries();
    this.internals.ariaLabel = this.label;
  }

  private nameEntries(): void {
    this.view?.inputs.forEach((input, place) => input && nameEntry(input, place, this));
  }
}
