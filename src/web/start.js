'use strict';
// The start and the end of the game.

/** Tells the player why the game has ended. @param {unknown} reason */
function sentenceFor(reason) {
  if (reason == Ended) return 'The game is closed.';
  if (!window.WebAssembly || (!program && reason instanceof WebAssembly.CompileError)) {
    return 'This game needs WebAssembly, which a setting or a policy forbids here.';
  }
  return 'The game has found a fault in itself and stopped.';
}

/** Ends the game and shows the reason in its place. @param {unknown} reason */
function leave(reason) {
  if (reason != Ended) console.error(reason);
  main.innerHTML = '<p></p><button>Start again</button>';
  one('main p').textContent = sentenceFor(reason);
  one('main button').onclick = () => location.reload();
  program = undefined;
  awaited = '';
  clearTimeout(alarm);
  box.close();
  one('main button').focus();
}

async function start() {
  main.className = '';
  if (!window.DecompressionStream) return; // too old a browser: the sentence in <main> stays
  // A page that was saved during a game still contains what it showed.
  main.textContent = news.textContent = '';
  box.open = false;
  const packed = Uint8Array.from(atob(one('#program').textContent ?? ''), c => c.charCodeAt(0));
  const bytes = new Blob([packed]).stream().pipeThrough(new DecompressionStream('gzip'));
  const answer = new Response(bytes, {headers: {'Content-Type': 'application/wasm'}});
  const {instance} = await WebAssembly.instantiateStreaming(answer, {page});
  program = /** @type {Program} */ (/** @type {unknown} */ (instance.exports));
  program._initialize();
  stack = program.stack();
  enter(run);
}

start().catch(leave);
