// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <vector>

#include "foundation/Signal.h"

class QMainWindow;
class QWidget;

namespace nascor::qt {

/// The reports in the watched folder that the user has neither imported nor set aside.
class WaitingReports {
 public:
  struct Report {
    QString path;
    QString text;  ///< patient and day
  };

  virtual ~WaitingReports() = default;

  /// The one that came first before the others.
  virtual const std::vector<Report>& reports() const = 0;
  /// Shows what it holds and lets the user import it. It waits no longer once it was imported.
  virtual void import(const QString& path) = 0;
  /// None of them waits any longer, and none is offered again. Their files stay.
  virtual void setAside() = 0;
  /// The folder that is watched; empty for none.
  virtual QString folder() const = 0;
  /// Watches that folder from now on, and in the times to come.
  virtual void setFolder(const QString& folder) = 0;

  foundation::Signal<> onChange;
};

/// Shows in the window's bottom line how many reports wait, as a button with a menu of them.
void showWaitingReports(QMainWindow& window, WaitingReports& reports);

/// Asks for the folder that is watched.
void askForReportFolder(QWidget& window, WaitingReports& reports);

}  // namespace nascor::qt
