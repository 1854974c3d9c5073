// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>
#include <functional>
#include <vector>

#include "app/NCDocument.h"
#include "calc/References.h"
#include "foundation/Localizer.h"
#include "window/Perform.h"

namespace nascor::qt {

/// The items that choose what is drawn over the charts of a window: whose centile lines, or none, and the lines from mark
/// to mark. It belongs to `menu`.
class OverlayMenu final : public QObject {
 public:
  /// `shown` answers what the window shows.
  OverlayMenu(QMenu& menu, const foundation::Localizer& localizer, std::function<charts::Overlay()> shown,
              Perform perform);

 private:
  struct Choice {
    const calc::Reference* centiles;  ///< null for none
    QAction* action;
  };
  void add(QMenu& menu, const calc::Reference* reference, const QString& title);
  /// Marks what is on show.
  void validate();

  std::function<charts::Overlay()> shown_;
  Perform perform_;
  std::vector<Choice> choices_;
  QAction* joinMarks_;
};

}  // namespace nascor::qt
