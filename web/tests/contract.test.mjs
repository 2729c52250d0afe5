// Every story of tests/contract in a real browser: the same lines as the in-memory host's, which the stories
// hold.
import assert from 'node:assert/strict';
import { readFile, readdir } from 'node:fs/promises';
import path from 'node:path';
import { after, before, describe, test } from 'node:test';
import { Player } from '../script/run.mjs';

const stories = new URL('../../tests/contract/stories/', import.meta.url).pathname;
const files = (await readdir(stories)).filter((name) => name.endsWith('.txt')).sort();
const chosen = process.env.STORY ? files.filter((name) => name.includes(process.env.STORY)) : files;

// What a line of a story has written, without the events that the story leaves out.
class Ear {
  lines = [];
  untold = new Set();
  hear(text) {
    this.lines.push(...text.split('\n').filter((line) => line !== ''));
  }
  take(all = false) {
    const told = this.lines.filter((line) => all || !this.untold.has(/^\{"event":"([^"]*)"/.exec(line)?.[1]));
    this.lines = [];
    return told.join(' ');
  }
}

// {"get":"Mask","value":100} asks `get Mask`, {"child":"Combo1","Text":"SP"} asks `child Combo1 Text`.
function question(answer) {
  const [[first, name], second] = Object.entries(JSON.parse(answer));
  return first === 'child' ? `child ${name} ${second[0]}` : `${first} ${name}`;
}

async function compare(player, text) {
  const lines = text.split('\n');
  if (!(await player.begin(lines[0]))) return { skipped: true, differences: [] };
  const ear = new Ear();
  const differences = [];
  const expect = (line, action, expected, happened) => {
    if (expected !== happened) differences.push({ line, action, expected, happened });
  };
  for (let i = 0; i < lines.length; ) {
    const action = lines[i++];
    if (action.startsWith('#? ')) {
      const answers = action.slice(3).split(/(?<=\}) (?=\{)/);
      const asked = [];
      for (const answer of answers) {
        await player.line(question(answer), (out) => ear.hear(out));
        asked.push(ear.take(true));
      }
      expect(i, action, action.slice(3), asked.join(' '));
      continue;
    }
    if (action.startsWith('#- ')) ear.untold = new Set(action.slice(3).split(' '));
    if (action !== '' && !action.startsWith('#')) await player.line(action, (out) => ear.hear(out));
    const at = i;
    const expected = lines[i]?.startsWith('#= ') ? lines[i++].slice(3) : '';
    expect(at, action, expected, ear.take());
  }
  return { skipped: false, differences };
}

for (const browser of (process.env.BROWSERS ?? 'chromium firefox').split(' ')) {
  describe(`contract in ${browser}`, () => {
    let player;
    before(async () => (player = await Player.open(browser)));
    after(() => player.close());
    for (const file of chosen) {
      test(file, async (context) => {
        const story = await readFile(path.join(stories, file), 'utf8');
        const { skipped, differences } = await compare(player, story);
        if (skipped) return context.skip('for other stages');
        assert.deepEqual(differences, []);
        return undefined;
      });
    }
  });
}
