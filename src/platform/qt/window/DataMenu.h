// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>
#include <QMenu>
#include <QObject>

#include "app/NCDocument.h"
#include "foundation/Services.h"
#include "framework/Alerts.h"
#include "window/Perform.h"

namespace nascor::qt {

/// What the item asks of its window.
struct DataEnvironment {
  foundation::Services services;
  framework::Alerts& alerts;
  Perform perform;
  app::NCDocument::FindReportFiles reportFiles;
};

/// The item of a window's File menu that puts the patient's numbers into a file for other programs.
class DataMenu final : public QObject {
 public:
  /// Adds the item to `menu`, before `before`. It belongs to `window`.
  DataMenu(QMainWindow& window, QMenu& menu, QAction* before, DataEnvironment environment);

 private:
  void exportData(app::NCDocument& document);

  QMainWindow& window_;
  DataEnvironment environment_;
};

}  // namespace nascor::qt
