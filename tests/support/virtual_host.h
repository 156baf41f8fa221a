#pragma once

#include <map>
#include <stdexcept>

#include "toolkit/host.h"

/// `End` has been called. The game on the desktop leaves its process there.
struct ProgramEnded {};

/// Nothing is left that could wake the program. Thrown from a wait that no handler waits in.
struct Quiet {};

/// A host whose clock jumps to the next instant at which something happens. Actions are booked
/// beforehand, so that they also come inside a wait or an open message box.
class VirtualHost : public Host {
 public:
  /// A message box as the user saw it.
  struct ShownBox : MessageBox {
    Instant At{0};
  };

  Instant Now() override { return now; }
  double SecondsSinceMidnight() override {
    return Midnight + std::chrono::duration<double>(now).count();
  }
  void WaitForInput(std::optional<Instant> until) override;
  void ShowMessageBox(const MessageBox& box) override;
  void ShowForms(std::span<Form* const> forms, const Drag& drag) override;
  [[noreturn]] void End() override { throw ProgramEnded{}; }

  /// Books an action. Several of one instant come in the order of their booking.
  void At(Instant when, std::function<void()> action) { booked.emplace(when, std::move(action)); }

  /// Queues input. While a message box is open the windows take none.
  void Put(const InputEvent& event);

  /// Whether input waits or an action is booked.
  bool HasWork() const { return !Queue.empty() || !booked.empty(); }

  std::vector<ShownBox> Boxes;
  Instant BoxTime{0};   // how long a message box stays open
  double Midnight = 0;  // the time of day at instant 0, in seconds: it seeds the games

  bool IsBoxOpen = false;
  std::function<void()> OnShow;                  // the screen is brought up to date
  std::function<void(const MessageBox&)> OnBox;  // a box opens
  std::vector<Form*> Forms;                      // as last shown, the frontmost first
  Drag ShownDrag;

 private:
  bool RunBooked(Instant until);

  Instant now{0};
  std::multimap<Instant, std::function<void()>> booked;
};
