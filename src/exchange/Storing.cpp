// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/Storing.h"

#include <algorithm>
#include <memory>
#include <set>
#include <utility>

#include "calc/EditingBounds.h"
#include "exchange/DecimalText.h"
#include "foundation/ConvertInteger.h"
#include "foundation/NumberText.h"
#include "rows/InputColumns.h"

namespace nascor::exchange {

namespace {

using foundation::Calendar;
using foundation::CivilDay;
using model::NCRecord;
using model::PatientRecord;

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
  switch (patientDoubt(findings, isNew, documentID)) {
    case PatientDoubt::none: return "";
    case PatientDoubt::isUnreadable:
      return "the report's reference ID has characters that cannot be read; nothing is stored unless the ID "
             "is given";
    case PatientDoubt::reportNamesNobody:
      return "the report names no patient; nothing is stored unless the ID is given";
    case PatientDoubt::documentNamesNobody:
      return "the document names no patient; nothing is stored unless the ID is given";
    case PatientDoubt::isAnother: break;
  }
  return "the report is of patient " + inQuotes(*findings.patientID) + ", the document of " +
         inQuotes(documentID);
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
    return fetusPlace(fetus, findings, count);
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

std::optional<StoredEDD> storeEDD(const Findings& findings, const Confirmation& confirmation,
                                  const Calendar& calendar, PatientRecord& patient) {
  if (!findings.edd) return std::nullopt;
  const auto standing = patient.edd() ? foundation::localDay(*patient.edd(), calendar) : std::nullopt;
  if (standing == findings.edd) return StoredEDD{.fate = Fate::isThereAlready, .standing = standing};
  if (patient.edd() && !confirmation.takeEDD)
    return StoredEDD{.fate = Fate::otherStays, .standing = standing};
  patient.setEDD(foundation::startOfDay(*findings.edd, calendar));
  return StoredEDD{.fate = Fate::stored, .standing = standing};
}

std::optional<StoredGravida> storeGravida(const Findings& findings, PatientRecord& patient) {
  if (!findings.gravida) return std::nullopt;
  const std::int64_t standing = patient.gravida();
  if (standing == *findings.gravida) return StoredGravida{.fate = Fate::isThereAlready, .standing = standing};
  if (standing != 0) return StoredGravida{.fate = Fate::otherStays, .standing = standing};
  patient.setGravida(*findings.gravida);
  return StoredGravida{.fate = Fate::stored, .standing = standing};
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

struct RecordLength {
  double (model::MeasurementsRecord::*get)() const;
  void (model::MeasurementsRecord::*set)(double);
};

constexpr std::array<RecordLength, kStoredLengths> kRecordLengths{
    {{&model::MeasurementsRecord::bpd, &model::MeasurementsRecord::setBPD},
     {&model::MeasurementsRecord::hc, &model::MeasurementsRecord::setHC},
     {&model::MeasurementsRecord::ac, &model::MeasurementsRecord::setAC},
     {&model::MeasurementsRecord::fl, &model::MeasurementsRecord::setFL}}};

/// What becomes of a length where the patient has `standing`, which a document's file would hold as a single.
Fate storeLength(double reported, double standing, std::size_t term, model::MeasurementsRecord& record) {
  const double mm = foundation::narrowedToFloat(reported);
  if (!calc::editingBounds(calc::kMeasurements.at(term)).permit(mm)) return Fate::isBeyondBounds;
  if (standing != 0.0)
    return foundation::narrowedToFloat(standing) == mm ? Fate::isThereAlready : Fate::otherStays;
  (record.*kRecordLengths.at(term).set)(reported);
  return Fate::stored;
}

bool isStoredTerm(std::size_t term) { return term < kStoredLengths; }

/// Whether there is anything of it to make an examination for.
bool isMeasured(const FetusFindings& fetus) {
  return std::any_of(fetus.lengths.begin(), fetus.lengths.begin() + kStoredLengths,
                     [](const auto& length) { return length.has_value(); });
}

std::string warningOf(const StoredLength& stored, const Findings& findings) {
  const std::string subject = "fetus " + std::to_string(stored.place + 1) + ": ";
  if (stored.fate == Fate::isNeverStored) return subject + "the CRL is not stored";
  const std::string label = subject + std::string(kLengthTerms.at(stored.term).label);
  const double mm = findings.fetuses.at(stored.fetus).lengths.at(stored.term)->mm;
  if (stored.fate == Fate::isBeyondBounds)
    return label + " " + foundation::shortestText(mm) + " mm is beyond what a document takes";
  return label + " stays " + shortestSingleText(stored.standing) + " mm; the report says " +
         foundation::shortestText(mm) + " mm";
}

}  // namespace

PatientDoubt patientDoubt(const Findings& findings, bool isNew, std::string_view documentID) {
  constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD
  if (findings.patientID && findings.patientID->find(kReplacement) != std::string::npos)
    return PatientDoubt::isUnreadable;
  if (isNew) return PatientDoubt::none;
  if (!findings.patientID) return PatientDoubt::reportNamesNobody;
  const std::string_view id = withoutBlanks(documentID);
  if (id.empty()) return PatientDoubt::documentNamesNobody;
  return *findings.patientID == id ? PatientDoubt::none : PatientDoubt::isAnother;
}

std::optional<std::int64_t> fetusPlace(const FetusFindings& fetus, const Findings& findings,
                                       std::int64_t count) {
  if (!fetus.id)
    return findings.fetuses.size() == 1 && count == 1 ? std::optional<std::int64_t>(0) : std::nullopt;
  for (std::int64_t place = 0; place < count; ++place) {
    if (*fetus.id == std::to_string(place + 1)) return place;
  }
  return std::nullopt;
}

std::optional<std::string> severalPatientsFault(std::span<const Findings> all) {
  std::set<std::optional<std::string>> patients;
  for (const Findings& findings : all) patients.insert(findings.patientID);
  if (patients.size() < 2) return std::nullopt;
  constexpr std::size_t kMostNamed = 5;
  std::string names;
  std::size_t named = 0;
  for (const auto& patient : patients) {
    if (!names.empty()) names += ", ";
    if (named++ == kMostNamed) {
      names += std::to_string(patients.size() - kMostNamed) + " more";
      break;
    }
    names += patient ? rows::inQuotes(*patient) : "one without an ID";
  }
  return "holds examinations of several patients (" + names +
         "), and a document is of one; nothing is stored. Please import a file for each patient";
}

std::variant<Stored, std::string> storeFindings(const Findings& findings, const Confirmation& confirmation,
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

  if (isNew) patient.setNumberOfFetuses(count);
  if (documentID.empty() && (isNew || confirmation.patientID))
    patient.setMaternalIDString(confirmation.patientID ? *confirmation.patientID
                                                       : findings.patientID.value_or(""));
  Stored stored{.edd = storeEDD(findings, confirmation, calendar, patient),
                .gravida = storeGravida(findings, patient),
                .lengths = {},
                .fetuses = count};
  NCRecord* examination = nullptr;
  if (std::ranges::any_of(findings.fetuses, isMeasured)) {
    examination = &examinationOf(*findings.examDate, calendar, patient);
    while (std::cmp_less(examination->measurements().size(), count)) examination->addMeasurementsRecord();
  }
  for (std::size_t fetus = 0; fetus < findings.fetuses.size(); ++fetus) {
    for (std::size_t term = 0; term < kLengthTerms.size(); ++term) {
      const auto& found = findings.fetuses[fetus].lengths.at(term);
      if (!found) continue;
      StoredLength& length = stored.lengths.emplace_back(
          StoredLength{.fetus = fetus, .term = term, .place = places[fetus], .fate = Fate::isNeverStored});
      if (!isStoredTerm(term)) continue;
      model::MeasurementsRecord& record = examination->measurementsForFetus(places[fetus]);
      length.standing = (record.*kRecordLengths.at(term).get)();
      length.fate = storeLength(found->mm, length.standing, term, record);
    }
  }
  std::ranges::stable_sort(patient.ncRecordsArray(), [](const auto& one, const auto& other) {
    return one->compare(*other) == std::weak_ordering::less;
  });
  return stored;
}

std::vector<std::string> warningsOf(const Stored& stored, const Findings& findings) {
  std::vector<std::string> warnings;
  if (stored.edd && stored.edd->fate == Fate::otherStays) {
    std::string stays = "the EDD stays";
    if (stored.edd->standing) stays.append(" ").append(isoText(*stored.edd->standing));
    warnings.push_back(stays.append("; the report says ").append(isoText(*findings.edd)));
  }
  if (stored.gravida && stored.gravida->fate == Fate::otherStays) {
    warnings.push_back("the gravidity stays " + std::to_string(stored.gravida->standing) +
                       "; the report says " + std::to_string(*findings.gravida));
  }
  if (findings.numberOfFetuses && *findings.numberOfFetuses != stored.fetuses) {
    warnings.push_back("the number of fetuses stays " + std::to_string(stored.fetuses) +
                       "; the report says " + std::to_string(*findings.numberOfFetuses));
  }
  for (const StoredLength& length : stored.lengths) {
    const bool isStored = length.fate == Fate::stored || length.fate == Fate::isThereAlready;
    if (!isStored) warnings.push_back(warningOf(length, findings));
  }
  if (std::ranges::none_of(findings.fetuses, isMeasured))
    warnings.emplace_back("the report holds no length that is stored");
  return warnings;
}

}  // namespace nascor::exchange
