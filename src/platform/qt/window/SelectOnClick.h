#pragma once

#include <QAbstractSpinBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QObject>

namespace nascor::qt {

/// Selects all of a line by the first click into it, so that what is typed replaces what stands there; the next click places
/// the caret. First is a click since the user left the line, or since the program selected its text: whether the program had
/// put the focus there makes no difference to the user.
class SelectOnClick final : public QObject {
 public:
  explicit SelectOnClick(QLineEdit& edit) : QObject(&edit), edit_(edit) {
    edit.installEventFilter(this);
    // The line of a spin box leaves focus and keys to its box.
    if (auto* box = qobject_cast<QAbstractSpinBox*>(edit.parentWidget())) box->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::FocusOut:
        if (isLeft(dynamic_cast<const QFocusEvent*>(event))) {
          isUntouched_ = true;
          wasSelectedByClick_ = false;
        }
        break;
      case QEvent::KeyPress:
      case QEvent::InputMethod:
        isUntouched_ = false;
        wasSelectedByClick_ = false;
        break;
      case QEvent::MouseButtonPress:
        if (watched == &edit_) isFirstClick_ = isUntouched_ || (isAllSelected() && !wasSelectedByClick_);
        break;
      case QEvent::MouseButtonRelease:
        if (watched == &edit_) released();
        break;
      default: break;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  /// The focus comes back by itself from another window and from a menu.
  static bool isLeft(const QFocusEvent* event) {
    return event != nullptr && event->reason() != Qt::ActiveWindowFocusReason &&
           event->reason() != Qt::PopupFocusReason && event->reason() != Qt::MenuBarFocusReason;
  }

  bool isAllSelected() const { return edit_.hasSelectedText() && edit_.selectedText() == edit_.text(); }

  void released() {
    isUntouched_ = false;
    wasSelectedByClick_ = isFirstClick_;
    if (!isFirstClick_) return;
    // After the line has had the click. What was selected by dragging stays selected.
    QMetaObject::invokeMethod(
        &edit_,
        [edit = &edit_] {
          if (!edit->hasSelectedText()) edit->selectAll();
        },
        Qt::QueuedConnection);
  }

  QLineEdit& edit_;
  bool isUntouched_ = true;          ///< since the user left the line
  bool isFirstClick_ = false;        ///< the click that is going on
  bool wasSelectedByClick_ = false;  ///< all that is selected is so by the last click
};

}  // namespace nascor::qt
