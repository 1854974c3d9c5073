// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>
#include <QObject>
#include <QStringList>
#include <functional>

#include "base/RecentFiles.h"

namespace nascor::qt {

/// The documents that were opened last, in a menu; and whether any are remembered.
class RecentMenu final : public QObject {
 public:
  /// Fills `menu` whenever it is opened. It belongs to `menu`.
  RecentMenu(QMenu& menu, RecentFiles& files, std::function<void(const QStringList&)> open);

 private:
  void fill();

  QMenu& menu_;
  RecentFiles& files_;
  std::function<void(const QStringList&)> open_;
};

}  // namespace nascor::qt
