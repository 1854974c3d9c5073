// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "scripting/NCDocumentScripting.h"

#include "foundation/Calendar.h"
#include "foundation/IsoDate.h"
#include "foundation/NumberText.h"
#include "foundation/RangeError.h"
#include "foundation/Utf8.h"

namespace nascor::scripting {
namespace {

using foundation::Date;

class Utc final : public foundation::Calendar {
 public:
  double offsetFromUtc(Date) const override { return 0.0; }
};

const std::string kNone = "(null)";

/// As the log names a date: `2027-04-10 00:00:00 +0000`. Nothing for a date that no calendar holds.
std::string logText(const std::optional<Date>& date) {
  if (!date) return kNone;
  std::string text = foundation::isoDateTimeText(*date, Utc());
  if (text.empty()) return text;
  text[text.find('T')] = ' ';
  text += " +0000";
  return text;
}

/// A text as the log shows it: its first 200 characters, so that no value fills the log.
std::string logText(const std::string& text) {
  constexpr std::size_t kLongest = 200;
  std::size_t characters = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!foundation::continuesCodePoint(text[i]) && ++characters > kLongest) return text.substr(0, i) + "...";
  }
  return text;
}

}  // namespace

std::optional<std::string> NCDocumentScripting::identifier() {
  document_.synchronizeFromData();
  const auto* record = document_.patientRecord();
  auto identifier = record ? record->maternalIDString() : std::nullopt;
  log_.write("Scripting: identifier is " + logText(identifier.value_or(kNone)));
  return identifier;
}

void NCDocumentScripting::setIdentifier(const std::string& identifier) {
  // "identifer" is how the line has always been spelt, and what is looked for in logs.
  log_.write("Scripting: set identifer to " + logText(identifier));
  if (auto* record = document_.patientRecord()) record->setMaternalIDString(identifier);
  refreshAndMarkEdited();
}

std::int64_t NCDocumentScripting::gravida() {
  const auto* record = document_.patientRecord();
  const std::int64_t gravida = record ? record->gravida() : 0;
  log_.write("Scripting: gravida is " + std::to_string(gravida));
  return gravida;
}

void NCDocumentScripting::setGravida(const ScriptNumber& gravida) {
  const std::int64_t whole = integerValue(gravida);
  log_.write("Scripting: set gravida to " + std::to_string(whole));
  if (auto* record = document_.patientRecord()) record->setGravida(whole);
  refreshAndMarkEdited();
}

std::optional<Date> NCDocumentScripting::edd() {
  const auto* record = document_.patientRecord();
  const auto edd = record ? record->edd() : std::nullopt;
  log_.write("Scripting: edd is " + logText(edd));
  return edd;
}

void NCDocumentScripting::setEdd(const std::optional<Date>& edd) {
  log_.write("Scripting: set edd to " + logText(edd));
  if (auto* record = document_.patientRecord()) record->setEDD(edd);
  refreshAndMarkEdited();
}

std::optional<Date> NCDocumentScripting::examDate() {
  const model::NCRecord* exam = lastExamination();
  const auto examDate = exam ? exam->examDate() : std::nullopt;
  log_.write("Scripting: examDate is " + logText(examDate));
  return examDate;
}

void NCDocumentScripting::setExamDate(const std::optional<Date>& examDate) {
  log_.write("Scripting: set exam date to " + logText(examDate));
  if (model::NCRecord* exam = lastExamination()) exam->setExamDate(examDate);
  refreshAndMarkEdited();
}

double NCDocumentScripting::bpd() const {
  const auto* record = document_.lastMeasurementsRecordForCurrentFetus();
  return record ? record->bpd() : 0.0;
}
double NCDocumentScripting::hc() const {
  const auto* record = document_.lastMeasurementsRecordForCurrentFetus();
  return record ? record->hc() : 0.0;
}
double NCDocumentScripting::ac() const {
  const auto* record = document_.lastMeasurementsRecordForCurrentFetus();
  return record ? record->ac() : 0.0;
}
double NCDocumentScripting::fl() const {
  const auto* record = document_.lastMeasurementsRecordForCurrentFetus();
  return record ? record->fl() : 0.0;
}

void NCDocumentScripting::setBpd(const ScriptNumber& bpd) {
  setLength("bpd", &model::MeasurementsRecord::setBPD, bpd);
}
void NCDocumentScripting::setHc(const ScriptNumber& hc) {
  setLength("hc", &model::MeasurementsRecord::setHC, hc);
}
void NCDocumentScripting::setAc(const ScriptNumber& ac) {
  setLength("ac", &model::MeasurementsRecord::setAC, ac);
}
void NCDocumentScripting::setFl(const ScriptNumber& fl) {
  setLength("fl", &model::MeasurementsRecord::setFL, fl);
}

std::int64_t NCDocumentScripting::tabViewIndex() const { return document_.tabView().indexOfSelectedPage(); }

void NCDocumentScripting::setTabViewIndex(const ScriptNumber& index) {
  const std::int64_t page = integerValue(index);
  log_.write("Scripting: set tab view index to " + std::to_string(page));
  const std::int64_t last = document_.tabView().numberOfPages() - 1;
  if (page < 0 || page > last) {
    throw foundation::RangeError("tabViewIndex: expected one of the pages 0 to " + std::to_string(last) +
                                     ", but got " + std::to_string(page),
                                 foundation::SourceLocation::current());
  }
  document_.tabView().selectPage(page);
}

model::NCRecord* NCDocumentScripting::lastExamination() {
  auto* record = document_.patientRecord();
  if (!record || record->ncRecordsArray().empty()) return nullptr;
  return record->ncRecordsArray().back().get();
}

model::MeasurementsRecord* NCDocumentScripting::lastMeasurements() {
  if (!document_.lastMeasurementsRecordForCurrentFetus()) return nullptr;
  return &lastExamination()->measurementsForFetus(document_.currentFetus());
}

void NCDocumentScripting::setLength(std::string_view name, Length store, const ScriptNumber& value) {
  const auto length = static_cast<double>(floatValue(value));
  log_.write(std::string("Scripting: set ").append(name).append(" to ") + foundation::fixedText(length, 1));
  if (model::MeasurementsRecord* measured = lastMeasurements()) (measured->*store)(length);
  refreshAndMarkEdited();
}

void NCDocumentScripting::refreshAndMarkEdited() {
  document_.synchronizeFromData();
  document_.updateChangeCount(app::NCDocument::ChangeType::changeDone);
  document_.scriptHasStored();
}

}  // namespace nascor::scripting
