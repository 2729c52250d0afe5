// What any form control has: its form, its name, and what a form may ask of it.

// On a server there are no elements: the class is there, and nobody makes one.
const Base = (globalThis.HTMLElement ?? class {}) as typeof HTMLElement;

export class FormControl extends Base {
  static readonly formAssociated = true;
  protected readonly internals = this.attachInternals();

  get form(): HTMLFormElement | null {
    return this.internals.form;
  }
  get type(): string {
    return this.localName;
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
}
