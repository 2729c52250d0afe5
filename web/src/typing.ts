// What a person does in the entries of a field: keys, text without keys, input methods, the clipboard. Each event
// asks the model before the entry acts; what the entry then does by itself stays its own, with its undo.

import { Event, Verdict, comboPlace, maskedPlace, type Answer, type Held } from './bridge.js';
import { strokeOf, type Stroke } from './keys.js';
import type { FieldView } from './view.js';

const inserting = new Set([
  'insertText',
  'insertReplacementText',
  'insertFromDrop',
  'insertFromPaste',
  'insertFromYank',
  'insertTranspose',
]);
const heard = ['keydown', 'keyup', 'beforeinput', 'input', 'paste', 'cut', 'copy', 'compositionstart', 'compositionend'];
const backspace = 8;
const enter = 13;
const del = 46;

export interface Hearer {
  readonly readOnly: boolean;
  // A person has changed what an entry shows, which the browser tells the page.
  edited(): void;
  // The same where the field has made the change, of which the browser knows nothing.
  changed(): void;
  // Enter, with no list to close.
  entered(): void;
  // A program has put a value for the whole field into an entry that has not the focus.
  written(text: string): void;
}

export class Typing {
  private judged = ''; // the character that the next insertion may bring, since its key has been asked for
  private erasing = false; // the same for Backspace
  private own = false; // the edit in progress is ours
  private down = -1; // the entry in which the key went down
  private waiting = false; // keys of the field wait until the entry has acted
  private pasteKey = false;
  private composing: Held | undefined; // what the entry held before an input method began
  private composed = 0; // how much of its text has been taken already

  constructor(
    private readonly view: FieldView,
    private readonly hearer: Hearer,
    private readonly root: ShadowRoot,
  ) {
    for (const type of heard) root.addEventListener(type, this);
  }

  stop(): void {
    for (const type of heard) this.root.removeEventListener(type, this);
  }

  handleEvent(event: globalThis.Event): void {
    const place = this.view.placeOf(event.target);
    if (place < 0 || this.hearer.readOnly) return;
    switch (event.type) {
      case 'keydown':
        return this.keyDown(event as KeyboardEvent, place);
      case 'keyup':
        return this.keyUp(event as KeyboardEvent, place);
      case 'beforeinput':
        return this.beforeInput(event as InputEvent, place);
      case 'input':
        return this.input(event as InputEvent, place);
      case 'compositionstart':
        this.composing = this.view.held(place);
        this.composed = 0;
        return;
      case 'compositionend':
        return this.compositionEnd(event as CompositionEvent);
      case 'paste':
        return this.paste(event as ClipboardEvent, place);
      default:
        return this.cutOrCopy(event as ClipboardEvent, place);
    }
  }

  private send(event: number, place: number, a = 0, b = 0, c = 0, data = '', held = this.view.held(place)): Answer {
    const before = this.view.rewrites;
    const answer = this.view.page.send(this.view.number, event, a, b, c, held, data, (told) => this.edit(told, place));
    if (this.view.rewrites !== before) this.hearer.changed();
    return answer;
  }

  private edit(answer: Answer, place: number): void {
    this.waiting = answer.waiting;
    if (answer.verdict !== Verdict.edit) return;
    this.own = true;
    try {
      this.view.edit(place, answer.edit!);
    } finally {
      this.own = false;
    }
    this.hearer.edited();
  }

  // --- Keys -----------------------------------------------------------------------------------------------------------

  private keyDown(event: KeyboardEvent, place: number): void {
    this.judged = '';
    this.erasing = false;
    this.pasteKey = false;
    const stroke = strokeOf(event);
    if (!stroke) return;
    this.down = place;
    const control = (stroke.shift & 6) === 2;
    const letter = control ? event.key.toLowerCase() : '';
    if (letter === 'v') {
      this.pasteKey = true; // judged when the clipboard can be read
      return;
    }
    if (place === maskedPlace && (letter === 'c' || letter === 'x')) return;
    const listed = this.view.listIsOpen;
    const answer = this.send(Event.keyDown, place, stroke.code, stroke.shift, stroke.character);
    if (stroke.code === enter && stroke.shift === 0 && !listed) this.hearer.entered();
    this.obey(event, stroke, control && letter !== 'x' && letter !== 'c', answer);
  }

  // Shortcuts of the browser stay the browser's.
  private obey(event: KeyboardEvent, stroke: Stroke, shortcut: boolean, answer: Answer): void {
    if (answer.verdict === Verdict.native) {
      if (stroke.code === backspace) this.erasing = true;
      if (stroke.character !== 0) this.judged = event.key;
    } else if (!shortcut) {
      event.preventDefault();
    }
  }

