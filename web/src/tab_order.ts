// Where the Tab key goes from an element of the page, in the order of browsers: scope by scope (a document, a shadow
// root, a slot), in each the positive tabindexes first. Closed shadow roots and other frames stay closed.

// These are stops although some browsers give them a tabIndex of -1.
const alsoStops = 'summary:first-of-type,audio[controls],video[controls],[contenteditable]:not([contenteditable=false])';
// And these are none although their tabIndex is 0.
const noStops = ':disabled,:is(a,area):not([href],[tabindex]),object:not([tabindex])';

// Of the radio buttons of a group only the checked one, where there is one.
function yieldsToChecked(element: HTMLInputElement): boolean {
  if (!element.matches('[type=radio]') || !element.name || element.checked) return false;
  const group = (element.form ?? (element.getRootNode() as Document)).querySelectorAll<HTMLInputElement>(':checked');
  return [...group].some((other) => other.type === 'radio' && other.name === element.name && other.form === element.form);
}

function isStop(element: HTMLElement): boolean {
  if (!(element.tabIndex >= 0) && (element.hasAttribute('tabindex') || !element.matches(alsoStops))) return false;
  return (
    !element.shadowRoot?.delegatesFocus &&
    !element.matches(noStops) &&
    getComputedStyle(element).visibility === 'visible' &&
    !yieldsToChecked(element as HTMLInputElement)
  );
}

function isShut(element: HTMLElement): boolean {
  if (element.inert || getComputedStyle(element).display === 'none') return true;
  return !!element.parentElement?.matches('details:not([open])') && !element.matches('summary:first-of-type');
}

interface Place {
  order: number;
  stops: HTMLElement[];
}

function addPlaces(elements: Iterable<Element>, places: Place[]): void {
  for (const element of elements as Iterable<HTMLElement>) {
    if (isShut(element)) continue;
    const { shadowRoot, tabIndex } = element;
    // A host that is taken out of the order takes its content along.
    if (shadowRoot && tabIndex < 0 && element.hasAttribute('tabindex')) continue;
    const stops = isStop(element) ? [element] : [];
    const assigned = element.matches('slot') ? (element as HTMLSlotElement).assignedElements() : [];
    const inside = shadowRoot?.children ?? (assigned.length > 0 ? assigned : undefined);
    if (inside) stops.push(...stopsOf(inside));
    if (stops.length > 0) places.push({ order: tabIndex > 0 ? tabIndex : Infinity, stops });
    if (!inside) addPlaces(element.children, places);
  }
}

function stopsOf(elements: Iterable<Element>): HTMLElement[] {
  const places: Place[] = [];
  addPlaces(elements, places);
  // Equal ones keep the order of the tree.
  return places.sort((a, b) => (a.order === b.order ? 0 : a.order - b.order)).flatMap(({ stops }) => stops);
}

// The tab stop of the page behind an element with all that is in it, or in front of it; undefined at either end
// unless it goes round.
export function nextTabStop(from: HTMLElement, backwards: boolean, round = false): HTMLElement | undefined {
  const inside = (element: Element): boolean => {
    for (let node: Node | null = element; node; node = node.parentNode ?? (node as ShadowRoot).host ?? null) {
      if (node === from) return true;
    }
    return false;
  };
  const stops = stopsOf(from.ownerDocument.body.children);
  const own = stops.map(inside);
  const at = backwards ? own.indexOf(true) - 1 : own.lastIndexOf(true) + 1;
  if (!own.includes(true)) return undefined;
  return round ? stops[(at + stops.length) % stops.length] : stops[at];
}
