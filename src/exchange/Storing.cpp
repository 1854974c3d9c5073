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
using foundation::Sentence;
using model::NCRecord;
using model::PatientRecord;

/// Why the findings may be of another patient; nothing when they are not.
std::optional<Sentence> patientFault(const Findings& findings, const Confirmation& confirmation, bool isNew,
                                     const std::string& documentID) {
  if (confirmation.patientID) {
    const bool fits = documentID.empty() || documentID == *confirmation.patientID;
    if (fits) return std::nullopt;
    return Sentence("Findings", R"(the document is of patient "%1", not "%2")")
        .with(documentID, *confirmation.patientID);
  }
  switch (patientDoubt(findings, isNew, documentID)) {
    case PatientDoubt::none: return std::nullopt;
    case PatientDoubt::isUnreadable:
      return Sentence(
          "Findings",
          "the report's reference ID has characters that cannot be read; nothing is stored unless "
          "the ID is given");
    case PatientDoubt::reportNamesNobody:
      return Sentence("Findings", "the report names no patient; nothing is stored unless the ID is given");
    case PatientDoubt::documentNamesNobody:
      return Sentence("Findings", "the document names no patient; nothing is stored unless the ID is given");
    case PatientDoubt::isAnother: break;
  }
  return Sentence("Findings", R"(the report is of patient "%1", the document of "%2")")
      .with(*findings.patientID, documentID);
}

/// The place of each fetus of the report in the document; or why one has none.
class FetusPlaces {
 public:
  FetusPlaces(const Findings& findings, const Confirmation& confirmation, std::int64_t count) {
    std::set<std::int64_t> taken;
    for (const FetusFindings& fetus : findings.fetuses) {
      const auto place = placeOf(fetus, findings, confirmation, count);
      if (!place) {
        //: %1 is a fetus: "fetus "A"", "a fetus without an ID".
        const auto fault =
            Sentence("Findings",
                     "%1 of the report may be any of the document's; nothing is stored unless its "
                     "number is given");
        fault_ = fault.with(nameOf(fetus));
        return;
      }
      if (*place < 0 || *place >= count) {
        fault_ = Sentence("Findings", "%1 cannot be fetus %2 of %3").with(nameOf(fetus), *place + 1, count);
        return;
      }
      if (!taken.insert(*place).second) {
        fault_ = Sentence("Findings", "two fetuses of the report cannot both be fetus %1").with(*place + 1);
        return;
      }
      places_.push_back(*place);
    }
  }

  const std::optional<Sentence>& fault() const { return fault_; }
  std::int64_t operator[](std::size_t fetus) const { return places_.at(fetus); }

 private:
  static Sentence nameOf(const FetusFindings& fetus) {
    return fetus.id ? Sentence("Findings", "fetus \"%1\"").with(*fetus.id)
                    : Sentence("Findings", "a fetus without an ID");
  }

  static std::optional<std::int64_t> placeOf(const FetusFindings& fetus, const Findings& findings,
                                             const Confirmation& confirmation, std::int64_t count) {
    const auto given = confirmation.fetusPlaces.find(fetus.id.value_or(""));
    if (given != confirmation.fetusPlaces.end()) return given->second;
    return fetusPlace(fetus, findings, count);
  }

  std::vector<std::int64_t> places_;
  std::optional<Sentence> fault_;
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

Sentence warningOf(const StoredLength& stored, const Findings& findings) {
  const std::int64_t fetus = stored.place + 1;
  if (stored.fate == Fate::isNeverStored)
    return Sentence("Findings", "fetus %1: the CRL is not stored").with(fetus);
  const Sentence label = labelOf(stored.term);
  const std::string mm =
      foundation::shortestText(findings.fetuses.at(stored.fetus).lengths.at(stored.term)->mm);
  //: %2 is one of BPD, HC, AC and FL, as in the next one.
  if (stored.fate == Fate::isBeyondBounds)
    return Sentence("Findings", "fetus %1: %2 %3 mm is beyond what a document takes").with(fetus, label, mm);
  return Sentence("Findings", "fetus %1: %2 stays %3 mm; the report says %4 mm")
      .with(fetus, label, shortestSingleText(stored.standing), mm);
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

std::optional<Sentence> severalPatientsFault(std::span<const Findings> all) {
  std::set<std::optional<std::string>> patients;
  for (const Findings& findings : all) patients.insert(findings.patientID);
  if (patients.size() < 2) return std::nullopt;
  constexpr std::size_t kMostNamed = 5;
  //: Of several patients.
  const auto nameless = Sentence("Findings", "one without an ID");
  std::vector<Sentence> names;
  for (const auto& patient : patients) {
    if (names.size() == kMostNamed) {
      //: Stands behind the IDs of some patients, with commas between.
      names.push_back(Sentence("Findings", "%1 more").with(patients.size() - kMostNamed));
      break;
    }
    names.push_back(patient ? Sentence::verbatim(rows::inQuotes(*patient)) : nameless);
  }
  //: %1 are the IDs of patients.
  return Sentence("Findings",
                  "holds examinations of several patients (%1), and a document is of one; nothing is stored. "
                  "Please import a file for each patient")
      .with(Sentence::joined(std::move(names), ", "));
}

std::variant<Stored, Sentence> storeFindings(const Findings& findings, const Confirmation& confirmation,
                                             bool isNew, const Calendar& calendar, PatientRecord& patient) {
  const std::string documentID(withoutBlanks(patient.maternalIDString().value_or("")));
  if (auto fault = patientFault(findings, confirmation, isNew, documentID)) return std::move(*fault);
  if (!findings.examDate) return Sentence("Findings", "the report does not say when the examination was");
  const std::int64_t count = isNew ? numberOfFetuses(findings, confirmation) : patient.numberOfFetuses();
  if (count > calc::kMostFetuses)
    return Sentence("Findings", "a document takes at most %1 fetuses").with(calc::kMostFetuses);
  const FetusPlaces places(findings, confirmation, count);
  if (places.fault()) return *places.fault();

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

std::vector<Sentence> warningsOf(const Stored& stored, const Findings& findings) {
  std::vector<Sentence> warnings;
  if (stored.edd && stored.edd->fate == Fate::otherStays) {
    const std::string reported = isoText(*findings.edd);
    warnings.push_back(stored.edd->standing
                           ? Sentence("Findings", "the EDD stays %1; the report says %2")
                                 .with(isoText(*stored.edd->standing), reported)
                           : Sentence("Findings", "the EDD stays; the report says %1").with(reported));
  }
  if (stored.gravida && stored.gravida->fate == Fate::otherStays) {
    warnings.push_back(Sentence("Findings", "the gravidity stays %1; the report says %2")
                           .with(stored.gravida->standing, *findings.gravida));
  }
  if (findings.numberOfFetuses && *findings.numberOfFetuses != stored.fetuses) {
    warnings.push_back(Sentence("Findings", "the number of fetuses stays %1; the report says %2")
                           .with(stored.fetuses, *findings.numberOfFetuses));
  }
  for (const StoredLength& length : stored.lengths) {
    const bool isStored = length.fate == Fate::stored || length.fate == Fate::isThereAlready;
    if (!isStored) warnings.push_back(warningOf(length, findings));
  }
  if (std::ranges::none_of(findings.fetuses, isMeasured)) {
    const Sentence nothing = Sentence("Findings", "the report holds no length that is stored");
    warnings.push_back(nothing);
  }
  return warnings;
}

}  // namespace nascor::exchange
