// How wide the fields are, in twips of the design font: one observer for all. It tells what the page's own layout has
// come to, so that making fields asks for none.

export const twipsAnEm = 160; // of the design font, whose 8 points are one em here
export const margin = 60; // twips between the frame and what stands in it beside others

export interface Sized {
  readonly frame: HTMLElement;
  // A width that may be another than before.
  resize(width: number): void;
}

let observer: ResizeObserver | undefined;
const fields = new WeakMap<Element, Sized>();
let usual = 15 * twipsAnEm - 2 * margin;

// What a field has whose width is not known yet: fields of a page are often alike, and the observer corrects it.
export const usualWidth = () => usual;

// 0 when the field is not shown.
export function measure(frame: Element, pixels = frame.clientWidth): number {
  const size = parseFloat(getComputedStyle(frame).fontSize) || 16;
  const width = Math.max(Math.round((pixels / size) * twipsAnEm) - 2 * margin, 0);
  usual = width || usual;
  return width;
}

export function observeSize(field: Sized): void {
  // All are measured before the first of them changes the page.
  observer ??= new ResizeObserver((changes) => {
    const widths = changes.map(({ target, contentRect }) => measure(target, Math.round(contentRect.width)));
    changes.forEach(({ target }, i) => {
      if (widths[i]) fields.get(target)?.resize(widths[i]); // one that is not shown keeps what it has
    });
  });
  fields.set(field.frame, field);
  observer.observe(field.frame);
}

export function forgetSize({ frame }: Sized): void {
  observer?.unobserve(frame);
}
