// What a field shows: its entries, separators and list as elements of the page, brought up to date with the models
// after each event. An entry is made when its child first shows.

import { Change, Event, comboPlace, entries, maskedPlace, surfacePlace } from './bridge.js';
import type { ChildNews, Edit, FieldNews, Held } from './bridge.js';
import { ListPopup } from './list.js';
import type { Page, View } from './page.js';
import { margin, twipsAnEm } from './sizes.js';

const systemColor = 0x80000000;
// Stands for an empty place of the masked box, whose own sign would be read aloud: a blank as wide as a digit.
const blank = '\u2007';
const prompt = /_/g;
const blanks = /\u2007/g;
const shownIn = (place: number, text: string): string => (place === maskedPlace ? text.replace(prompt, blank) : text);

export interface Owner {
  readonly host: HTMLElement;
  readonly root: ShadowRoot;
  readonly frame: HTMLElement;
  // An entry has been made: names, keyboard hints and what else the kind asks for.
  dress(input: HTMLInputElement, place: number): void;
  showed(news: FieldNews): void;
  // A person has made the field change what it shows.
  changed(): void;
  left(): void;
  message(text: string, title: string | null, flags: number): number;
  keyUp(code: number, shift: number): [number, number];
  beep(): void;
}

export class FieldView implements View {
  readonly host: HTMLElement;
  readonly inputs: (HTMLInputElement | undefined)[] = [];
  private readonly labels: (HTMLElement | undefined)[] = [];
  private readonly children: (ChildNews | undefined)[] = [];
  private list: ListPopup | undefined;
  private open: HTMLButtonElement | undefined;
  private template: HTMLElement | undefined;
  private readonly known: string[] = [];
  private stale = -1;
  width = 0; // twips
  rewrites = 0; // how often the models have changed what an entry shows

  constructor(
    readonly page: Page,
    readonly number: number,
    private readonly owner: Owner,
  ) {
    this.host = owner.host;
  }

  // --- From the page to the model -------------------------------------------------------------------------------------

  placeOf(input: EventTarget | null): number {
    return input === null ? -1 : this.inputs.indexOf(input as HTMLInputElement);
  }

  held(place: number): Held {
    const input = this.inputs[place]!;
    const start = input.selectionStart ?? 0;
    const text = this.textOf(place);
    this.known[place] = text;
    if (this.stale === place) this.stale = -1;
    return { child: place, text, start, length: (input.selectionEnd ?? start) - start };
  }

  get first(): HTMLInputElement | undefined {
    return this.inputs.find((input) => input && !input.hidden);
  }

  // The text of an entry as the model last knew it.
  knownText(place: number): string {
    return this.known[place] ?? '';
  }

  // Shows that again in an entry which has come to show something else.
  showAgain(place: number): void {
    const child = this.children[place];
    const input = this.inputs[place];
    if (!child || !input || this.textOf(place) === this.knownText(place)) return;
    input.value = shownIn(place, this.knownText(place));
    this.select(input, child.start, child.length);
  }

  textOf(place: number): string {
    const value = this.inputs[place]?.value ?? '';
    return place === maskedPlace ? value.replace(blanks, '_') : value;
  }

  // The entry holds what the model does not know yet; it is handed over with the next call.
  noteStale(place: number): void {
    this.stale = place;
    this.page.noteStale(this);
  }

  takeStale(): Held | undefined {
    if (this.stale < 0) return undefined;
    const held = this.held(this.stale);
    this.stale = -1;
    return held;
  }

  // What the field would hand in now; where it would be refused, all that is shown as one text.
  shownValue(): string {
    const seen = this.page.look(this.number);
    if (seen.length !== 1) return seen.slice(1);
    const shown = this.children.filter((child) => child?.visible) as ChildNews[];
    const texts = shown.sort((a, b) => a.left - b.left).map(({ place, text }) =>
      place < entries ? this.textOf(place) : text,
    );
    return texts.join('');
  }

  // What a person has entered, box by box, and the way back.
  typed(): string {
    return Array.from(this.inputs, (input, place) => (input && !input.hidden ? this.textOf(place) : '')).join('\0');
  }

  retype(typed: string): void {
    typed.split('\0').forEach((text, place) => {
      const input = this.inputs[place];
      if (!input || input.hidden || text === this.textOf(place)) return;
      this.known[place] = text;
      input.value = shownIn(place, text);
      this.page.send(this.number, Event.sync, 0, 0, 0, { child: place, text, start: text.length, length: 0 });
    });
  }

