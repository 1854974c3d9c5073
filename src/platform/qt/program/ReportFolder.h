// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileSystemWatcher>
#include <QHash>
#include <QSet>
#include <QTimer>
#include <chrono>
#include <functional>

#include "foundation/Services.h"
#include "window/WaitingReports.h"

namespace nascor::qt {

/// The folder into which machines put their reports. What was imported or set aside is remembered, so that each report is
/// offered once, also one that came while the program did not run. No file there is moved, changed or removed.
class ReportFolder final : public WaitingReports {
 public:
  /// Imports a report; whether the user has stored anything of it.
  using Import = std::function<bool(const QString& path)>;

  /// Watches the folder of the preferences, if there is one, once `begin` was sent.
  ReportFolder(const foundation::Services& services, Import import);

  /// `folder` is watched this time, whatever the preferences say; empty for theirs.
  void begin(const QString& folder);

  const std::vector<Report>& reports() const override { return reports_; }
  void import(const QString& path) override;
  void setAside() override;
  QString folder() const override { return folder_; }
  void setFolder(const QString& folder) override;

  /// How often a folder is looked at that does not tell of its changes, such as one of another machine.
  static constexpr std::chrono::seconds kLookingInterval{10};
  /// How long a file must not have changed before it is read: a transfer may be going on.
  static constexpr std::chrono::milliseconds kRest{1500};

 private:
  void watch(const QString& folder);
  void look();
  void take(const QString& path, const QString& mark);
  void remember(const QString& mark);

  foundation::Services services_;
  Import import_;
  QString folder_;
  std::vector<Report> reports_;
  QHash<QString, QString> marks_;  ///< of what waits, by path
  QSet<QString> known_;            ///< marks of files that are not offered again
  QFileSystemWatcher watcher_;
  QTimer looking_;
  QTimer resting_;
};

}  // namespace nascor::qt
