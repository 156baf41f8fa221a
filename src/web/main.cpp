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

/// The pointer is at this point, in twips, with these buttons down, as `ButtonWatch` takes them.
TO_PAGE(see) void See(int x, int y, unsigned buttons, bool isMove) {
  static ButtonWatch watch;
  for (const InputEvent::Kind what : watch.See(buttons, isMove)) TheHost().Put(what, {x, y});
}

/// Ends the drag: the page is left, a menu has been opened, or the like.
TO_PAGE(cancelDrag) void CancelDrag() { TheHost().Put(InputEvent::Kind::CancelDrag); }

/// The menu command of this value.
TO_PAGE(choose) void Choose(unsigned command) {
  TheHost().Put(InputEvent::Kind::MenuCommand, {}, command);
}
}
