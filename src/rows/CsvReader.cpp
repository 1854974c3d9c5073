#include "rows/CsvReader.h"

#include <algorithm>

#include "rows/RowFormat.h"

namespace nascor::rows {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kNone = std::string::npos;

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

void CsvReader::take(std::span<const char> piece) {
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
    throw CsvError(line_, "the row that begins here is longer than 4 MiB; a quotation mark may never close");
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

/// False when more bytes are needed.
bool CsvReader::readRecord() {
  const std::string_view bytes = bytes_;
  const auto linesBetween = [&](std::size_t begin, std::size_t end) {
    return static_cast<std::uint64_t>(std::ranges::count(bytes.substr(begin, end - begin), '\n'));
  };
  std::uint64_t lines = linesRead_;
  std::size_t begin = at_;
  for (;;) {
    std::size_t end = 0;
    const bool isQuoted = begin < bytes.size() && bytes[begin] == '"';
    if (isQuoted) {
      end = endOfQuoted(begin);
      if (end == kNone) {
        if (!isFinished_) return false;
        throw CsvError(lines + 1, "a quotation mark that opens here never closes");
      }
      lines += linesBetween(begin, end);
      std::size_t behind = end;
      if (behind < bytes.size() && bytes[behind] == '\r') ++behind;
      if (behind == bytes.size() && !isFinished_) return false;
      const bool isLineEnd = behind == bytes.size() || bytes[behind] == '\n';
      if (!isLineEnd && bytes[end] != ',') {
        throw CsvError(lines + 1, "text stands behind a closing quotation mark");
      }
      cells_.push_back({bytes.substr(begin, end - begin), true});
      if (!isLineEnd) {
        begin = end + 1;
        continue;
      }
      end = behind;
    } else {
      end = std::min(bytes.find_first_of(",\n", begin), bytes.size());
      if (end == bytes.size() && !isFinished_) return false;
      std::string_view text = bytes.substr(begin, end - begin);
      const bool isLineEnd = end == bytes.size() || bytes[end] == '\n';
      if (isLineEnd && text.ends_with('\r')) text.remove_suffix(1);
      // The carriage return of a line that the end of the input cut off.
      if (isLineEnd && cells_.empty() && text.empty()) {
        at_ = end;
        return true;
      }
      cells_.push_back({text, false});
      if (!isLineEnd) {
        begin = end + 1;
        continue;
      }
    }
    if (end < bytes.size()) {
      ++end;
      ++lines;
    }
    at_ = end;
    linesRead_ = lines;
    return true;
  }
}

}  // namespace nascor::rows
