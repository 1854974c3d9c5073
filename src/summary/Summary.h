// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/Localizer.h"
#include "model/PatientRecord.h"
#include "summary/Charts.h"

namespace nascor::summary {

// What a summary for the records says, without its form: HTML and paper are made of it, and compute nothing. All texts are
// UTF-8 in the user's language, on one line each; what came from outside has no control characters and no signs that turn the
// direction of writing.

struct Cell {
  std::string text;                ///< "-" where there is no figure
  std::optional<double> number{};  ///< unrounded; none where there is no figure
  std::size_t note = 0;            ///< the place of its note among those of the table, from 1; 0 for none
};

struct Column {
  std::string group{};  ///< what it shares with its neighbours of the same group; may be empty
  std::string title;
  bool isNumber = false;  ///< figures stand under each other by their decimal sign
};

struct Row {
  std::vector<Cell> cells;  ///< one for each column; the first names the row
  bool isChosen = false;    ///< by the formula that the document names
};

struct Table {
  std::string_view name;  ///< in English, for programs: "measurements", "weights", "growth"
  std::string title;
  std::string lead{};  ///< what its figures are made by; may be empty
  std::vector<Column> columns;
  std::vector<Row> rows;
  std::vector<std::string> notes{};  ///< why figures are missing or stand for little, as sentences
};

struct Fact {
  std::string label;
  std::string value;
};

/// What was noted at an examination.
struct Note {
  std::string heading;  ///< its date and the age
  std::vector<std::string> paragraphs;
};

/// A publication, and what was taken from it.
struct Citation {
  std::string what;
  std::string text;
};

/// All of one fetus.
struct FetusSummary {
  std::string name;
  std::vector<Fact> facts;
  Table measurements;         ///< a row for each examination
  std::vector<Chart> charts;  ///< of what was measured at a known age
  std::string chartsLead;     ///< what the lines of the charts are
  Table weights;              ///< at the last examination that has one; without rows where none has
  Table growth;               ///< from examination to examination; may have no rows
  std::vector<Note> notes;    ///< of the examinations that have one
  std::vector<Citation> citations;
};

struct Summary {
  std::string language;  ///< of the texts, as HTML names it: "en"
  std::string title;     ///< of the patient
  std::string heading;
  std::string author;
  std::string subject;
  std::vector<std::string> letterhead;
  std::string patient;  ///< reference ID and gravidity
  std::vector<FetusSummary> fetuses;
  std::string warning;
  std::string program;  ///< with its version
  std::string made;     ///< program, version, date and time
  std::string moment;   ///< of its making, as ISO 8601 writes it in UTC
  /// @name Headings of the parts that are no tables
  /// @{
  std::string chartsHeading;
  std::string notesHeading;
  std::string citationsHeading;
  /// @}
  std::function<std::string(std::int64_t page, std::int64_t pages)> pageText;  ///< "Page 1 of 2"
};

/// What stands on a summary that no document holds.
struct Details {
  std::vector<std::string> letterhead{};  ///< lines; blank ones at the end are left out
  std::string examiner{};
};

/// @name Preferences by which a user's details are kept
/// @{
inline constexpr std::string_view kLetterheadKey = "Summary Letterhead";  ///< lines, with line feeds between
inline constexpr std::string_view kExaminerKey = "Summary Examiner";
/// @}

/// The lines of a letterhead as it is typed.
std::vector<std::string> letterheadLines(std::string_view text);

/// What the making of a summary asks of the platform.
struct Environment {
  const foundation::Clock& clock;
  const foundation::Calendar& calendar;
  const foundation::Localizer& localizer;
};

/// The summary of each fetus that the reports of `patient` have; of the one at place `fetus`, from 0, where one is asked for.
Summary summaryOf(const model::PatientRecord& patient, const Details& details, const Environment& environment,
                  std::optional<std::size_t> fetus = {});

}  // namespace nascor::summary
