// One call into the module and one answer out of it, in one buffer: src/hosts/web/exports.cpp and answer.h are the
// other half.

import type { Module } from './module.js';

export const enum Event {
  sync = 0,
  keyDown = 1,
  keyUp = 2,
  insert = 3,
  paste = 4,
  cut = 5,
  input = 6,
  focus = 7,
  leave = 8,
  pick = 9,
  dropDown = 10,
  size = 11,
  set = 12,
  get = 13,
  write = 14,
  create = 15,
  end = 16,
  clear = 17,
  municipios = 18,
  check = 19,
  look = 20,
}

export const entries = 8; // children that take input; three labels follow
export const comboPlace = 4;
export const maskedPlace = 3;
// As the place of what is held: more calls follow, and the news come with the last one.
export const untold: Held = { child: -2, text: '', start: 0, length: 0 };
export const surfacePlace = 8; // as what has the focus

export const enum Verdict {
  native,
  nothing,
  edit,
}

// What an entry holds, handed over before an event.
export interface Held {
  child: number;
  text: string;
  start: number;
  length: number;
}

export interface Edit {
  start: number;
  removed: number;
  caret: number;
  text: string;
}

// What a child has become. A text is there only when it has changed.
export interface ChildNews {
  place: number;
  changes: number;
  left: number; // twips
  width: number;
  visible: boolean;
  color: number;
  enabled: boolean;
  limit: number;
  text?: string;
  start: number;
  length: number;
  // Of the combo box.
  count: number;
  selected: number;
  droppedDown: boolean;
  toolTip: string;
}

export const enum Change {
  geometry = 1,
  visible = 2,
  enabled = 4,
  color = 8,
  text = 32,
  selection = 64,
  list = 512,
}

export interface FieldNews {
  field: number;
  value?: string;
  height?: number; // twips
  children: ChildNews[];
}

export interface Answer {
  verdict: Verdict;
  waiting: boolean;
  edit?: Edit;
  focusField: number;
  focusChild: number;
  error: number;
  result: string; // the description of the error, or what was asked for
  fields: FieldNews[];
}

const newsValue = 1;
const newsHeight = 2;
const headWords = 5;
const wide = new TextDecoder('utf-16le', { ignoreBOM: true });

class Reader {
  constructor(
    private readonly words: Int32Array,
    private readonly units: Uint16Array,
    private at: number,
  ) {}

  number(): number {
    return this.words[this.at++] ?? -1;
  }

  text(): string {
    const size = this.number();
    const start = this.at * 2;
    this.at += (size + 1) >> 1;
    // Short ones without the decoder, which is dear to call.
    if (size < 24) {
      let text = '';
      for (let i = start; i < start + size; i++) text += String.fromCharCode(this.units[i]!);
      return text;
    }
    return wide.decode(this.units.subarray(start, start + size));
  }
}

export class Bridge {
  constructor(readonly module: Module) {}

  call(field: number, event: number, a = 0, b = 0, c = 0, held?: Held, data = ''): Answer {
    const text = held?.text ?? '';
    const { exports } = this.module;
    const address = exports.gb_buffer!(headWords + ((text.length + data.length + 1) >> 1)) as number;
    const { words, units } = this.module.view();
    const at = address >> 2;
    words[at] = held?.child ?? -1;
    words[at + 1] = held?.start ?? 0;
    words[at + 2] = held?.length ?? 0;
    words[at + 3] = text.length;
    words[at + 4] = data.length;
    let unit = (at + headWords) * 2;
    for (let i = 0; i < text.length; i++) units[unit++] = text.charCodeAt(i);
    for (let i = 0; i < data.length; i++) units[unit++] = data.charCodeAt(i);
    const answer = exports.gb_event!(field, event, a, b, c) as number;
    const view = this.module.view();
    return readAnswer(new Reader(view.words, view.units, answer >> 2));
  }

  // An entry of the list of a field.
  entry(field: number, index: number): string {
    const answer = this.module.exports.gb_entry!(field, index) as number;
    const view = this.module.view();
    return new Reader(view.words, view.units, answer >> 2).text();
  }
}

function readAnswer(reader: Reader): Answer {
  const answer: Answer = {
    verdict: reader.number(),
    waiting: reader.number() !== 0,
    focusField: 0,
    focusChild: -1,
    error: 0,
    result: '',
    fields: [],
  };
  if (answer.verdict === Verdict.edit) {
    answer.edit = { start: reader.number(), removed: reader.number(), caret: reader.number(), text: reader.text() };
  }
  answer.focusField = reader.number();
  answer.focusChild = reader.number();
  answer.error = reader.number();
  answer.result = reader.text();
  for (let field = reader.number(); field >= 0; field = reader.number()) answer.fields.push(readField(reader, field));
  return answer;
}

function readField(reader: Reader, field: number): FieldNews {
  const news: FieldNews = { field, children: [] };
  const mask = reader.number();
  if (mask & newsValue) news.value = reader.text();
  if (mask & newsHeight) news.height = reader.number();
  for (let place = reader.number(); place >= 0; place = reader.number()) news.children.push(readChild(reader, place));
  return news;
}

function readChild(reader: Reader, place: number): ChildNews {
  const child: ChildNews = {
    place,
    changes: reader.number(),
    left: reader.number(),
    width: reader.number(),
    visible: reader.number() !== 0,
    color: reader.number() >>> 0,
    enabled: true,
    limit: 0,
    start: 0,
    length: 0,
    count: 0,
    selected: -1,
    droppedDown: false,
    toolTip: '',
  };
  if (place >= entries) {
    child.text = reader.text();
    return child;
  }
  child.enabled = reader.number() !== 0;
  child.limit = reader.number();
  if (child.changes & Change.text) child.text = reader.text();
  child.start = reader.number();
  child.length = reader.number();
  if (place !== comboPlace) return child;
  child.count = reader.number();
  child.selected = reader.number();
  child.droppedDown = reader.number() !== 0;
  child.toolTip = reader.text();
  return child;
}
