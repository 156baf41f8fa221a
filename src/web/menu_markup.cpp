#include "web/menu_markup.h"

#include "toolkit/svg.h"

namespace {

/// The button of an entry, without its submenu.
std::string ItemMarkup(const MenuItem& item, const std::string& attributes) {
  std::string caption = Escaped(item.Caption);
  constexpr std::string_view Mark = "&amp;";
  if (const auto place = caption.find(Mark); place != caption.npos) {
    const char key = caption[place + Mark.size()];
    caption.replace(place, Mark.size() + 1, std::string("<u>") + key + "</u>");
  }
  const std::string shortcut =
      item.Shortcut.empty() ? "" : "<kbd>" + Escaped(item.Shortcut) + "</kbd>";
  return R"(<button role="menuitem")" + attributes + "><span>" + caption + "</span>" + shortcut +
         "</button>";
}

/// `firstTab` is the tabindex of the first entry; all others get -1. So Tab stops once at the bar.
std::string ItemsMarkup(const std::vector<MenuItem>& items, int firstTab,
                        std::vector<const MenuItem*>& commands) {
  std::string markup;
  int tab = firstTab;
  for (const MenuItem& item : items) {
    std::string attributes = " tabindex=\"" + std::to_string(tab) + "\"";
    tab = -1;
    if (item.Caption == "-") {
      markup += R"(<hr role="separator">)";
    } else if (item.Items.empty()) {
      markup += ItemMarkup(item, attributes + " value=\"" + std::to_string(commands.size()) + "\"");
      commands.push_back(&item);
    } else {
      attributes += R"( aria-haspopup="menu" aria-expanded="false")";
      markup += R"(<div role="none">)" + ItemMarkup(item, attributes) + R"(<div role="menu">)" +
                ItemsMarkup(item.Items, -1, commands) + "</div></div>";
    }
  }
  return markup;
}

}  // namespace

std::string MenuMarkup(const std::vector<MenuItem>& menu, std::vector<const MenuItem*>& commands) {
  commands.clear();
  return menu.empty() ? "" : R"(<nav role="menubar">)" + ItemsMarkup(menu, 0, commands) + "</nav>";
}
