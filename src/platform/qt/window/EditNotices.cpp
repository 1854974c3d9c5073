// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/EditNotices.h"

#include <QKeySequence>
#include <QToolTip>

#include "base/Text.h"

namespace nascor::qt {
namespace {

void sayAt(QWidget& edit, const QString& sentence) {
  QToolTip::showText(edit.mapToGlobal(QPoint(0, edit.height())), sentence, &edit);
}

}  // namespace

bool putsText(const QKeyEvent& event) {
  return !event.text().isEmpty() && event.text().front().isPrint() &&
         !(event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier));
}

bool isUndoOrRedo(const QKeyEvent& event) {
  return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
}

void sayThatItIsFull(QWidget& edit) { sayAt(edit, said("FieldBinding", "No more text fits here.")); }

QString shownInPartText() {
  return said("FieldBinding",
              "This text is too long to be shown whole. It is kept whole, and cannot be changed here.");
}

void sayThatItShowsAPart(QWidget& edit) { sayAt(edit, shownInPartText()); }

}  // namespace nascor::qt
