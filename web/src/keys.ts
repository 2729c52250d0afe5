// Keys that type no character, by the names that the browser gives them: their virtual-key codes. The code of a key
// that types one comes from the keyboard layout in the module.

const codes: Readonly<Record<string, number>> = {
  Backspace: 8,
  Enter: 13,
  Escape: 27,
  PageUp: 33,
  PageDown: 34,
  End: 35,
  Home: 36,
  ArrowLeft: 37,
  ArrowUp: 38,
  ArrowRight: 39,
  ArrowDown: 40,
  Insert: 45,
  Delete: 46,
};

export interface Stroke {
  code: number; // 0 when the character tells the key
  character: number; // 0 for none
  shift: number; // 1 Shift, 2 Ctrl, 4 Alt
}

// Undefined for what is no key of an entry's own: modifiers alone, Tab, dead keys, and the keys of an input method
// or of a phone, which come without a code; what comes of those arrives as text.
export function strokeOf(event: KeyboardEvent): Stroke | undefined {
  if (event.isComposing || event.keyCode === 229 || event.key === 'Tab') return undefined;
  const altGr = event.getModifierState('AltGraph') || (event.ctrlKey && event.altKey);
  // The command key of an Apple keyboard is what Ctrl is elsewhere.
  const control = event.ctrlKey || event.metaKey;
  const shift = (event.shiftKey ? 1 : 0) | (control ? 2 : 0) | (event.altKey ? 4 : 0);
  const code = codes[event.key] ?? (/^F\d\d?$/.test(event.key) ? 111 + Number(event.key.slice(1)) : 0);
  if (code !== 0) return { code, character: 0, shift };
  if (event.key.length !== 1) return undefined;
  const typed = altGr ? shift & ~6 : shift;
  return { code: 0, character: event.key.charCodeAt(0), shift: typed };
}