  // What a person typed before the field was there: as if it had been, and as it stands where the field does not take it.
  enter(text: string, focused: boolean): void {
    const { page, number } = this;
    const place = this.placeOf(this.first ?? null);
    const listed = place === comboPlace;
    const takes = (event: Event, held?: Held) => {
      page.send(number, event, 1, 0, 0, held, text);
      return page.look(number) !== '';
    };
    if ((listed || !focused) && takes(Event.write)) return;
    if (listed) {
      // The list refuses accents; without them the letters under them are typed.
      const typed = text.normalize('NFD').replace(/[^ -~]/g, '');
      for (const c of typed) page.send(number, Event.keyDown, 0, 0, c.charCodeAt(0), this.held(place));
      if (!focused) page.send(number, Event.dropDown);
      if (this.textOf(place).toLowerCase().startsWith(typed.toLowerCase())) return;
    } else if (focused && (takes(Event.insert, this.held(place)) || takes(Event.write))) return;
    this.retype('\0'.repeat(place) + text);
  }

  // A new field in the place of the old one.
  reset(): void {
    for (const element of [...this.inputs, ...this.labels, this.open, this.template]) element?.remove();
    this.list?.element.remove();
    this.inputs.length = this.labels.length = this.children.length = this.known.length = 0;
    this.list = this.open = this.template = undefined;
    this.stale = -1;
  }

  // --- From the model to the page -------------------------------------------------------------------------------------

  apply(news: FieldNews): void {
    for (const child of news.children) {
      const before = this.children[child.place];
      if (child.text !== undefined) this.known[child.place] = child.text;
      else if (before?.text !== undefined) child.text = before.text;
      this.children[child.place] = child;
      if (child.place >= entries) this.showLabel(child);
      else if (child.visible || this.inputs[child.place]) this.showEntry(child);
    }
    this.owner.showed(news);
  }

  private showLabel(child: ChildNews): void {
    const at = child.place - entries;
    let label = this.labels[at];
    if (!label) {
      if (!child.visible) return;
      label = this.make('span', 'separator');
      label.setAttribute('aria-hidden', 'true');
      this.labels[at] = label;
      this.owner.frame.append(label);
    }
    label.hidden = !child.visible;
    label.textContent = child.text ?? '';
    this.place(label, child);
  }

  private showEntry(child: ChildNews): void {
    const input = this.inputs[child.place] ?? this.makeEntry(child);
    if (input.hidden === child.visible) {
      input.hidden = !child.visible;
      if (child.place === comboPlace && this.open) this.open.hidden = input.hidden;
      if (child.place === maskedPlace && this.template) this.template.hidden = input.hidden;
    }
    if (input.disabled === child.enabled) input.disabled = !child.enabled;
    if (child.changes & (Change.geometry | Change.visible)) this.place(input, child);
    if (child.changes & Change.color) this.color(input, child.color);
    if (child.changes & Change.text) this.setText(input, child);
    if (child.changes & (Change.text | Change.selection)) this.select(input, child.start, child.length);
    if (child.place === comboPlace) this.showList(child);
  }

  private setText(input: HTMLInputElement, child: ChildNews): void {
    const text = shownIn(child.place, child.text ?? '');
    if (input.value !== text) {
      input.value = text;
      this.rewrites++;
    }
    if (child.place === maskedPlace) {
      this.template ??= this.makeTemplate();
      // The signs of the empty places alone, each where it stands.
      this.template.textContent = (child.text ?? '').replace(/[^_]/g, ' ');
    }
  }

  private select(input: HTMLInputElement, start: number, length: number): void {
    if (input.selectionStart === start && input.selectionEnd === start + length) return;
    input.setSelectionRange(start, start + length);
  }

  private color(input: HTMLInputElement, color: number): void {
    const tinted = color < systemColor && color !== 0xffffff;
    if (tinted !== input.classList.contains('tinted')) input.classList.toggle('tinted');
    if (!tinted) return;
    input.style.setProperty('--_tint', `rgb(${color & 255} ${(color >> 8) & 255} ${(color >> 16) & 255})`);
  }

  private place(element: HTMLElement, child: ChildNews): void {
    const whole = child.left === 0 && child.width >= this.width - 1;
    const { classList } = element;
    // A box of its own is as wide as the frame by its class alone.
    if (!whole || !classList.contains('wide')) {
      element.style.left = whole ? '' : `${(child.left + margin) / twipsAnEm}em`;
      element.style.width = whole ? '' : `${child.width / twipsAnEm}em`;
      classList.toggle('short', !whole && child.width < 4 * twipsAnEm);
      classList.toggle('wide', whole);
    }
  }

  private make<Name extends keyof HTMLElementTagNameMap>(name: Name, part: string): HTMLElementTagNameMap[Name] {
    const element = this.owner.root.ownerDocument.createElement(name);
    element.className = part;
    element.setAttribute('part', part);
    return element;
  }

