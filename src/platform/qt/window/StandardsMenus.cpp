// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/StandardsMenus.h"

#include <QActionGroup>
#include <utility>

#include "base/Mnemonics.h"
#include "base/Text.h"

namespace nascor::qt {

StandardsMenus::StandardsMenus(QMenuBar& bar, const std::vector<QMenu*>& menus, QString taken,
                               app::NCAppController& application,
                               std::function<void(const framework::MenuItem&)> choose)
    : QObject(&bar), application_(application), choose_(std::move(choose)) {
  std::size_t next = 0;
  std::string title;
  QString takenItems;
  for (const framework::MenuItem& item : application_.standardsMenuItems()) {
    if (next == 0 || item.menuTitle != title) {
      if (next == menus.size()) break;
      QMenu& menu = *menus[next++];
      title = item.menuTitle;
      takenItems.clear();
      menu.setTitle(withMnemonic(fromUtf8(title), taken));
      taken += mnemonicOf(menu.title());
      new QActionGroup(&menu);
      connect(&menu, &QMenu::aboutToShow, this, [this, &menu] { validate(menu); });
    }
    add(*menus[next - 1], item, takenItems);
  }
}

void StandardsMenus::add(QMenu& menu, const framework::MenuItem& item, QString& taken) {
  QAction* action = menu.addAction(withMnemonic(fromUtf8(item.title), taken));
  taken += mnemonicOf(action->text());
  action->setCheckable(true);
  menu.findChild<QActionGroup*>()->addAction(action);
  rows_.push_back({&menu, action, item});
  connect(action, &QAction::triggered, this, [this, &menu, item] {
    choose_(item);
    validate(menu);  // the mark went to what was chosen, which may have been held back
  });
}

void StandardsMenus::validate(const QMenu& menu) {
  for (const Row& row : rows_) {
    if (row.menu != &menu) continue;
    framework::MenuItem item = row.item;
    row.action->setEnabled(application_.validateMenuItem(item));
    row.action->setChecked(item.state != 0);
  }
}

}  // namespace nascor::qt
