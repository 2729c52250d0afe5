// The value of the field as a form has it: what a program writes, what a person has entered, what is wrong with it.

import { Event } from './bridge.js';
import type { Messages } from './messages.js';
import { Property, type PropertyName } from './properties.js';
import { FieldSettings } from './settings.js';
import type { FieldView } from './view.js';

// In front of what a person has typed, box by box, where else a value stands.
export const asTyped = '\0';

export abstract class FieldValue extends FieldSettings {
  protected abstract readonly messages: Messages;
  protected view: FieldView | undefined;
  protected plain: HTMLInputElement | undefined; // until the module is there, and when it cannot be had
  protected committed = ''; // the value as the last check left it
  protected wanted = ''; // what was written last, for a list that comes later
  protected pending: string | undefined; // a value for a field that is not there yet
  protected dirty = false; // a person has changed something since
  private fault = ''; // what is wrong with the value, as the form knows it
  private joined: HTMLFormElement | null = null;

  protected read(name: PropertyName): string | undefined {
    const { view } = this;
    return view?.page.send(view.number, Event.get, Property[name]).result;
  }

  // The value as a form submits it: as the last check left it or, while a person is at work on it, what the check would
  // make of it, and where it would refuse what is shown.
  // Reading it checks nothing.
  get value(): string {
    if (!this.view) {
      return this.plain?.value ?? (this.pending?.startsWith(asTyped) ? this.wanted : (this.pending ?? ''));
    }
    return this.dirty ? this.view.shownValue() : this.committed;
  }
  set value(text: string) {
    this.dirty = false;
    this.clearRefusal();
    const value = text == null ? '' : String(text);
    if (this.view) this.write(value);
    else {
      this.pending = value;
      if (this.plain) this.plain.value = value;
      this.submitNow();
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
    const before = this.messages.refusals;
    this.read('text');
    this.settle();
    return this.messages.refusals === before;
  }

  apagaCampos(): void {
    if (this.view) this.view.page.send(this.view.number, Event.clear);
    this.settle();
  }

  protected write(text: string): void {
    const { view } = this;
    if (!view) return;
    this.wanted = text;
    view.page.send(view.number, Event.write, 0, 0, 0, undefined, text);
    this.settle();
  }

  // What a person has typed goes in unchecked.
  protected writeTyped(text: string, focused = false): void {
    const view = this.view!;
    this.dirty = true;
    if (text.startsWith(asTyped)) view.retype(text.slice(1));
    else view.enter(text, focused);
    this.submitNow();
  }

  protected restore(state: string): void {
    if (state.startsWith(asTyped)) this.writeTyped(state);
    else this.write(state);
  }

  // What brings this content back, typed or checked.
  protected get state(): string {
    return this.dirty && this.view ? asTyped + this.view.typed() : this.value;
  }

  protected submitNow(): void {
    const { value } = this;
    if (this.dirty) this.wanted = value;
    this.internals.setFormValue(value, this.state);
    this.validate(value);
  }

  protected settle(): void {
    this.dirty = false;
    this.submitNow();
  }

  // `value` where it is known already: looking it up is dear.
  protected validate(value?: string): void {
    const { refusal } = this.messages;
    const fault = refusal || (this.required && (value ?? this.value) === '' ? 'Preencha este campo.' : '');
    if (fault === '' && this.fault === '') return;
    this.fault = fault;
    const anchor = this.view?.first ?? this.plain;
    this.internals.setValidity(refusal ? { customError: true } : fault ? { valueMissing: true } : {}, fault, anchor);
    this.toggleAttribute('data-refused', refusal !== '');
    for (const input of this.view?.inputs ?? []) {
      if (refusal) input?.setAttribute('aria-invalid', 'true');
      else input?.removeAttribute('aria-invalid');
    }
  }

  protected clearRefusal(): void {
    if (this.messages.refusal === '') return;
    this.messages.refusal = '';
    this.messages.tell('');
    this.validate();
  }

  // --- The form ---------------------------------------------------------------------------------------------------------

  formAssociatedCallback(form: HTMLFormElement | null): void {
    this.joined?.removeEventListener('submit', this.beforeSubmit, true);
    this.joined = form;
    form?.addEventListener('submit', this.beforeSubmit, true);
  }
  formDisabledCallback(disabled: boolean): void {
    if (this.view) this.set('enabled', !disabled);
    if (this.plain) this.plain.disabled = disabled;
  }
  formResetCallback(): void {
    this.value = this.getAttribute('value') ?? '';
  }
  formStateRestoreCallback(state: string | File | FormData | null): void {
    if (typeof state !== 'string') return;
    if (this.view) return this.restore(state);
    this.value = this.wanted = state.replaceAll(asTyped, '');
    this.pending = state;
  }

  // What is still being typed is checked before it goes.
  private readonly beforeSubmit = (event: globalThis.Event): void => {
    if (this.form !== event.target || !this.dirty || this.check()) return;
    event.preventDefault();
    event.stopImmediatePropagation();
  };
}
