// The Debian browsers, driven by puppeteer-core.
import puppeteer from 'puppeteer-core';

export async function launch(name, options = {}) {
  if (name === 'firefox') {
    return puppeteer.launch({
      browser: 'firefox',
      executablePath: process.env.FIREFOX ?? '/usr/bin/firefox-esr',
      headless: true,
      // The clipboard without a click first.
      extraPrefsFirefox: { 'dom.events.testing.asyncClipboard': true, 'accessibility.tabfocus': 7 },
      ...options,
    });
  }
  return puppeteer.launch({
    executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
    headless: true,
    args: ['--no-sandbox', '--disable-dev-shm-usage', '--force-color-profile=srgb'],
    ...options,
  });
}

export const settle = (page) => page.evaluate(() => new Promise((resolve) => setTimeout(resolve)));
