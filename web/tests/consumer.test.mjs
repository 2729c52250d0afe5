// An outside consumer: the packed tarball in an empty project, bundled with esbuild and with vite, and opened
// in a browser.
import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { cp, mkdtemp, mkdir, readdir, rm, symlink, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { after, before, describe, test } from 'node:test';
import { promisify } from 'node:util';
import { launch } from '../script/browsers.mjs';
import { serve } from '../serve.mjs';

const run = promisify(execFile);
const web = new URL('..', import.meta.url).pathname;

describe('an outside consumer', () => {
  let project, browser;
  before(async () => {
    project = await mkdtemp(path.join(tmpdir(), 'consumer-'));
    await run('npm', ['pack', '--silent', '--pack-destination', project], { cwd: web });
    const tarball = (await readdir(project)).find((name) => name.endsWith('.tgz'));
    await writeFile(path.join(project, 'package.json'), '{"name":"consumer","type":"module","private":true}');
    const quietly = ['--silent', '--offline', '--no-audit', '--no-fund'];
    await run('npm', ['install', ...quietly, `./${tarball}`], { cwd: project });
    await writeFile(path.join(project, 'main.js'), "import 'gabarito';\n");
    await writeFile(
      path.join(project, 'index.html'),
      '<!doctype html><html lang="pt-BR"><title>c</title><script type="module" src="./main.js"></script>' +
        '<form id="form"><gabarito-field id=cpf name="cpf" mask="cpf" value="11144477735"></gabarito-field>' +
        '<gabarito-field id="municipio" mask="gbCidadeEstadoPopulado"></gabarito-field></form>',
    );
    browser = await launch('chromium');
  });
  after(async () => {
    await browser.close();
    await rm(project, { recursive: true });
  });

  async function opens(folder) {
    const server = await serve([folder]);
    const page = await browser.newPage();
    await page.goto(server.address);
    await page.waitForFunction(() => globalThis.cpf.shadowRoot?.querySelector('.box:not(.plain)'));
    const sent = await page.evaluate(() => Object.fromEntries(new FormData(document.querySelector('#form'))));
    assert.deepEqual(sent, { cpf: '111.444.777-35' });
    await page.waitForFunction(() => globalThis.municipio.comboListCount === 5652);
    await page.close();
    server.close();
  }

  test('the tarball holds what a page and a server need, and no test', async () => {
    const { stdout } = await run('npm', ['pack', '--dry-run', '--json'], { cwd: web });
    const names = JSON.parse(stdout)[0].files.map((file) => file.path);
    const built = ['gabarito.js', 'gabarito.wasm', 'headless.node.js', 'headless.wasm', 'municipios.txt',
      'custom-elements.json', 'types/index.d.ts'];
    for (const name of ['LICENSE', 'README.md', ...built.map((file) => `dist/${file}`)]) {
      assert.ok(names.includes(name), `${name} is missing`);
    }
    assert.deepEqual(names.filter((name) => /script|playground|test/.test(name)), []);
  });

  test('esbuild, with the files copied to where the page says', async () => {
    const out = path.join(project, 'out');
    const files = path.join(out, 'files');
    await mkdir(files, { recursive: true });
    const script = "import { setModuleAddress } from 'gabarito'; setModuleAddress('files/gabarito.wasm');";
    await writeFile(path.join(project, 'other.js'), script);
    const esbuild = path.join(web, 'node_modules/.bin/esbuild');
    await run(esbuild, ['other.js', '--bundle', '--format=esm', '--outfile=out/main.js'], { cwd: project });
    for (const file of ['gabarito.wasm', 'municipios.txt']) {
      await cp(path.join(project, 'node_modules/gabarito/dist', file), path.join(files, file));
    }
    await cp(path.join(project, 'index.html'), path.join(out, 'index.html'));
    await opens(out);
  });

  test('vite, which takes the module along', async () => {
    await symlink(path.join(web, 'node_modules/vite'), path.join(project, 'node_modules/vite'));
    const vite = path.join(web, 'node_modules/vite/bin/vite.js');
    await run(process.execPath, [vite, 'build', '--logLevel', 'error'], { cwd: project });
    await opens(path.join(project, 'dist'));
  });

  test('Node, with the rules of the form', async () => {
    const code = "import { clean } from 'gabarito/headless'; console.log(clean('cpf', '11144477735').value);";
    await writeFile(path.join(project, 'server.js'), code);
    const { stdout } = await run(process.execPath, ['server.js'], { cwd: project });
    assert.equal(stdout, '111.444.777-35\n');
  });
});
