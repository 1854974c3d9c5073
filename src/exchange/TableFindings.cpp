// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/TableFindings.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <unordered_map>
#include <utility>

#include "calc/EditingBounds.h"
#include "exchange/DecimalText.h"
#include "foundation/ConvertInteger.h"
#include "foundation/NumberText.h"
#include "foundation/Utf8.h"
#include "rows/CsvReader.h"
#include "rows/InputColumns.h"

namespace nascor::exchange {

namespace {

using foundation::CivilDay;
using rows::CsvCell;
using rows::CsvReader;
using rows::InputColumn;
using rows::inQuotes;
using rows::kMeasuredColumns;

/// In the order of kColumns. The lengths come first, in theirs.
enum Column : std::size_t {
  kExamDate = kStoredLengths,
  kFetus,
  kFetusNumber,
  kReferenceID,
  kFile,
  kNote,
  kEdd,
  kGravida,
  kNumberOfFetuses
};
constexpr std::array<InputColumn, 13> kColumns{{kMeasuredColumns[1],
                                                kMeasuredColumns[2],
                                                kMeasuredColumns[3],
                                                kMeasuredColumns[4],
                                                {"exam_date", "date"},
                                                {"fetus", "fetus"},
                                                {"fetus_number", "fetus_number"},
                                                {"reference_id", "reference_id"},
                                                {"file", "file"},
                                                {"note", "note"},
                                                {"edd", "edd"},
                                                {"gravida", "gravidity"},
                                                {"number_of_fetuses", "number_of_fetuses"}}};

/// Whether a header names a length and the day.
bool isOfExaminations(std::span<const CsvCell> header) {
  bool hasLength = false;
  bool hasDay = false;
  for (const CsvCell& cell : header) {
    if (cell.text.empty()) continue;
    const std::string name = textOf(cell);
    const auto isThis = [&](const InputColumn& each) { return name == each.name || name == each.shortName; };
    hasLength = hasLength || std::ranges::any_of(std::span(kColumns).first(kStoredLengths), isThis);
    hasDay = hasDay || isThis(kColumns[kExamDate]);
  }
  return hasLength && hasDay;
}

std::string atLine(std::uint64_t line, const std::string& sentence) {
  return "line " + std::to_string(line) + ": " + sentence;
}

/// A row whose cells are understood.
struct Row {
  std::uint64_t line = 0;
  std::string_view patient{};
  std::string_view file{};
  CivilDay day{};
  std::optional<CivilDay> edd{};
  std::optional<int> gravida{};
  std::optional<int> numberOfFetuses{};
  std::optional<int> fetus{};  ///< from 0; nothing where the table does not number them
  std::array<double, kStoredLengths> lengths{};
  bool hasNote = false;
};

/// Where in the table an examination stands.
struct Lines {
  std::size_t patient = 0;
  std::uint64_t first = 0;
  /// Of the fetuses; the first is that of one without a number. 0 for none.
  std::array<std::uint64_t, 1 + calc::kMostFetuses> fetuses{};
  /// Of what is of the whole examination, from kEdd on.
  std::array<std::uint64_t, kColumns.size() - kEdd> values{};
};

/// Understands the cells of a row, and collects what is wrong with them.
class RowReader {
 public:
  /// Throws rows::HeaderError.
  explicit RowReader(std::span<const CsvCell> header)
      : width_(header.size()), places_(rows::placesOf(kColumns, header)) {
    if (has(kFetus) && has(kFetusNumber))
      throw rows::HeaderError(
          "the columns fetus, which counts from 0, and fetus_number, from 1, cannot both stand in the "
          "header");
    for (std::size_t column = 0; column < places_.size(); ++column) {
      if (places_[column]) names_.at(column) = textOf(header[*places_[column]]);
    }
  }

  bool has(std::size_t column) const { return places_[column].has_value(); }
  const std::string& nameOf(std::size_t column) const { return names_.at(column); }

  /// Says which lengths the table has no column for; empty when it has all.
  std::string warning() const {
    std::string missing;
    for (std::size_t length = 0; length < kStoredLengths; ++length) {
      if (has(length)) continue;
      missing += (missing.empty() ? "" : ", ") + rows::namesOf(kColumns.at(length));
    }
    return missing.empty() ? missing : "there is no column " + missing + ": never measured";
  }

