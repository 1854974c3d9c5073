#include "exchange/Storing.h"

#include <algorithm>
#include <memory>
#include <set>
#include <utility>

#include "calc/EditingBounds.h"
#include "exchange/DecimalText.h"
#include "foundation/ConvertInteger.h"
#include "foundation/NumberText.h"

namespace nascor::exchange {

namespace {

using foundation::Calendar;
using foundation::CivilDay;
using model::NCRecord;
using model::PatientRecord;

using Warnings = std::vector<std::string>;

std::string inQuotes(const std::string& text) { return "\"" + text + "\""; }

/// Why the findings may be of another patient; empty when they are not.
std::string patientFault(const Findings& findings, const Confirmation& confirmation, bool isNew,
                         const std::string& documentID) {
  if (confirmation.patientID) {
    const bool fits = documentID.empty() || documentID == *confirmation.patientID;
    return fits ? ""
                : "the document is of patient " + inQuotes(documentID) + ", not " +
                      inQuotes(*confirmation.patientID);
  }
  if (isNew) return "";
  if (!findings.patientID) return "the report names no patient; nothing is stored unless the ID is given";
  if (documentID.empty()) return "the document names no patient; nothing is stored unless the ID is given";
  if (*findings.patientID != documentID)
    return "the report is of patient " + inQuotes(*findings.patientID) + ", the document of " +
           inQuotes(documentID);
  return "";
}

/// The place of each fetus of the report in the document; or why one has none.
class FetusPlaces {
 public:
  FetusPlaces(const Findings& findings, const Confirmation& confirmation, std::int64_t count) {
    std::set<std::int64_t> taken;
    for (const FetusFindings& fetus : findings.fetuses) {
      const auto place = placeOf(fetus, findings, confirmation, count);
      const std::string name = fetus.id ? "fetus " + inQuotes(*fetus.id) : "a fetus without an ID";
      if (!place) {
        fault_ = name +
                 " of the report may be any of the document's; nothing is stored unless its number is given";
        return;
      }
      if (*place < 0 || *place >= count) {
        fault_ = name + " cannot be fetus " + std::to_string(*place + 1) + " of " + std::to_string(count);
        return;
      }
      if (!taken.insert(*place).second) {
        fault_ = "two fetuses of the report cannot both be fetus " + std::to_string(*place + 1);
        return;
      }
      places_.push_back(*place);
    }
  }

  const std::string& fault() const { return fault_; }
  std::int64_t operator[](std::size_t fetus) const { return places_.at(fetus); }

 private:
  static std::optional<std::int64_t> placeOf(const FetusFindings& fetus, const Findings& findings,
                                             const Confirmation& confirmation, std::int64_t count) {
    const auto given = confirmation.fetusPlaces.find(fetus.id.value_or(""));
    if (given != confirmation.fetusPlaces.end()) return given->second;
    // The only fetus of a report that names none is the only one of the document.
    if (!fetus.id)
      return findings.fetuses.size() == 1 && count == 1 ? std::optional<std::int64_t>(0) : std::nullopt;
    for (std::int64_t place = 0; place < count; ++place) {
      if (*fetus.id == std::to_string(place + 1)) return place;
    }
    return std::nullopt;
  }

