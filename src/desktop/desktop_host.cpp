#include "desktop/desktop_host.h"

#include <QTime>
#include <algorithm>
#include <cstdlib>

#include "desktop/accessibility.h"
#include "desktop/message_box.h"

DesktopHost::DesktopHost() {
  InstallAccessibility();
  clock.start();
  alarm.setSingleShot(true);
  alarm.setTimerType(Qt::PreciseTimer);
  alarm.callOnTimeout([this] {
    if (waiting) waiting->quit();
  });
}

Instant DesktopHost::Now() {
  return std::chrono::duration_cast<Instant>(std::chrono::nanoseconds(clock.nsecsElapsed()));
}

double DesktopHost::SecondsSinceMidnight() {
  return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void DesktopHost::WaitForInput(std::optional<Instant> until) {
  if (!Queue.empty()) return;
  QEventLoop loop;
  waiting = &loop;
  if (until) {
    // May be negative by now, and QTimer refuses that.
    const auto delay = std::chrono::ceil<std::chrono::milliseconds>(*until - Now());
    alarm.start(std::max(delay, std::chrono::milliseconds(0)));
  }
  loop.exec();
  alarm.stop();
  waiting = nullptr;
}

void DesktopHost::ShowMessageBox(const MessageBox& box) {
  ShowModal(box, windows.empty() ? nullptr : windows.back()->Widget());
}

void DesktopHost::ShowForms(std::span<Form* const> forms, const Drag& drag) {
  for (Form* form : forms) {
    if (form->Visible) WindowOf(*form).Refresh(drag);
  }
  CloseWindows(forms);
  if (forms.empty() || frontmost == forms.front()) return;
  frontmost = forms.front();
  if (frontmost->Visible) WindowOf(*forms.front()).Raise();
}

void DesktopHost::End() {
  // No destructors: the call may come from any depth, inside a message box or a wait.
  std::quick_exit(0);
}

void DesktopHost::Put(const InputEvent& event) {
  Queue.push_back(event);
  if (waiting) waiting->quit();
}

void DesktopHost::CloseWindows(std::span<Form* const> forms) {
  std::erase_if(windows, [&](const std::unique_ptr<FormWindow>& window) {
    return std::ranges::none_of(
        forms, [&](const Form* form) { return form == &window->ViewedForm() && form->Visible; });
  });
}

FormWindow& DesktopHost::WindowOf(Form& form) {
  const auto shown = std::ranges::find_if(
      windows, [&](const auto& window) { return &window->ViewedForm() == &form; });
  if (shown != windows.end()) return **shown;
  windows.push_back(
      std::make_unique<FormWindow>(form, [this](const InputEvent& event) { Put(event); }));
  return *windows.back();
}
