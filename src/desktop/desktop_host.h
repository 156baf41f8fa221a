#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <memory>
#include <vector>

#include "desktop/form_window.h"
#include "toolkit/host.h"

/// The desktop's host, on Qt 6 Widgets. Its forms must outlive it.
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
  QTimer alarm;                   // ends a wait at its instant; off while there is none
  QEventLoop* waiting = nullptr;  // of the present wait
  std::vector<std::unique_ptr<FormWindow>> windows;
  const Form* frontmost = nullptr;
};
