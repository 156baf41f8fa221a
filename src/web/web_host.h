#pragma once

#include <optional>
#include <vector>

#include "toolkit/host.h"
#include "toolkit/shown_form.h"

/// The host of the game in a web page. A page has room for one form: the frontmost is shown alone.
class WebHost : public Host {
 public:
  Instant Now() override;
  double SecondsSinceMidnight() override;
  void WaitForInput(std::optional<Instant> until) override;
  void ShowMessageBox(const MessageBox& box) override;
  void ShowForms(std::span<Form* const> forms, const Drag& drag) override;
  [[noreturn]] void End() override;

  /// Queues input to the form that is shown. `command` is the value that `MenuMarkup` gave a
  /// command, and counts for a menu command alone.
  void Put(InputEvent::Kind what, Point at = {}, std::size_t command = 0);

 private:
  void Open(Form& form);
  void Refresh(const Drag& drag);

  Form* window = nullptr;  // the form that is shown; empty before the first
  std::optional<ShownForm> shown;
  std::vector<const MenuItem*> commands;  // of its menu, by their values
};
