// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/ReportImporter.h"

#include <QFile>
#include <algorithm>
#include <iterator>
#include <utility>

#include "app/ReportImport.h"
#include "base/Text.h"
#include "foundation/Localizer.h"
#include "foundation/Sentence.h"
#include "reports/Reports.h"
#include "window/ImportDialog.h"
#include "window/QtAlerts.h"

namespace nascor::qt {

using app::NCDocument;
using foundation::Sentence;

bool ReportImporter::isReport(const QString& path) const {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  constexpr qint64 kBeginning = 4096;
  const QByteArray beginning = file.read(kBeginning);
  return reports::isReport(
      std::as_bytes(std::span(beginning.constData(), static_cast<std::size_t>(beginning.size()))));
}

NCDocument& ReportImporter::documentFor(const std::vector<exchange::Findings>& reports) {
  const auto open = documents_.documents();
  for (const auto& report : reports) {
    for (auto each = open.rbegin(); report.patientID && each != open.rend(); ++each) {
      auto* document = dynamic_cast<NCDocument*>(*each);
      if (document && document->patientRecord() &&
          document->patientRecord()->maternalIDString() == report.patientID)
        return *document;
    }
  }
  auto* front = dynamic_cast<NCDocument*>(documents_.currentDocument());
  if (front && front->isUntouched()) return *front;
  return dynamic_cast<NCDocument&>(documents_.newDocument());
}

bool ReportImporter::import(const QStringList& paths, NCDocument* document) {
  std::vector<std::string> files;
  for (const QString& path : paths) files.push_back(QFile::encodeName(path).toStdString());
  return import(reports::findingsInFiles(files, services_.files), document);
}

void ReportImporter::importFetched(std::span<const std::vector<std::byte>> files, NCDocument& document) {
  reports::FoundInFiles all;
  for (const std::vector<std::byte>& file : files) {
    auto found = reports::findingsIn(file);
    if (auto* findings = std::get_if<0>(&found)) {
      std::ranges::move(*findings, std::back_inserter(all.findings));
    } else {
      const std::string name = foundation::format(
          services_.localizer.text("ReportImport", "Fetched report %ld"), {&file - files.data() + 1});
      for (const Sentence& why : std::get<1>(found))
        all.failures.push_back(Sentence("ReportFiles", "%1: %2.").with(name, why));
    }
  }
  import(std::move(all), &document);
}

bool ReportImporter::import(reports::FoundInFiles found, NCDocument* document) {
  if (!found.failures.empty()) {
    const foundation::Localizer& localizer = services_.localizer;
    alerts_.tell(found.failures.size() == 1
                     ? localizer.text("ReportImport", "The report cannot be imported.")
                     : localizer.text("ReportImport", "These reports cannot be imported."),
                 said(Sentence::joined(found.failures, "\n\n"), localizer));
  }
  if (found.findings.empty()) return false;

  NCDocument* chosen = document ? document : &documentFor(found.findings);
  if (const DocumentWindow* window = windowOf_(*chosen); window && hasSheet(*window)) {
    documents_.setCurrentDocument(*chosen);  // what was asked there wants its answer first
    return false;
  }
  if (!chosen->commitEditing()) {
    documents_.setCurrentDocument(*chosen);
    alerts_.tell(services_.localizer.text("ReportImport", "The report cannot be imported."),
                 services_.localizer.text("CorvelDocument", "A field holds a text that is not permitted."));
    return false;
  }
  NCDocument& target = chosen->documentOfPatient(found.findings);
  documents_.setCurrentDocument(target);
  app::ReportImport import(target, std::move(found.findings));
  return ImportDialog(import, windowOf_(target)).exec() == QDialog::Accepted;
}

}  // namespace nascor::qt
