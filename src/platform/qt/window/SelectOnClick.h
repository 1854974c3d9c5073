// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractSpinBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QObject>

namespace nascor::qt {

/// Selects all of a line by the first click into it, so that what is typed replaces what stands there; the next click places
/// the caret. First is a click since the user left the line, or came back to it without having typed there, or since the
/// program selected its text: whether the program had put the focus there makes no difference to the user. A double click
/// always selects all, where Qt would select the digits on one side of the decimal point.
class SelectOnClick final : public QObject {
 public:
  explicit SelectOnClick(QLineEdit& edit)
      : QObject(&edit), edit_(edit), box_(qobject_cast<QAbstractSpinBox*>(edit.parentWidget())) {
    edit.installEventFilter(this);
    // The line of a spin box leaves focus and keys to its box.
    if (box_ != nullptr) box_->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::FocusOut:
        if (isLeft(dynamic_cast<const QFocusEvent*>(event))) forget();
        break;
      case QEvent::Hide: forget(); break;
      case QEvent::KeyPress:
      case QEvent::InputMethod:
        isTyped_ = true;
        isUntouched_ = false;
        wasSelectedByClick_ = false;
        break;
      case QEvent::MouseButtonPress:
        if (watched == &edit_) pressed();
        break;
      case QEvent::MouseButtonDblClick:
        if (watched == &edit_) clickedTwice();
        break;
      case QEvent::MouseButtonRelease:
        if (watched == &edit_) released();
        break;
      default: break;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  /// The focus comes back by itself from a menu, and from another window, where what was begun to type goes on.
  bool isLeft(const QFocusEvent* event) const {
    if (event == nullptr) return false;
    if (event->reason() == Qt::ActiveWindowFocusReason) return !isTyped_;
    return event->reason() != Qt::PopupFocusReason && event->reason() != Qt::MenuBarFocusReason;
  }

  void forget() {
    isUntouched_ = true;
    isTyped_ = false;
    wasSelectedByClick_ = false;
  }

  bool isAllSelected() const { return edit_.hasSelectedText() && edit_.selectedText() == edit_.text(); }

  void pressed() {
    isDoubleClick_ = false;
    isFirstClick_ = isUntouched_ || (isAllSelected() && !wasSelectedByClick_);
  }

  void clickedTwice() {
    isDoubleClick_ = true;
    wasSelectedByClick_ = true;
    select([](const QLineEdit&) { return true; });
  }

  void released() {
    isUntouched_ = false;
    if (isDoubleClick_) return;
    wasSelectedByClick_ = isFirstClick_;
    // What was selected by dragging stays selected.
    if (isFirstClick_) select([](const QLineEdit& edit) { return !edit.hasSelectedText(); });
  }

  /// Selects all after the line has had the click, unless another field has taken the focus back because it refuses its text.
  void select(bool (*isWanted)(const QLineEdit&)) {
    QMetaObject::invokeMethod(
        &edit_,
        [this, isWanted] {
          const bool hasFocus = edit_.hasFocus() || (box_ != nullptr && box_->hasFocus());
          if (hasFocus && isWanted(edit_)) edit_.selectAll();
        },
        Qt::QueuedConnection);
  }

  QLineEdit& edit_;
  QAbstractSpinBox* box_;
  bool isUntouched_ = true;  ///< since the user left the line
  bool isTyped_ = false;
  bool isFirstClick_ = false;  ///< the click that is going on
  bool isDoubleClick_ = false;
  bool wasSelectedByClick_ = false;  ///< all that is selected is so by the last click
};

}  // namespace nascor::qt
