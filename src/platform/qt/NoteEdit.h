#pragma once

#include <QMimeData>
#include <QPlainTextEdit>
#include <functional>

namespace nascor::qt {

/// A note of several lines. Files that are dropped on it go to its window.
class NoteEdit final : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

  std::function<void()> onLeave;  ///< the focus went elsewhere, to another window too

 protected:
  void focusOutEvent(QFocusEvent* event) override {
    QPlainTextEdit::focusOutEvent(event);
    if (onLeave) onLeave();
  }
  bool canInsertFromMimeData(const QMimeData* source) const override {
    return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
  }
};

}  // namespace nascor::qt
