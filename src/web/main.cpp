#include <array>
#include <cstdint>

#include "toolkit/buttons.h"
#include "web/page.h"
#include "web/program.h"
#include "web/web_host.h"

namespace {

WebHost& TheHost() {
  static auto& host = *new WebHost;
  return host;
}

}  // namespace

Program& TheProgram() {
  static auto& program = *new Program(TheHost());
  return program;
}

// The functions that the page calls.
extern "C" {

/// The buffer in which Asyncify saves the stack. Its first word is the address of the free part,
/// its second word the address of the end. The deepest stack measured took half a kilobyte.
TO_PAGE(stack) std::uintptr_t* Stack() {
  static std::array<std::uintptr_t, 1024> stack;
  stack[0] = reinterpret_cast<std::uintptr_t>(&stack[2]);
  stack[1] = reinterpret_cast<std::uintptr_t>(stack.data() + stack.size());
  return stack.data();
}

/// Runs the game. The page calls it again after each wait, and Asyncify then resumes the wait.
TO_PAGE(run) void Run() { TheProgram().Run(); }

/// A pointer event: the point on the form in twips, which may lie outside, and the pressed buttons
/// as the bits that `ButtonWatch` takes. `isMove` says that the event is a movement.
TO_PAGE(see) void See(int x, int y, unsigned buttons, bool isMove) {
  static ButtonWatch watch;
  for (const InputEvent::Kind what : watch.See(buttons, isMove)) TheHost().Put(what, {x, y});
}

/// Queues the end of a drag that only the page sees, such as a menu that opens. Harmless if there
/// is no drag.
TO_PAGE(cancelDrag) void CancelDrag() { TheHost().Put(InputEvent::Kind::CancelDrag); }

/// Queues the menu command whose entry has this value. A value out of range stops the program.
TO_PAGE(choose) void Choose(unsigned command) {
  TheHost().Put(InputEvent::Kind::MenuCommand, {}, command);
}
}