  /// The row, whose texts last until the next call; nothing when it has a `fault`.
  std::optional<Row> read(std::span<const CsvCell> record, std::uint64_t line) {
    fault_.clear();
    if (record.size() != width_) {
      fault_ = rows::cellCountFault(width_, record.size());
      return std::nullopt;
    }
    record_ = record;
    Row row{.line = line};
    readPatient(row);
    if (const auto day = this->day(kExamDate, "write it like 2026-11-13")) {
      row.day = *day;
    } else if (text(kExamDate).empty()) {
      refuse(kExamDate, "the cell is empty; write the day of the examination like 2026-11-13");
    }
    row.edd = day(kEdd, "write it like 2027-04-10, or leave the cell empty");
    row.gravida = count(kGravida, calc::kLeastGravida, std::nullopt);
    row.numberOfFetuses = count(kNumberOfFetuses, calc::kFewestFetuses, calc::kMostFetuses);
    readFetus(row);
    for (std::size_t i = 0; i < row.lengths.size(); ++i) row.lengths.at(i) = length(i);
    row.hasNote = !text(kNote).empty();
    return fault_.empty() ? std::optional(row) : std::nullopt;
  }

  /// What is wrong with the row, in one line.
  const std::string& fault() const { return fault_; }

 private:
  void refuse(const std::string& sentence) {
    if (!fault_.empty()) fault_ += "; ";
    fault_ += sentence;
  }
  void refuse(Column column, const std::string& why) { refuse(nameOf(column) + ": " + why); }

  /// What the cell says, without blanks at its ends; empty without such a column.
  std::string_view text(Column column) {
    if (!has(column)) return {};
    const CsvCell& cell = record_[*places_[column]];
    if (!cell.isQuoted) return withoutBlanks(cell.text);
    return withoutBlanks(texts_.at(column) = textOf(cell));
  }

  void readPatient(Row& row) {
    row.patient = text(kReferenceID);
    row.file = text(kFile);
    if (!foundation::isValidUtf8(row.patient))
      refuse(kReferenceID, "the text is no UTF-8; save the table as UTF-8");
  }

  std::optional<CivilDay> day(Column column, const char* advice) {
    const std::string_view cell = text(column);
    if (cell.empty()) return std::nullopt;
    const auto day = dayFromIsoText(cell);
    if (!day) refuse(column, inQuotes(std::string(cell)) + " is no day; " + advice);
    return day;
  }

  std::optional<int> count(Column column, std::int64_t least, std::optional<std::int64_t> most) {
    const std::string_view cell = text(column);
    if (cell.empty()) return std::nullopt;
    const auto number = wholeNumber(cell);
    if (number && *number >= least && (!most || *number <= *most)) return number;
    refuse(column, inQuotes(std::string(cell)) + " is no whole number from " + std::to_string(least) +
                       (most ? " to " + std::to_string(*most) : " on"));
    return std::nullopt;
  }

  void readFetus(Row& row) {
    if (!has(kFetus) && !has(kFetusNumber)) return;
    const Column column = has(kFetus) ? kFetus : kFetusNumber;
    const int first = has(kFetus) ? 0 : 1;
    if (text(column).empty())
      return refuse(column, "the cell is empty; number the fetuses from " + std::to_string(first));
    const auto number = count(column, first, calc::kMostFetuses - 1 + first);
    if (number) row.fetus = *number - first;
  }

  double length(std::size_t place) {
    if (!has(place)) return 0.0;
    const CsvCell& cell = record_[*places_[place]];
    const auto mm = cell.isQuoted ? rows::measuredFromText(textOf(cell)) : rows::measuredFromText(cell.text);
    if (!mm) {
      refuse(rows::numberFault(nameOf(place), textOf(cell)));
      return 0.0;
    }
    const calc::EditingBounds bounds = calc::editingBounds(calc::kMeasurements.at(place));
    if (!bounds.permit(foundation::narrowedToFloat(*mm)))
      refuse(nameOf(place) + ": " + inQuotes(textOf(cell)) + " is beyond what a document takes, 0 to " +
             foundation::shortestText(bounds.greatest) + " mm");
    return *mm;
  }

  std::size_t width_;
  std::vector<std::optional<std::size_t>> places_;
  std::array<std::string, kColumns.size()> names_;
  std::span<const CsvCell> record_;
  std::array<std::string, kColumns.size()> texts_;  // of quoted cells
  std::string fault_;
};

/// Puts the rows together to examinations, and collects what is wrong with the table.
class Table {
 public:
  /// Throws rows::HeaderError.
  explicit Table(std::span<const CsvCell> header) : reader_(header), warning_(reader_.warning()) {}

