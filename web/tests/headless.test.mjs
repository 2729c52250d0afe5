// The field without a page: the rules of `gabarito batch`, line for line, and a field driven as by a person.
import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { existsSync } from 'node:fs';
import { readFile } from 'node:fs/promises';
import { promisify } from 'node:util';
import { describe, test } from 'node:test';
import { clean, field } from '../dist/headless.node.js';

const root = new URL('../../', import.meta.url).pathname;
const run = promisify(execFile);
const presets = ['dev', 'demo', 'release'];
const program = presets.map((preset) => `${root}build/${preset}/src/cli/gabarito`).find(existsSync);

// As batch writes it.
const line = (mask, text) => {
  const { ok, value, messages } = clean(mask, text);
  return `${text}\t${ok ? value : ''}\t${messages.join('; ').replaceAll('\r\n', ' ')}`;
};

describe('headless', () => {
  const skip = !program && 'the program is not built';
  for (const [file, mask] of [
    ['documentos', 'gbCPF'], ['datas', 'gbData'], ['valores', 'gbMoeda'], ['ceps', 'gbCEP'],
    ['telefones', 'gbTelefone'], ['documentos', 'gbCNPJ'], ['valores', 'gbReal'], ['datas', 'gbHora'],
    ['valores', 'gbIntervaloNumerico'], ['documentos', 'gbLetra'], ['valores', 'gbCartaoCredito'],
  ]) {
    test(`examples/${file}.txt under ${mask} as the program has it`, { skip }, async () => {
      const path = `${root}examples/${file}.txt`;
      const told = await run(program, ['batch', '--mask', mask, path]).catch((error) => error);
      const lines = (await readFile(path, 'utf8')).split('\n').slice(0, -1);
      assert.deepEqual(lines.map((text) => line(mask, text)), told.stdout.split('\n').slice(0, -1));
    });
  }

  test('good and bad values, kinds in any spelling, a long one', () => {
    assert.deepEqual(clean('cpf', '11144477735'), { ok: true, value: '111.444.777-35', messages: [] });
    const refused = { ok: false, value: '', messages: ['O CPF informado é inválido.'] };
    assert.deepEqual(clean('gbCPF', '11144477734'), refused);
    assert.equal(clean(250, '11222333000181').value, '11.222.333/0001-81');
    const comboItens = ['Rio', 'São Paulo'];
    assert.equal(clean('listanocombo', 'sao paulo', { comboItens }).value, 'São Paulo');
    assert.equal(clean('cidadeestadopopulado', 'sao paulo/sp').value, 'SAO PAULO/SP');
    assert.equal(clean('nenhuma', 'é'.repeat(100000)).value.length, 100000);
    assert.equal(clean('cnpj', '12abc34501de35', { cnpjAlfanumerico: true }).value, '12.ABC.345/01DE-35');
    assert.throws(() => clean('nonsense', '1'), RangeError);
  });

  test('a whole field, typed into', () => {
    const date = field('gbData');
    date.type('05032024');
    assert.equal(date.text, '05/03/2024');
    date.text = '31/12/1999';
    assert.equal(date.text, '31/12/1999');
    assert.deepEqual(date.said(), []);
    date.end();
    assert.throws(() => date.text, { name: 'FieldError', number: 91 });
    const plate = field('gbDefUsr', { maskText: '##/##' });
    plate.type('12');
    assert.equal(plate.text, '12/');
  });

  test('the package without a page does no harm', async () => {
    const { GabaritoField } = await import('../dist/gabarito.js');
    assert.equal(typeof GabaritoField, 'function');
  });
});
