// The time that scripts take for what a person does: each listener and each callback is timed, whoever's it is, and
// nothing of the browser's own work. Only where it is asked for, since making the fields would pay for it.
let depth = 0;
let total = 0;

export const spent = () => total;
export const again = () => { total = 0; };

function timed(call) {
  return function (...given) {
    if (depth > 0) return call.apply(this, given);
    depth++;
    const began = performance.now();
    try {
      return call.apply(this, given);
    } finally {
      total += performance.now() - began;
      depth--;
    }
  };
}

if (location.hash === '#keys') {
  const { addEventListener: add, removeEventListener: remove } = EventTarget.prototype;
  const known = new WeakMap();
  const wrapped = (listener) => {
    if (!listener) return listener;
    const call = typeof listener === 'function' ? listener : (event) => listener.handleEvent(event);
    if (!known.has(listener)) known.set(listener, timed(call));
    return known.get(listener);
  };
  EventTarget.prototype.addEventListener = function (type, listener, options) {
    return add.call(this, type, wrapped(listener), options);
  };
  EventTarget.prototype.removeEventListener = function (type, listener, options) {
    return remove.call(this, type, wrapped(listener), options);
  };
  for (const name of ['setTimeout', 'requestAnimationFrame', 'requestIdleCallback', 'queueMicrotask']) {
    const own = globalThis[name];
    globalThis[name] = (call, ...more) => own.call(globalThis, timed(call), ...more);
  }
}
