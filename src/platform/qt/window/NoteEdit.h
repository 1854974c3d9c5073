// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPlainTextEdit>

#include "foundation/Signal.h"
#include "window/EditNotices.h"

namespace nascor::qt {

/// A note of several lines. What finds no room in it (framework/LongText.h) is left out, and it says so. Files that are
/// dropped on it go to its window.
class NoteEdit final : public QPlainTextEdit {
 public:
  explicit NoteEdit(QWidget* parent = nullptr);

  /// Says, in place of the usual tool tip and whenever something is typed, that only a part of the text is shown.
  void setShownInPart(bool isShownInPart);

  /// Whether the user types in it, and Undo and Redo are its own.
  bool isInEdit() const { return isInEdit_; }
  void setInEdit(bool isInEdit) { isInEdit_ = isInEdit; }

  foundation::Signal<> onLeave;  ///< the focus went elsewhere, to another window too

 protected:
  bool event(QEvent* event) override {
    const auto* key = dynamic_cast<const QKeyEvent*>(event);
    if (event->type() == QEvent::ShortcutOverride && key != nullptr && isUndoOrRedo(*key) && !isInEdit_) {
      event->ignore();
      return true;
    }
    const bool isDone = QPlainTextEdit::event(event);
    // Many styles draw the frame of a text of several lines alike with and without the focus.
    if (event->type() == QEvent::Paint && hasFocus()) {
      QPainter painter(this);
      painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0 * frameWidth()));
      painter.drawRect(rect());
    }
    return isDone;
  }
  void focusInEvent(QFocusEvent* event) override {
    QPlainTextEdit::focusInEvent(event);
    update();
  }
  void focusOutEvent(QFocusEvent* event) override {
    QPlainTextEdit::focusOutEvent(event);
    update();
    onLeave();
  }
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

 private:
  /// How many units of UTF-16 may take the place of what is selected.
  qsizetype room() const;

  bool isShownInPart_ = false;
  bool isInEdit_ = false;
  QString usualToolTip_;
};

}  // namespace nascor::qt
