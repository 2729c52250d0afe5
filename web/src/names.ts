// What those are told who do not see a field: names and states of its boxes; and what a phone's keyboard and the
// browser's memory are to offer.

import { comboPlace } from './bridge.js';
import type { Kind } from './kinds.js';

export interface Named extends HTMLElement {
  readonly root: ShadowRoot;
  readonly kind: Kind;
  readonly label: string;
  readonly readOnly: boolean;
  readonly required: boolean;
  readonly trataEnterComoTab: boolean;
}

// The texts of the labels of these fields. One field's own list of labels is looked for in the whole page each time;
// so the page is gone through once for all of them.
export function labelsOf(fields: readonly Element[]): Map<Element | null, string> {
  const texts = new Map<Element | null, string>();
  for (const root of new Set(fields.map((field) => field.getRootNode() as ParentNode & Node))) {
    for (const label of root.querySelectorAll('label')) {
      const before = texts.get(label.control);
      const text = label.textContent?.trim() ?? '';
      texts.set(label.control, before ? `${before} ${text}` : text);
    }
  }
  return texts;
}

export function labelledBy(field: Element): string {
  const root = field.getRootNode() as Document;
  const ids = field.getAttribute('aria-labelledby')?.split(/\s+/) ?? [];
  return ids.map((id) => root.getElementById?.(id)?.textContent?.trim() ?? '').join(' ').trim();
}

function put(input: HTMLInputElement, name: string, value: string | null): void {
  if (input.getAttribute(name) === value) return;
  if (value === null) input.removeAttribute(name);
  else input.setAttribute(name, value);
}

// `place` is -1 for an entry that stands for the whole field.
export function nameEntry(input: HTMLInputElement, place: number, field: Named): void {
  const { kind } = field;
  const box = kind.boxes?.[place === comboPlace ? 1 : place > comboPlace ? place - comboPlace - 1 : place];
  put(input, 'aria-label', box ?? field.label);
  put(input, 'inputmode', kind.inputMode ?? null);
  put(input, 'autocomplete', field.getAttribute('autocomplete') ?? kind.autocomplete ?? 'off');
  put(input, 'spellcheck', String(kind.prose ?? false));
  put(input, 'autocapitalize', 'off');
  put(input, 'enterkeyhint', field.trataEnterComoTab ? 'next' : 'done');
  put(input, 'readonly', field.readOnly ? '' : null);
  put(input, 'placeholder', kind.boxes ? null : field.getAttribute('placeholder'));
  put(input, 'aria-required', field.required ? 'true' : null);
  put(input, 'aria-describedby', field.root.getElementById('message') ? 'message' : null);
}
