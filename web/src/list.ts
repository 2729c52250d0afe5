// The list of a field as a popup: a listbox of which only the entries in sight exist as elements, so that 5,652
// cost what ten cost.

export interface ListSource {
  count(): number;
  entry(index: number): string;
  pick(index: number): void;
}

const rows = 8; // that the popup shows at once
let serial = 0;

export class ListPopup {
  readonly element: HTMLElement;
  readonly id = `gabarito-list-${++serial}`;
  private readonly rail: HTMLElement;
  private readonly shown = new Map<number, HTMLElement>();
  private rowHeight = 0;
  private selected = -1;
  private open = false;
  private window: Window | null = null; // that it follows while it is open

  constructor(
    root: ShadowRoot,
    private readonly anchor: HTMLElement,
    private readonly source: ListSource,
  ) {
    const document = root.ownerDocument;
    this.element = document.createElement('div');
    this.element.className = 'list';
    this.element.id = this.id;
    this.element.setAttribute('part', 'list');
    this.element.setAttribute('role', 'listbox');
    this.element.hidden = true;
    this.element.tabIndex = -1; // a box that scrolls would else be a tab stop
    if ('popover' in this.element) this.element.popover = 'manual';
    this.rail = document.createElement('div');
    this.rail.className = 'rail';
    this.rail.setAttribute('role', 'presentation');
    this.element.append(this.rail);
    root.append(this.element);
    this.element.addEventListener('scroll', () => this.render());
    // The focus stays in the entry while the pointer is at work in the list.
    this.element.addEventListener('pointerdown', (event) => event.preventDefault());
    this.element.addEventListener('mousedown', (event) => event.preventDefault());
    this.element.addEventListener('click', (event) => {
      const row = (event.target as HTMLElement).closest<HTMLElement>('[role=option]');
      if (row) this.source.pick(Number(row.dataset.index));
    });
  }

  get isOpen(): boolean {
    return this.open;
  }

  name(label: string): void {
    this.element.setAttribute('aria-label', label);
  }

  // Shows or hides the popup, with `selected` in sight. Returns the id of the selected option's element, for
  // aria-activedescendant.
  update(open: boolean, selected: number): string | null {
    this.selected = selected;
    if (open !== this.open) this.toggle(open);
    if (!open) return null;
    this.place();
    if (selected >= 0) this.reveal(selected);
    this.render();
    return this.shown.get(selected)?.id ?? null;
  }

  // The entries have changed.
  reset(): void {
    for (const row of this.shown.values()) row.remove();
    this.shown.clear();
  }

  private toggle(open: boolean): void {
    this.open = open;
    this.element.hidden = !open;
    if (open) {
      this.element.showPopover?.();
      this.window = this.element.ownerDocument.defaultView;
      this.window?.addEventListener('scroll', this.follow, { capture: true, passive: true });
      this.window?.addEventListener('resize', this.follow);
    } else {
      if (this.element.matches(':popover-open')) this.element.hidePopover();
      this.window?.removeEventListener('scroll', this.follow, { capture: true });
      this.window?.removeEventListener('resize', this.follow);
      this.reset();
    }
  }

  private readonly follow = (event: Event): void => {
    if (event.target !== this.element) this.place();
  };

  private place(): void {
    const view = this.element.ownerDocument.defaultView;
    if (!view) return;
    const size = parseFloat(view.getComputedStyle(this.element).fontSize) || 16;
    this.rowHeight = Math.max(24, Math.round(size * 2));
    const box = this.anchor.getBoundingClientRect();
    const frame = size / 2 + 2; // padding and border
    const wanted = Math.min(this.source.count(), rows) * this.rowHeight + frame;
    const below = view.innerHeight - box.bottom - 8;
    const above = box.top - 8;
    const upwards = wanted > below && above > below;
    const height = Math.max(this.rowHeight + frame, Math.min(wanted, upwards ? above : below));
    const style = this.element.style;
    style.left = `${box.left}px`;
    style.width = `${box.width}px`;
    style.height = `${height}px`;
    style.top = upwards ? `${box.top - height - 4}px` : `${box.bottom + 4}px`;
    this.rail.style.height = `${this.source.count() * this.rowHeight}px`;
  }

  private reveal(index: number): void {
    const top = index * this.rowHeight;
    const view = this.element.clientHeight;
    if (top < this.element.scrollTop) this.element.scrollTop = top;
    else if (top + this.rowHeight * 1.5 > this.element.scrollTop + view) {
      this.element.scrollTop = top + this.rowHeight * 1.5 - view;
    }
  }

  private render(): void {
    const count = this.source.count();
    const first = Math.max(0, Math.floor(this.element.scrollTop / this.rowHeight) - 2);
    const last = Math.min(count, first + Math.ceil(this.element.clientHeight / this.rowHeight) + 5);
    for (const [index, row] of this.shown) {
      if (index < first || index >= last) {
        row.remove();
        this.shown.delete(index);
      }
    }
    for (let index = first; index < last; index++) {
      const row = this.shown.get(index) ?? this.makeRow(index, count);
      row.setAttribute('aria-selected', String(index === this.selected));
    }
  }

  private makeRow(index: number, count: number): HTMLElement {
    const row = this.element.ownerDocument.createElement('div');
    row.className = 'option';
    row.id = `${this.id}-${index}`;
    row.dataset.index = String(index);
    row.setAttribute('part', 'option');
    row.setAttribute('role', 'option');
    row.setAttribute('aria-setsize', String(count));
    row.setAttribute('aria-posinset', String(index + 1));
    row.style.top = `${index * this.rowHeight}px`;
    row.style.height = `${this.rowHeight}px`;
    const text = this.source.entry(index);
    row.ariaLabel = text;
    // One that is too long keeps its end, which tells a municipality from others of the same name.
    row.textContent = text.slice(-3);
    const start = this.element.ownerDocument.createElement('span');
    start.textContent = text.slice(0, -3);
    row.prepend(start);
    // In order, so that assistive technology reads the rows as they stand.
    let before: HTMLElement | null = null;
    for (const [other, element] of this.shown) {
      if (other > index && (!before || other < Number(before.dataset.index))) before = element;
    }
    this.rail.insertBefore(row, before);
    this.shown.set(index, row);
    return row;
  }
}
