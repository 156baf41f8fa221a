'use strict';
// The beginning and the end of the game.

/**
 * Leaves a sentence instead of the game, of which nothing runs any more.
 * @param {unknown} reason
 */
function leave(reason) {
  main.className = '';
  if (reason != Ended) console.error(reason);
  if (!program) return;  // it never ran: the page's own sentence has stood there all the time
  program = undefined;
  clearTimeout(alarm);
  box.close();
  main.innerHTML = '<p></p><button>Start again</button>';
  one('main p').textContent =
      reason == Ended ? 'The game is closed.' : 'The game has found a fault in itself and stopped.';
  one('main button').onclick = () => location.reload();
  one('main button').focus();
}

async function start() {
  const packed = Uint8Array.from(atob(one('#program').textContent ?? ''), c => c.charCodeAt(0));
  const bytes = new Blob([packed]).stream().pipeThrough(new DecompressionStream('gzip'));
  const answer = new Response(bytes, {headers: {'Content-Type': 'application/wasm'}});
  const {instance} = await WebAssembly.instantiateStreaming(answer, {page});
  program = /** @type {Program} */ (/** @type {unknown} */ (instance.exports));
  program._initialize();
  stack = program.stack();
  enter(run);
}

window.velmoran = {
  get program() { return program; },
  get awaited() { return awaited; },
};
start().catch(leave);
