#include "support/virtual_host.h"

#include <algorithm>

void VirtualHost::WaitForInput(std::optional<Instant> until) {
  while (Queue.empty() && RunBooked(until.value_or(Instant::max()))) {
  }
  if (!Queue.empty()) return;
  if (!until) throw Quiet{};
  now = std::max(now, *until);
}

void VirtualHost::ShowMessageBox(const MessageBox& box) {
  Boxes.push_back(box);
  if (OnBox) OnBox(box);
  IsBoxOpen = true;
  const Instant closing = now + BoxTime;
  while (RunBooked(closing)) {
  }
  now = closing;
  IsBoxOpen = false;
}

void VirtualHost::ShowForms(std::span<Form* const> forms, const Drag& drag) {
  Forms.assign(forms.begin(), forms.end());
  ShownDrag = drag;
  if (OnShow) OnShow();
}

void VirtualHost::Put(const InputEvent& event) {
  if (!IsBoxOpen) Queue.push_back(event);
}

/// Runs the next booked action that comes no later than `until`. False if there is none.
bool VirtualHost::RunBooked(Instant until) {
  if (booked.empty() || booked.begin()->first > until) return false;
  auto next = booked.extract(booked.begin());
  now = std::max(now, next.key());
  next.mapped()();
  return true;
}
