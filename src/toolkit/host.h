#pragma once

#include <deque>
#include <optional>
#include <span>
#include <string>

#include "toolkit/form.h"

/// Raw input as a host saw it. Presses and releases are those of the left button.
///
/// A host sends `CancelDrag` when a drag ends for a reason that only the host sees: Escape, another
/// button pressed, a menu opened, the window hidden or minimised, the focus or the pointer lost, or
/// a release that never came. Without a drag it does nothing. The toolkit itself ends a drag at a
/// menu command, at a message box and when the dragged image is hidden.
struct InputEvent {
  enum class Kind {
    Press,
    Move,  // one for each movement that the system reports; a host merges none
    Release,
    CancelDrag,
    MenuCommand,  // of Command
    Close,        // the user asks to close the window; it stays until the toolkit closes the form
  };

  Kind What = Kind::Move;
  Form* Window = nullptr;
  Point At{};                         // Press, Move, Release: may lie outside the client area
  const MenuItem* Command = nullptr;  // MenuCommand
};

enum class MessageIcon { Stop = 16, Warning = 48, Information = 64 };

/// A modal message with one OK button.
struct MessageBox {
  std::string Text;  // plain text; CR LF breaks the line. The box keeps these breaks if the screen
                     // is wide enough, and wraps paragraphs, which are longer lines.
  MessageIcon Icon = MessageIcon::Information;
  std::string Title;
};

/// The present drag, for the outline that follows the pointer. `Source` is null if there is none.
struct Drag {
  const Form* Window = nullptr;
  const Control* Source = nullptr;
  Point Start;    // of the press
  Point Pointer;  // now
};

/// Draws and waits for the toolkit. It queues input and never calls a handler.
/// It must outlive the toolkit. A form that is too large for the screen is shown smaller as a
/// whole.
class Host {
 public:
  virtual ~Host() = default;

  /// The time of the timers.
  virtual Instant Now() = 0;

  /// The time of day, with a fraction: at least 0, below 86,400.
  virtual double SecondsSinceMidnight() = 0;

  /// Sleeps until input has been queued or `until` has come. Without `until`: until input comes.
  /// It may return early. It must return at `until` even while an open menu or the like runs a loop
  /// of its own: the timers go on meanwhile.
  virtual void WaitForInput(std::optional<Instant> until) = 0;

  /// Shows a message box, and returns when the user has closed it. Meanwhile the host drops all
  /// other input.
  virtual void ShowMessageBox(const MessageBox& box) = 0;

  /// Updates the screen. `forms` holds the loaded forms, the frontmost first. A form that is not
  /// `Visible` is not shown yet. Called after each event and before each wait, also
  /// when nothing has changed: `ShownForm` finds the changes.
  virtual void ShowForms(std::span<Form* const> forms, const Drag& drag) = 0;

  /// Leaves the process at once with exit code 0.
  [[noreturn]] virtual void End() = 0;

  /// Input not yet delivered, the oldest first. The host puts events in, the toolkit takes them
  /// out.
  std::deque<InputEvent> Queue;
};
