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
using foundation::Sentence;
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
          Sentence("Findings",
                   "the columns fetus, which counts from 0, and fetus_number, from 1, cannot both stand in "
                   "the header"));
    for (std::size_t column = 0; column < places_.size(); ++column) {
      if (places_[column]) names_.at(column) = textOf(header[*places_[column]]);
    }
  }

  bool has(std::size_t column) const { return places_[column].has_value(); }
  const std::string& nameOf(std::size_t column) const { return names_.at(column); }

  /// Says which lengths the table has no column for; nothing when it has all. Every examination of a table holds a copy, so
  /// its arguments are few and short.
  std::optional<Sentence> warning() const {
    std::vector<std::string_view> missing;
    for (std::size_t length = 0; length < kStoredLengths; ++length) {
      if (!has(length)) missing.push_back(kColumns.at(length).shortName);
    }
    if (missing.empty()) return std::nullopt;
    //: %1 to %3 are bpd, hc, ac or fl: "there is no column bpd_mm or bpd: never measured".
    if (missing.size() == 1)
      return Sentence("Findings", "there is no column %1_mm or %1: never measured").with(missing[0]);
    if (missing.size() == 2)
      return Sentence("Findings", "there is no column %1_mm or %1, %2_mm or %2: never measured")
          .with(missing[0], missing[1]);
    // A table of examinations names one length at least.
    return Sentence("Findings", "there is no column %1_mm or %1, %2_mm or %2, %3_mm or %3: never measured")
        .with(missing[0], missing[1], missing[2]);
  }

  /// The row, whose texts last until the next call; nothing when it has a `fault`.
  std::optional<Row> read(std::span<const CsvCell> record, std::uint64_t line) {
    faults_.clear();
    if (record.size() != width_) {
      refuse(rows::cellCountSentence(width_, record.size()));
      return std::nullopt;
    }
    record_ = record;
    Row row{.line = line};
    readPatient(row);
    if (const auto day = this->day(kExamDate)) {
      row.day = *day;
    } else if (text(kExamDate).empty()) {
      refuse(kExamDate,
             Sentence("Findings", "the cell is empty; write the day of the examination like 2026-11-13"));
    }
    row.edd = day(kEdd);
    row.gravida = count(kGravida, calc::kLeastGravida, std::nullopt);
    row.numberOfFetuses = count(kNumberOfFetuses, calc::kFewestFetuses, calc::kMostFetuses);
    readFetus(row);
    for (std::size_t i = 0; i < row.lengths.size(); ++i) row.lengths.at(i) = length(i);
    row.hasNote = !text(kNote).empty();
    return faults_.empty() ? std::optional(row) : std::nullopt;
  }

  /// What is wrong with the row, in one line.
  Sentence fault() const { return Sentence::joined(faults_, "; "); }

 private:
  void refuse(Sentence sentence) { faults_.push_back(std::move(sentence)); }
  void refuse(std::size_t column, const Sentence& why) {
    //: %1 is a column of a table, %2 what is wrong with a cell of it.
    refuse(Sentence("Findings", "%1: %2").with(nameOf(column), why));
  }

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
      refuse(kReferenceID, Sentence("Findings", "the text is no UTF-8; save the table as UTF-8"));
  }

  std::optional<CivilDay> day(Column column) {
    const std::string_view cell = text(column);
    if (cell.empty()) return std::nullopt;
    const auto day = dayFromIsoText(cell);
    if (!day) {
      //: %1 is what stands there, in quotation marks, in this one and in others of the kind.
      const auto why =
          column == kEdd
              ? Sentence("Findings", "%1 is no day; write it like 2027-04-10, or leave the cell empty")
              : Sentence("Findings", "%1 is no day; write it like 2026-11-13");
      refuse(column, why.with(inQuotes(std::string(cell))));
    }
    return day;
  }

  std::optional<int> count(Column column, std::int64_t least, std::optional<std::int64_t> most) {
    const std::string_view cell = text(column);
    if (cell.empty()) return std::nullopt;
    const auto number = wholeNumber(cell);
    if (number && *number >= least && (!most || *number <= *most)) return number;
    const std::string shown = inQuotes(std::string(cell));
    refuse(column, most
                       ? Sentence("Findings", "%1 is no whole number from %2 to %3").with(shown, least, *most)
                       : Sentence("Findings", "%1 is no whole number from %2 on").with(shown, least));
    return std::nullopt;
  }

  void readFetus(Row& row) {
    if (!has(kFetus) && !has(kFetusNumber)) return;
    const Column column = has(kFetus) ? kFetus : kFetusNumber;
    const int first = has(kFetus) ? 0 : 1;
    if (text(column).empty())
      return refuse(column,
                    Sentence("Findings", "the cell is empty; number the fetuses from %1").with(first));
    const auto number = count(column, first, calc::kMostFetuses - 1 + first);
    if (number) row.fetus = *number - first;
  }

  double length(std::size_t place) {
    if (!has(place)) return 0.0;
    const CsvCell& cell = record_[*places_[place]];
    const auto mm = cell.isQuoted ? rows::measuredFromText(textOf(cell)) : rows::measuredFromText(cell.text);
    if (!mm) {
      refuse(rows::numberSentence(nameOf(place), textOf(cell)));
      return 0.0;
    }
    const calc::EditingBounds bounds = calc::editingBounds(calc::kMeasurements.at(place));
    if (!bounds.permit(foundation::narrowedToFloat(*mm)))
      refuse(place, Sentence("Findings", "%1 is beyond what a document takes, 0 to %2 mm")
                        .with(inQuotes(textOf(cell)), foundation::shortestText(bounds.greatest)));
    return *mm;
  }

  std::size_t width_;
  std::vector<std::optional<std::size_t>> places_;
  std::array<std::string, kColumns.size()> names_;
  std::span<const CsvCell> record_;
  std::array<std::string, kColumns.size()> texts_;  // of quoted cells
  std::vector<Sentence> faults_;
};

