// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>
#include <QMenu>
#include <QObject>

#include "app/NCDocument.h"
#include "foundation/Services.h"
#include "framework/Alerts.h"
#include "painting/QtPrinter.h"
#include "summary/Typesetter.h"
#include "window/Perform.h"

namespace nascor::qt {

/// What the items of the summary ask of their window.
struct SummaryEnvironment {
  foundation::Services services;
  framework::Alerts& alerts;
  QtPrinter& printer;
  summary::FindTypesetter typesetter;
  Perform perform;
};

/// The items of a window's File menu that put the summary of the patient into a file and on paper, and the details that stand
/// on it.
class SummaryMenu final : public QObject {
 public:
  /// Adds the items to `menu`, before `before`. It belongs to `window`.
  SummaryMenu(QMainWindow& window, QMenu& menu, QAction* before, SummaryEnvironment environment);

 private:
  void add(QMenu& menu, QAction* before, const char* name, const char* text, const DocumentAction& action);
  void exportSummary(app::NCDocument& document);
  void printSummary(app::NCDocument& document);
  /// Why it was not printed; nothing when it was.
  std::optional<std::string> printInto(QPrinter& printer, const summary::Summary& summary);
  void editDetails();

  QMainWindow& window_;
  SummaryEnvironment environment_;
};

}  // namespace nascor::qt
