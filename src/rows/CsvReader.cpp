// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "rows/CsvReader.h"

#include <algorithm>
#include <array>

#include "rows/RowFormat.h"

namespace nascor::rows {

using foundation::Sentence;

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kNone = std::string::npos;

std::uint64_t linesIn(std::string_view text) {
  return static_cast<std::uint64_t>(std::ranges::count(text, '\n'));
}

}  // namespace

std::string textOf(const CsvCell& cell) {
  if (!cell.isQuoted) return std::string(cell.text);
  std::string text;
  const std::string_view inner = cell.text.substr(1, cell.text.size() - 2);
  for (std::size_t i = 0; i < inner.size(); ++i) {
    text += inner[i];
    if (inner[i] == '"') ++i;
  }
  return text;
}

void appendCell(std::string& out, const CsvCell& cell) {
  cell.isQuoted ? static_cast<void>(out += cell.text) : appendCsvText(out, cell.text);
}

void CsvReader::read(std::span<const char> piece) {
  bytes_.erase(0, at_);
  at_ = 0;
  cells_.clear();
  bytes_.append(piece.data(), piece.size());
}

CsvReader::Next CsvReader::next() {
  cells_.clear();
  if (!isStarted_) {
    if (bytes_.size() < kByteOrderMark.size() && !isFinished_) return Next::more;
    if (bytes_.starts_with(kByteOrderMark)) at_ = kByteOrderMark.size();
    isStarted_ = true;
  }
  for (;;) {
    if (at_ == bytes_.size()) return isFinished_ ? Next::end : Next::more;
    const std::string_view rest = std::string_view(bytes_).substr(at_);
    const std::size_t emptyLine = rest.starts_with("\r\n") ? 2 : rest.starts_with('\n') ? 1 : 0;
    if (emptyLine == 0) break;
    at_ += emptyLine;
    ++linesRead_;
  }
  line_ = linesRead_ + 1;
  if (readRecord()) return cells_.empty() ? Next::end : Next::record;
  cells_.clear();
  if (bytes_.size() - at_ > kLongestRecord) {
    throw CsvError(
        line_, Sentence("Reading",
                        "the row that begins here is longer than 4 MiB; a quotation mark may never close"));
  }
  return Next::more;
}

std::size_t CsvReader::endOfQuoted(std::size_t begin) const {
  for (std::size_t quote = bytes_.find('"', begin + 1); quote != kNone; quote = bytes_.find('"', quote + 2)) {
    if (quote + 1 >= bytes_.size()) return isFinished_ ? quote + 1 : kNone;
    if (bytes_[quote + 1] != '"') return quote + 1;
  }
  return kNone;
}

/// A cell, the byte behind it and behind the carriage return of its line, and whether that ends its record.
struct CsvReader::Found {
  CsvCell cell;
  std::size_t end;
  bool isLast;
};

/// Nothing when more bytes are needed. The cell begins on `line`.
std::optional<CsvReader::Found> CsvReader::quotedCell(std::size_t begin, std::uint64_t line) const {
  const std::string_view bytes = bytes_;
  const std::size_t end = endOfQuoted(begin);
  if (end == kNone) {
    if (!isFinished_) return std::nullopt;
    throw CsvError(line, Sentence("Reading", "a quotation mark that opens here never closes"));
  }
  const CsvCell cell{bytes.substr(begin, end - begin), true, false};
  std::size_t behind = end;
  if (behind < bytes.size() && bytes[behind] == '\r') ++behind;
  if (behind == bytes.size() && !isFinished_) return std::nullopt;
  if (behind == bytes.size() || bytes[behind] == '\n') return Found{cell, behind, true};
  if (bytes[end] != ',')
    throw CsvError(line + linesIn(cell.text),
                   Sentence("Reading", "text stands behind a closing quotation mark"));
  return Found{cell, end, false};
}

/// Nothing when more bytes are needed.
std::optional<CsvReader::Found> CsvReader::plainCell(std::size_t begin) const {
  const std::string_view bytes = bytes_;
  std::size_t end = begin;
  bool hasMarks = false;
  for (; end < bytes.size() && bytes[end] != ',' && bytes[end] != '\n'; ++end) {
    hasMarks = hasMarks || bytes[end] == '"' || bytes[end] == '\r';
  }
  if (end == bytes.size() && !isFinished_) return std::nullopt;
  std::string_view text = bytes.substr(begin, end - begin);
  const bool isLast = end == bytes.size() || bytes[end] == '\n';
  if (isLast && text.ends_with('\r')) text.remove_suffix(1);
  return Found{{text, false, hasMarks}, end, isLast};
}

/// Reads a record that has no marks but the ends of its cells, as most have none. False for another, which is read cell by
/// cell, and where its end is not there.
bool CsvReader::readPlainRecord() {
  static constexpr auto kMarks = [] {
    std::array<bool, 256> marks{};
    // The zero byte stands behind the last one.
    for (const char mark : {',', '\n', '\r', '"', '\0'}) marks.at(static_cast<unsigned char>(mark)) = true;
    return marks;
  }();
  const char* begin = bytes_.c_str() + at_;
  for (const char* byte = begin;; ++byte) {
    if (!kMarks[static_cast<unsigned char>(*byte)]) continue;
    const bool isReturn = *byte == '\r' && byte[1] == '\n';
    if (*byte != ',' && *byte != '\n' && !isReturn) break;
    cells_.push_back({.text = {begin, byte}});
    begin = byte + (isReturn ? 2 : 1);
    if (*byte == ',') continue;
    at_ = static_cast<std::size_t>(begin - bytes_.c_str());
    ++linesRead_;
    return true;
  }
  cells_.clear();
  return false;
}

/// False when more bytes are needed.
bool CsvReader::readRecord() {
  if (readPlainRecord()) return true;
  std::uint64_t lines = linesRead_;
  std::size_t begin = at_;
  for (;;) {
    const bool isQuoted = begin < bytes_.size() && bytes_[begin] == '"';
    const std::optional<Found> found = isQuoted ? quotedCell(begin, lines + 1) : plainCell(begin);
    if (!found) return false;
    // The carriage return of a line that the end of the input cut off.
    if (!isQuoted && found->isLast && cells_.empty() && found->cell.text.empty()) {
      at_ = found->end;
      return true;
    }
    cells_.push_back(found->cell);
    if (isQuoted) lines += linesIn(found->cell.text);
    begin = found->end + 1;
    if (found->isLast) break;
  }
  // The end of the input ends a record, too.
  at_ = std::min(begin, bytes_.size());
  linesRead_ = begin <= bytes_.size() ? lines + 1 : lines;
  return true;
}

}  // namespace nascor::rows
