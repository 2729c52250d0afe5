// A small server for the playground and the tests: files of one folder or more, on this machine alone.
import { createServer } from 'node:http';
import { readFile } from 'node:fs/promises';
import path from 'node:path';

const types = {
  '.html': 'text/html; charset=utf-8',
  '.js': 'text/javascript; charset=utf-8',
  '.css': 'text/css; charset=utf-8',
  '.json': 'application/json',
  '.map': 'application/json',
  '.txt': 'text/plain; charset=utf-8',
  '.wasm': 'application/wasm',
  '.svg': 'image/svg+xml',
};

// `roots` are tried in order. `headers` are sent with every answer, and `answer` may answer first.
export async function serve(roots, { port = 0, headers = {}, answer } = {}) {
  const server = createServer(async (request, response) => {
    const { pathname } = new URL(request.url, 'http://localhost');
    if (await answer?.(pathname, request, response)) return;
    for (const root of roots) {
      const file = path.join(root, pathname.endsWith('/') ? `${pathname}index.html` : pathname);
      if (!file.startsWith(root)) break;
      try {
        const body = await readFile(file);
        response.writeHead(200, { 'content-type': types[path.extname(file)] ?? 'application/octet-stream', ...headers });
        response.end(body);
        return;
      } catch {
        // The next root.
      }
    }
    response.writeHead(404).end();
  });
  await new Promise((resolve) => server.listen(port, '127.0.0.1', resolve));
  return { address: `http://localhost:${server.address().port}/`, close: () => server.close() };
}
