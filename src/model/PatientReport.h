// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <numeric>
#include <optional>
#include <string>
#include <vector>

#include "calc/EditingBounds.h"
#include "calc/Standards.h"
#include "foundation/Localizer.h"
#include "model/PatientRecord.h"

namespace nascor::model {

/// The tabular report of one patient: who, when and how far on; a row for each examination of a fetus; and, late in
/// pregnancy, a row projected to the planned delivery. Screen, paper and command line take numbers and texts from here.
class PatientReport {
 public:
  /// Projects to `plannedGestation` weeks. `patient` outlives the report.
  PatientReport(const PatientRecord& patient, double plannedGestation)
      : patient_(patient), plannedGestation_(plannedGestation) {}

  const PatientRecord& patient() const { return patient_; }
  double plannedGestation() const { return plannedGestation_; }
  std::size_t examinations() const { return patient_.ncRecordsArray().size(); }

  /// Null without such an examination.
  const NCRecord* examination(std::int64_t exam) const;
  /// Null without any.
  const NCRecord* lastExamination() const;
  /// Menstrual age in weeks; 0.0 when it is not known, or for null.
  double age(const NCRecord* examination) const;

  bool projectionIsShown() const;

  /// A day as the reader writes it.
  using DayText = std::function<std::string(const std::optional<foundation::Date>&)>;
  /// What stands above the rows.
  struct Head {
    std::string identifier;
    std::string gravida;
    std::string examDate;
    std::string edd;  ///< "-" for none
    std::string age;
    std::string daysToGo;  ///< with its label, and a tab behind that; empty when there are none to show
  };
  /// At one examination; null for none.
  Head head(const NCRecord* examination, const DayText& dayText,
            const foundation::Localizer& localizer) const;

  /// An examination of one fetus, or the projection.
  struct Row {
    std::optional<foundation::Date> examDate;  ///< none for the projection
    double age = 0.0;                          ///< weeks
    calc::Biometry lengths;
    double weight = 0.0;  ///< grams, by the patient's formula
    bool isProjected = false;

    /// In millimetres, with one decimal.
    std::string lengthText(calc::Measurement measurement) const;
    /// In whole grams. Of an examination "-" unless it is above 100 g, of the projection any.
    std::string weightText() const;
  };
  /// `measured` is one fetus at that examination; null counts as not measured.
  Row row(const NCRecord& examination, const MeasurementsRecord* measured) const;
  /// What a length (mm) of the last examination, 0.0 for not measured, is at the planned delivery by `standard`.
  double projectedLength(double length, const calc::ReferenceTable& standard) const;
  /// The row of those projected lengths.
  Row projectedRow(const calc::Biometry& lengths) const;

  using Cells = std::array<std::string, 3 + calc::kMeasurements.size()>;
  static Cells titles(const foundation::Localizer& localizer);
  /// The texts of a row. `first` is the day as the reader writes it, or `projectedTitle`.
  static Cells cells(const Row& row, std::string first, const foundation::Localizer& localizer);
  /// The first cell of the projected row.
  static std::string projectedTitle(const foundation::Localizer& localizer);

  /// Hands on each fetus, from 0, with the places of its examinations: all of them for a fetus that the patient counts,
  /// up to the five that the program knows; for others, which only a file can hold, those that have a record of it.
  template <class Use>
  void forEachFetus(Use use) const {
    const auto& examinations = patient_.ncRecordsArray();
    const auto counted =
        static_cast<std::size_t>(std::clamp<std::int64_t>(patient_.numberOfFetuses(), 0, calc::kMostFetuses));
    std::vector<std::size_t> places(examinations.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    for (std::size_t fetus = 0;; ++fetus) {
      if (fetus >= counted) {
        std::erase_if(places,
                      [&](std::size_t place) { return examinations[place]->measurements().size() <= fetus; });
        if (places.empty()) return;
      }
      use(fetus, places);
    }
  }

 private:
  const PatientRecord& patient_;
  double plannedGestation_;
};

}  // namespace nascor::model
