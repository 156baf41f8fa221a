#include "toolkit/toolkit.h"

#include <algorithm>
#include <cassert>
#include <cstdlib>

void Toolkit::Run() {
  for (;;) DoEvents();
}

void Toolkit::DoEvents() {
  while (!DeliverTick() && !DeliverInput()) {
    Refresh();
    const TimerControl* next = NextTimer();
    host.WaitForInput(next ? std::optional(next->NextDue) : std::nullopt);
  }
  Refresh();
}

void Toolkit::MsgBox(const std::string& text, MessageIcon icon, const std::string& title) {
  pointer.CancelDrag();
  Refresh();
  // No tick and no input comes while the host waits here, because only DoEvents delivers them.
  host.ShowMessageBox({text, icon, title});
}

void Toolkit::Show(Form& form) {
  if (std::ranges::find(forms, &form) == forms.end()) {
    forms.insert(forms.begin(), &form);
    for (TimerControl* timer : form.Timers) {
      assert(timer->Interval.count() > 0);
      timer->NextDue = host.Now() + timer->Interval;
    }
    if (form.Load) form.Load();
  }
  form.Visible = true;
}

void Toolkit::ZOrder(Form& form) {
  const auto place = std::ranges::find(forms, &form);
  if (place != forms.end()) std::rotate(forms.begin(), place, place + 1);
}

void Toolkit::Unload(Form& form) {
  if (form.Unload) form.Unload();
  for (TimerControl* timer : form.Timers) timer->Enabled = false;
  form.Visible = false;
  std::erase(forms, &form);
  if (forms.empty()) End();
}

void Toolkit::SetEnabled(TimerControl& timer, bool enabled) {
  assert(!enabled || timer.Interval.count() > 0);
  if (enabled && !timer.Enabled) timer.NextDue = host.Now() + timer.Interval;
  timer.Enabled = enabled;
}

void Toolkit::End() {
  host.End();
  std::abort();  // never reached: without it g++ warns that this function returns
}

bool Toolkit::DeliverTick() {
  TimerControl* timer = NextTimer();
  const Instant now = host.Now();
  if (!timer || timer->NextDue > now) return false;
  // Missed ticks are delivered as one, and the next tick keeps the old rhythm.
  timer->NextDue += ((now - timer->NextDue) / timer->Interval + 1) * timer->Interval;
  timer->InHandler = true;
  timer->Tick();
  timer->InHandler = false;
  return true;
}

bool Toolkit::DeliverInput() {
  if (host.Queue.empty()) return false;
  const InputEvent event = host.Queue.front();
  host.Queue.pop_front();
  if (std::ranges::find(forms, event.Window) == forms.end()) return true;  // closed meanwhile
  switch (event.What) {
    case InputEvent::Kind::Press:
    case InputEvent::Kind::Move:
    case InputEvent::Kind::Release:
      pointer.Handle(event);
      break;
    case InputEvent::Kind::CancelDrag:
      pointer.CancelDrag();
      break;
    case InputEvent::Kind::MenuCommand:
      pointer.CancelDrag();
      if (event.Command->Click) event.Command->Click();
      break;
    case InputEvent::Kind::Close:
      Unload(*event.Window);
      break;
  }
  return true;
}

/// The timer that ticks next, due or not. Null if none is on.
TimerControl* Toolkit::NextTimer() const {
  TimerControl* next = nullptr;
  for (const Form* form : forms) {
    for (TimerControl* timer : form->Timers) {
      if (timer->Enabled && !timer->InHandler && (!next || timer->NextDue < next->NextDue)) {
        next = timer;
      }
    }
  }
  return next;
}

void Toolkit::Refresh() { host.ShowForms(forms, pointer.CurrentDrag()); }
