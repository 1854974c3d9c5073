// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/FieldReader.h"
#include "app/PatientPages.h"
#include "calc/Biometry.h"
#include "calc/Dating.h"
#include "framework/Controls.h"
#include "framework/TextField.h"

namespace nascor::app {

// The panels beside the window that date the pregnancy and plan the delivery: their fields, and what these say together.
// Nothing here knows a patient: the document opens the panels, and enters what they propose.

/// What a panel would enter as the EDD.
struct ProposedEDD {
  std::string text;                                    ///< empty when there is none
  std::vector<const framework::TextField*> obstacles;  ///< then, what stands in its way
  std::vector<std::string> reasons;                    ///< why, a sentence each
  std::string remark;  ///< a sentence on what is improbable in an EDD that is proposed; else empty

  /// `field` stands in the way; a reason that stands already is not repeated.
  void refuse(const framework::TextField& field, const std::string& reason);
};

/// A panel and its fields.
class DatingPanel {
 public:
  DatingPanel(const DatingPanel&) = delete;
  DatingPanel& operator=(const DatingPanel&) = delete;

  framework::Panel& panel() { return panel_; }
  const framework::Panel& panel() const { return panel_; }
  /// In the order in which the document lists them.
  const std::vector<framework::TextField*>& fields() const { return fields_; }

 protected:
  DatingPanel(std::string name, const FieldReader& reader) : panel_(std::move(name)), reader_(reader) {}
  ~DatingPanel() = default;

  void setFields(std::vector<framework::TextField*> fields) { fields_ = std::move(fields); }
  const FieldReader& reader() const { return reader_; }
  const foundation::Localizer& localizer() const { return reader_.services().localizer; }
  /// `date` as what is entered; nothing, because of `obstacles` for `reason`, when it has no text that reads back to the
  /// same day.
  ProposedEDD proposed(const std::optional<foundation::Date>& date,
                       const std::vector<const framework::TextField*>& obstacles,
                       const std::string& reason) const;
  /// Why `field` has no date.
  std::string whyNoDate(const framework::TextField& field, Reading reading) const;

 private:
  framework::Panel panel_;
  const FieldReader& reader_;
  std::vector<framework::TextField*> fields_;
};

/// From a crown-rump length at a scan.
class CRLPanel final : public DatingPanel {
 public:
  explicit CRLPanel(const FieldReader& reader);

  /// Shows it; without a date of the scan in the middle of the window, and with today's.
  void open();
  /// By that formula (calc/Dating.h); the formula is an obstacle too, by the field that names it.
  ProposedEDD proposedEDD(std::int64_t crlStandard, Reading reading) const;

  framework::TextField date{"crlWindowDate"};
  framework::NumberField length;
  framework::TextField standardReference{"crlStandardReference"};

 private:
  std::string whyNoAge(const calc::CRLFormula& formula, Reading reading) const;
};

/// From the first day of the last period, for a cycle of usual or other length.
class LastPeriodPanel final : public DatingPanel {
 public:
  explicit LastPeriodPanel(const FieldReader& reader);

  /// Shows it, in the middle of the window while it has no date.
  void open();
  ProposedEDD proposedEDD(Reading reading) const;

  framework::TextField lastPeriod{"lmpWindowLMP"};
  framework::IntegerField cycle{"lmpWindowCycleField"};
  framework::IntegerField luteal{"lmpWindowLutealField"};

 private:
  std::string remarkOnCycle(std::int64_t cycleDays, std::int64_t lutealDays, Reading reading) const;
};

/// From the lengths of the examination and the fetus on show.
class MeasurementsPanel final : public DatingPanel {
 public:
  explicit MeasurementsPanel(const FieldReader& reader);

  /// One length: whether it counts, and the age that it gives.
  struct Row {
    explicit Row(const std::string& name) : check(name + "Check", true), gestation(name + "Gestation") {}
    framework::CheckBox check;
    framework::TextField gestation;
  };
  Row& row(calc::Measurement measurement) { return rows_.at(static_cast<std::size_t>(measurement)); }

  /// Shows it in the middle of the window.
  void open();
  /// Dates each of `lengths` by the mean of its chart, and averages those whose box is checked. What lies more than two
  /// standard deviations from the mean at the average turns red, checked or not.
  void dateLengths(const calc::Biometry& lengths, const PatientPages& pages);
  void showAverage();
  /// In weeks, as `dateLengths` last found it; 0.0 with no box checked.
  double averageGestation() const { return averageGestation_; }
  /// `examDate` is shown in `examDateField`, the obstacle where there is none.
  ProposedEDD proposedEDD(const std::optional<foundation::Date>& examDate,
                          const framework::TextField& examDateField) const;

  framework::TextField average{"measurementsWindowAvGestation"};

 private:
  std::array<Row, calc::kMeasurements.size()> rows_{Row("measurementsWindowBPD"), Row("measurementsWindowHC"),
                                                    Row("measurementsWindowAC"), Row("measurementsWindowFL")};
  double averageGestation_ = 0.0;
};

/// The planned delivery, in days from the EDD.
class DeliveryPanel final : public DatingPanel {
 public:
  explicit DeliveryPanel(const FieldReader& reader);

  /// Shows it in the middle of the window.
  void open();
  /// Plans `days` from the EDD, with room for them however early they are, and up to what `growthStandard` permits.
  void setPlannedDays(double days, std::int64_t growthStandard);
  /// Limits the plan to what `growthStandard` permits.
  void limitFor(std::int64_t growthStandard);
  /// In weeks.
  double plannedGestation() const;
  /// Shows the EDD, the day of the planned delivery, and its age.
  void show(foundation::Date dueDate);

  framework::Stepper stepper{-280.0, 7.0, 1.0};
  framework::TextField edd{"adjustEDDField"};
  framework::TextField deliverOn{"adjustDeliverOnField"};
  framework::TextField deliverAt{"adjustDeliverAtField"};
};

}  // namespace nascor::app