  private makeEntry(child: ChildNews): HTMLInputElement {
    const input = this.make('input', 'box');
    this.owner.dress(input, child.place);
    // In the order in which the Tab key visits them.
    const next = this.inputs.slice(child.place + 1).find((other) => other);
    this.owner.frame.insertBefore(input, next ?? null);
    this.inputs[child.place] = input;
    if (child.place === comboPlace) this.makeList(input);
    if (child.place === maskedPlace) input.classList.add('masked');
    child.changes = -1;
    return input;
  }

  private makeTemplate(): HTMLElement {
    const template = this.make('span', 'template');
    template.setAttribute('aria-hidden', 'true');
    this.owner.frame.append(template);
    return template;
  }

  // --- The list -------------------------------------------------------------------------------------------------------

  private makeList(input: HTMLInputElement): void {
    input.classList.add('listed');
    input.setAttribute('role', 'combobox');
    input.setAttribute('aria-autocomplete', 'both');
    this.list = new ListPopup(this.owner.root, this.owner.frame, {
      count: () => this.children[comboPlace]?.count ?? 0,
      entry: (index) => this.page.entry(this.number, index),
      pick: (index) => {
        if (input.disabled || input.readOnly) return;
        this.page.send(this.number, Event.pick, index, 0, 0, this.held(comboPlace));
        this.owner.changed();
      },
    });
    input.setAttribute('aria-controls', this.list.id);
    const open = this.make('button', 'open');
    open.type = 'button';
    open.tabIndex = -1;
    open.setAttribute('aria-hidden', 'true');
    // The focus goes to the entry, as in a box of one piece.
    open.addEventListener('mousedown', (event) => event.preventDefault());
    open.addEventListener('click', () => {
      if (input.disabled || input.readOnly) return;
      const shut = !this.list!.isOpen;
      input.focus();
      this.page.send(this.number, Event.dropDown, shut ? 1 : 0);
    });
    this.open = open;
    this.owner.frame.append(open);
  }

  private showList(child: ChildNews): void {
    const input = this.inputs[comboPlace]!;
    const list = this.list!;
    if (child.changes & Change.list) list.reset();
    list.name(input.getAttribute('aria-label') ?? '');
    const active = list.update(child.droppedDown && child.count > 0, child.selected);
    const shut = String(list.isOpen);
    if (input.getAttribute('aria-expanded') !== shut) {
      input.setAttribute('aria-expanded', shut);
      this.open!.setAttribute('aria-expanded', shut);
    }
    if (active) input.setAttribute('aria-activedescendant', active);
    else input.removeAttribute('aria-activedescendant');
    if (child.toolTip) input.title = child.toolTip;
    else input.removeAttribute('title');
  }

  get listIsOpen(): boolean {
    return this.list?.isOpen ?? false;
  }

  // Whether a text that is longer than the entry takes can only be meant for the whole field.
  isForAll(place: number, text: string): boolean {
    const limit = this.children[place]?.limit ?? 0;
    const shown = this.inputs.filter((input) => input && !input.hidden).length;
    return shown < 2 || (limit > 0 && text.length > limit);
  }

  get listCount(): number {
    return this.children[comboPlace]?.count ?? 0;
  }

  // --- Focus and edits ------------------------------------------------------------------------------------------------

  private elementAt(place: number): HTMLElement | undefined {
    return place === surfacePlace ? this.owner.frame : this.inputs[place];
  }

  hasEntryFocused(place: number): boolean {
    return this.owner.root.activeElement === (this.elementAt(place) ?? null);
  }

  focusEntry(place: number): void {
    const { frame } = this.owner;
    // The surface takes the focus only when it is given to it: a click on a label is for the first entry.
    if (place === surfacePlace) {
      frame.tabIndex = -1;
      frame.addEventListener('blur', () => frame.removeAttribute('tabindex'), { once: true });
    }
    this.elementAt(place)?.focus();
  }

  // Carries an edit out as a person's, so that one undo takes it back.
  edit(place: number, edit: Edit): void {
    const input = this.inputs[place]!;
    if (place === maskedPlace) return; // the engine has done it
    input.setSelectionRange(edit.start, edit.start + edit.removed);
    const { ownerDocument: document } = input;
    const done = edit.text === '' ? document.execCommand('delete') : document.execCommand('insertText', false, edit.text);
    if (!done) input.setRangeText(edit.text, edit.start, edit.start + edit.removed, 'end');
    input.setSelectionRange(edit.caret, edit.caret);
  }

  left(): void {
    this.owner.left();
  }

  message(text: string, title: string | null, flags: number): number {
    return this.owner.message(text, title, flags);
  }

  keyUp(code: number, shift: number): [number, number] {
    return this.owner.keyUp(code, shift);
  }

  beep(): void {
    this.owner.beep();
  }

  close(): void {
    this.list?.update(false, -1);
    this.page.remove(this);
  }
}
