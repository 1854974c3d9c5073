// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/ClickCounter.h"

#include <QGuiApplication>
#include <QLineF>
#include <QStyleHints>

namespace nascor::qt {

int ClickCounter::count(const QMouseEvent& press) {
  const QStyleHints* hints = QGuiApplication::styleHints();
  const QPointF place = press.globalPosition();
  const quint64 time = press.timestamp();
  const bool follows = count_ > 0 &&
                       time - time_ <= static_cast<quint64>(hints->mouseDoubleClickInterval()) &&
                       QLineF(place, place_).length() <= hints->mouseDoubleClickDistance();
  count_ = follows ? count_ + 1 : 1;
  place_ = place;
  time_ = time;
  return count_;
}

}  // namespace nascor::qt
