#pragma once

#include <QAbstractSpinBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QObject>

namespace nascor::qt {

/// Selects all of a line by the click that brings it the focus, so that what is typed replaces what stands there. A click
/// into a line that has the focus places the caret.
class SelectOnClick final : public QObject {
 public:
  explicit SelectOnClick(QLineEdit& edit) : QObject(&edit), edit_(edit) {
    edit.installEventFilter(this);
    // The line of a spin box leaves the focus to its box.
    if (auto* box = qobject_cast<QAbstractSpinBox*>(edit.parentWidget())) box->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusIn) {
      const auto* focus = dynamic_cast<const QFocusEvent*>(event);
      wasEnteredByClick_ = focus != nullptr && focus->reason() == Qt::MouseFocusReason;
    } else if (event->type() == QEvent::MouseButtonRelease && watched == &edit_ && wasEnteredByClick_) {
      wasEnteredByClick_ = false;
      // After the line has had the click. What was selected by dragging stays selected.
      QMetaObject::invokeMethod(
          &edit_,
          [edit = &edit_] {
            if (!edit->hasSelectedText()) edit->selectAll();
          },
          Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QLineEdit& edit_;
  bool wasEnteredByClick_ = false;
};

}  // namespace nascor::qt
