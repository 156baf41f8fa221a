// The interface between program and page. main.cpp describes what the program exports, page.h what
// it imports.

/**
 * What the program exports: its own functions, then those of Asyncify. `stack` and the parameters
 * of that name are addresses in the memory. Call `_initialize` once, before all others.
 */
interface Program {
  readonly memory: WebAssembly.Memory;
  _initialize(): void;
  stack(): number;
  run(): void;
  see(x: number, y: number, buttons: number, isMove: boolean): void;
  cancelDrag(): void;
  choose(command: number): void;
  asyncify_get_state(): number;
  asyncify_stop_unwind(): void;
  asyncify_start_unwind(stack: number): void;
  asyncify_start_rewind(stack: number): void;
  asyncify_stop_rewind(): void;
}

/** What the program imports. A text is the address of UTF-8 that ends with a zero. */
type Imports = {
  now(): number;
  secondsSinceMidnight(): number;
  wait(milliseconds: number): void;
  showBox(text: number, title: number, icon: number): void;
  open(markup: number, title: number, icon: number): void;
  paint(place: number, markup: number): void;
  describe(place: number, words: number): void;
  announce(words: number): void;
  end(): never;
  fail(text: number): never;
};
