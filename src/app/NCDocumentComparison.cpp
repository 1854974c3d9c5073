// What the Compare window shows of the document.

#include "app/NCDocument.h"
#include "foundation/Localizer.h"

namespace nascor::app {

std::vector<compare::Table> NCDocument::comparison() const {
  if (!patientRecord_ || !examination(currentExam())) return {};
  return compare::tablesOf(*patientRecord_, static_cast<std::size_t>(currentExam()),
                           static_cast<std::size_t>(currentFetus_), services().localizer);
}

std::string NCDocument::comparisonHeading() const {
  std::string heading;
  const std::string age = menstrualAgeStringForRecord(static_cast<std::uint64_t>(currentExam()));
  for (const std::string& part :
       {shownTitle(false), multiplePopUp_.titleOfSelectedItem(), examinationText(), age}) {
    if (!part.empty()) heading.append(heading.empty() ? "" : "  \u00b7  ").append(part);
  }
  return heading;
}

}  // namespace nascor::app
