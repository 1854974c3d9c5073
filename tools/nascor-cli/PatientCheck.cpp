// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/PatientCheck.h"

#include <array>
#include <cmath>
#include <compare>
#include <utility>

#include "calc/Dating.h"
#include "calc/EditingBounds.h"
#include "calc/FetalWeight.h"
#include "calc/Plausibility.h"
#include "calc/Report.h"
#include "calc/Standards.h"
#include "cli_commands/Improbable.h"
#include "foundation/IsoDate.h"
#include "foundation/NumberText.h"
#include "model/ClassNames.h"

namespace nascor::cli {

namespace {

using foundation::shortestText;
using model::NCRecord;
using model::PatientRecord;

class Check {
 public:
  Check(const model::UnarchivedPatient& document, const foundation::Calendar& calendar)
      : facts_(document.facts), patient_(*document.patient), calendar_(calendar) {
    for (const calc::Measurement measurement : calc::kMeasurements)
      calc::appendStandard(tableOf(measurement), patient_.standard(), measurement);
  }

  std::vector<Oddity> run() {
    file();
    patient();
    for (std::size_t i = 0; i < patient_.ncRecordsArray().size(); ++i) examination(i);
    return std::move(oddities_);
  }

 private:
  void file() {
    if (facts_.byteOrder == archive::ByteOrder::big) add("byteOrder", "its byte order is big");
    version(model::class_name::patientRecord, facts_.patientVersion, model::class_version::patientRecord);
    version(model::class_name::ncRecord, facts_.ncRecordVersion, model::class_version::ncRecord);
    version(model::class_name::measurementsRecord, facts_.measurementsVersion,
            model::class_version::measurementsRecord);
    if (facts_.patientVersion >= model::class_version::patientWithGravida &&
        facts_.gravidityText != model::class_version::gravidityPlaceholder) {
      add("gravidityText", facts_.gravidityText
                               ? "the old place of the gravidity holds " + inQuotes(*facts_.gravidityText)
                               : "the old place of the gravidity holds nothing");
    }
    if (facts_.missingArrays > 0)
      add("missingList", counted(facts_.missingArrays, "list is", "lists are") + " missing");
    if (facts_.sharedRecords > 0) {
      add("sharedRecord",
          counted(facts_.sharedRecords, "record stands", "records stand") + " in several places");
    }
    if (facts_.trailingBytes > 0) {
      add("trailingBytes", counted(facts_.trailingBytes, "byte follows", "bytes follow") + " the patient");
    }
  }

  void version(std::string_view className, std::optional<std::int64_t> found, std::int64_t written) {
    if (!found || *found == written) return;
    add("classVersion", std::string(className) + " has version " + std::to_string(*found) +
                            (*found < written ? ", older than " : ", newer than ") + std::to_string(written));
  }

  void patient() {
    if (!patient_.maternalIDString()) add("missingText", "the identifier is missing");
    date(patient_.edd(), "EDD");
    if (patient_.gravida() < calc::kLeastGravida) {
      add("bounds", "the gravidity " + std::to_string(patient_.gravida()) + " is negative");
    }
    identifier("growth standard", patient_.standard(), calc::growthStandard(patient_.standard()) != nullptr);
    identifier("weight formula", patient_.fetalWeightStandard(),
               calc::weightFormula(patient_.fetalWeightStandard()) != nullptr);
    identifier("CRL formula", patient_.crlStandard(), calc::crlFormula(patient_.crlStandard()) != nullptr);
    const auto days = calc::plannedDeliveryDays(patient_.standard());
    const double planned = calc::deliveryAdjustment(patient_.extrapolatedGestation());
    if (!days.permit(planned)) {
      add("plannedDelivery", "the planned delivery, " + shortestText(planned) +
                                 " days from 40 weeks, is outside " + shortestText(days.least) + " to " +
                                 shortestText(days.greatest) + " days");
    }
    const std::int64_t fetuses = patient_.numberOfFetuses();
    if (fetuses < calc::kFewestFetuses || fetuses > calc::kMostFetuses) {
      add("fetusCount", "the number of fetuses, " + std::to_string(fetuses) + ", is outside " +
                            std::to_string(calc::kFewestFetuses) + " to " +
                            std::to_string(calc::kMostFetuses));
    }
    if (patient_.ncRecordsArray().empty()) add("noExamination", "there is no examination");
  }

