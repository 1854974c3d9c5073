// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/ReportImport.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "calc/EditingBounds.h"
#include "exchange/DecimalText.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "foundation/Utf8.h"
#include "model/FetusLabels.h"

namespace nascor::app {

using exchange::Fate;
using exchange::FetusFindings;
using exchange::Findings;
using exchange::kLengthTerms;
using exchange::PatientDoubt;
using foundation::Sentence;
using foundation::translatable;

namespace {

// The place of a value among what a report holds: Row::Key.
constexpr std::size_t kEDD = 0;
constexpr std::size_t kGravida = 1;
constexpr std::size_t kFirstLength = 2;

constexpr std::size_t keyOfLength(std::size_t fetus, std::size_t term) {
  return kFirstLength + fetus * kLengthTerms.size() + term;
}

/// The names of `kLengthTerms`.
constexpr std::array kLengthNames{translatable("ReportImport", "BPD"), translatable("ReportImport", "HC"),
                                  translatable("ReportImport", "AC"), translatable("ReportImport", "FL"),
                                  translatable("ReportImport", "CRL")};
static_assert(kLengthNames.size() == kLengthTerms.size());

std::string_view howChosen(std::string_view chosen) {
  if (chosen == "flagged") return translatable("ReportImport", "chosen at the machine");
  if (chosen == "mean") return translatable("ReportImport", "mean");
  if (chosen == "mean of several") return translatable("ReportImport", "mean of several");
  if (chosen == "calculated") return translatable("ReportImport", "calculated, not measured");
  if (chosen == "estimated") return translatable("ReportImport", "estimated, not measured");
  return {};
}

bool isDerived(std::string_view chosen) { return chosen == "calculated" || chosen == "estimated"; }

}  // namespace

ReportImport::ReportImport(NCDocument& document, std::vector<Findings> reports)
    : document_(document), reports_(std::move(reports)) {
  findPatient();
  findFetuses();
  foresee();
}

std::string ReportImport::inWords(std::string_view key) const {
  return document_.services().localizer.text("ReportImport", key);
}

std::string ReportImport::dayText(const std::optional<foundation::CivilDay>& day) const {
  return day ? document_.services().localizer.longDateText(*day) : "";
}

std::string ReportImport::numberText(std::string number) const {
  std::ranges::replace(number, '.', document_.services().localizer.decimalSign());
  return number;
}

std::string ReportImport::labelOf(const std::string& what) const {
  const auto term = std::ranges::find(kLengthTerms, what, &exchange::LengthTerm::key);
  if (term != kLengthTerms.end())
    return inWords(kLengthNames.at(static_cast<std::size_t>(term - kLengthTerms.begin())));
  if (what == "edd") return inWords(translatable("ReportImport", "EDD"));
  if (what == "lmp") return inWords(translatable("ReportImport", "Last period"));
  if (what == "efw") return inWords(translatable("ReportImport", "Weight"));
  if (what == "gravida") return inWords(translatable("ReportImport", "Gravidity"));
  return foundation::shownLine(what);
}

void ReportImport::findPatient() {
  isNew_ = document_.isNewPatient();
  documentID_ = exchange::withoutBlanks(document_.patientRecord()->maternalIDString().value_or(""));
  for (const Findings& report : reports_) {
    const std::string id = report.patientID.value_or("");
    if (id.empty() || exchange::patientDoubt(report, true, "") == PatientDoubt::isUnreadable) continue;
    areOfSeveralPatients_ |= !reportedID_.empty() && reportedID_ != id;
    if (reportedID_.empty()) reportedID_ = id;
  }
  const bool takesPatient = isNew_ && documentID_.empty();
  // A new document takes the ID of its reports. Among several reports, one without an ID may be of another patient.
  const std::string& expected = takesPatient ? reportedID_ : documentID_;
  for (const Findings& report : reports_) {
    switch (exchange::patientDoubt(report, takesPatient && reports_.size() == 1, expected)) {
      case PatientDoubt::none: continue;
      case PatientDoubt::isUnreadable:
        patientDoubt_ = inWords(translatable(
            "ReportImport", "The reference ID of the report has characters that cannot be read."));
        continue;
      case PatientDoubt::reportNamesNobody:
        patientDoubt_ =
            inWords(translatable("ReportImport", "The report does not say of which patient it is."));
        continue;
      case PatientDoubt::documentNamesNobody:
        patientDoubt_ =
            inWords(translatable("ReportImport", "The document does not say of which patient it is."));
        continue;
      case PatientDoubt::isAnother: break;
    }
    patientDoubt_ =
        inWords(translatable("ReportImport", "The report is of another patient than the document."));
    return;  // nothing is worse
  }
}

void ReportImport::confirmPatient(bool isConfirmed) {
  isPatientConfirmed_ = isConfirmed;
  foresee();
}

void ReportImport::findFetuses() {
  std::size_t mostOfOneReport = 0;
  std::int64_t mostSaid = 1;
  bool areAllCounted = true;
  for (const Findings& report : reports_) {
    mostOfOneReport = std::max(mostOfOneReport, report.fetuses.size());
    areAllCounted = areAllCounted && report.numberOfFetuses;
    mostSaid = std::max<std::int64_t>(mostSaid, report.numberOfFetuses.value_or(1));
    for (const FetusFindings& found : report.fetuses) {
      const std::string id = found.id.value_or("");
      if (std::ranges::find(fetuses_, id, &Fetus::id) != fetuses_.end()) continue;
      fetuses_.push_back({.id = id,
                          .name = id.empty() ? inWords(translatable("ReportImport", "Fetus without an ID"))
                                             : inWords(translatable("ReportImport", "Fetus")) + " " +
                                                   foundation::shownLine(id),
                          .place = std::nullopt});
    }
  }
  // Reports may name the same twins differently. Only where each says how many there are is that known.
  const std::size_t seen = areAllCounted ? mostOfOneReport : fetuses_.size();
  count_ = isNew_ ? std::clamp<std::int64_t>(std::max(mostSaid, static_cast<std::int64_t>(seen)),
                                             calc::kFewestFetuses, calc::kMostFetuses)
                  : document_.patientRecord()->numberOfFetuses();
  for (const Findings& report : reports_) {
    for (const FetusFindings& found : report.fetuses) {
      Fetus& fetus = fetuses_[fetusOf(found)];
      // A report of twins says of no fetus that it is the only one of the document.
      const bool isOfAsMany = report.numberOfFetuses.value_or(static_cast<int>(count_)) == count_;
      if (!fetus.place && isOfAsMany) fetus.place = exchange::fetusPlace(found, report, count_);
    }
  }
  // One is no other's twin; and in a new document nothing can be mixed up with what is there.
  const bool areInOrder = count_ == std::ssize(fetuses_) && (count_ == 1 || isNew_);
  const bool isNoneKnown =
      std::ranges::none_of(fetuses_, [](const Fetus& each) { return each.place.has_value(); });
  if (!areInOrder || !isNoneKnown || (count_ == 1 && mostSaid > 1)) return;
  for (std::size_t i = 0; i < fetuses_.size(); ++i) fetuses_[i].place = static_cast<std::int64_t>(i);
}

std::size_t ReportImport::fetusOf(const FetusFindings& found) const {
  return static_cast<std::size_t>(std::ranges::find(fetuses_, found.id.value_or(""), &Fetus::id) -
                                  fetuses_.begin());
}

std::vector<std::string> ReportImport::placeNames() const {
  std::vector<std::string> names;
  for (const std::string_view label : model::fetusLabels(count_))
    names.push_back(document_.services().localizer.text("NCDocument", label));
  return names;
}

void ReportImport::setPlace(std::size_t fetus, std::optional<std::int64_t> place) {
  fetuses_.at(fetus).place = place;
  fetuses_.at(fetus).isLeftOut = false;
  foresee();
}

void ReportImport::leaveOut(std::size_t fetus) {
  fetuses_.at(fetus).place.reset();
  fetuses_.at(fetus).isLeftOut = true;
  foresee();
}

void ReportImport::choose(std::size_t row, bool isChosen) {
  const Row& chosen = rows_.at(row);
  if (!chosen.canBeChosen) return;
  const Key key = chosen.key;
  std::set<Key>& decided = offers_.contains(key) ? wanted_ : unwanted_;
  if (isChosen == offers_.contains(key)) {
    decided.insert(key);
  } else {
    decided.erase(key);
  }
  foresee();
}

std::unique_ptr<model::PatientRecord> ReportImport::patientBefore() const {
  const model::PatientRecord& now = *document_.patientRecord();
  auto patient = std::make_unique<model::PatientRecord>(now.withoutExaminations());
  if (isNew_) patient->setNumberOfFetuses(count_);
  if (documentID_.empty()) patient->setMaternalIDString(reportedID_);
  // The blank examination of a new document gives way to those of the reports.
  if (document_.holdsOnlyBlankExamination()) return patient;
  for (const auto& examination : now.ncRecordsArray())
    patient->ncRecordsArray().push_back(std::make_unique<model::NCRecord>(*examination));
  return patient;
}

ReportImport::Wanted ReportImport::wantedOf(std::size_t report) const {
  Wanted wanted{.findings = reports_[report], .fetuses = {}};
  if (unwanted_.contains({report, kEDD})) wanted.findings.edd.reset();
  if (unwanted_.contains({report, kGravida})) wanted.findings.gravida.reset();
  wanted.findings.fetuses.clear();
  std::set<std::int64_t> taken;
  for (std::size_t i = 0; i < reports_[report].fetuses.size(); ++i) {
    FetusFindings found = reports_[report].fetuses[i];
    const auto place = fetuses_[fetusOf(found)].place;
    if (!place || !taken.insert(*place).second) continue;
    for (std::size_t term = 0; term < kLengthTerms.size(); ++term) {
      if (unwanted_.contains({report, keyOfLength(i, term)})) found.lengths.at(term).reset();
    }
    wanted.findings.fetuses.push_back(std::move(found));
    wanted.fetuses.push_back(i);
  }
  return wanted;
}

void ReportImport::foresee() {
  rows_.clear();
  offers_.clear();
  imported_ = {};
  storesAnything_ = false;
  foreseen_ = patientBefore();
  exchange::Confirmation confirmation{.patientID = documentID_.empty() ? reportedID_ : documentID_,
                                      .fetusPlaces = {}};
  for (const Fetus& fetus : fetuses_) {
    if (fetus.place) confirmation.fetusPlaces.emplace(fetus.id, *fetus.place);
  }
  for (std::size_t report = 0; report < reports_.size(); ++report) {
    const Wanted wanted = wantedOf(report);
    confirmation.takeEDD = wanted_.contains({report, kEDD});
    const auto stored = exchange::storeFindings(wanted.findings, confirmation, false,
                                                document_.services().calendar, *foreseen_);
    addRows(report, wanted, std::get_if<exchange::Stored>(&stored));
    if (const auto* why = std::get_if<Sentence>(&stored)) addRemark(report, "", *why);
  }
  if (foreseen_->ncRecordsArray().empty()) {
    for (const auto& blank : document_.patientRecord()->ncRecordsArray()) {
      foreseen_->ncRecordsArray().push_back(std::make_unique<model::NCRecord>(*blank));
      while (std::cmp_less(blank->measurements().size(), count_) && isNew_)
        foreseen_->ncRecordsArray().back()->addMeasurementsRecord();
    }
  }
  obstacle_ = findObstacle();
}

ReportImport::Row& ReportImport::addRow(std::size_t report, std::size_t value, const std::string& fetus,
                                        const std::string& what) {
  return rows_.emplace_back(Row{.examination = dayText(reports_[report].examDate),
                                .fetus = fetus,
                                .what = what,
                                .key = {report, value}});
}

void ReportImport::addRemark(std::size_t report, const std::string& fetus, const Sentence& sentence) {
  Row& row = addRow(report, 0, fetus, inWords(translatable("ReportImport", "Note")));
  row.outcome = foundation::shownLine(saidAlone(sentence, document_.services().localizer));
  row.isWarning = true;
}

void ReportImport::tellFate(Row& row, Fate fate) {
  switch (fate) {
    case Fate::stored:
      row.outcome = inWords(translatable("ReportImport", "is added"));
      row.canBeChosen = row.isChosen = true;
      storesAnything_ = true;
      return;
    case Fate::isThereAlready:
      row.outcome = inWords(translatable("ReportImport", "is there already"));
      return;
    case Fate::otherStays:
      row.outcome = inWords(translatable("ReportImport", "is not taken: another value stands"));
      break;
    case Fate::isBeyondBounds:
      row.outcome = inWords(translatable("ReportImport", "is not taken: beyond what can be typed"));
      break;
    case Fate::isNeverStored: break;
  }
  row.isWarning = true;
}

void ReportImport::tellUnwanted(Row& row) {
  row.outcome = inWords(translatable("ReportImport", "is left out"));
  row.canBeChosen = true;
}

void ReportImport::offer(Row& row) {
  offers_.insert(row.key);
  row.canBeChosen = true;
  row.isChosen = wanted_.contains(row.key);
  row.isWarning = true;
}

void ReportImport::addRows(std::size_t report, const Wanted& wanted, const exchange::Stored* stored) {
  const Findings& findings = reports_[report];
  if (findings.edd) addEDD(report, stored);
  if (findings.gravida) addGravida(report, stored);
  if (findings.numberOfFetuses && *findings.numberOfFetuses != count_) {
    Row& row = addRow(report, 0, "", inWords(translatable("ReportImport", "Fetuses")));
    row.reported = std::to_string(*findings.numberOfFetuses);
    row.standing = std::to_string(count_);
    tellFate(row, Fate::otherStays);
  }
  for (std::size_t i = 0; i < findings.fetuses.size(); ++i) {
    const FetusFindings& found = findings.fetuses[i];
    const Fetus& fetus = fetuses_[fetusOf(found)];
    for (std::size_t term = 0; term < kLengthTerms.size(); ++term) {
      if (found.lengths.at(term)) addLength(report, wanted, stored, i, term);
    }
    if (found.efw) {
      Row& row = addRow(report, 0, fetus.name, inWords(translatable("ReportImport", "Weight")));
      row.reported = foundation::fieldText(*found.efw, 0, '.') + " g";
      row.outcome = inWords(translatable("ReportImport", "is compared only"));
    }
  }
  for (const Sentence& warning : findings.warnings) addRemark(report, "", warning);
  for (const exchange::NotTaken& not_taken : findings.notTaken) addNotTaken(report, not_taken);
}

void ReportImport::addEDD(std::size_t report, const exchange::Stored* stored) {
  Row& row = addRow(report, kEDD, "", inWords(translatable("ReportImport", "EDD")));
  row.reported = dayText(reports_[report].edd);
  if (reports_[report].eddFrom == "lmp")
    row.reported += " (" + inWords(translatable("ReportImport", "from the last period")) + ")";
  if (!stored) return;
  if (!stored->edd) {
    tellUnwanted(row);
    return;
  }
  row.standing = dayText(stored->edd->standing);
  tellFate(row, stored->edd->fate);
  // An established one is replaced only where a person wants it.
  const bool isReplaced = stored->edd->fate == Fate::stored && wanted_.contains(row.key);
  if (stored->edd->fate != Fate::otherStays && !isReplaced) return;
  offer(row);
  row.outcome = isReplaced ? inWords(translatable("ReportImport", "replaces the established EDD"))
                           : inWords(translatable("ReportImport", "is not taken: the established EDD stays"));
}

void ReportImport::addGravida(std::size_t report, const exchange::Stored* stored) {
  Row& row = addRow(report, kGravida, "", inWords(translatable("ReportImport", "Gravidity")));
  row.reported = std::to_string(*reports_[report].gravida);
  if (!stored) return;
  if (!stored->gravida) {
    tellUnwanted(row);
    return;
  }
  if (stored->gravida->standing != 0) row.standing = std::to_string(stored->gravida->standing);
  tellFate(row, stored->gravida->fate);
}

void ReportImport::addLength(std::size_t report, const Wanted& wanted, const exchange::Stored* stored,
                             std::size_t fetus, std::size_t term) {
  const FetusFindings& found = reports_[report].fetuses[fetus];
  const Fetus& known = fetuses_[fetusOf(found)];
  Row& row = addRow(report, keyOfLength(fetus, term), known.name, inWords(kLengthNames.at(term)));
  row.reported = numberText(exchange::shortestSingleText(found.lengths.at(term)->mm)) + " mm";
  const std::string_view how = howChosen(found.lengths.at(term)->chosen);
  if (!how.empty()) row.reported += " (" + inWords(how) + ")";
  if (!stored) return;
  const auto place = std::ranges::find(wanted.fetuses, fetus);
  if (place == wanted.fetuses.end()) {
    row.outcome = known.isLeftOut ? inWords(translatable("ReportImport", "is left out"))
                                  : inWords(translatable("ReportImport", "Which fetus is it?"));
    row.isWarning = !known.isLeftOut;
    return;
  }
  const auto there = static_cast<std::size_t>(place - wanted.fetuses.begin());
  const auto outcome = std::ranges::find_if(stored->lengths, [&](const exchange::StoredLength& each) {
    return each.fetus == there && each.term == term;
  });
  if (outcome == stored->lengths.end()) {
    tellUnwanted(row);
    return;
  }
  if (outcome->standing != 0.0)
    row.standing = numberText(exchange::shortestSingleText(outcome->standing)) + " mm";
  tellFate(row, outcome->fate);
  if (outcome->fate == Fate::isNeverStored) {
    offer(row);
    row.outcome =
        row.isChosen ? inWords(translatable("ReportImport", "is entered in EDD from CRL"))
                     : inWords(translatable("ReportImport", "is not stored; can be entered in EDD from CRL"));
    if (!row.isChosen) return;
    storesAnything_ = true;
    imported_.crl = found.lengths.at(term)->mm;
    imported_.crlDay = reports_[report].examDate;
    return;
  }
  if (outcome->fate != Fate::stored) return;
  // The first fetus of the last examination.
  if (imported_.shownDay != reports_[report].examDate) imported_.shownFetus = outcome->place;
  imported_.shownDay = reports_[report].examDate;
  row.isWarning = isDerived(found.lengths.at(term)->chosen);
}

void ReportImport::addNotTaken(std::size_t report, const exchange::NotTaken& notTaken) {
  const auto fetus =
      notTaken.fetus ? std::ranges::find(fetuses_, *notTaken.fetus, &Fetus::id) : fetuses_.end();
  Row& row = addRow(report, 0, fetus != fetuses_.end() ? fetus->name : "", "");
  row.what = labelOf(notTaken.what);
  if (notTaken.value) {
    row.reported =
        numberText(foundation::shortestText(*notTaken.value)) + " " + foundation::shownLine(notTaken.unit);
  }
  const std::string why = said(notTaken.why, document_.services().localizer);
  row.outcome = inWords(translatable("ReportImport", "is not taken:")) + " " + foundation::shownLine(why);
}

std::string ReportImport::findObstacleOfFetuses(const Findings& report) const {
  std::vector<const Fetus*> wanted;
  for (const FetusFindings& found : report.fetuses) {
    const Fetus& fetus = fetuses_[fetusOf(found)];
    if (!fetus.isLeftOut) wanted.push_back(&fetus);
  }
  if (std::ssize(wanted) > count_) {
    return foundation::format(
        inWords(
            translatable("ReportImport",
                         "The report is of %ld fetuses, the document of %ld. Please leave out the others, or "
                         "cancel and add a fetus.")),
        {static_cast<long>(wanted.size()), count_});
  }
  std::set<std::int64_t> taken;
  for (const Fetus* fetus : wanted) {
    if (!fetus->place)
      return inWords(translatable("ReportImport", "Please choose for each fetus which one it is."));
    if (!taken.insert(*fetus->place).second)
      return inWords(translatable("ReportImport", "Two fetuses of the report cannot be the same one."));
  }
  return {};
}

std::string ReportImport::findObstacle() const {
  if (areOfSeveralPatients_)
    return inWords(translatable(
        "ReportImport", "The reports are of several patients. Please import those of each patient alone."));
  if (!patientDoubt_.empty() && !isPatientConfirmed_)
    return inWords(translatable("ReportImport", "Please say whether the report is of this patient."));
  if (placeNames().empty())
    return inWords(translatable("ReportImport", "The document has a number of fetuses that no report fits."));
  for (const Findings& report : reports_) {
    if (std::string obstacle = findObstacleOfFetuses(report); !obstacle.empty()) return obstacle;
  }
  if (!storesAnything_) return inWords(translatable("ReportImport", "There is nothing to be added."));
  return {};
}

bool ReportImport::store() {
  // What a script did meanwhile counts.
  foresee();
  if (!obstacle_.empty()) return false;
  const auto established = document_.patientRecord()->edd();
  if (established && foreseen_->edd() != established && !document_.userModifiesEDD(foreseen_->edd()))
    return false;
  document_.takeImported(std::move(foreseen_), imported_);
  return true;
}

}  // namespace nascor::app
