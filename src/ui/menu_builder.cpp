#include "ui/menu_builder.h"

#include <QMenu>
#include <algorithm>

namespace pluvane {

std::map<std::string, QAction*> BuildMenus(QMenuBar* bar, const std::vector<MenuItem>& items,
                                           const std::function<void(const std::string&)>& run,
                                           const std::vector<std::string>& empty_menus) {
  std::map<std::string, QAction*> actions;
  std::vector<QMenu*> parents;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const MenuItem& item = items[i];
    const QString caption = QString::fromUtf8(item.caption.data(), item.caption.size());
    const std::string name(item.name);
    parents.resize(std::min<std::size_t>(parents.size(), item.level));
    const bool has_children = i + 1 < items.size() && items[i + 1].level > item.level;
    const bool empty_menu =
        std::find(empty_menus.begin(), empty_menus.end(), name) != empty_menus.end();
    if (has_children || empty_menu || item.level == 0 || parents.empty()) {
      QMenu* menu = parents.empty() ? bar->addMenu(caption) : parents.back()->addMenu(caption);
      menu->setObjectName(QString::fromStdString(name));
      actions[name] = menu->menuAction();
      parents.push_back(menu);
      continue;
    }
    QAction* action = parents.back()->addAction(caption);
    action->setObjectName(QString::fromStdString(name));
    actions[name] = action;
    QObject::connect(action, &QAction::triggered, bar, [run, name] { run(name); });
  }
  return actions;
}

}  // namespace pluvane
