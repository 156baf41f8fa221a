#include <array>
#include <cstdint>

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

// What the page calls.
extern "C" {

/// Where the page keeps the stack while it waits: the address of the free part, that of the end,
/// then the room. The deepest wait seen took half a kilobyte.
TO_PAGE(stack) std::uintptr_t* Stack() {
  static std::array<std::uintptr_t, 1024> stack;
  stack[0] = reinterpret_cast<std::uintptr_t>(&stack[2]);
  stack[1] = reinterpret_cast<std::uintptr_t>(stack.data() + stack.size());
  return stack.data();
}

/// Plays. The page comes back into it each time that a wait is over.
TO_PAGE(run) void Run() { TheProgram().Run(); }

/// Queues input: an `InputEvent::Kind`, its point in twips, and the number of a menu command.
TO_PAGE(put) void Put(int what, int x, int y, unsigned command) {
  TheHost().Put(static_cast<InputEvent::Kind>(what), {x, y}, command);
}
}
