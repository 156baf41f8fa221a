#include "web/web_host.h"

#include <algorithm>
#include <cassert>

#include "toolkit/svg.h"
#include "web/markup.h"
#include "web/menu_markup.h"
#include "web/page.h"

Instant WebHost::Now() { return Instant(static_cast<Instant::rep>(PageNow() * 1000)); }

double WebHost::SecondsSinceMidnight() { return PageSecondsSinceMidnight(); }

void WebHost::WaitForInput(std::optional<Instant> until) {
  if (!Queue.empty()) return;
  using Milliseconds = std::chrono::duration<double, std::milli>;
  PageWait(until ? Milliseconds(std::max(*until - Now(), Instant(0))).count() : -1);
}

void WebHost::ShowMessageBox(const MessageBox& box) {
  PageShowBox(box.Text.c_str(), box.Title.c_str(), static_cast<int>(box.Icon));
}

void WebHost::ShowForms(std::span<Form* const> forms, const Drag& drag) {
  const auto front = std::ranges::find_if(forms, &Form::Visible);
  if (front == forms.end()) return;
  if (*front != window) Open(**front);
  Refresh(drag);
}

void WebHost::End() { PageEnd(); }

void WebHost::Put(InputEvent::Kind what, Point at, std::size_t command) {
  InputEvent event{.What = what, .Window = window, .At = at};
  if (what == InputEvent::Kind::MenuCommand) event.Command = commands.at(command);
  Queue.push_back(event);
}

void WebHost::Open(Form& form) {
  window = &form;
  shown.emplace(form);
  const std::string markup = MenuMarkup(form.Menu, commands) + FormMarkup(form);
  const std::string icon = form.Icon ? IconMarkup(*form.Icon) : "";
  PageOpen(markup.c_str(), form.Caption.c_str(), icon.c_str());
}

void WebHost::Refresh(const Drag& drag) {
  assert(shown);
  const ShownForm::Changes changes = shown->Update(drag);
  for (const ShownForm::ChangedLook& look : changes.Looks) {
    PagePaint(look.Place, ControlMarkup(*window->Controls[look.Place]).c_str());
  }
  std::string news;
  for (const auto& [place, before, now] : changes.Words) {
    PageDescribe(place, now.c_str());
    if (!before.empty()) news += (news.empty() ? "" : ", ") + now;
  }
  if (!news.empty()) PageAnnounce(news.c_str());
  if (!changes.HasOutlineChanged) return;
  const std::optional<Rect>& outline = shown->Outline();
  PagePaint(window->Controls.size(), outline ? OutlineMarkup(*outline).c_str() : "");
}
