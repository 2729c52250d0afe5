// What the field says: asked of the page first, then shown under the field or in the browser's own boxes.

// What the page decides about a message before it is shown. `answer` is 6 Yes or 7 No to a question, else 1.
export interface Refusal {
  title: string | null;
  text: string;
  question: boolean;
  answer: number;
}

const question = 292;
const critical = 16;
const ok = 1;
const yes = 6;
const no = 7;

export class Messages {
  refusal = ''; // the text of the last refusal, as long as it stands
  refusals = 0; // how many there have been
  private note: HTMLElement | undefined;

  constructor(
    private readonly field: HTMLElement,
    private readonly root: ShadowRoot,
    private readonly boxed: () => void,
  ) {}

  // The place under the field. Assistive technology listens to it only when it was there before its text.
  prepare(): HTMLElement {
    if (!this.note) {
      this.note = this.root.ownerDocument.createElement('div');
      this.note.id = this.note.className = 'message';
      this.note.setAttribute('part', 'message');
      this.note.setAttribute('role', 'status');
      this.root.append(this.note);
    }
    return this.note;
  }

  tell(text: string, refused = false): void {
    if (text === '' && !this.note) return;
    const note = this.prepare();
    note.classList.toggle('note', !refused);
    note.textContent = text;
  }

  // A message of the field. Returns the button: 1 OK, 6 Yes, 7 No.
  message(text: string, title: string | null, flags: number): number {
    const asks = flags === question;
    const detail: Refusal = { title, text, question: asks, answer: asks ? no : ok };
    const event = new CustomEvent('gabarito-refused', { detail, bubbles: true, composed: true, cancelable: true });
    const shown = this.field.dispatchEvent(event);
    if (flags === critical) {
      this.refusals++;
      this.refusal = text;
    }
    if (!shown) return detail.answer;
    const view = this.field.ownerDocument.defaultView;
    let answer = ok;
    if (asks) answer = view?.confirm(text) ? yes : no;
    else if (this.field.getAttribute('messages') === 'modal') view?.alert(text);
    else {
      this.tell(text, true);
      return ok;
    }
    this.boxed();
    return answer;
  }
}
