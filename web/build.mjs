// Bundles the package into dist: build.mjs [--wasm DIR] takes the modules from a build folder of CMake.
import { build, transform } from 'esbuild';
import { copyFile, mkdir, readFile } from 'node:fs/promises';
import { fileURLToPath } from 'node:url';
import path from 'node:path';

const here = path.dirname(fileURLToPath(import.meta.url));
const dist = path.join(here, 'dist');
const modules = process.argv[2] ?? path.join(here, '../build/wasm/src');
await mkdir(dist, { recursive: true });

// The styles stand in the script as a text, which the bundler leaves as it is.
const styles = {
  name: 'styles',
  setup({ onLoad }) {
    onLoad({ filter: /src.styles\.ts$/ }, async ({ path: file }) => {
      const script = await readFile(file, 'utf8');
      const [, css] = /`([^`]+)`/.exec(script);
      const { code } = await transform(css, { loader: 'css', minify: true, target: 'es2022' });
      return { contents: script.replace(css, () => code.trim()), loader: 'ts' };
    });
  },
};

// Names of our own long enough to weigh, which neither the browser nor a page's author uses.
const inside = ['applyAnswer', 'applyFocus', 'beforeInput', 'beforeSubmit', 'boxed', 'clearRefusal', 'committed',
  'composing', 'composingInput', 'compositionEnd', 'cutOrCopy', 'deaf', 'droppedDown', 'elementAt', 'erasing',
  'fetchMunicipios', 'firstInput', 'focusChild', 'focusedPlace', 'focusEntry', 'focusField', 'handOverStale',
  'hasEntryFocused', 'hasMunicipios', 'hearer', 'isForAll', 'joined', 'judged', 'knownText', 'listCount',
  'listIsOpen', 'makeEntry', 'makeList', 'makePlain', 'makeRow', 'makeTemplate', 'maskValue', 'nameAll',
  'nameEntries', 'nameSoon', 'noteStale', 'offline', 'pasteKey', 'prepare', 'refusals', 'retype', 'rewrites',
  'rowHeight', 'showAgain', 'showEntry', 'showLabel', 'showList', 'showMunicipios', 'shownMask', 'shownValue',
  'staleViews', 'startSoon', 'submitNow', 'tableAddress', 'tabsRound', 'takeComposed', 'takeStale', 'tellChange',
  'textOf', 'toolTip', 'unnamed', 'valueBefore', 'verdict', 'wantMunicipios', 'watched', 'writeTyped', 'writtenAtOnce'];
const mangleProps = new RegExp(`^(${inside.join('|')})$`);

const common = { bundle: true, format: 'esm', target: 'es2022', minify: !process.env.PLAIN, sourcemap: true, outdir: dist, logLevel: 'warning' };
await build({
  ...common,
  entryPoints: { gabarito: path.join(here, 'src/index.ts') },
  platform: 'browser',
  mangleProps,
  plugins: [styles],
});
await build({ ...common, entryPoints: { headless: path.join(here, 'src/headless.ts') }, platform: 'browser' });
await build({
  ...common,
  entryPoints: { 'headless.node': path.join(here, 'src/headless.node.ts') },
  platform: 'node',
});

await copyFile(path.join(modules, 'hosts/web/gabarito.wasm'), path.join(dist, 'gabarito.wasm'));
await copyFile(path.join(modules, 'headless/headless.wasm'), path.join(dist, 'headless.wasm'));
await copyFile(path.join(here, '../src/gabarito/combo/municipios.txt'), path.join(dist, 'municipios.txt'));
await copyFile(path.join(here, '../LICENSE'), path.join(here, 'LICENSE'));


// The page of the script language, for tests and for `./demo web script`; no part of the package.
await build({
  ...common,
  entryPoints: { stage: path.join(here, 'script/stage.ts') },
  outdir: path.join(dist, 'script'),
  minify: false,
});
await copyFile(path.join(modules, 'hosts/web/script/script.wasm'), path.join(dist, 'script/script.wasm'));
await copyFile(path.join(here, 'script/index.html'), path.join(dist, 'script/index.html'));
await copyFile(path.join(here, '../src/gabarito/combo/municipios.txt'), path.join(dist, 'script/municipios.txt'));

// The playground, beside the package as a page would have it.
await mkdir(path.join(dist, 'playground'), { recursive: true });
await build({
  entryPoints: { playground: path.join(here, 'playground/playground.ts') },
  bundle: true,
  format: 'esm',
  target: 'es2022',
  outdir: path.join(dist, 'playground'),
  alias: { gabarito: '../gabarito.js' },
  external: ['../gabarito.js'],
});
for (const file of ['index.html', 'playground.css', 'icon.svg']) {
  await copyFile(path.join(here, 'playground', file), path.join(dist, 'playground', file));
}
await copyFile(path.join(here, 'playground/playground.ts'), path.join(dist, 'playground/playground.ts.txt'));
