// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Equations.h"
#include "foundation/Localizer.h"
#include "model/PatientRecord.h"

namespace nascor::compare {

// A comparison as tables for people: what the Compare window shows, copies, prints and exports. All texts are UTF-8 in the
// user's language; each figure keeps its number, which is not rounded, to be sorted by.

struct Column {
  std::string title;
  bool isNumber = false;      ///< stands at the right and is sorted by its numbers
  std::string explanation{};  ///< a sentence; may be empty
};

struct Cell {
  std::string text;                      ///< "-" where there is no figure
  std::optional<double> number{};        ///< unrounded; none where there is no figure or it is no number
  std::optional<calc::Method> method{};  ///< by which it is worked out; none for what was measured
};

struct Row {
  std::vector<Cell> cells;  ///< one for each column
  /// Why a figure is missing or stands for little, as sentences; mostly empty. The last cell has its beginning in a word.
  std::string remark{};
  bool isChosen = false;  ///< by the standard or the formula that the document names
};

struct Table {
  std::string_view name;  ///< in English, for programs: "lengths", "weights", "ratios", "fetuses", "growth"
  std::string title;
  std::vector<Column> columns;
  std::vector<Row> rows;
};

/// The tables, in the order of the Compare window.
enum class TableKind { lengths, weights, ratios, fetuses, growth };
inline constexpr std::array kTableKinds{TableKind::lengths, TableKind::weights, TableKind::ratios,
                                        TableKind::fetuses, TableKind::growth};

/// One of `tablesOf`, without the time that the others take.
Table tableOf(TableKind kind, const model::PatientRecord& patient, std::size_t examination, std::size_t fetus,
              const foundation::Localizer& localizer);

/// The five tables of the fetus at place `fetus` of the examination at place `examination`, both from 0. Throws RangeError
/// for an examination that is not there.
std::vector<Table> tablesOf(const model::PatientRecord& patient, std::size_t examination, std::size_t fetus,
                            const foundation::Localizer& localizer);

/// Lines of tab-separated cells, the titles first.
std::string tabbedText(const Table& table);

/// The same as CSV: cells with a comma, a quotation mark or a line end stand in quotation marks, lines end with CR and LF.
/// Numbers have a decimal point and all their digits.
std::string csvText(const Table& table);

}  // namespace nascor::compare
