// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/NoteEdit.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextDocument>
#include <algorithm>
#include <utility>

#include "framework/LongText.h"
#include "window/EditNotices.h"

namespace nascor::qt {

NoteEdit::NoteEdit(QWidget* parent) : QPlainTextEdit(parent) {}

void NoteEdit::setShownInPart(bool isShownInPart) {
  if (std::exchange(isShownInPart_, isShownInPart) == isShownInPart) return;
  if (isShownInPart) usualToolTip_ = toolTip();
  setToolTip(isShownInPart ? shownInPartText() : usualToolTip_);
  setAccessibleDescription(toolTip());
}

qsizetype NoteEdit::room() const {
  const QTextCursor cursor = textCursor();
  const qsizetype kept = document()->characterCount() - 1 - (cursor.selectionEnd() - cursor.selectionStart());
  return std::max<qsizetype>(static_cast<qsizetype>(framework::kMostInNote) - kept, 0);
}

bool NoteEdit::canInsertFromMimeData(const QMimeData* source) const {
  return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
}

void NoteEdit::insertFromMimeData(const QMimeData* source) {
  QString text = source->text();
  const qsizetype most = room();
  if (text.size() <= most) {
    QPlainTextEdit::insertFromMimeData(source);
    return;
  }
  text.truncate(most);
  if (!text.isEmpty() && text.back().isHighSurrogate()) text.chop(1);
  QMimeData rest;
  rest.setText(text);
  QPlainTextEdit::insertFromMimeData(&rest);
  sayThatItIsFull(*this);
}

void NoteEdit::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool isTyped = isReturn || putsText(*event);
  if (isTyped && isShownInPart_) {
    event->accept();
    sayThatItShowsAPart(*this);
    return;
  }
  if (isTyped && !isReadOnly() && room() < event->text().size()) {
    event->accept();
    sayThatItIsFull(*this);
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

void NoteEdit::inputMethodEvent(QInputMethodEvent* event) {
  if (!isReadOnly() && room() < event->commitString().size()) {
    event->accept();
    sayThatItIsFull(*this);
    return;
  }
  QPlainTextEdit::inputMethodEvent(event);
}

}  // namespace nascor::qt