  void add(std::span<const CsvCell> record, std::uint64_t line) {
    const auto row = reader_.read(record, line);
    const std::string fault = row ? take(*row) : reader_.fault();
    if (!fault.empty()) refuse(line, fault);
  }

  void refuse(std::uint64_t line, const std::string& sentence) {
    faults_.push_back(atLine(line, sentence));
    lastLine_ = line;
  }

  /// Whether more is wrong than a person puts right row by row.
  bool isHopeless() const { return faults_.size() >= kMostNamed; }

  std::variant<std::vector<Findings>, std::vector<std::string>> takeFindings() {
    if (reader_.has(kFetus) && faults_.empty()) requireFirstFetuses();
    if (isHopeless())
      faults_.push_back("what stands behind line " + std::to_string(lastLine_) + " was not looked at");
    if (!faults_.empty()) {
      faults_.emplace_back("nothing of this table is taken until every row of it fits");
      return std::move(faults_);
    }
    if (examinations_.empty()) return std::vector<std::string>{"is a table without an examination"};
    stateNumbersOfFetuses();
    for (Findings& findings : examinations_) warnOfNumberOfFetuses(findings);
    return std::move(examinations_);
  }

 private:
  static constexpr std::size_t kMostNamed = 1000;

  /// Takes the row to its examination; or says why not.
  std::string take(const Row& row) {
    if (auto fault = patientFault(row); !fault.empty()) return fault;
    const std::size_t place = placeOf(row);
    Findings& findings = examinations_[place];
    Lines& lines = lines_[place];
    if (auto fault = fetusFault(row, lines); !fault.empty()) return fault;
    std::string fault = agreed(kEdd, row.edd, row.line, findings.edd, lines);
    if (fault.empty()) fault = agreed(kGravida, row.gravida, row.line, findings.gravida, lines);
    if (fault.empty())
      fault = agreed(kNumberOfFetuses, row.numberOfFetuses, row.line, findings.numberOfFetuses, lines);
    if (!fault.empty()) return fault;

    if (findings.edd) findings.eddFrom = "edd";
    if (row.hasNote && findings.notTaken.empty())
      findings.notTaken.push_back(
          {.fetus = {}, .what = "note", .value = {}, .unit = {}, .why = "a note is not taken"});
    FetusFindings& fetus = findings.fetuses.emplace_back();
    if (row.fetus) fetus.id = std::to_string(*row.fetus + 1);
    for (std::size_t i = 0; i < row.lengths.size(); ++i) {
      if (row.lengths.at(i) != 0.0)
        fetus.lengths.at(i) = FoundLength{.mm = row.lengths.at(i), .chosen = "plain"};
    }
    return "";
  }

  /// Why nothing tells whose row this is. Rows without an ID are of one patient, and no row has an ID then: an empty cell
  /// may as well mean the patient of the row above.
  std::string patientFault(const Row& row) {
    if (!firstLine_) {
      firstLine_ = row.line;
      hasIDs_ = !row.patient.empty();
      file_ = row.file;
      edd_ = row.edd;
      return "";
    }
    const bool hasID = !row.patient.empty();
    const std::string first = "line " + std::to_string(*firstLine_);
    if (!hasID && !hasIDs_ && row.edd != edd_)
      return "edd: it is not that of " + first +
             ", and no reference_id tells the patients apart; write the ID into every row";
    if (hasID == hasIDs_ && (hasID || row.file == file_)) return "";
    if (!hasID && hasIDs_)
      return "reference_id: the cell is empty, that of " + first + " is not; write the ID into every row";
    if (hasID)
      return "reference_id: the cell of " + first + " is empty, this one is not; write the ID into every row";
    return "the row is of another file than that of " + first +
           ", and no reference_id tells the patients apart; write the rows with --identify";
  }

