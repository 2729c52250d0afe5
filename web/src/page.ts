// The page's side of the module: hands calls in, answers out to the fields that they are about, and keeps the one
// logical focus and the browser's in step.

import { Bridge, Event, untold, type Answer, type FieldNews, type Held } from './bridge.js';
import { Module, type Calls, type Source } from './module.js';
import { nextTabStop } from './tab_order.js';

// A field as the page needs it.
export interface View {
  readonly number: number;
  readonly host: HTMLElement;
  apply(news: FieldNews): void;
  // What the entry holds that the model does not know yet; undefined when there is no such.
  takeStale(): Held | undefined;
  focusEntry(place: number): void;
  hasEntryFocused(place: number): boolean;
  // The focus has gone to something else, and the field has had its say.
  left(): void;
  message(text: string, title: string | null, flags: number): number;
  keyUp(code: number, shift: number): [number, number];
  beep(): void;
}

// What the field raises: a run-time error with its number.
export class FieldError extends Error {
  override readonly name = 'FieldError';
  constructor(
    readonly number: number,
    message: string,
  ) {
    super(message);
  }
}

export class Page implements Calls {
  private readonly views = new Map<number, View>();
  private readonly hosts = new WeakSet<EventTarget>();
  private bridge!: Bridge;
  private answer: Answer | undefined; // not applied yet
  private depth = 0; // of calls inside calls: the browser's focus is set when the outermost is over
  private focused = 0; // the field with the logical focus
  private deaf = false; // to what the browser tells of the focus
  private last = 0;
  private municipios: Promise<boolean> | undefined;
  hasMunicipios = false;
  tabsRound = false; // from the last tab stop of the page to the first
  // A test names elements that are to be told apart.
  readonly places = new Map<number, HTMLElement>();

  constructor(private readonly tableAddress: () => URL) {}

  async load(source: Source | Promise<Source>): Promise<this> {
    this.bridge = new Bridge(await Module.load(source, this));
    return this;
  }

  // Once a document: tells the fields when the focus goes to something else on the page.
  private readonly watched = new WeakSet<Document>();
  watch(document: Document): void {
    if (this.watched.has(document)) return;
    this.watched.add(document);
    document.addEventListener('focusin', (event) => this.focusIn(event), true);
  }

  get module(): Module {
    return this.bridge.module;
  }

  // A number for a new field; its view hears of it from then on.
  add(view: (number: number) => View): View {
    const made = view(++this.last);
    this.views.set(made.number, made);
    this.hosts.add(made.host);
    this.watch(made.host.ownerDocument);
    return made;
  }

  // What its entries hold is of no interest any more.
  forget(view: View): void {
    this.staleViews.delete(view);
  }

  remove(view: View): void {
    this.forget(view);
    this.views.delete(view.number);
    this.hosts.delete(view.host);
    this.send(view.number, Event.end);
  }

  // Carries an event in and applies the answer; `before` sees it first, and what the page does in there, told of the
  // edit, comes after the answer. What the field raises is thrown.
  send(field: number, event: number, a = 0, b = 0, c = 0, held?: Held, data = '', before?: (answer: Answer) => void): Answer {
    this.applyAnswer();
    this.handOverStale(field, held);
    this.depth++;
    let answer: Answer;
    try {
      answer = this.bridge.call(field, event, a, b, c, held, data);
    } finally {
      this.depth--;
    }
    this.answer = answer;
    before?.(answer);
    this.applyAnswer();
    if (answer.error !== 0) throw new FieldError(answer.error, answer.result);
    return answer;
  }

  // Looks at a field: '' when its boxes show nothing of a value, else "=" and the value that it would hand in now, ''
  // where it would refuse. Nothing on the page changes.
  look(field: number): string {
    this.handOverStale(field, undefined);
    const { error, result } = this.bridge.call(field, Event.look, 0, 0, 0, untold);
    return error === 0 ? result : '=';
  }

  private applyAnswer(): void {
    const { answer } = this;
    this.answer = undefined;
    if (answer) this.apply(answer);
  }

  apply(answer: Answer): void {
    for (const news of answer.fields) this.views.get(news.field)?.apply(news);
    if (this.depth !== 0) return;
    this.applyFocus(answer.focusField, answer.focusChild);
    if (this.focused === answer.focusField) return;
    const former = this.views.get(this.focused);
    this.focused = answer.focusField;
    former?.left();
  }

  entry(field: number, index: number): string {
    return this.bridge.entry(field, index);
  }

  private handOverStale(field: number, held: Held | undefined): void {
    for (const view of this.staleViews) {
      const stale = view.takeStale();
      if (stale && !(view.number === field && held?.child === stale.child)) {
        this.bridge.call(view.number, Event.sync, 0, 0, 0, stale);
      }
    }
    this.staleViews.clear();
  }

  private readonly staleViews = new Set<View>();

  noteStale(view: View): void {
    this.staleViews.add(view);
  }

  // --- Focus --------------------------------------------------------------------------------------------------------

  private applyFocus(field: number, child: number): void {
    const view = this.views.get(field);
    if (view && child >= 0) {
      if (!view.hasEntryFocused(child)) view.focusEntry(child);
      return;
    }
    if (field === 0 && child > 0) this.places.get(child)?.focus();
  }

  private focusedPlace(): HTMLElement | undefined {
    return [...this.places.values()].find((element) => element === element.ownerDocument.activeElement);
  }

  // The number of an element that is no field.
  placeOf(target: EventTarget | null): number {
    for (const [number, element] of this.places) if (element === target) return number;
    return 0;
  }

  // A box of the browser's has gone. Firefox gives the focus back to what had it before, whatever the field has made of
  // the message.
  boxed(): void {
    this.deaf = true;
    setTimeout(() => {
      this.deaf = false;
      this.send(0, Event.sync);
    });
  }

  private focusIn(event: FocusEvent): void {
    const path = event.composedPath();
    // Inside a field: that field tells it.
    if (this.deaf || path.some((step) => this.hosts.has(step))) return;
    this.leave(path[0] ?? event.target);
  }

  leave(target: EventTarget | null): void {
    this.send(0, Event.leave, this.placeOf(target));
  }

  // --- Calls of the module ------------------------------------------------------------------------------------------

  message(field: number, text: string, title: string | null, flags: number): number {
    return this.views.get(field)?.message(text, title, flags) ?? 1;
  }

  keyUp(field: number, code: number, shift: number): [number, number] {
    return this.views.get(field)?.keyUp(code, shift) ?? [code, shift];
  }

  beep(field: number): void {
    this.views.get(field)?.beep();
  }

  tab(field: number, backwards: boolean): void {
    const from = this.views.get(field)?.host ?? this.focusedPlace();
    if (from) nextTabStop(from, backwards, this.tabsRound)?.focus();
  }

  // --- The municipalities -------------------------------------------------------------------------------------------

  // Fetches the table once; false without a network, and then the next field tries again.
  wantMunicipios(): Promise<boolean> {
    this.municipios ??= this.fetchMunicipios().catch(() => {
      this.municipios = undefined;
      return false;
    });
    return this.municipios;
  }

  private async fetchMunicipios(): Promise<boolean> {
    const response = await fetch(this.tableAddress());
    if (!response.ok) throw new Error(String(response.status));
    this.send(0, Event.municipios, 0, 0, 0, undefined, await response.text());
    this.hasMunicipios = true;
    return true;
  }
}
