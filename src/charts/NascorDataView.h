// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "charts/UpdatingGraphView.h"
#include "model/PatientReport.h"

namespace nascor::charts {

/// The tabular report of the fetus on show (`model::PatientReport`), drawn. Everything is read from the document at each
/// redraw.
///
/// y grows downward. Older examinations that do not fit are left out from the top; the view is drawn whole.
class NascorDataView final : public UpdatingGraphView {
 public:
  using UpdatingGraphView::UpdatingGraphView;

  std::string_view className() const override { return "NascorDataView"; }
  bool isFlipped() const override { return true; }
  /// The title names the weight formula of the document (of the user's preference while there is no document).
  void resetStandards() override;

  /// How many examinations the report lists in its present size.
  std::int64_t examinationsShown() const;
  /// The whole report as text, with all examinations: a line a row, its cells set apart by tabs.
  std::string tabSeparatedText() const;
  /// The same as it is read aloud: of very many examinations the newest hundred, and a long identifier cut as everywhere.
  std::string shownText() const;

 protected:
  void drawRect(const framework::Rect& rect) override;
  void drawReferenceTitle() override;
  /// The report plots nothing.
  framework::Rect offeredGraphRect() const override { return {}; }

 private:
  using Cells = model::PatientReport::Cells;

  /// Nothing without a patient.
  std::optional<model::PatientReport> report() const;
  model::PatientReport::Head headOf(const model::PatientReport& report) const;
  std::int64_t firstExaminationShown(const model::PatientReport& report, double height) const;
  std::string text(std::int64_t mostExaminations, std::string (*lineOf)(std::string_view)) const;
  std::vector<std::string> leftHeader(const model::PatientReport::Head& head,
                                      const std::string& identifier) const;
  std::vector<std::string> rightHeader(const model::PatientReport::Head& head) const;
  Cells examinationCells(const model::PatientReport& report, std::int64_t exam) const;
  Cells projectedCells(const model::PatientReport& report) const;
  std::string dateText(const std::optional<foundation::Date>& date) const;
  std::string shortened(std::string identifierLine) const;
  void drawRow(const Cells& cells, double y, framework::NamedColor color);
};

}  // namespace nascor::charts
