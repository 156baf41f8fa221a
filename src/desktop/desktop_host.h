#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <memory>
#include <vector>

#include "desktop/form_window.h"
#include "toolkit/host.h"

/// The host of the real game: Qt 6 Widgets. A form that it shows must live until it is closed.
class DesktopHost : public Host {
 public:
  DesktopHost();

  Instant Now() override;
  double SecondsSinceMidnight() override;
  void WaitForInput(std::optional<Instant> until) override;
  void ShowMessageBox(const MessageBox& box) override;
  void ShowForms(std::span<Form* const> forms, const Drag& drag) override;
  [[noreturn]] void End() override;

 private:
  void Put(const InputEvent& event);
  void CloseWindows(std::span<Form* const> forms);
  FormWindow& WindowOf(Form& form);

  QElapsedTimer clock;
  QTimer alarm;                   // armed for the instant waited for; off in an idle game
  QEventLoop* waiting = nullptr;  // the wait under way
  std::vector<std::unique_ptr<FormWindow>> windows;
  const Form* frontmost = nullptr;
};
