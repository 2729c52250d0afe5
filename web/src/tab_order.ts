import { tabbable } from 'tabbable';

// The tab stop of the page behind an element with all that is in it, or in front of it; undefined at either end
// unless it goes round.
export function nextTabStop(from: HTMLElement, backwards: boolean, round = false): HTMLElement | undefined {
  const root = from.ownerDocument.body;
  const inside = (element: Element): boolean => {
    for (let node: Node | null = element; node; node = node.parentNode ?? (node as ShadowRoot).host ?? null) {
      if (node === from) return true;
    }
    return false;
  };
  const stops = tabbable(root, { getShadowRoot: true, displayCheck: 'non-zero-area' }) as HTMLElement[];
  const own = stops.map(inside);
  const at = backwards ? own.indexOf(true) - 1 : own.lastIndexOf(true) + 1;
  if (!own.includes(true)) return undefined;
  return round ? stops[(at + stops.length) % stops.length] : stops[at];
}
