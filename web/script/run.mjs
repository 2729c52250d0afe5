#!/usr/bin/env node
// run.mjs [--browser chromium|firefox] [FILE...]: the script language in a real browser; the same lines out as
// `gabarito script`. Built by web/build.
import { readFile } from 'node:fs/promises';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { serve } from '../serve.mjs';
import { launch, settle } from './browsers.mjs';
import { Keyboard } from './keyboard.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));

// Plays stories one after another. `write` gets what each writes, `tell` what is said beside.
export class Player {
  static async open(browserName) {
    const player = new Player();
    player.server = await serve([path.join(here, '../dist/script')]);
    player.browser = await launch(browserName);
    const { address } = player.server;
    if (browserName !== 'firefox') {
      const context = player.browser.defaultBrowserContext();
      await context.overridePermissions(new URL(address).origin, ['clipboard-read', 'clipboard-write', 'clipboard-sanitized-write']);
    }
    player.page = await player.browser.newPage();
    player.faults = [];
    player.page.on('pageerror', (error) => player.faults.push(error));
    await player.page.goto(address);
    await player.page.waitForFunction(() => globalThis.stage !== undefined || globalThis.fault);
    const fault = await player.page.evaluate(() => globalThis.fault);
    if (fault) throw new Error(fault);
    await player.page.bringToFront();
    player.keyboard = await Keyboard.on(player.page, browserName);
    return player;
  }

  // A fresh stage; false when the story with this first line is for other ones.
  begin(firstLine) {
    return this.page.evaluate((first) => stage.begin(first), firstLine);
  }

  // Carries one line out, with what it asks of a person. Throws on a line that is not understood.
  async line(line, write) {
    const step = await this.page.evaluate((it) => stage.line(it), line);
    write(step.written);
    if (step.fault !== undefined) throw new SyntaxError(step.fault);
    for (const request of step.requests) {
      if (request.do === 'key') await this.keyboard.key(request);
      if (request.do === 'paste') await this.keyboard.paste(request.text);
      await settle(this.page);
    }
    if (step.requests.length) write(await this.page.evaluate(() => stage.written()));
    if (this.faults.length) throw this.faults.shift();
  }

  // A whole story; false when it is for other stages.
  async play(text, write) {
    const lines = text.replace(/^\uFEFF/, '').split('\n');
    if (lines.at(-1) === '') lines.pop();
    if (!(await this.begin(lines[0] ?? ''))) return false;
    for (const [number, line] of lines.entries()) {
      try {
        await this.line(line, write);
      } catch (error) {
        if (!(error instanceof SyntaxError)) throw error;
        throw new SyntaxError(`line ${number + 1}: ${error.message}`);
      }
    }
    return true;
  }

  async close() {
    await this.browser.close();
    this.server.close();
  }
}

async function main(given) {
  const at = given.indexOf('--browser');
  const browser = at < 0 ? 'chromium' : given.splice(at, 2)[1];
  const files = given.length ? given : ['-'];
  const player = await Player.open(browser);
  try {
    for (const file of files) {
      const text = await readFile(file === '-' ? 0 : file, 'utf8');
      if (files.length > 1) process.stdout.write(`${JSON.stringify({ file })}\n`);
      const mine = await player.play(text, (out) => process.stdout.write(out));
      if (!mine) process.stderr.write(`gabarito script: ${file}: skipped, it is not for web\n`);
    }
  } catch (error) {
    if (!(error instanceof SyntaxError)) throw error;
    process.stderr.write(`gabarito script: ${error.message}\n`);
    process.exitCode = 2;
  } finally {
    await player.close();
  }
}

if (process.argv[1] === fileURLToPath(import.meta.url)) await main(process.argv.slice(2));
