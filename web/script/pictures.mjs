// Takes the pictures of docs/web.md from the playground: a list on a wide screen and on a phone, a refusal in dark
// colours. Built by web/build.
import { serve } from '../serve.mjs';
import { launch } from './browsers.mjs';

const folder = new URL('../../docs/pictures/', import.meta.url).pathname;
const values = {
  nome: 'Ana Maria', cpf: '11144477735', nascimento: '05/03/1984', telefone: '(11) 3333-4444', cep: '01310-100',
  cidade: 'Ouro Preto/MG', cnpj: '11222333000181', cartao: '4111111111111111', validade: '03/2029', valor: '1234,5',
};
const pictures = [
  ['web-wide', 1280, 860, 'light', 'municipio', 'sao jose dos c'],
  ['web-phone', 390, 800, 'light', 'municipio', 'sao jose dos c'],
  ['web-dark', 1280, 860, 'dark', 'cpf', '11144477734\t'],
];

const server = await serve([new URL('../dist/', import.meta.url).pathname]);
const browser = await launch('chromium');
for (const [name, width, height, scheme, field, text] of pictures) {
  const page = await browser.newPage();
  await page.setViewport({ width, height });
  await page.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme }]);
  await page.goto(`${server.address}playground/`);
  await page.waitForFunction(() => document.querySelector('#municipio').comboListCount > 0);
  await page.evaluate((all, id) => {
    for (const [one, value] of Object.entries(all)) document.getElementById(one).value = one === id ? '' : value;
    document.getElementById('formulario').scrollIntoView();
    scrollBy(0, -24);
    document.getElementById(id).focus({ preventScroll: true });
  }, values, field);
  for (const key of text) await page.keyboard.press(key === '\t' ? 'Tab' : key);
  await page.screenshot({ path: `${folder}${name}.png` });
}
await browser.close();
server.close();
