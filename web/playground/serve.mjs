// Serves the playground: serve.mjs [PORT].
import { serve } from '../serve.mjs';

const { address } = await serve([new URL('../dist/', import.meta.url).pathname], { port: Number(process.argv[2] ?? 0) });
console.log(`${address}playground/`);
