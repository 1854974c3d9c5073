// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The summary of the document for the records.

#include <span>
#include <variant>

#include "app/NCDocument.h"
#include "foundation/Localizer.h"
#include "foundation/UserDefaults.h"
#include "framework/FileName.h"
#include "summary/Html.h"

namespace nascor::app {

std::optional<summary::Summary> NCDocument::patientSummary() const {
  if (!patientRecord_) return std::nullopt;
  const foundation::UserDefaults& defaults = services().defaults;
  return summary::summaryOf(
      *patientRecord_,
      {.letterhead = summary::letterheadLines(defaults.value(summary::kLetterheadKey).value_or("")),
       .examiner = defaults.value(summary::kExaminerKey).value_or("")},
      {.clock = services().clock, .calendar = services().calendar, .localizer = services().localizer});
}

summary::Paper NCDocument::summaryPaper() const {
  return {.width = printInfo().paperWidth, .height = printInfo().paperHeight};
}

std::string NCDocument::summaryFileName(std::string_view extension) const {
  std::string name = preferredFileName(false);
  if (name.empty()) name = services().localizer.text("CorvelDocument", "Untitled");
  const std::string ending = " - " + services().localizer.text("Summary", "Summary");
  return framework::fileNameEndingIn(framework::portableFileNameText(name), ending + std::string(extension));
}

std::optional<std::string> NCDocument::exportSummary(const std::string& path,
                                                     const summary::FindTypesetter& typesetter) {
  if (!commitsEditing())
    return services().localizer.text("CorvelDocument", "A field holds a text that is not permitted.");
  const auto content = patientSummary();
  if (!content) return std::nullopt;
  std::vector<std::byte> bytes;
  if (framework::hasExtension(path, "html") || framework::hasExtension(path, "htm")) {
    const std::string text = summary::htmlText(*content);
    const auto all = std::as_bytes(std::span(text));
    bytes.assign(all.begin(), all.end());
  } else {
    const auto found = typesetter();
    if (const auto* why = std::get_if<foundation::Sentence>(&found)) return said(*why, services().localizer);
    auto document = std::get<summary::Typesetter*>(found)->pdf(*content, summaryPaper());
    if (const auto* why = std::get_if<std::string>(&document)) return *why;
    bytes = std::move(std::get<std::vector<std::byte>>(document));
  }
  if (const auto error = services().files.replaceContents(path, bytes))
    return foundation::sentenceAbout(path, *error);
  return std::nullopt;
}

}  // namespace nascor::app
