// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include "foundation/UserDefaults.h"

namespace nascor::qt {

/// The documents that were opened or saved last, the latest first, kept among the preferences. Their names tell of
/// patients, so the user can forget them.
class RecentFiles {
 public:
  static constexpr qsizetype kMost = 10;

  explicit RecentFiles(foundation::UserDefaults& defaults) : defaults_(defaults) {}

  QStringList paths() const;
  void note(const QString& path);
  void forget(const QString& path);
  void clear();

  /// Whether any are kept, which they are until the user decides otherwise.
  bool isKept() const;
  /// Not to keep them forgets those that are there.
  void setKept(bool kept);

 private:
  void keep(const QStringList& all);
  foundation::UserDefaults& defaults_;
};

}  // namespace nascor::qt
