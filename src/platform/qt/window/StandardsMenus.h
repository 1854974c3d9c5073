// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <functional>
#include <vector>

#include "app/NCAppController.h"

namespace nascor::qt {

/// The menus of growth standards, weight formulas and formulas for the crown-rump length, of each of which one is in force.
class StandardsMenus final : public QObject {
 public:
  /// Fills `menus`, which stand in the order in which `application` gives theirs, and titles them by letters that are not in
  /// `taken`. `choose` does what an item means, or nothing when the window holds it back. It belongs to `bar`.
  StandardsMenus(QMenuBar& bar, const std::vector<QMenu*>& menus, QString taken,
                 app::NCAppController& application, std::function<void(const framework::MenuItem&)> choose);

 private:
  struct Row {
    QMenu* menu;
    QAction* action;
    framework::MenuItem item;
  };
  void add(QMenu& menu, const framework::MenuItem& item, QString& taken);
  /// Marks what is in force.
  void validate(const QMenu& menu);

  app::NCAppController& application_;
  std::function<void(const framework::MenuItem&)> choose_;
  std::vector<Row> rows_;
};

}  // namespace nascor::qt
