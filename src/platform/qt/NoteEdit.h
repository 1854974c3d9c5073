#pragma once

#include <QEvent>
#include <QMimeData>
#include <QPainter>
#include <QPlainTextEdit>
#include <functional>

namespace nascor::qt {

/// A note of several lines. Files that are dropped on it go to its window.
class NoteEdit final : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

  std::function<void()> onLeave;  ///< the focus went elsewhere, to another window too

 protected:
  bool canInsertFromMimeData(const QMimeData* source) const override {
    return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
  }
  bool event(QEvent* event) override {
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
    if (onLeave) onLeave();
  }
};

}  // namespace nascor::qt
