// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/TypedAhead.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

namespace nascor::qt {

TypedAhead::TypedAhead(QMessageBox& box, std::chrono::milliseconds pause)
    : QObject(&box), field_(QApplication::focusWidget()), pause_(pause) {
  sinceLastKey_.start();
  box.installEventFilter(this);
  for (QAbstractButton* button : box.buttons()) button->installEventFilter(this);
}

void TypedAhead::handOver() {
  if (!field_) return;
  for (const QChar sign : text_) {
    const auto send = [this, sign](QEvent::Type type) {
      QCoreApplication::postEvent(field_,
                                  new QKeyEvent(type, Qt::Key_unknown, Qt::NoModifier, QString(sign)));
    };
    send(QEvent::KeyPress);
    send(QEvent::KeyRelease);
  }
}

bool TypedAhead::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* key = dynamic_cast<const QKeyEvent*>(event);
    if (key != nullptr && keeps(*key)) return true;
  }
  return QObject::eventFilter(watched, event);
}

bool TypedAhead::keeps(const QKeyEvent& key) {
  if (std::chrono::milliseconds(sinceLastKey_.elapsed()) >= pause_) return false;
  constexpr Qt::KeyboardModifiers kOfText = Qt::ShiftModifier | Qt::KeypadModifier;
  const bool isText =
      (key.modifiers() & ~kOfText) == Qt::NoModifier && !key.text().isEmpty() && key.text().front().isPrint();
  const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  // Nothing was typed on: it answers the question.
  if (isReturn && text_.isEmpty()) return false;
  if (!isText && !isReturn) return false;
  if (isText) text_ += key.text();
  sinceLastKey_.start();
  return true;
}

}  // namespace nascor::qt