/// Puts the rows together to examinations, and collects what is wrong with the table.
class Table {
 public:
  /// Throws rows::HeaderError.
  explicit Table(std::span<const CsvCell> header) : reader_(header), warning_(reader_.warning()) {}

  void add(std::span<const CsvCell> record, std::uint64_t line) {
    const auto row = reader_.read(record, line);
    const auto fault = row ? take(*row) : reader_.fault();
    if (fault) refuse(line, *fault);
  }

  void refuse(std::uint64_t line, const Sentence& sentence) {
    //: %2 is what is wrong with the row of a table that begins at line %1.
    faults_.push_back(Sentence("Findings", "line %1: %2").with(line, sentence));
    lastLine_ = line;
  }

  /// Whether more is wrong than a person puts right row by row.
  bool isHopeless() const { return faults_.size() >= kMostNamed; }

  std::variant<std::vector<Findings>, std::vector<Sentence>> takeFindings() {
    if (reader_.has(kFetus) && faults_.empty()) requireFirstFetuses();
    if (isHopeless())
      faults_.push_back(Sentence("Findings", "what stands behind line %1 was not looked at").with(lastLine_));
    if (!faults_.empty()) {
      const Sentence whole =
          Sentence("Findings", "nothing of this table is taken until every row of it fits");
      faults_.push_back(whole);
      return std::move(faults_);
    }
    if (examinations_.empty()) return std::vector{Sentence("Findings", "is a table without an examination")};
    stateNumbersOfFetuses();
    for (Findings& findings : examinations_) warnOfNumberOfFetuses(findings);
    return std::move(examinations_);
  }

 private:
  static constexpr std::size_t kMostNamed = 1000;

  /// Takes the row to its examination; or says why not.
  std::optional<Sentence> take(const Row& row) {
    if (auto fault = patientFault(row)) return fault;
    const std::size_t place = placeOf(row);
    Findings& findings = examinations_[place];
    Lines& lines = lines_[place];
    if (auto fault = fetusFault(row, lines)) return fault;
    auto fault = agreed(kEdd, row.edd, row.line, findings.edd, lines);
    if (!fault) fault = agreed(kGravida, row.gravida, row.line, findings.gravida, lines);
    if (!fault)
      fault = agreed(kNumberOfFetuses, row.numberOfFetuses, row.line, findings.numberOfFetuses, lines);
    if (fault) return fault;

    if (findings.edd) findings.eddFrom = "edd";
    if (row.hasNote && findings.notTaken.empty())
      findings.notTaken.push_back({.fetus = {},
                                   .what = "note",
                                   .value = {},
                                   .unit = {},
                                   .why = Sentence("Findings", "a note is not taken")});
    FetusFindings& fetus = findings.fetuses.emplace_back();
    if (row.fetus) fetus.id = std::to_string(*row.fetus + 1);
    for (std::size_t i = 0; i < row.lengths.size(); ++i) {
      if (row.lengths.at(i) != 0.0)
        fetus.lengths.at(i) = FoundLength{.mm = row.lengths.at(i), .chosen = "plain"};
    }
    return std::nullopt;
  }

