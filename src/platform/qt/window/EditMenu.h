// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

namespace nascor::qt {

/// What the Edit menu does to the text that has the focus. Undo and Redo are the text's own while it is in edit, and else the
/// patient's. While the menu is open, an item that would do nothing is disabled.
class EditMenu final : public QObject {
 public:
  struct Items {
    QAction& undo;
    QAction& redo;
    QAction& cut;
    QAction& copy;
    QAction& paste;
    QAction& selectAll;
  };
  /// Undo or Redo of the patient.
  struct Step {
    std::function<std::optional<std::string>()>
        name;  ///< nothing when there is nothing to take back or do again
    std::function<void()> go;
  };
  /// It belongs to `window`, in which the texts are.
  EditMenu(QWidget& window, QMenu& menu, Items items, Step undo, Step redo);
  /// What can be undone or redone may have changed.
  void showSteps();

 private:
  void validate();

  QWidget& window_;
  Items items_;
  Step undo_;
  Step redo_;
};

}  // namespace nascor::qt
