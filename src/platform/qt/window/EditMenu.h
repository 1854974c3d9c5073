#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>
#include <QWidget>

namespace nascor::qt {

/// What the Edit menu does to the text that has the focus. While the menu is open, an item that would do nothing is disabled.
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
  /// It belongs to `window`, in which the texts are.
  EditMenu(QWidget& window, QMenu& menu, Items items);

 private:
  void validate();

  QWidget& window_;
  Items items_;
};

}  // namespace nascor::qt