  std::vector<std::int64_t> places_;
  std::string fault_;
};

/// As many as the report says or holds, or a person has named.
std::int64_t numberOfFetuses(const Findings& findings, const Confirmation& confirmation) {
  auto number = std::max<std::int64_t>(findings.numberOfFetuses.value_or(1), std::ssize(findings.fetuses));
  for (const FetusFindings& fetus : findings.fetuses) {
    const auto given = confirmation.fetusPlaces.find(fetus.id.value_or(""));
    if (given != confirmation.fetusPlaces.end()) number = std::max(number, given->second + 1);
  }
  return std::max(number, calc::kFewestFetuses);
}

void storeEDD(const Findings& findings, const Confirmation& confirmation, const Calendar& calendar,
              PatientRecord& patient, Warnings& warnings) {
  if (!findings.edd) return;
  const auto standing = patient.edd() ? foundation::localDay(*patient.edd(), calendar) : std::nullopt;
  if (standing == findings.edd) return;
  if (patient.edd() && !confirmation.takeEDD) {
    std::string stays = "the EDD stays";
    if (standing) stays.append(" ").append(isoText(*standing));
    warnings.push_back(stays.append("; the report says ").append(isoText(*findings.edd)));
    return;
  }
  patient.setEDD(foundation::startOfDay(*findings.edd, calendar));
}

void storeGravida(const Findings& findings, PatientRecord& patient, Warnings& warnings) {
  if (!findings.gravida || patient.gravida() == *findings.gravida) return;
  if (patient.gravida() != 0) {
    warnings.push_back("the gravidity stays " + std::to_string(patient.gravida()) + "; the report says " +
                       std::to_string(*findings.gravida));
    return;
  }
  patient.setGravida(*findings.gravida);
}

/// The examination of that local day, a new one where there is none.
NCRecord& examinationOf(const CivilDay& day, const Calendar& calendar, PatientRecord& patient) {
  auto& examinations = patient.ncRecordsArray();
  const auto found = std::ranges::find_if(examinations, [&](const std::unique_ptr<NCRecord>& examination) {
    return examination->examDate() && foundation::localDay(*examination->examDate(), calendar) == day;
  });
  if (found != examinations.end()) return **found;
  auto examination = std::make_unique<NCRecord>();
  examination->setNote("");
  examination->setExamDate(foundation::startOfDay(day, calendar));
  examinations.push_back(std::move(examination));
  return *examinations.back();
}

struct StoredLength {
  double (model::MeasurementsRecord::*get)() const;
  void (model::MeasurementsRecord::*set)(double);
};

constexpr std::array<StoredLength, kStoredLengths> kStored{
    {{&model::MeasurementsRecord::bpd, &model::MeasurementsRecord::setBPD},
     {&model::MeasurementsRecord::hc, &model::MeasurementsRecord::setHC},
     {&model::MeasurementsRecord::ac, &model::MeasurementsRecord::setAC},
     {&model::MeasurementsRecord::fl, &model::MeasurementsRecord::setFL}}};

void storeLengths(const FetusFindings& fetus, std::int64_t place, model::MeasurementsRecord& record,
                  Warnings& warnings) {
  const std::string subject = "fetus " + std::to_string(place + 1) + ": ";
  for (std::size_t i = 0; i < kStoredLengths; ++i) {
    const auto& found = fetus.lengths.at(i);
    if (!found) continue;
    const std::string label = subject + std::string(kLengthTerms.at(i).label);
    // As a document's file would hold it.
    const double mm = foundation::narrowedToFloat(found->mm);
    const double standing = (record.*kStored.at(i).get)();
    if (!calc::editingBounds(calc::kMeasurements.at(i)).permit(mm)) {
      warnings.push_back(label + " " + foundation::shortestText(found->mm) +
                         " mm is beyond what a document takes");
    } else if (standing == 0.0) {
      (record.*kStored.at(i).set)(found->mm);
    } else if (foundation::narrowedToFloat(standing) != mm) {
      warnings.push_back(label + " stays " + shortestSingleText(standing) + " mm; the report says " +
                         foundation::shortestText(found->mm) + " mm");
    }
  }
}

}  // namespace

std::variant<Warnings, std::string> storeFindings(const Findings& findings, const Confirmation& confirmation,
                                                  bool isNew, const Calendar& calendar,
                                                  PatientRecord& patient) {
  const std::string documentID(withoutBlanks(patient.maternalIDString().value_or("")));
  if (auto fault = patientFault(findings, confirmation, isNew, documentID); !fault.empty()) return fault;
  if (!findings.examDate) return "the report does not say when the examination was";
  const std::int64_t count = isNew ? numberOfFetuses(findings, confirmation) : patient.numberOfFetuses();
  if (count > calc::kMostFetuses)
    return "a document takes at most " + std::to_string(calc::kMostFetuses) + " fetuses";
  const FetusPlaces places(findings, confirmation, count);
  if (!places.fault().empty()) return places.fault();

  Warnings warnings;
  if (isNew) patient.setNumberOfFetuses(count);
  if (documentID.empty() && (isNew || confirmation.patientID))
    patient.setMaternalIDString(confirmation.patientID ? *confirmation.patientID
                                                       : findings.patientID.value_or(""));
  storeEDD(findings, confirmation, calendar, patient, warnings);
  storeGravida(findings, patient, warnings);

  for (std::size_t i = 0; i < findings.fetuses.size(); ++i) {
    if (findings.fetuses[i].lengths.at(kStoredLengths))
      warnings.push_back("fetus " + std::to_string(places[i] + 1) + ": the CRL is not stored");
  }
  const auto isMeasured = [](const FetusFindings& fetus) {
    return std::any_of(fetus.lengths.begin(), fetus.lengths.begin() + kStoredLengths,
                       [](const auto& length) { return length.has_value(); });
  };
  if (std::ranges::none_of(findings.fetuses, isMeasured)) {
    warnings.emplace_back("the report holds no length that is stored");
    return warnings;
  }
  NCRecord& examination = examinationOf(*findings.examDate, calendar, patient);
  while (std::cmp_less(examination.measurements().size(), count)) examination.addMeasurementsRecord();
  for (std::size_t i = 0; i < findings.fetuses.size(); ++i)
    storeLengths(findings.fetuses[i], places[i], examination.measurementsForFetus(places[i]), warnings);
  std::ranges::stable_sort(patient.ncRecordsArray(), [](const auto& one, const auto& other) {
    return one->compare(*other) == std::weak_ordering::less;
  });
  return warnings;
}

}  // namespace nascor::exchange
