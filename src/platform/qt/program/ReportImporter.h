// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <cstddef>
#include <functional>
#include <span>
#include <vector>

#include "app/NCDocument.h"
#include "foundation/Services.h"
#include "framework/Alerts.h"
#include "framework/DocumentController.h"
#include "reports/Reports.h"
#include "window/DocumentWindow.h"

namespace nascor::qt {

/// Brings ultrasound machines' reports into documents, after the user has seen what they hold.
class ReportImporter {
 public:
  using WindowOf = std::function<DocumentWindow*(const framework::ZuDocument&)>;

  ReportImporter(const foundation::Services& services, framework::DocumentController& documents,
                 framework::Alerts& alerts, WindowOf windowOf)
      : services_(services), documents_(documents), alerts_(alerts), windowOf_(std::move(windowOf)) {}

  /// Whether the file at `path` is a report and no document; false for one that cannot be read.
  bool isReport(const QString& path) const;
  /// Shows what the files hold; a sentence for each that cannot be read. They go into `document`; without one into the open
  /// document of their patient, else into a new one. In an action of the user. Whether anything was stored.
  bool import(const QStringList& paths, app::NCDocument* document);
  /// The same of the contents of files that a server has sent.
  void importFetched(std::span<const std::vector<std::byte>> files, app::NCDocument& document);

 private:
  bool import(reports::FoundInFiles found, app::NCDocument* document);
  app::NCDocument& documentFor(const std::vector<exchange::Findings>& reports);

  foundation::Services services_;
  framework::DocumentController& documents_;
  framework::Alerts& alerts_;
  WindowOf windowOf_;
};

}  // namespace nascor::qt
