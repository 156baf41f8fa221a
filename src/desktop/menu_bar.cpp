#include "desktop/menu_bar.h"

#include <QAction>
#include <QMenu>

namespace {

struct MenuEvents {
  std::function<void(const MenuItem&)> Choose;
  std::function<void()> Open;
};

void FillMenu(QMenu& menu, const std::vector<MenuItem>& items, const MenuEvents& events);

/// Adds a menu to a menu bar or to another menu.
template <typename Parent>
void AddMenu(Parent& parent, const MenuItem& item, const MenuEvents& events) {
  QMenu* menu = parent.addMenu(QString::fromStdString(item.Caption));
  QObject::connect(menu, &QMenu::aboutToShow, menu, events.Open);
  FillMenu(*menu, item.Items, events);
}

void AddCommand(QMenu& menu, const MenuItem& item, const MenuEvents& events) {
  QAction* action = menu.addAction(QString::fromStdString(item.Caption));
  action->setShortcut(QKeySequence(QString::fromStdString(item.Shortcut)));
  QObject::connect(action, &QAction::triggered, &menu,
                   [&item, choose = events.Choose] { choose(item); });
}

void FillMenu(QMenu& menu, const std::vector<MenuItem>& items, const MenuEvents& events) {
  for (const MenuItem& item : items) {
    if (item.Caption == "-") {
      menu.addSeparator();
    } else if (!item.Items.empty()) {
      AddMenu(menu, item, events);
    } else {
      AddCommand(menu, item, events);
    }
  }
}

}  // namespace

void FillMenuBar(QMenuBar& bar, const std::vector<MenuItem>& items,
                 const std::function<void(const MenuItem&)>& choose,
                 const std::function<void()>& open) {
  for (const MenuItem& item : items) AddMenu(bar, item, {choose, open});
}
