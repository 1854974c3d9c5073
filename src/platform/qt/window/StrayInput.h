// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QObject>

namespace nascor::qt {

/// Keeps from a widget what the mouse does to it without its user's meaning it: the wheel, which turns over it on the way to
/// somewhere else, and the second press of a double click, which meets what the first has put there.
class StrayInput final : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Wheel) {
      event->ignore();  // whatever scrolls below may have it
      return true;
    }
    return event->type() == QEvent::MouseButtonDblClick || QObject::eventFilter(watched, event);
  }
};

}  // namespace nascor::qt