  private keyUp(event: KeyboardEvent, place: number): void {
    const stroke = strokeOf(event);
    const same = this.down === place;
    this.down = -1;
    if (stroke && same && place === comboPlace) {
      this.send(Event.keyUp, place, stroke.code, stroke.shift, stroke.character);
    } else if (this.waiting) {
      this.send(Event.input, place);
    }
  }

  // --- Text -----------------------------------------------------------------------------------------------------------

  private beforeInput(event: InputEvent, place: number): void {
    if (this.own || event.isComposing || event.inputType === 'insertCompositionText') return;
    const { inputType } = event;
    if (inputType === 'insertText' && this.judged !== '' && event.data === this.judged) {
      this.judged = '';
      return;
    }
    if (inserting.has(inputType)) {
      const data = event.data ?? event.dataTransfer?.getData('text/plain') ?? '';
      event.preventDefault();
      this.arrive(place, data);
    } else if (inputType === 'deleteContentBackward' && !this.erasing) {
      // A keyboard that sends no key codes.
      const answer = this.send(Event.keyDown, place, backspace);
      if (answer.verdict !== Verdict.native) event.preventDefault();
    } else if (place === maskedPlace) {
      // Only its engine changes the masked box.
      event.preventDefault();
      if (inputType === 'deleteContentForward') this.send(Event.keyDown, place, del);
    }
    this.erasing = false;
  }

  private arrive(place: number, text: string, held = this.view.held(place)): void {
    this.send(Event.insert, place, 0, 0, 0, text, held);
  }

  private input(event: InputEvent, place: number): void {
    if (this.own) return;
    if (event.isComposing || event.inputType === 'insertCompositionText') return this.composingInput(event, place);
    if (!event.inputType || event.inputType === 'insertReplacementText') return this.writtenAtOnce(place);
    this.judged = '';
    if (this.waiting && place !== comboPlace) this.send(Event.input, place);
    else this.view.noteStale(place);
    this.hearer.edited();
  }

  // A password manager or the browser's memory has put a whole value in.
  private writtenAtOnce(place: number): void {
    const known = this.view.knownText(place);
    const text = this.view.textOf(place);
    if (text === known) return this.hearer.edited();
    if (!this.view.hasEntryFocused(place)) {
      if (this.view.isForAll(place, text)) return this.hearer.written(text);
      this.view.noteStale(place);
      return this.hearer.edited();
    }
    this.arrive(place, text, { child: place, text: known, start: 0, length: known.length });
    this.view.showAgain(place);
    this.hearer.edited();
  }

  // --- Input methods --------------------------------------------------------------------------------------------------

  // Digits are taken as they come, since phones compose where other keyboards type and a full box moves on; all other
  // text when the person has settled on it.
  private composingInput(event: InputEvent, place: number): void {
    const data = event.data ?? '';
    if (!this.composing || !/^\d+$/.test(data.slice(this.composed))) return;
    this.takeComposed(place, data);
  }

  private compositionEnd(event: CompositionEvent): void {
    const held = this.composing;
    if (held) this.takeComposed(held.child, event.data);
    this.composing = undefined;
  }

  private takeComposed(place: number, data: string): void {
    const text = data.slice(this.composed);
    const held = this.composing!;
    this.composed = data.length;
    if (text === '') return this.hearer.edited();
    const answer = this.view.page.send(this.view.number, Event.insert, 0, 0, 0, held, text);
    const caret = answer.edit ? answer.edit.caret : held.start;
    // What the model made of it; the same as what the entry shows unless something was refused.
    this.view.showAgain(place);
    this.composing = { child: place, text: this.view.knownText(place), start: caret, length: 0 };
    this.hearer.edited();
  }

  // --- Clipboard ------------------------------------------------------------------------------------------------------

  private paste(event: ClipboardEvent, place: number): void {
    event.preventDefault();
    const text = event.clipboardData?.getData('text/plain') ?? '';
    if (this.pasteKey) this.send(Event.paste, place, 0, 0, 0, text);
    else this.arrive(place, text);
    this.pasteKey = false;
  }

  // The masked box shows other signs than it holds.
  private cutOrCopy(event: ClipboardEvent, place: number): void {
    if (place !== maskedPlace) return;
    const held = this.view.held(place);
    event.preventDefault();
    event.clipboardData?.setData('text/plain', held.text.slice(held.start, held.start + held.length));
    if (event.type === 'cut') this.send(Event.cut, place);
  }
}
