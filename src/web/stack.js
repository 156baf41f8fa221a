'use strict';
// The program runs until it waits. Its stack is laid aside then (Binaryen's Asyncify).

/** Nothing before it runs and after it has ended. @type {Program | undefined} */
let program;
let stack = 0; // where its stack lies while it waits
/** What it waits for. @type {'' | 'input' | 'box'} */
let awaited = '';
let alarm = 0; // the timer that ends a wait for input

const Rewinding = 2;

/**
 * An import of the program that returns only after `goOn`.
 * @param {(...values: number[]) => void} begin says what is awaited
 * @returns {(...values: number[]) => void}
 */
function suspending(begin) {
  return (...values) => {
    if (!program) return;
    if (program.asyncify_get_state() == Rewinding) return program.asyncify_stop_rewind();
    begin(...values);
    program.asyncify_start_unwind(stack);
  };
}

/**
 * Calls into the program. Only what is thrown in there ends the game.
 * @param {(program: Program) => void} call
 */
function enter(call) {
  if (!program) return;
  try {
    call(program);
  } catch (reason) {
    leave(reason);
  }
}

/** @param {Program} program */
function run(program) {
  program.run();
  program.asyncify_stop_unwind();
}

function goOn() {
  clearTimeout(alarm);
  awaited = '';
  enter(program => {
    program.asyncify_start_rewind(stack);
    run(program);
  });
}

/**
 * Hands input to the program.
 * @param {(program: Program) => void} queue
 */
function put(queue) {
  if (box.open) return;
  enter(queue);
  if (awaited == 'input') goOn();
}

const cancelDrag = () => put(program => program.cancelDrag());
