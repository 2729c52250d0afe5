// axe-core over the playground, every kind in every state; and what it cannot know: names, sizes, the value
// aloud.
import assert from 'node:assert/strict';
import { after, before, describe, test } from 'node:test';
import axe from 'axe-core';
import { launch, settle } from '../script/browsers.mjs';
import { Keyboard } from '../script/keyboard.mjs';
import { serve } from '../serve.mjs';

const dist = new URL('../dist/', import.meta.url).pathname;

describe('accessibility', () => {
  let server, browser;
  before(async () => {
    server = await serve([dist]);
    browser = await launch('chromium');
  });
  after(async () => {
    await browser.close();
    server.close();
  });

  // A file that is `late` never comes, one that is `lost` cannot be had.
  async function playground({ width = 1280, features = [], late, lost } = {}) {
    const page = await browser.newPage();
    if (late ?? lost) {
      await page.setRequestInterception(true);
      page.on('request', (request) => {
        if (!request.url().endsWith(late ?? lost)) request.continue();
        else if (lost) request.abort();
      });
    }
    await page.setViewport({ width, height: 900 });
    await page.emulateMediaFeatures(features);
    await page.goto(`${server.address}playground/`);
    await page.evaluate(() => {
      const root = (id) => document.getElementById(id).shadowRoot;
      globalThis.boxes = (id) => [...root(id).querySelectorAll('.box:not([hidden])')];
    });
    if (late ?? lost) {
      await page.waitForFunction(() => boxes('municipio').length + boxes('cpf').length >= 2 &&
        document.querySelector('#municipio').shadowRoot.querySelector('.message')?.textContent);
    } else {
      await page.waitForFunction(() => document.querySelector('#municipio').comboListCount === 5652);
    }
    return page;
  }

  async function findings(page) {
    await page.evaluate(axe.source);
    const { violations } = await page.evaluate(() => axe.run());
    return violations.flatMap(({ id, nodes }) => nodes.map((it) =>
      `${id} ${it.target} ${it.failureSummary}`));
  }

  const dark = [{ name: 'prefers-color-scheme', value: 'dark' }];
  const states = [
    ['as it opens', {}, async () => {}],
    ['on a phone', { width: 390 }, async () => {}],
    ['dark', { features: dark }, async () => {}],
    ['forced colours', {}, async (page) => {
      const cdp = await page.createCDPSession();
      const features = [{ name: 'forced-colors', value: 'active' }];
      await cdp.send('Emulation.setEmulatedMedia', { features });
    }],
    ['with a value in every kind', {}, (page) => page.evaluate(() => {
      const values = {
        nome: 'Ana', cpf: '11144477735', nascimento: '05/03/2024', email: 'a@b.com', telefone: '1133334444',
        cep: '01310-100', municipio: 'SAO PAULO/SP', estado: 'SP', cidade: 'Campinas/SP',
        cnpj: '11222333000181', cartao: '4111111111111111', validade: '03/2024', valor: '1234,5',
        forma: 'Pix', livre: 'x', codigo: 'a1', hora: '09:05', inteiro: '7', real: '1,5', versao: '1,2',
        intervalo: '1#2', placa: 'ABC-1234',
      };
      for (const [id, value] of Object.entries(values)) document.getElementById(id).value = value;
    })],
    ['refused', {}, async (page) => {
      await page.evaluate(() => document.querySelector('#cpf').focus());
      await (await Keyboard.on(page)).page.keyboard.type('11144477734');
      await page.keyboard.press('Tab');
      await settle(page);
      assert.deepEqual(await page.evaluate(() => {
        const [box] = boxes('cpf');
        const note = box.getRootNode().getElementById(box.getAttribute('aria-describedby'));
        return [box.getAttribute('aria-invalid'), note?.textContent];
      }), ['true', 'O CPF informado é inválido.']);
    }],
    ['refused, dark', { features: dark }, async (page) => {
      await page.evaluate(() => document.querySelector('#cpf').focus());
      await page.keyboard.type('1');
      await page.keyboard.press('Tab');
    }],
    ['with its list open', {}, async (page) => {
      await page.evaluate(() => document.querySelector('#municipio').focus());
      await page.keyboard.type('sao');
      const open = await page.evaluate(() => boxes('municipio')[0].getAttribute('aria-expanded'));
      assert.equal(open, 'true');
    }],
    ['while the municipalities are on their way', { late: 'municipios.txt' }, async () => {}],
    ['without the municipalities', { lost: 'municipios.txt' }, async () => {}],
    ['without the module', { lost: 'gabarito.wasm' }, async () => {}],
    ['disabled', {}, (page) => page.click('#desligado')],
    ['read only', {}, (page) => page.click('#leitura')],
    ['with every property turned', {}, async (page) => {
      for (const id of ['pastel', 'enter', 'comhoje', 'relevo']) await page.click(`#${id}`);
      await page.evaluate(() => document.querySelector('#nome').focus());
    }],
  ];
  for (const [title, options, prepare] of states) {
    test(`axe finds nothing ${title}`, async () => {
      const page = await playground(options);
      await prepare(page);
      assert.deepEqual(await findings(page), []);
      await page.close();
    });
  }

  test('each box is named, the list follows the pattern, an empty place is not read aloud', async () => {
    const page = await playground();
    const told = await page.evaluate(() => {
      const list = boxes('municipio')[0];
      return {
        date: boxes('nascimento').map((box) => box.getAttribute('aria-label')),
        city: boxes('cidade').map((box) => box.getAttribute('aria-label')),
        combo: [list.role, list.getRootNode().getElementById(list.getAttribute('aria-controls')).role],
        mask: boxes('placa')[0].value.includes('_'),
        modes: ['cpf', 'valor', 'telefone', 'email'].map((id) => boxes(id)[0].inputMode),
      };
    });
    assert.deepEqual(told, {
      date: ['dia', 'mês', 'ano'],
      city: ['cidade', 'estado'],
      combo: ['combobox', 'listbox'],
      mask: false,
      modes: ['numeric', 'decimal', 'tel', 'email'],
    });
    const snapshot = await page.accessibility.snapshot({ interestingOnly: true });
    const names = JSON.stringify(snapshot);
    assert.match(names, /"name":"CPF"/);
    await page.close();
  });

  test('a name that stands elsewhere is the box\'s', async () => {
    const page = await playground();
    const name = await page.evaluate(() => {
      const elsewhere = Object.assign(document.createElement('p'), { id: 'elsewhere', textContent: 'Meu CPF' });
      document.querySelector('main').append(elsewhere);
      document.querySelector('#cpf').setAttribute('aria-labelledby', 'elsewhere');
      return boxes('cpf')[0].getAttribute('aria-label');
    });
    assert.equal(name, 'Meu CPF');
    await page.close();
  });

  test('targets are large enough, the focus is seen', async () => {
    const page = await playground({ width: 390 });
    const small = await page.evaluate(() => [...document.querySelectorAll('gabarito-field')].flatMap((it) =>
      [...it.shadowRoot.querySelectorAll('.box:not([hidden]), .open:not([hidden])')].filter((part) => {
        const { width, height } = part.getBoundingClientRect();
        return width < 24 || height < 24;
      }).map((part) => `${it.id} ${part.className}`)));
    assert.deepEqual(small, []);
    await page.evaluate(() => document.querySelector('#nome').focus());
    const outline = await page.evaluate(() => getComputedStyle(nome.frame).outlineStyle);
    assert.equal(outline, 'solid');
    await page.close();
  });
});