  /// Why nothing tells whose row this is. Rows without an ID are of one patient, and no row has an ID then: an empty cell
  /// may as well mean the patient of the row above.
  std::optional<Sentence> patientFault(const Row& row) {
    if (!firstLine_) {
      firstLine_ = row.line;
      hasIDs_ = !row.patient.empty();
      file_ = row.file;
      edd_ = row.edd;
      return std::nullopt;
    }
    const bool hasID = !row.patient.empty();
    const std::uint64_t first = *firstLine_;
    if (!hasID && !hasIDs_ && row.edd != edd_)
      return Sentence("Findings",
                      "edd: it is not that of line %1, and no reference_id tells the patients apart; write "
                      "the ID into every row")
          .with(first);
    if (hasID == hasIDs_ && (hasID || row.file == file_)) return std::nullopt;
    if (!hasID && hasIDs_)
      return Sentence("Findings",
                      "reference_id: the cell is empty, that of line %1 is not; write the ID into every row")
          .with(first);
    if (hasID)
      return Sentence("Findings",
                      "reference_id: the cell of line %1 is empty, this one is not; write the ID into every "
                      "row")
          .with(first);
    return Sentence("Findings",
                    "the row is of another file than that of line %1, and no reference_id tells the patients "
                    "apart; write the rows with --identify")
        .with(first);
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
      if (warning_) findings.warnings.push_back(*warning_);
    }
    return found->second;
  }

  static std::optional<Sentence> fetusFault(const Row& row, Lines& lines) {
    std::uint64_t& line = lines.fetuses.at(row.fetus ? static_cast<std::size_t>(*row.fetus) + 1 : 0);
    if (line == 0) {
      line = row.line;
      return std::nullopt;
    }
    const auto fault =
        row.fetus ? Sentence("Findings",
                             "line %1 has the same fetus at the same examination; leave one of the two rows")
                  : Sentence("Findings",
                             "line %1 has a fetus of this examination too; number them from 1, in a column "
                             "fetus_number");
    return fault.with(line);
  }

  /// Takes what is said of the whole examination, in any of its rows, unless another row says something else.
  template <class Value>
  std::optional<Sentence> agreed(Column column, const std::optional<Value>& value, std::uint64_t line,
                                 std::optional<Value>& standing, Lines& lines) const {
    if (!value || value == standing) return std::nullopt;
    std::uint64_t& standingLine = lines.values.at(column - kEdd);
    if (standing)
      //: %1 is a column of a table.
      return Sentence("Findings", "%1: line %2 says something else of the same examination; make them agree")
          .with(reader_.nameOf(column), standingLine);
    standing = value;
    standingLine = line;
    return std::nullopt;
  }

  /// A person who counts from 1 would store everything for the next fetus.
  void requireFirstFetuses() {
    for (const Lines& lines : lines_) {
      if (lines.fetuses.at(1) == 0 && !isHopeless())
        refuse(lines.first, Sentence("Findings",
                                     "fetus counts from 0, and no row of this examination has 0; where it "
                                     "counts from 1, call the column fetus_number"));
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
  std::optional<Sentence> warning_;
  std::optional<std::uint64_t> firstLine_;  // of a row whose cells are understood
  bool hasIDs_ = false;
  std::optional<CivilDay> edd_;  ///< of the first row
  std::string file_;             // of that row
  std::map<std::string, std::size_t, std::less<>> patients_;
  std::unordered_map<std::uint64_t, std::size_t> places_;  // of the examinations, by patient and day
  std::vector<Findings> examinations_;
  std::vector<Lines> lines_;  // of the examinations
  std::vector<Sentence> faults_;
  std::uint64_t lastLine_ = 0;  // of them
};

}  // namespace

std::optional<std::variant<std::vector<Findings>, std::vector<Sentence>>> findingsInTable(
    std::string_view text) {
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
    return std::vector{error.sentence()};
  } catch (const rows::CsvError& error) {
    if (!table) return std::nullopt;
    table->refuse(error.line(), error.sentence());
  }
  return table->takeFindings();
}

}  // namespace nascor::exchange
