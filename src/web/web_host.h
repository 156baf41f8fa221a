#pragma once

#include <optional>
#include <vector>

#include "toolkit/host.h"
#include "toolkit/shown_form.h"

/// The host of the game in a web page. It shows one form at a time, the frontmost visible one. The
/// forms that it has been given must outlive it.
class WebHost : public Host {
 public:
  Instant Now() override;
  double SecondsSinceMidnight() override;
  void WaitForInput(std::optional<Instant> until) override;
  void ShowMessageBox(const MessageBox& box) override;
  void ShowForms(std::span<Form* const> forms, const Drag& drag) override;
  [[noreturn]] void End() override;

  /// Queues input to the form that is shown. `at` is in twips. `command` is only for `MenuCommand`:
  /// the value that `MenuMarkup` gave the entry. One out of range stops the program.
  void Put(InputEvent::Kind what, Point at = {}, std::size_t command = 0);

 private:
  void Open(Form& form);
  void Refresh(const Drag& drag);

  Form* window = nullptr;  // the form that is shown; null before the first
  std::optional<ShownForm> shown;
  std::vector<const MenuItem*> commands;  // of the menu, indexed by the values of the entries
};
