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

// Input, with its point in twips.
TO_PAGE(press) void Press(int x, int y) { TheHost().Put(InputEvent::Kind::Press, {x, y}); }
TO_PAGE(move) void Move(int x, int y) { TheHost().Put(InputEvent::Kind::Move, {x, y}); }
TO_PAGE(release) void Release(int x, int y) { TheHost().Put(InputEvent::Kind::Release, {x, y}); }
TO_PAGE(cancelDrag) void CancelDrag() { TheHost().Put(InputEvent::Kind::CancelDrag); }

/// The menu command at this place in `CommandsOf`.
TO_PAGE(choose) void Choose(unsigned command) {
  TheHost().Put(InputEvent::Kind::MenuCommand, {}, command);
}
}
