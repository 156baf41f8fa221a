#pragma once

#include <string>
#include <vector>

#include "toolkit/host.h"
#include "toolkit/pointer.h"
#include "toolkit/random.h"

/// A small window toolkit on one thread. Handlers start from `Run` or from `DoEvents`, never from a
/// host, and only `DoEvents` and `MsgBox` wait.
class Toolkit {
 public:
  /// The host must outlive the toolkit.
  explicit Toolkit(Host& host) : host(host) {}
  Toolkit(const Toolkit&) = delete;
  Toolkit& operator=(const Toolkit&) = delete;

  /// The main loop. Only `End` leaves it.
  [[noreturn]] void Run();

  /// Delivers one due tick or one waiting event, and sleeps first until there is one.
  void DoEvents();

  /// Shows a modal message and returns when the user has closed it. No timer ticks meanwhile,
  /// and a drag under way is cancelled.
  void MsgBox(const std::string& text, MessageIcon icon, const std::string& title);

  /// Shows a form in front of the others. The first time starts its timers and runs its `Load`.
  /// The form must live until it is closed.
  void Show(Form& form);

  /// Brings a form to the front. Does nothing if it has not been shown or is closed.
  void ZOrder(Form& form);

  /// Closes a form: runs its `Unload` and stops its timers. Closing the last form ends the program.
  void Unload(Form& form);

  /// Switches a timer. One that is on already does not restart. Switching off drops a due tick.
  void SetEnabled(TimerControl& timer, bool enabled);

  /// Seconds since midnight, with a fraction.
  double Timer() { return host.SecondsSinceMidnight(); }

  /// Ends the program at once, from any depth of calls.
  [[noreturn]] void End();

  Random random;

 private:
  bool DeliverTick();
  bool DeliverInput();
  TimerControl* NextTimer() const;
  void Refresh();

  Host& host;
  std::vector<Form*> forms;  // the loaded ones, the frontmost first
  Pointer pointer;
};
