'use strict';
// The program runs until it waits. Then its stack is saved (by Binaryen's Asyncify), and the page
// goes on.

/** Undefined before it runs and after it has ended. @type {Program | undefined} */
let program;
let stack = 0; // the address of the buffer in which its stack is saved
/** What the program waits for; empty while it does not wait. @type {'' | 'input' | 'box'} */
let awaited = '';
let alarm = 0; // the id of the timer that ends a wait for input

const Rewinding = 2;

/**
 * An import of the program that returns to it only after `goOn`. The program calls it twice: first
 * to wait, which saves its stack, and once more when the stack has been restored.
 * @param {(...values: number[]) => void} begin starts the wait and sets `awaited`
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
 * Calls into the program. An error in there ends the game; one elsewhere in the page does not.
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

/** Ends the wait: restores the stack and resumes the program. */
function goOn() {
  clearTimeout(alarm);
  awaited = '';
  enter(program => {
    program.asyncify_start_rewind(stack);
    run(program);
  });
}

/**
 * Queues input of the program, and resumes it if it waits for input. Dropped while a box is open.
 * @param {(program: Program) => void} queue
 */
function put(queue) {
  if (box.open) return;
  enter(queue);
  if (awaited == 'input') goOn();
}

const cancelDrag = () => put(program => program.cancelDrag());
