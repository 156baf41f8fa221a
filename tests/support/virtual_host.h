#pragma once

#include <map>

#include "toolkit/host.h"

/// `End` has been called. The game on the desktop leaves its process there.
struct ProgramEnded {};

/// Thrown from a wait that nothing can end.
struct Quiet {};

/// A host whose clock jumps to the next instant at which something happens. Actions can be booked,
/// so that they also run during a wait or while a message box is open.
class VirtualHost : public Host {
 public:
  Instant Now() override { return now; }
  double SecondsSinceMidnight() override {
    return Midnight + std::chrono::duration<double>(now).count();
  }
  void WaitForInput(std::optional<Instant> until) override;
  void ShowMessageBox(const MessageBox& box) override;
  void ShowForms(std::span<Form* const> forms, const Drag& drag) override;
  [[noreturn]] void End() override { throw ProgramEnded{}; }

  /// Books an action. Those of the same instant run in the order of booking.
  void At(Instant when, std::function<void()> action) { booked.emplace(when, std::move(action)); }

  /// Queues input, or drops it while a message box is open.
  void Put(const InputEvent& event);

  /// Whether input waits or an action is booked.
  bool HasWork() const { return !Queue.empty() || !booked.empty(); }

  std::vector<MessageBox> Boxes;
  Instant BoxTime{0};   // how long a message box stays open
  double Midnight = 0;  // the time of day at instant 0, in seconds: it seeds the games

  bool IsBoxOpen = false;
  std::function<void()> OnShow;                  // called at each refresh of the screen
  std::function<void(const MessageBox&)> OnBox;  // called when a box opens
  std::vector<Form*> Forms;                      // as last shown, the frontmost first
  Drag ShownDrag;

 private:
  bool RunBooked(Instant until);

  Instant now{0};
  std::multimap<Instant, std::function<void()>> booked;
};
