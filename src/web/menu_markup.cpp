#include "web/menu_markup.h"

#include "toolkit/svg.h"

namespace {

/// The entry itself, without what it opens.
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

/// `firstTab` is the tab index of the first entry: the bar takes one stop, its menus none.
std::string ItemsMarkup(const std::vector<MenuItem>& items, int firstTab, int& command) {
  std::string markup;
  int tab = firstTab;
  for (const MenuItem& item : items) {
    std::string attributes = " tabindex=\"" + std::to_string(tab) + "\"";
    tab = -1;
    if (item.Caption == "-") {
      markup += R"(<hr role="separator">)";
    } else if (item.Items.empty()) {
      markup += ItemMarkup(item, attributes + " value=\"" + std::to_string(command++) + "\"");
    } else {
      attributes += R"( aria-haspopup="menu" aria-expanded="false")";
      markup += R"(<div role="none">)" + ItemMarkup(item, attributes) + R"(<div role="menu">)" +
                ItemsMarkup(item.Items, -1, command) + "</div></div>";
    }
  }
  return markup;
}

void AddCommands(const std::vector<MenuItem>& items, std::vector<const MenuItem*>& commands) {
  for (const MenuItem& item : items) {
    if (item.Caption != "-" && item.Items.empty()) commands.push_back(&item);
    AddCommands(item.Items, commands);
  }
}

}  // namespace

std::string MenuMarkup(const std::vector<MenuItem>& menu) {
  int command = 0;
  return menu.empty() ? "" : R"(<nav role="menubar">)" + ItemsMarkup(menu, 0, command) + "</nav>";
}

std::vector<const MenuItem*> CommandsOf(const std::vector<MenuItem>& menu) {
  std::vector<const MenuItem*> commands;
  AddCommands(menu, commands);
  return commands;
}
