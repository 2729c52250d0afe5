// Keys as a person presses them: real input of the browser, by character or by virtual-key code.

const names = {
  8: 'Backspace', 9: 'Tab', 13: 'Enter', 27: 'Escape', 33: 'PageUp', 34: 'PageDown', 35: 'End', 36: 'Home',
  37: 'ArrowLeft', 38: 'ArrowUp', 39: 'ArrowRight', 40: 'ArrowDown', 45: 'Insert', 46: 'Delete',
};
for (let i = 1; i <= 12; i++) names[111 + i] = `F${i}`;
const modifiers = ['Shift', 'Control', 'Alt'];

// DevTools' own numbering of the modifiers.
const cdpModifiers = (shift) => (shift & 1 ? 8 : 0) | (shift & 2 ? 2 : 0) | (shift & 4 ? 1 : 0);

export class Keyboard {
  constructor(page, cdp) {
    this.page = page;
    this.cdp = cdp; // Chromium only
  }

  static async on(page, browser) {
    return new Keyboard(page, browser === 'firefox' ? undefined : await page.createCDPSession());
  }

  // `character` 0 for a key that types none.
  async key({ vk, shift, character }) {
    const control = { 8: 'Backspace', 9: 'Tab', 13: 'Enter', 27: 'Escape' }[character];
    const name = names[vk] ?? control;
    if (name) return this.named(name, shift);
    if (character === 0) return undefined;
    return this.typed(String.fromCharCode(character), shift);
  }

  async named(name, shift) {
    for (let i = 0; i < 3; i++) if (shift & (1 << i)) await this.page.keyboard.down(modifiers[i]);
    await this.page.keyboard.press(name);
    for (let i = 2; i >= 0; i--) if (shift & (1 << i)) await this.page.keyboard.up(modifiers[i]);
  }

  async typed(text, shift) {
    if (shift & 6) return this.named(text, shift);
    if (!this.cdp) return this.page.keyboard.press(text);
    const event = { key: text, windowsVirtualKeyCode: /[a-z0-9 ]/i.test(text) ? text.toUpperCase().charCodeAt(0) : 0, modifiers: cdpModifiers(shift) };
    await this.cdp.send('Input.dispatchKeyEvent', { ...event, type: 'keyDown', text, unmodifiedText: text });
    await this.cdp.send('Input.dispatchKeyEvent', { ...event, type: 'keyUp' });
  }

  async paste(text) {
    await this.page.evaluate((data) => navigator.clipboard.writeText(data), text);
    await this.named('v', 2);
  }
}
