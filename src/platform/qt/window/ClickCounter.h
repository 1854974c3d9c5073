// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMouseEvent>
#include <QPointF>

namespace nascor::qt {

/// Counts the presses of a mouse button as a person means them: each that follows the one before it soon and in the same
/// place counts one more. Qt itself reports a third press as a first one.
class ClickCounter {
 public:
  /// The place of `press` in its row: 1 for a press by itself, 2 for the second of a double click, and so on. The places are
  /// those of the screen, so that a page that changed under the pointer does not begin a new row.
  int count(const QMouseEvent& press);

 private:
  QPointF place_;
  quint64 time_ = 0;
  int count_ = 0;
};

}  // namespace nascor::qt
