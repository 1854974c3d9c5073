#pragma once

#include <QMimeData>
#include <QPlainTextEdit>

namespace nascor::qt {

/// A note of several lines. Files that are dropped on it go to its window.
class NoteEdit final : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

 protected:
  bool canInsertFromMimeData(const QMimeData* source) const override {
    return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
  }
};

}  // namespace nascor::qt
