// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>
#include <QMenu>

#include "app/NCDocument.h"
#include "foundation/Services.h"
#include "framework/Alerts.h"
#include "framework/FilePanels.h"
#include "framework/Printer.h"
#include "painting/QtPrinter.h"
#include "window/Perform.h"

namespace nascor::qt {

/// What the items for printing and exporting ask of their window.
struct OutputEnvironment {
  foundation::Services services;
  framework::Alerts& alerts;
  framework::FilePanels& panels;
  QtPrinter& printer;
  const foundation::NotificationSender& sender;  ///< who asks for an export
  Perform perform;
};

/// The items of a window's File menu that put pages on paper and into files.
class OutputMenu final : public QObject {
 public:
  /// Adds the items to `menu`, before `before`. It belongs to `window`.
  OutputMenu(QMainWindow& window, QMenu& menu, QAction* before, OutputEnvironment environment);

  /// What the export of all pages shows while it goes on; a test presses its button.
  static constexpr const char* kProgressName = "exportProgress";

 private:
  void add(QMenu& menu, QAction* before, const char* name, const char* text, const QKeySequence& keys,
           const DocumentAction& action);
  void pageSetup(app::NCDocument& document);
  /// The paper of the document, and of those that are opened later.
  void setPaper(app::NCDocument& document, const QPageLayout& layout);
  void printPreview(app::NCDocument& document);
  void exportPage(app::NCDocument& document);
  void exportAll(app::NCDocument& document);
  void exportSettings();

  QMainWindow& window_;
  OutputEnvironment environment_;
};

/// The paper that was set up last, else the usual one of the user's country, lying on its long side.
framework::PrintInfo usualPaper(const foundation::UserDefaults& defaults);

}  // namespace nascor::qt