  /// Of the examination of the row, a new one where there is none yet.
  std::size_t placeOf(const Row& row) {
    auto patient = patients_.find(row.patient);
    if (patient == patients_.end()) patient = patients_.emplace(row.patient, patients_.size()).first;
    constexpr int kBitsOfADay = 32;
    const auto day = static_cast<std::uint32_t>(foundation::daysSince2001(row.day));
    const std::uint64_t key = std::uint64_t{patient->second} << kBitsOfADay | day;
    const auto [found, isNew] = places_.try_emplace(key, examinations_.size());
    if (isNew) {
      lines_.push_back({.patient = patient->second, .first = row.line});
      Findings& findings = examinations_.emplace_back();
      if (!row.patient.empty()) findings.patientID = row.patient;
      findings.examDate = row.day;
      if (!warning_.empty()) findings.warnings.push_back(warning_);
    }
    return found->second;
  }

  static std::string fetusFault(const Row& row, Lines& lines) {
    std::uint64_t& line = lines.fetuses.at(row.fetus ? static_cast<std::size_t>(*row.fetus) + 1 : 0);
    if (line == 0) {
      line = row.line;
      return "";
    }
    const std::string there = "line " + std::to_string(line) + " has ";
    return row.fetus
               ? there + "the same fetus at the same examination; leave one of the two rows"
               : there + "a fetus of this examination too; number them from 1, in a column fetus_number";
  }

  /// Takes what is said of the whole examination, in any of its rows, unless another row says something else.
  template <class Value>
  std::string agreed(Column column, const std::optional<Value>& value, std::uint64_t line,
                     std::optional<Value>& standing, Lines& lines) const {
    if (!value || value == standing) return "";
    std::uint64_t& standingLine = lines.values.at(column - kEdd);
    if (standing)
      return reader_.nameOf(column) + ": line " + std::to_string(standingLine) +
             " says something else of the same examination; make them agree";
    standing = value;
    standingLine = line;
    return "";
  }

  /// A person who counts from 1 would store everything for the next fetus.
  void requireFirstFetuses() {
    for (const Lines& lines : lines_) {
      if (lines.fetuses.at(1) == 0 && !isHopeless())
        refuse(lines.first,
               "fetus counts from 0, and no row of this examination has 0; where it counts from 1, call the "
               "column fetus_number");
    }
  }

  /// A document has one number of fetuses, which the first examination must know where a later one has more.
  void stateNumbersOfFetuses() {
    std::vector<int> numbers(patients_.size(), 1);
    for (const Lines& lines : lines_) {
      int& number = numbers[lines.patient];
      for (int fetus = 1; fetus <= calc::kMostFetuses; ++fetus) {
        if (lines.fetuses.at(static_cast<std::size_t>(fetus)) != 0) number = std::max(number, fetus);
      }
    }
    std::vector<bool> differ(patients_.size());
    for (std::size_t i = 0; i < examinations_.size(); ++i) {
      const std::size_t patient = lines_[i].patient;
      if (!std::cmp_equal(examinations_[i].fetuses.size(), numbers[patient])) differ[patient] = true;
    }
    for (std::size_t i = 0; i < examinations_.size(); ++i) {
      auto& number = examinations_[i].numberOfFetuses;
      if (!number && differ[lines_[i].patient]) number = numbers[lines_[i].patient];
    }
  }

  RowReader reader_;
  std::string warning_;
  std::optional<std::uint64_t> firstLine_;  // of a row whose cells are understood
  bool hasIDs_ = false;
  std::optional<CivilDay> edd_;  ///< of the first row
  std::string file_;             // of that row
  std::map<std::string, std::size_t, std::less<>> patients_;
  std::unordered_map<std::uint64_t, std::size_t> places_;  // of the examinations, by patient and day
  std::vector<Findings> examinations_;
  std::vector<Lines> lines_;  // of the examinations
  std::vector<std::string> faults_;
  std::uint64_t lastLine_ = 0;  // of them
};

}  // namespace

std::optional<std::variant<std::vector<Findings>, std::vector<std::string>>> findingsInTable(
    std::string_view text) {
  using Sentences = std::vector<std::string>;
  CsvReader reader;
  reader.read(text);
  reader.finish();
  std::optional<Table> table;
  try {
    if (reader.next() != CsvReader::Next::record || !isOfExaminations(reader.cells())) return std::nullopt;
    table.emplace(reader.cells());
    while (!table->isHopeless() && reader.next() == CsvReader::Next::record)
      table->add(reader.cells(), reader.line());
  } catch (const rows::HeaderError& error) {
    return Sentences{error.what()};
  } catch (const rows::CsvError& error) {
    if (!table) return std::nullopt;
    table->refuse(error.line(), error.what());
  }
  return table->takeFindings();
}

}  // namespace nascor::exchange
