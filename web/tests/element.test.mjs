// What only a page has: the form, labels, the focus past foreign elements, undo, input methods, the
// clipboard, faults.
import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { settle } from '../script/browsers.mjs';
import { browserFixture, browsers } from './pages.mjs';

const field = (id, mask, more = '') => `<label for="${id}">${id}</label>
  <gabarito-field id="${id}" name="${id}" mask="${mask}" ${more}></gabarito-field>`;
const cpf = field('cpf', 'gbCPF');
const data = field('data', 'gbData');
const form = (inner) => `<form id="form"><input id="first">${inner}<input id="last">
  <button id="send">Enviar</button><button type="reset" id="reset">Limpar</button></form>`;

for (const name of browsers) {
  describe(`element in ${name}`, () => {
    const fixture = browserFixture(name);
    const scene = (title, body, play, options) =>
      test(title, async () => {
        const page = await fixture.open(body, options);
        await play(page);
        assert.deepEqual(page.faults, []);
      });

    scene('a form gets the value that the check has made, and is not sent with a refused one',
      form(cpf), async (page) => {
      await page.focus('#first');
      await page.press('Tab');
      await page.write('11144477735');
      await page.click('#send');
      await page.tells(() => [sent(form), events.includes('submit form')], [{ cpf: '111.444.777-35' }, true]);
      await page.evaluate(() => { events.length = 0; f.cpf.focus(); });
      await page.write('11144477734');
      await page.click('#send');
      await page.tells(
        () => [events.includes('submit form'), f.said('cpf'), f.cpf.validity.customError, f.active('cpf')],
        [false, 'O CPF informado é inválido.', true, 0],
      );
      // What a program writes is another matter than what was refused.
      await page.evaluate(() => (f.cpf.value = ''));
      await page.tells(() => [f.said('cpf'), f.cpf.checkValidity()], ['', true]);
    });

    scene('Enter sends the form, or moves on where the author wants it so',
      form(cpf + field('nome', 'gbNenhuma', 'trata-enter-como-tab')), async (page) => {
      await page.evaluate(() => f.cpf.focus());
      await page.write('11144477735');
      await page.press('Enter');
      await page.tells(() => f.submits(), 1);
      await page.evaluate(() => f.nome.focus());
      await page.press('Enter');
      await page.tells(() => [document.activeElement.id, f.submits()], ['last', 1]);
    });

    scene('required, reset, a disabled fieldset',
      form(`${field('cpf', 'gbCPF', 'required value="11144477735"')}<fieldset id="set">${data}</fieldset>`),
      async (page) => {
      await page.tells(() => f.cpf.value, '111.444.777-35');
      await page.evaluate(() => (f.cpf.value = ''));
      await page.tells(() => [f.cpf.validity.valueMissing, form.checkValidity()], [true, false]);
      await page.click('#reset');
      await page.tells(() => [f.cpf.value, f.cpf.checkValidity()], ['111.444.777-35', true]);
      await page.evaluate(() => (set.disabled = true));
      await page.tells(() => f.boxes('data').every((box) => box.disabled) && !('data' in sent(form)), true);
    });

    scene('a label gives its field the focus; Tab goes in and out past foreign elements, both ways',
      form(data), async (page) => {
      await page.click('label');
      await page.tells(() => f.active('data'), 0);
      for (const expected of [1, 2]) {
        await page.press('Tab');
        await page.tells(() => f.active('data'), expected);
      }
      await page.press('Tab');
      await page.tells(() => document.activeElement.id, 'last');
      await page.press('Tab', 1);
      await page.tells(() => f.active('data'), 2);
      for (let i = 0; i < 3; i++) await page.press('Tab', 1);
      await page.tells(() => document.activeElement.id, 'first');
    });

    scene('5/3/24 is typed as it is written, and the value comes whole', form(data), async (page) => {
      await page.evaluate(() => f.data.focus());
      await page.write('5/3/24');
      await page.press('Tab');
      await page.tells(() => [f.data.value, f.texts('data')], ['05/03/2024', ['05', '03', '2024']]);
    });

    scene('a filled box moves on to the next of its field', form(field('cep', 'gbCEP')), async (page) => {
      await page.evaluate(() => f.cep.focus());
      await page.write('01310');
      await page.tells(() => f.active('cep'), 1);
    });

    scene('keys that are refused leave the undo of the browser whole', form(cpf), async (page) => {
      await page.evaluate(() => f.cpf.focus());
      await page.write('12x3y4');
      await page.tells(() => f.texts('cpf'), ['1234']);
      for (let i = 0; i < 6 && (await page.evaluate(() => f.cpf.value)) !== ''; i++) await page.press('z', 2);
      await page.tells(() => f.texts('cpf'), ['']);
      await page.write('9');
      await page.tells(() => f.cpf.value, '9');
    });

    scene('a program that writes at once, as password managers do', form(cpf + data), async (page) => {
      await page.evaluate(() => {
        const box = f.boxes('cpf')[0];
        box.value = '111.444.777-35';
        box.dispatchEvent(new Event('input', { bubbles: true, composed: true }));
        const day = f.boxes('data')[0];
        day.value = '05/03/2024';
        day.dispatchEvent(new Event('input', { bubbles: true, composed: true }));
      });
      await page.focus('#last');
      await page.tells(() => sent(form), { cpf: '111.444.777-35', data: '05/03/2024' });
    });

    scene('pasted into the day a date fills all boxes; a million characters do no harm',
      form(data + field('nome', 'gbNenhuma')), async (page) => {
      await page.evaluate(() => f.data.focus());
      await page.keys.paste('05/03/2024');
      await settle(page);
      await page.tells(() => f.texts('data'), ['05', '03', '2024']);
      await page.evaluate(() => f.nome.focus());
      await page.evaluate(() => navigator.clipboard.writeText('abc'.repeat(333334)));
      const before = Date.now();
      await page.press('v', 2);
      await page.tells(() => f.nome.value.length, 1000002);
      assert.ok(Date.now() - before < 5000, `${Date.now() - before} ms`);
    });

    scene('text that is dropped goes through the filter', form(cpf), async (page) => {
      await page.evaluate(() => {
        f.cpf.focus();
        const transfer = new DataTransfer();
        transfer.setData('text/plain', 'a1b2');
        const how = { inputType: 'insertFromDrop', bubbles: true, cancelable: true, composed: true };
        f.boxes('cpf')[0].dispatchEvent(new InputEvent('beforeinput', { ...how, dataTransfer: transfer }));
      });
      await page.tells(() => [f.texts('cpf'), f.cpf.value], [['12'], '12']);
    });

    scene('an element that moves keeps its value; one that goes leaves the others alone; a copy is its own',
      `<div id="a">${cpf}</div><div id="b"></div>${data}`, async (page) => {
      await page.evaluate(async () => {
        f.cpf.value = '11144477735';
        b.append(f.cpf);
        await new Promise((go) => setTimeout(go, 20));
      });
      await page.tells(() => [f.cpf.value, f.texts('cpf')], ['111.444.777-35', ['111.444.777-35']]);
      await page.evaluate(async () => {
        const copy = f.cpf.cloneNode(true);
        copy.id = 'copy';
        b.append(copy);
        f.cpf.remove();
        await new Promise((go) => setTimeout(go, 50));
        await f.ready();
      });
      await page.evaluate(() => f.copy.focus());
      await page.write('529');
      await page.tells(() => [f.copy.value, f.data.value], ['529', '']);
      const back = await page.evaluate(async () => {
        const gone = document.createElement('gabarito-field');
        gone.setAttribute('mask', 'gbCPF');
        b.append(gone);
        gone.id = 'gone';
        await f.ready();
        gone.value = '11144477735';
        gone.remove();
        await new Promise((go) => setTimeout(go, 20));
        const kept = gone.value;
        b.append(gone);
        await f.ready();
        return [kept, gone.value];
      });
      assert.deepEqual(back, ['111.444.777-35', '111.444.777-35']);
    });

    scene('in another document it works on, and the way out of it is heard',
      `${cpf}<iframe id="frame"></iframe>`, async (page) => {
      await page.evaluate(() => {
        f.cpf.value = '11144477735';
        const { body } = f.frame.contentDocument;
        globalThis.there = f.cpf;
        globalThis.behind = body.appendChild(f.frame.contentDocument.createElement('input'));
        body.prepend(there);
        there.addEventListener('change', () => events.push(`change to ${there.value}`));
        there.focus();
      });
      await page.press('End');
      for (let i = 0; i < 14; i++) await page.press('Backspace');
      await page.write('52998224725');
      await page.evaluate(() => behind.focus());
      await page.tells(() => [there.value, events.at(-1)], ['529.982.247-25', 'change to 529.982.247-25']);
    });

    scene('two copies of the package on one page: the first serves all fields', form(cpf), async (page) => {
      const other = await page.evaluate(async () => {
        const { GabaritoField } = await import('/gabarito.js?copy');
        return GabaritoField !== customElements.get('gabarito-field');
      });
      await page.evaluate(() => f.cpf.focus());
      await page.write('11144477735');
      await page.focus('#last');
      assert.deepEqual([other, await page.evaluate(() => sent(form))], [true, { cpf: '111.444.777-35' }]);
    });

    scene('what is being typed outlives a turn of the phone', form(data), async (page) => {
      await page.evaluate(() => f.data.focus());
      await page.write('0503');
      await page.evaluate(() => { f.data.style.width = '9em'; });
      await page.evaluate(() => new Promise((go) => requestAnimationFrame(() => setTimeout(go))));
      await page.write('2024');
      await page.tells(() => [f.texts('data'), f.data.value], [['05', '03', '2024'], '05/03/2024']);
    });

    scene('removed from its own event, and while its message is open', form(cpf), async (page) => {
      await page.evaluate(() => {
        document.addEventListener('gabarito-refused', (event) => event.target.remove());
        f.cpf.focus();
      });
      await page.write('11144477734');
      await page.focus('#last');
      await settle(page);
      await page.tells(() => [f.cpf, document.activeElement.id], [null, 'last']);
    });

    scene('the page answers a message in its place',
      form(field('mail', 'gbEnderecoEmail')), async (page) => {
      await page.evaluate(() => {
        globalThis.asked = [];
        document.addEventListener('gabarito-refused', (event) => {
          asked.push(event.detail.question);
          event.detail.answer = 6;
          event.preventDefault();
        });
        f.mail.focus();
      });
      await page.write('ab');
      await page.focus('#last');
      await settle(page);
      await page.tells(() => [asked, f.mail.value], [[true], 'ab']);
    });

    scene('the page puts one key in the place of another', field('nome', 'gbNenhuma'), async (page) => {
      await page.evaluate(() => {
        document.addEventListener('gabarito-keyup', ({ detail }) => {
          if (detail.keyCode === 88) detail.keyCode = 46;
        });
        f.nome.value = 'abc';
        f.nome.focus();
        f.boxes('nome')[0].setSelectionRange(0, 0);
      });
      await page.write('yx');
      await page.tells(() => f.texts('nome'), ['yxBC']);
    });

    scene('what the boxes show is what is sent, kept and asked for',
      form(field('faixa', 'gbIntervaloNumerico', 'required') + field('nome', 'gbNenhuma', 'required')),
      async (page) => {
      await page.evaluate(() => f.faixa.focus());
      await page.write('1');
      await page.press('Backspace');
      await page.tells(() => [f.faixa.value, f.faixa.validity.valueMissing], ['', true]);
      await page.write('1');
      await page.press('Tab');
      await page.write('2');
      await page.tells(() => sent(form).faixa, '0000000001#0000000002');
      await page.evaluate(async () => {
        const { faixa } = f;
        faixa.remove();
        await new Promise((go) => setTimeout(go, 20));
        form.prepend(faixa);
        await f.ready();
        f.nome.focus();
      });
      await page.tells(() => f.texts('faixa'), ['1', '2']);
      await page.write('+++');
      await page.tells(() => [f.nome.value, sent(form).nome, f.nome.checkValidity()], ['+++', '+++', true]);
      await page.focus('#last');
      await page.tells(() => [f.nome.value, f.nome.checkValidity()], ['+++', true]);
    });

    scene('in a box of the browser a refusal is said once, and the focus stays',
      `${field('cpf', 'gbCPF', 'messages="modal" autofocus')}<input id="last">`, async (page) => {
      const said = [];
      page.on('dialog', (box) => (said.push(box.message()), box.accept()));
      await page.tells(() => f.active('cpf'), 0);
      await page.write('123');
      await page.press('Tab');
      await settle(page);
      assert.deepEqual(said, ['O CPF informado é inválido.']);
      await page.tells(() => [f.active('cpf'), ...f.texts('cpf')], [0, '123']);
    });

    scene('what the page writes when it hears of an edit stays', cpf, async (page) => {
      await page.evaluate(() => {
        f.cpf.focus();
        f.cpf.addEventListener('input', () => (f.cpf.value = '11144477735'), { once: true });
      });
      await page.keys.paste('52');
      await page.tells(() => [f.cpf.value, ...f.texts('cpf')], ['111.444.777-35', '111.444.777-35']);
      await page.press('Tab');
      await page.tells(() => [f.cpf.value, f.said('cpf')], ['111.444.777-35', '']);
    });

    scene('the pointer and a drop change nothing that is read only, disabled or elsewhere',
      `${field('fixo', 'gbEstado', 'readonly value="SP"')}${field('sem', 'gbEstado', 'disabled value="SP"')}
      <div contenteditable id="note">abc</div><iframe id="frame"></iframe>${data}`, async (page) => {
      for (const id of ['fixo', 'sem']) {
        const open = await page.evaluateHandle((name) => f[name].shadowRoot.querySelector('.open'), id);
        await open.click();
        await settle(page);
        await page.tells(() => [...document.querySelectorAll('gabarito-field')].map((it) =>
          it.shadowRoot.querySelectorAll('[role=option]').length), [0, 0, 0]);
      }
      await page.evaluate(() => {
        const there = f.data;
        f.frame.contentDocument.body.append(there);
        getSelection().selectAllChildren(f.note);
        const box = there.shadowRoot.querySelector('.box');
        box.focus();
        const transfer = new DataTransfer();
        transfer.setData('text/plain', '1');
        const how = { inputType: 'insertFromDrop', bubbles: true, cancelable: true, composed: true };
        box.dispatchEvent(new InputEvent('beforeinput', { ...how, dataTransfer: transfer }));
        globalThis.box = box;
      });
      await page.tells(() => [f.note.textContent, box.value], ['abc', '1']);
    });

    scene('put back, it has one list; in a template it waits', field('uf', 'gbEstado'), async (page) => {
      const lists = await page.evaluate(async () => {
        const { uf } = f;
        const template = document.createElement('template');
        for (const place of [template.content, document.body]) {
          place.append(uf);
          await new Promise((go) => setTimeout(go, 20));
        }
        await f.ready();
        return [uf.shadowRoot.querySelectorAll('.list').length, uf.shadowRoot.adoptedStyleSheets.length];
      });
      assert.deepEqual(lists, [1, 1]);
    });

    scene('attributes that mean nothing, a kind by any spelling',
      field('a', 'nonsense', 'max-length="-3x" combo-itens="{"') + field('b', 'CPF') + field('c', '9999'),
      async (page) => {
      await page.tells(() => ['a', 'b', 'c'].map((id) => f[id].mask), ['gbNenhuma', 'gbCPF', '9999']);
      await page.evaluate(() => f.c.focus());
      await page.write('x');
      await page.tells(() => f.texts('c'), ['x']);
    });

    scene('upgraded late, with properties set before',
      form('<gabarito-field id="late" name="late"></gabarito-field>'), async (page) => {
      await page.evaluate(async () => {
        f.late.mask = 'gbCPF';
        f.late.value = '11144477735';
        f.late.trataEnterComoTab = true;
        f.late.comboItens = undefined;
        await import('/gabarito.js');
        await f.ready();
      });
      await page.tells(() => [f.late.value, sent(form)], ['111.444.777-35', { late: '111.444.777-35' }]);
      await page.tells(() => f.late.hasAttribute('trata-enter-como-tab'), true);
    }, { head: '', ready: false });

    const without = (file, title, play) => test(title, () => fixture.without(file, play));

    without('/gabarito.wasm', 'without the module it is a plain entry that sends, and says so', async () => {
      const page = await fixture.open(form(field('cpf', 'gbCPF', 'required')), { ready: false });
      await page.until(() => f.said('cpf') !== '');
      await page.tells(() => [form.checkValidity(), f.boxes('cpf')[0].ariaLabel], [false, 'cpf']);
      await page.evaluate(() => f.cpf.focus());
      await page.write('123x');
      await page.tells(() => [sent(form), /sem conferência/.test(f.said('cpf'))], [{ cpf: '123x' }, true]);
      await page.click('#send');
      await page.tells(() => f.submits(), 1);
    });

    const late = (file, title, play) => test(title, () => fixture.late(file, play));

    late('/gabarito.wasm', 'what is typed while the module is on its way stays, and is checked', async (come) => {
      const estado = field('uf', 'gbEstado');
      const page = await fixture.open(form(cpf + data + estado), { ready: false });
      await page.until(() => !!f.uf?.shadowRoot?.querySelector('.plain'));
      for (const [id, text] of [['cpf', '123'], ['uf', 'xx'], ['data', '5/3']]) {
        await page.evaluate((name) => f[name].focus(), id);
        await page.write(text);
      }
      come();
      await page.evaluate(() => f.ready());
      await page.write('/24');
      await page.tells(() => [f.cpf.value, f.texts('data'), f.texts('uf')], ['123', ['5', '3', '24'], ['xx']]);
      await page.click('#send');
      await page.tells(() => [f.submits(), f.said('cpf')], [0, 'O CPF informado é inválido.']);
    });

    const populado = (id) => field(id, 'gbCidadeEstadoPopulado');
    late('/municipios.txt', 'what is typed before the municipalities are there goes through the list', async (come) => {
      const page = await fixture.open(form(populado('antes') + populado('depois')), { ready: false });
      await page.until(() => f.said('depois') !== '');
      for (const [id, text] of [['antes', 'sao jose dos c'], ['depois', 'xamb']]) {
        await page.evaluate((name) => f[name].focus(), id);
        await page.write(text);
      }
      come();
      await page.until(() => f.depois.comboListCount === 5652);
      await page.write('io');
      await page.focus('#last');
      await page.tells(() => sent(form), { antes: 'SAO JOSE DOS CAMPOS/SP', depois: 'XAMBIOA/GO' });
      await page.tells(() => events.filter((it) => it.startsWith('change')),
        ['change antes', 'change antes', 'change depois']);
    });

    late('/municipios.txt', 'without the municipalities a city is typed, its state chosen', async (come) => {
      const page = await fixture.open(populado('cidade'), { ready: false });
      await page.until(() => f.said('cidade') !== '');
      await page.evaluate(() => f.cidade.focus());
      await page.write('Campi');
      come(true);
      await page.until(() => f.said('cidade').startsWith('Sem conexão'));
      await page.write('nas');
      await page.press('Tab');
      await page.write('sp');
      await page.tells(() => [f.cidade.value, f.boxes('cidade').map((it) => it.ariaLabel)],
        ['Campinas/SP', ['cidade', 'estado']]);
    });

    scene('the list: typed, opened, chosen with the pointer; only what is in sight is there',
      form(field('cidade', 'gbCidadeEstadoPopulado')), async (page) => {
      await page.until(() => f.cidade.comboListCount === 5652);
      await page.evaluate(() => f.cidade.focus());
      await page.write('sao jose dos c');
      await page.tells(() => f.texts('cidade'), ['SAO JOSE DOS CAMPOS/SP']);
      const rows = await page.evaluate(() => f.cidade.shadowRoot.querySelectorAll('[role=option]').length);
      assert.ok(rows > 3 && rows < 30, `${rows} rows`);
      await page.evaluate(() => f.cidade.shadowRoot.querySelector('[role=option]').click());
      await page.focus('#last');
      const value = await page.evaluate(() => f.cidade.value);
      assert.match(value, /^[A-Z ]+\/[A-Z]{2}$/);
      assert.notEqual(value, 'SAO JOSE DOS CAMPOS/SP');
    });
  });
}

