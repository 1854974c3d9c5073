#include "rows/Calculation.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "foundation/Utf8.h"

namespace nascor::rows {

namespace {

struct InputColumn {
  std::string_view name;
  std::string_view shortName;
};
constexpr std::array<InputColumn, Calculation::kInputs> kInputColumns{
    {{"ga_weeks", "ga"}, {"bpd_mm", "bpd"}, {"hc_mm", "hc"}, {"ac_mm", "ac"}, {"fl_mm", "fl"}}};

std::string_view withoutBlanks(std::string_view text) {
  if (!text.empty() && text.front() > ' ' && text.back() > ' ') return text;
  constexpr std::string_view kBlanks = " \t\n\v\f\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool isNan(std::string_view text) {
  if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
  return std::ranges::equal(text, std::string_view("nan"),
                            [](char each, char small) { return (each | 0x20) == small; });
}

/// Whether a number that no double can hold lies next to zero.
bool isTiny(std::string_view number) {
  const std::size_t exponent = number.find_first_of("eE");
  return exponent == std::string_view::npos ? number.find_first_of("123456789") > number.find('.')
                                            : number.substr(exponent + 1).starts_with('-');
}

/// The beginning of a text of any length, for a message.
std::string shown(const std::string& text) {
  constexpr std::size_t kMost = 40;
  if (text.size() <= kMost) return foundation::oneLine(text);
  return foundation::oneLine(std::string_view(text).substr(0, foundation::lengthWithin(text, kMost))) + "...";
}

std::string inQuotes(const std::string& text) { return '"' + shown(text) + '"'; }

std::vector<std::string> textsOf(std::span<const CsvCell> cells) {
  std::vector<std::string> texts;
  for (const CsvCell& cell : cells) texts.push_back(textOf(cell));
  return texts;
}

}  // namespace

std::optional<double> measuredFromText(std::string_view text) {
  text = withoutBlanks(text);
  if (text.empty() || text == "NA" || isNan(text)) return 0.0;
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  double value = 0.0;
  const char* last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, value);
  if (end != last) return std::nullopt;
  if (error == std::errc::result_out_of_range && isTiny(text)) return 0.0;
  // "inf" is one of the texts that are read here.
  if (error != std::errc() || !std::isfinite(value)) return std::nullopt;
  return value;
}

Calculation::Calculation(std::span<const CsvCell> header, const Choice& choice,
                         const std::optional<std::vector<std::string>>& names, bool isFixed)
    : inputNames_(textsOf(header)),
      places_(placesOf(inputNames_)),
      format_(chosenColumns(inputNames_, header, choice, names),
              {.style = Style::csv, .isFixed = isFixed, .namesFiles = false}),
      kept_(header.size()),
      quoted_(header.size()) {}

Calculation::Places Calculation::placesOf(const std::vector<std::string>& names) {
  Places places;
  for (std::size_t place = 0; place < names.size(); ++place) {
    const auto isThis = [&](const InputColumn& input) {
      return names[place] == input.name || names[place] == input.shortName;
    };
    const auto input = std::ranges::find_if(kInputColumns, isThis);
    if (input == kInputColumns.end()) continue;
    auto& found = places.at(static_cast<std::size_t>(input - kInputColumns.begin()));
    if (found) {
      throw HeaderError(names[*found] == names[place]
                            ? "the column " + names[place] + " stands twice in the header"
                            : "the columns " + names[*found] + " and " + names[place] + " are one");
    }
    found = place;
  }
  if (std::ranges::none_of(places, &std::optional<std::size_t>::has_value)) {
    throw HeaderError("the header has none of the columns ga_weeks, bpd_mm, hc_mm, ac_mm and fl_mm");
  }
  return places;
}

std::vector<Column> Calculation::chosenColumns(const std::vector<std::string>& inputNames,
                                               std::span<const CsvCell> header, const Choice& choice,
                                               const std::optional<std::vector<std::string>>& names) {
  std::vector<Column> input;
  for (const CsvCell& cell : header) {
    Column column{.name = {}, .content = Content::kept, .number = static_cast<std::int64_t>(input.size())};
    appendCell(column.name, cell);
    input.push_back(std::move(column));
  }
  const std::vector<Column> computed = everyComputedColumn();
  for (const Column& column : computed) {
    if (std::ranges::find(inputNames, column.name) != inputNames.end()) {
      throw HeaderError("the column " + column.name + " is one of those that are computed");
    }
  }

  if (!names) {
    std::ranges::copy(computedColumns(choice), std::back_inserter(input));
    return input;
  }
  std::vector<Column> columns;
  for (const std::string& name : *names) {
    const auto kept = std::ranges::find(inputNames, name);
    const auto found = std::ranges::find(computed, name, &Column::name);
    if (kept != inputNames.end()) {
      columns.push_back(input[static_cast<std::size_t>(kept - inputNames.begin())]);
    } else if (found != computed.end()) {
      columns.push_back(*found);
    } else {
      throw UnknownColumn(inQuotes(name) + " is no column of the input and none that is computed");
    }
  }
  return columns;
}

std::vector<std::string> Calculation::missingColumns() const {
  std::vector<std::string> missing;
  for (std::size_t i = 0; i < kInputs; ++i) {
    const auto& [name, shortName] = kInputColumns[i];
    if (!places_[i]) missing.push_back(std::string(name) + " or " + std::string(shortName));
  }
  return missing;
}

std::string Calculation::read(std::span<const CsvCell> record, Row& row) const {
  if (record.size() != inputNames_.size()) {
    return "the header has " + std::to_string(inputNames_.size()) + " cells, this row " +
           std::to_string(record.size());
  }
  std::string wrong;
  for (std::size_t i = 0; i < kInputs; ++i) {
    if (!places_[i]) continue;
    const CsvCell& cell = record[*places_[i]];
    const auto number = cell.isQuoted ? measuredFromText(textOf(cell)) : measuredFromText(cell.text);
    if (!number) {
      if (!wrong.empty()) wrong += "; ";
      wrong += inputNames_[*places_[i]] + ": " + inQuotes(textOf(cell)) + " is no number";
    } else if (i == 0) {
      row.age = *number;
    } else {
      row.lengths.*calc::memberFor(calc::kMeasurements.at(i - 1)) = *number;
    }
  }
  return wrong;
}

std::string Calculation::append(std::string& out, std::span<const CsvCell> record) {
  for (std::size_t i = 0; i < kept_.size(); ++i) {
    kept_[i] = i < record.size() ? record[i].text : std::string_view();
    if (i < record.size() && record[i].hasMarks) {
      quoted_[i].clear();
      appendCell(quoted_[i], record[i]);
      kept_[i] = quoted_[i];
    }
  }
  Row row{.kept = kept_};
  std::string wrong = read(record, row);
  row.error = wrong;
  format_.append(out, row);
  return wrong;
}

}  // namespace nascor::rows
