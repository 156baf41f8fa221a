#pragma once

#include <deque>
#include <optional>
#include <span>
#include <string>

#include "toolkit/form.h"

/// Raw input as a host saw it. Presses and releases are those of the left button.
struct InputEvent {
  enum class Kind {
    Press,
    Move,
    Release,
    CancelDrag,   // Escape, another button, the pointer or the focus lost, a menu opened
    MenuCommand,  // of Command
    Close,        // the user asks to close the window
  };

  Kind What = Kind::Move;
  Form* Window = nullptr;
  Point At{};                         // Press, Move, Release: may lie outside the client area
  const MenuItem* Command = nullptr;  // MenuCommand
};

enum class MessageIcon { Stop = 16, Warning = 48, Information = 64 };

/// A modal message with one OK button.
struct MessageBox {
  std::string Text;  // plain text; CR LF breaks the line
  MessageIcon Icon = MessageIcon::Information;
  std::string Title;
};

/// The drag under way, for the outline that follows the pointer. No drag: `Source` is empty.
struct Drag {
  const Form* Window = nullptr;
  const Control* Source = nullptr;
  Point Start;    // of the press
  Point Pointer;  // now
};

/// Whatever really draws and waits. It queues input and never calls a handler.
class Host {
 public:
  virtual ~Host() = default;

  /// The time of the timers.
  virtual Instant Now() = 0;

  /// The time of day, with a fraction: at least 0, below 86,400.
  virtual double SecondsSinceMidnight() = 0;

  /// Sleeps until input has been queued or `until` has come; with no instant, until input alone.
  virtual void WaitForInput(std::optional<Instant> until) = 0;

  /// Shows a message box, and returns when the user has closed it.
  virtual void ShowMessageBox(const MessageBox& box) = 0;

  /// Brings the screen up to date. `forms` holds the loaded forms, the frontmost first.
  virtual void ShowForms(std::span<Form* const> forms, const Drag& drag) = 0;

  /// Leaves the process at once with exit code 0.
  [[noreturn]] virtual void End() = 0;

  /// Input not yet delivered, the oldest first. The host puts events in, the toolkit takes them
  /// out.
  std::deque<InputEvent> Queue;
};