if (browsers.includes('chromium')) {
  describe('what DevTools alone can do', () => {
    const fixture = browserFixture('chromium');

    test('composition: letters when settled on, digits at once, a refused one not at all', async () => {
      const page = await fixture.open(form(field('nome', 'gbLetra') + data));
      const cdp = await page.createCDPSession();
      const compose = (text) => {
        const { length } = text;
        return cdp.send('Input.imeSetComposition', { text, selectionStart: length, selectionEnd: length });
      };
      await page.evaluate(() => f.nome.focus());
      await compose('Jo');
      await compose('Jo1ã');
      await cdp.send('Input.insertText', { text: 'Jo1ã' });
      await settle(page);
      await page.tells(() => f.texts('nome'), ['Joã']);
      await page.evaluate(() => f.data.focus());
      await compose('0');
      await compose('05');
      await settle(page);
      await page.tells(() => [f.texts('data'), f.active('data')], [['05', '', ''], 1]);
    });

    test('a keyboard that sends no key codes', async () => {
      const page = await fixture.open(form(cpf));
      const cdp = await page.createCDPSession();
      await page.evaluate(() => f.cpf.focus());
      for (const text of ['1', 'a', '2']) await cdp.send('Input.insertText', { text });
      await settle(page);
      await page.tells(() => [f.texts('cpf'), f.cpf.value], [['12'], '12']);
    });

    test('the page comes back from the cache as it was', async () => {
      const page = await fixture.open(form(cpf));
      await page.evaluate(() => {
        addEventListener('pageshow', (event) => events.push(`kept ${event.persisted}`));
        f.cpf.focus();
      });
      await page.write('111444');
      await page.goto(`${fixture.server.address}municipios.txt`);
      await page.goBack();
      await page.tells(() => [events.at(-1), f.cpf.value], ['kept true', '111444']);
      await page.evaluate(() => f.cpf.focus());
      await page.press('End');
      await page.write('7');
      await page.tells(() => f.cpf.value, '1114447');
    });

    test('text that is dragged into it goes through the filter', async () => {
      const page = await fixture.open(`<p id="from">a1b2</p>${form(cpf)}`);
      const middle = (element) => page.evaluate((name) => {
        const { left, top, height } = f[name].getBoundingClientRect();
        return [left + 12, top + height / 2];
      }, element);
      await page.evaluate(() => getSelection().selectAllChildren(f.from));
      const [x, y] = await middle('from');
      await page.mouse.move(x, y);
      await page.mouse.down();
      await page.mouse.move(x + 10, y + 3);
      await page.mouse.move(...(await middle('cpf')), { steps: 5 });
      await page.mouse.up();
      await page.until(() => f.cpf.value !== '');
      await page.tells(() => [f.texts('cpf'), f.cpf.value], [['12'], '12']);
    });

    test('a width, a zoom and a right-to-left page keep all boxes inside the frame', async () => {
      const faixa = field('faixa', 'gbIntervaloNumerico');
      const cidade = field('cidade', 'gbCidadeEstado');
      const page = await fixture.open(`<div dir="rtl">${data}${faixa}${cidade}</div>`);
      const cdp = await page.createCDPSession();
      // The last: a page of 640 pixels at 200 %, then pinched to twice that.
      const sizes = [['300px', '16px'], ['180px', '16px'], ['600px', '32px'], ['', '', 2]];
      for (const [width, size, zoom] of sizes) {
        if (zoom) {
          await page.setViewport({ width: 640 / zoom, height: 450, deviceScaleFactor: zoom });
          await cdp.send('Emulation.setPageScaleFactor', { pageScaleFactor: zoom });
        }
        const outside = await page.evaluate(async (w, s) => {
          const fields = [...document.querySelectorAll('gabarito-field')];
          for (const it of fields) Object.assign(it.style, { width: w, fontSize: s });
          await new Promise((go) => setTimeout(go, 60));
          return fields.flatMap((it) => {
            const frame = it.shadowRoot.querySelector('.frame').getBoundingClientRect();
            const arrow = it.shadowRoot.querySelector('.open')?.getBoundingClientRect();
            return f.boxes(it.id).filter((box) => {
              const place = box.getBoundingClientRect();
              const under = arrow && place.left < arrow.left && place.right > arrow.right && !box.matches('.listed');
              return under || place.width === 0 || place.left < frame.left - 1 || place.right > frame.right + 1;
            }).map((box) => `${it.id} ${box.getAttribute('aria-label')}`);
          });
        }, width, size);
        assert.deepEqual(outside, [], `${width} at ${size}`);
        const wide = await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth);
        if (zoom) assert.ok(wide, 'nothing has to be scrolled to across');
      }
    });
  });
}
