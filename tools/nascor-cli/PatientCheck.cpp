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

using foundation::Sentence;
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
    if (facts_.byteOrder == archive::ByteOrder::big)
      add("byteOrder", Sentence("Check", "its byte order is big"));
    version(model::class_name::patientRecord, facts_.patientVersion, model::class_version::patientRecord);
    version(model::class_name::ncRecord, facts_.ncRecordVersion, model::class_version::ncRecord);
    version(model::class_name::measurementsRecord, facts_.measurementsVersion,
            model::class_version::measurementsRecord);
    if (facts_.patientVersion >= model::class_version::patientWithGravida &&
        facts_.gravidityText != model::class_version::gravidityPlaceholder) {
      add("gravidityText",
          facts_.gravidityText
              ? Sentence("Check", "the old place of the gravidity holds \"%1\"").with(*facts_.gravidityText)
              : Sentence("Check", "the old place of the gravidity holds nothing"));
    }
    if (facts_.missingArrays > 0)
      add("missingList", counted(facts_.missingArrays, Sentence("Check", "%1 list is missing"),
                                 Sentence("Check", "%1 lists are missing")));
    if (facts_.sharedRecords > 0) {
      add("sharedRecord",
          counted(facts_.sharedRecords, Sentence("Check", "%1 record stands in several places"),
                  Sentence("Check", "%1 records stand in several places")));
    }
    if (facts_.trailingBytes > 0) {
      add("trailingBytes", counted(facts_.trailingBytes, Sentence("Check", "%1 byte follows the patient"),
                                   Sentence("Check", "%1 bytes follow the patient")));
    }
  }

  void version(std::string_view className, std::optional<std::int64_t> found, std::int64_t written) {
    if (!found || *found == written) return;
    //: %1 is the name of a class of a document's file, as in the next one.
    const auto text = *found < written ? Sentence("Check", "%1 has version %2, older than %3")
                                       : Sentence("Check", "%1 has version %2, newer than %3");
    add("classVersion", text.with(className, *found, written));
  }

  void patient() {
    if (!patient_.maternalIDString()) add("missingText", Sentence("Check", "the identifier is missing"));
    date(patient_.edd(), Sentence("Check", "the EDD is missing"), Sentence("Check", "the EDD is %1"),
         //: 2001-01-01 is the day from which seconds count.
         Sentence("Check", "the EDD, %1 s from 2001-01-01, is outside the years 1 to 9999"));
    if (patient_.gravida() < calc::kLeastGravida) {
      add("bounds", Sentence("Check", "the gravidity %1 is negative").with(patient_.gravida()));
    }
    identifier(Sentence("Check", "the growth standard %1 is unknown"), patient_.standard(),
               calc::growthStandard(patient_.standard()) != nullptr);
    identifier(Sentence("Check", "the weight formula %1 is unknown"), patient_.fetalWeightStandard(),
               calc::weightFormula(patient_.fetalWeightStandard()) != nullptr);
    identifier(Sentence("Check", "the CRL formula %1 is unknown"), patient_.crlStandard(),
               calc::crlFormula(patient_.crlStandard()) != nullptr);
    const auto days = calc::plannedDeliveryDays(patient_.standard());
    const double planned = calc::deliveryAdjustment(patient_.extrapolatedGestation());
    if (!days.permit(planned)) {
      add("plannedDelivery",
          Sentence("Check", "the planned delivery, %1 days from 40 weeks, is outside %2 to %3 days")
              .with(shortestText(planned), shortestText(days.least), shortestText(days.greatest)));
    }
    const std::int64_t fetuses = patient_.numberOfFetuses();
    if (fetuses < calc::kFewestFetuses || fetuses > calc::kMostFetuses) {
      add("fetusCount", Sentence("Check", "the number of fetuses, %1, is outside %2 to %3")
                            .with(fetuses, calc::kFewestFetuses, calc::kMostFetuses));
    }
    if (patient_.ncRecordsArray().empty()) add("noExamination", Sentence("Check", "there is no examination"));
  }

  void identifier(const Sentence& text, std::int64_t value, bool isKnown) {
    if (!isKnown) add("unknownStandard", text.with(value));
  }

  void examination(std::size_t index) {
    const NCRecord& examination = *patient_.ncRecordsArray()[index];
    examination_ = index + 1;
    if (!examination.note()) add("missingText", Sentence("Check", "the note is missing"));
    date(examination.examDate(), Sentence("Check", "the date is missing"),
         Sentence("Check", "the date is %1"),
         Sentence("Check", "the date, %1 s from 2001-01-01, is outside the years 1 to 9999"));
    if (index > 0 && std::is_lt(examination.compare(*patient_.ncRecordsArray()[index - 1]))) {
      //: "It" is an examination.
      add("order", Sentence("Check", "it is earlier than the one before it"));
    }
    const double age = ageAt(examination);
    if (const auto what = calc::improbableAge(age)) add(kindOf(*what), improbableText(*what, age));
    const auto& measurements = examination.measurements();
    if (!std::cmp_equal(measurements.size(), patient_.numberOfFetuses())) {
      const std::int64_t patients = patient_.numberOfFetuses();
      const std::size_t fetuses = measurements.size();
      //: "It" is an examination; %2 are the fetuses of the patient.
      const auto one = Sentence("Check", "it has %1 fetus, the patient %2");
      const auto many = Sentence("Check", "it has %1 fetuses, the patient %2");
      add("fetusCount",
          Sentence::counted(fetuses, one.with(fetuses, patients), many.with(fetuses, patients)));
    }
    for (std::size_t fetus = 0; fetus < measurements.size(); ++fetus) {
      fetus_ = fetus + 1;
      const calc::Biometry& lengths = measurements[fetus].biometry();
      for (const calc::Measurement measurement : calc::kMeasurements) {
        for (const calc::Improbable what :
             calc::improbableLength(measurement, lengths, age, tableOf(measurement))) {
          add(kindOf(what), improbableText(what, measurement, lengths));
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

  void date(const std::optional<foundation::Date>& date, const Sentence& missing, const Sentence& noNumber,
            const Sentence& outside) {
    if (!date) {
      add("missingDate", missing);
    } else if (!std::isfinite(date->secondsSince2001)) {
      add("date", noNumber.with(shortestText(date->secondsSince2001)));
    } else if (isoDayText(*date, calendar_).empty()) {
      add("date", outside.with(shortestText(date->secondsSince2001)));
    }
  }

  void add(std::string_view kind, const Sentence& what) {
    oddities_.push_back(
        {.kind = kind, .text = withItsPlace(what), .examination = examination_, .fetus = fetus_});
  }

  Sentence withItsPlace(const Sentence& what) const {
    if (!examination_) return what;
    //: %3 is a sentence about that fetus of that examination, which begins with a small letter.
    if (fetus_) return Sentence("Check", "examination %1, fetus %2: %3").with(*examination_, *fetus_, what);
    return Sentence("Check", "examination %1: %2").with(*examination_, what);
  }

  static Sentence counted(std::size_t count, const Sentence& one, const Sentence& many) {
    return Sentence::counted(count, one.with(count), many.with(count));
  }

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
