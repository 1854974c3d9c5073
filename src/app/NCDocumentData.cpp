// The patient's numbers for spreadsheets and other programs.

#include <span>

#include "app/NCDocument.h"
#include "foundation/JsonText.h"
#include "foundation/Localizer.h"
#include "framework/FileName.h"
#include "model/PatientJson.h"
#include "rows/PatientRows.h"

namespace nascor::app {

std::string NCDocument::dataAsCsv() const {
  const rows::RowFormat format(rows::patientColumns({}), {});
  std::string text;
  format.appendHeader(text);
  if (patientRecord_) rows::appendPatientRows(text, *patientRecord_, {}, format, services().calendar);
  return text;
}

std::string NCDocument::dataAsJson() const {
  std::string text;
  if (!patientRecord_) return text;
  foundation::JsonText json(text);
  model::writePatientJson(json, *patientRecord_, services().calendar, model::JsonNumbers::inMemory);
  return text + '\n';
}

std::string NCDocument::dataFileName(std::string_view extension) const {
  std::string name = preferredFileName(false);
  if (name.empty()) name = services().localizer.text("CorvelDocument", "Untitled");
  const std::string ending = " - " + services().localizer.text("NCDocument", "Data");
  return framework::fileNameEndingIn(framework::portableFileNameText(name), ending + std::string(extension));
}

std::optional<std::string> NCDocument::exportData(const std::string& path) {
  if (!commitsEditing())
    return services().localizer.text("CorvelDocument", "A field holds a text that is not permitted.");
  if (!patientRecord_) return std::nullopt;
  const std::string text = framework::hasExtension(path, "json") ? dataAsJson() : dataAsCsv();
  if (const auto error = services().files.replaceContents(path, std::as_bytes(std::span(text))))
    return foundation::sentenceAbout(path, *error);
  return std::nullopt;
}

}  // namespace nascor::app
