// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>
#include <chrono>

namespace nascor::qt {

/// Keeps what the user types on with while `box`, a question, interrupts the typing in a field: those keys neither answer the
/// question nor are lost. Typing goes on until no key has come for `pause`. Escape always reaches the box.
class TypedAhead final : public QObject {
 public:
  explicit TypedAhead(QMessageBox& box, std::chrono::milliseconds pause = std::chrono::seconds(1));

  /// Types what was kept into the widget that had the focus before the question, after the key that is at work now.
  void handOver();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool keeps(const QKeyEvent& key);

  QPointer<QWidget> field_;
  std::chrono::milliseconds pause_;
  QElapsedTimer sinceLastKey_;
  QString text_;
};

}  // namespace nascor::qt