  void identifier(std::string_view what, std::int64_t value, bool isKnown) {
    if (!isKnown)
      add("unknownStandard", "the " + std::string(what) + " " + std::to_string(value) + " is unknown");
  }

  void examination(std::size_t index) {
    const NCRecord& examination = *patient_.ncRecordsArray()[index];
    examination_ = index + 1;
    if (!examination.note()) add("missingText", "the note is missing");
    date(examination.examDate(), "date");
    if (index > 0 && std::is_lt(examination.compare(*patient_.ncRecordsArray()[index - 1]))) {
      add("order", "it is earlier than the one before it");
    }
    const double age = ageAt(examination);
    if (const auto what = calc::improbableAge(age)) add(kindOf(*what), english(improbableText(*what, age)));
    const auto& measurements = examination.measurements();
    if (!std::cmp_equal(measurements.size(), patient_.numberOfFetuses())) {
      add("fetusCount", "it has " + counted(measurements.size(), "fetus", "fetuses") + ", the patient " +
                            std::to_string(patient_.numberOfFetuses()));
    }
    for (std::size_t fetus = 0; fetus < measurements.size(); ++fetus) {
      fetus_ = fetus + 1;
      const calc::Biometry& lengths = measurements[fetus].biometry();
      for (const calc::Measurement measurement : calc::kMeasurements) {
        for (const calc::Improbable what :
             calc::improbableLength(measurement, lengths, age, tableOf(measurement))) {
          add(kindOf(what), english(improbableText(what, measurement, lengths)));
        }
      }
    }
    fetus_.reset();
    examination_.reset();
  }

  /// 0.0, unknown, for dates that are no days.
  double ageAt(const NCRecord& examination) const {
    const auto isDay = [this](const std::optional<foundation::Date>& date) {
      return date && !isoDayText(*date, calendar_).empty();
    };
    if (!isDay(examination.examDate()) || !isDay(patient_.edd())) return 0.0;
    return calc::menstrualAge(examination.examDate(), patient_.edd());
  }

  static std::string_view kindOf(calc::Improbable what) {
    switch (what) {
      case calc::Improbable::beforeLastPeriod:
      case calc::Improbable::longPastTerm: return "age";
      case calc::Improbable::outsideBounds: return "bounds";
      default: return "improbable";
    }
  }

  calc::ReferenceTable& tableOf(calc::Measurement measurement) {
    return tables_[static_cast<std::size_t>(measurement)];
  }

  void date(const std::optional<foundation::Date>& date, const std::string& name) {
    if (!date) {
      add("missingDate", "the " + name + " is missing");
    } else if (!std::isfinite(date->secondsSince2001)) {
      add("date", "the " + name + " is " + shortestText(date->secondsSince2001));
    } else if (isoDayText(*date, calendar_).empty()) {
      add("date", "the " + name + ", " + shortestText(date->secondsSince2001) +
                      " s from 2001-01-01, is outside the years 1 to 9999");
    }
  }

  void add(std::string_view kind, const std::string& sentence) {
    std::string text;
    if (examination_) text += "examination " + std::to_string(*examination_);
    if (fetus_) text += ", fetus " + std::to_string(*fetus_);
    if (!text.empty()) text += ": ";
    oddities_.push_back(
        {.kind = kind, .text = text + sentence, .examination = examination_, .fetus = fetus_});
  }

  static std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return std::to_string(count) + " " + std::string(count == 1 ? one : many);
  }

  static std::string inQuotes(const std::string& text) { return '"' + text + '"'; }

  /// What stands in the old place since the gravidity is a number of its own.

  const model::ArchiveFacts& facts_;
  const PatientRecord& patient_;
  const foundation::Calendar& calendar_;
  std::array<calc::ReferenceTable, calc::kMeasurements.size()> tables_;
  std::vector<Oddity> oddities_;
  std::optional<std::size_t> examination_;
  std::optional<std::size_t> fetus_;
};

}  // namespace

std::vector<Oddity> odditiesOf(const model::UnarchivedPatient& document,
                               const foundation::Calendar& calendar) {
  return Check(document, calendar).run();
}

}  // namespace nascor::cli
