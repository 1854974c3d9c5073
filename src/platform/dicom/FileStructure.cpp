// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom/FileStructure.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace nascor::dicom {

using foundation::Sentence;

namespace {

constexpr std::size_t kPreamble = 128;
constexpr std::uint32_t kUndefined = 0xFFFFFFFFU;
constexpr std::uint32_t kItem = 0xFFFEE000U;
constexpr std::uint32_t kItemEnd = 0xFFFEE00DU;
constexpr std::uint32_t kSequenceEnd = 0xFFFEE0DDU;
constexpr std::uint32_t kTransferSyntax = 0x00020010U;
/// Two levels for each level of a report's content.
constexpr std::size_t kDeepest = 128;
/// Elements and items. A thousand values take forty thousand; DCMTK takes two or three microseconds for each.
constexpr std::size_t kMost = 100'000;

Sentence cutOff() { return Sentence("ReportFiles", "is cut off: it ends before its end"); }
Sentence damaged() { return Sentence("ReportFiles", "is damaged: a part is longer than what holds it"); }
Sentence unknown() {
  return Sentence("ReportFiles", "is damaged: a part is of a kind that DICOM does not have");
}

/// A sequence, or an item of one, that is open.
struct Level {
  std::size_t end = 0;  ///< of a defined length
  bool isUndefined = false;
  bool isItem = false;
  Encoding encoding;
};

struct Header {
  std::uint32_t tag = 0;
  std::string_view vr;  ///< empty when it is implicit
  std::uint32_t length = 0;
};

/// The bytes that the length of an element takes.
enum class LengthSize : std::uint8_t { none, two, four };

constexpr std::size_t kCapitals = 26;
constexpr bool isCapital(char letter) { return letter >= 'A' && letter <= 'Z'; }
constexpr std::size_t placeOf(char first, char second) {
  return static_cast<std::size_t>(first - 'A') * kCapitals + static_cast<std::size_t>(second - 'A');
}

/// By the two capitals of a representation. Four bytes, behind two that are reserved, it takes too for what DICOM may yet add
/// (PS3.5, 7.1.2), for which DCMTK takes any two capitals that it does not know.
constexpr auto kLengthSizes = [] {
  std::array<LengthSize, kCapitals * kCapitals> sizes{};
  sizes.fill(LengthSize::four);
  for (const std::string_view vr : {"AE", "AS", "AT", "CS", "DA", "DS", "DT", "FD", "FL", "IS", "LO",
                                    "LT", "PN", "SH", "SL", "SS", "ST", "TM", "UI", "UL", "US"})
    sizes.at(placeOf(vr[0], vr[1])) = LengthSize::two;
  return sizes;
}();

/// None for what is no representation.
LengthSize lengthSizeOf(std::string_view vr) {
  if (isCapital(vr[0]) && isCapital(vr[1])) return kLengthSizes[placeOf(vr[0], vr[1])];
  // Two question marks are what some writers have put where they knew none.
  return vr == "??" ? LengthSize::two : LengthSize::none;
}

class Walk {
 public:
  explicit Walk(std::span<const std::byte> bytes)
      : bytes_(bytes), text_(reinterpret_cast<const char*>(bytes.data()), bytes.size()) {}

  std::variant<DataSet, Sentence> dataSet() {
    if (text_.substr(std::min(kPreamble, text_.size()), 4) != "DICM")
      return Sentence("ReportFiles", "is no DICOM file");
    at_ = kPreamble + 4;
    if (!header()) return fault_;
    const DataSet found{.bytes = bytes_.subspan(at_), .encoding = encoding_};
    if (!elements()) return fault_;
    return found;
  }

  std::optional<Sentence> faultOfElements(Encoding encoding) {
    encoding_ = encoding;
    if (elements()) return std::nullopt;
    return fault_;
  }

 private:
  bool refuse(Sentence sentence) {
    fault_ = std::move(sentence);
    return false;
  }

  std::uint32_t number(std::size_t at, std::size_t size, bool isBigEndian) const {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
      const std::size_t place = isBigEndian ? i : size - 1 - i;
      value = value << 8U | static_cast<unsigned char>(text_[at + place]);
    }
    return value;
  }

  std::uint32_t tagAt(std::size_t at, bool isBigEndian) const {
    return number(at, 2, isBigEndian) << 16U | number(at + 2, 2, isBigEndian);
  }

  bool has(std::size_t count) const { return text_.size() - at_ >= count; }

  /// Reads tag, representation and length at `at_` and steps behind them.
  bool readHeader(Encoding encoding, Header& result) {
    if (!has(8)) return refuse(cutOff());
    result.tag = tagAt(at_, encoding.isBigEndian);
    const bool isDelimiter = result.tag >> 16U == kItem >> 16U;
    result.vr = encoding.isExplicit && !isDelimiter ? text_.substr(at_ + 4, 2) : std::string_view();
    const LengthSize size = result.vr.empty() ? LengthSize::four : lengthSizeOf(result.vr);
    // What is none DCMTK may take for one of its own, and then for a length what is none.
    if (size == LengthSize::none) return refuse(unknown());
    if (++count_ > kMost) return refuse(Sentence("ReportFiles", "has more parts than any report"));
    if (result.vr.empty()) {
      result.length = number(at_ + 4, 4, encoding.isBigEndian);
      at_ += 8;
    } else if (size == LengthSize::two) {
      result.length = number(at_ + 6, 2, encoding.isBigEndian);
      at_ += 8;
    } else {
      if (!has(12)) return refuse(cutOff());
      result.length = number(at_ + 8, 4, encoding.isBigEndian);
      at_ += 12;
    }
    return true;
  }

  /// The group that says how the rest is encoded.
  bool header() {
    while (at_ < text_.size()) {
      if (!has(2)) return refuse(cutOff());
      if (number(at_, 2, false) != 2) break;
      Header element;
      if (!readHeader({}, element)) return false;
      if (element.length == kUndefined) return refuse(damaged());
      if (!has(element.length)) return refuse(cutOff());
      if (element.tag == kTransferSyntax && !readSyntax(text_.substr(at_, element.length))) return false;
      at_ += element.length;
    }
    return syntaxIsKnown_ ||
           refuse(Sentence("ReportFiles", "is a DICOM file that does not say how it is encoded"));
  }

  bool readSyntax(std::string_view uid) {
    while (!uid.empty() && (uid.back() == '\0' || uid.back() == ' ')) uid.remove_suffix(1);
    syntaxIsKnown_ = true;
    if (uid == "1.2.840.10008.1.2") {
      encoding_ = {.isExplicit = false, .isBigEndian = false};
    } else if (uid == "1.2.840.10008.1.2.2") {
      encoding_ = {.isExplicit = true, .isBigEndian = true};
    } else if (uid != "1.2.840.10008.1.2.1") {
      return refuse(Sentence("ReportFiles", "is a compressed DICOM file; reports are read uncompressed"));
    }
    return true;
  }

  bool elements() {
    while (true) {
      while (!levels_.empty() && !levels_.back().isUndefined && at_ >= levels_.back().end) {
        if (at_ > levels_.back().end) return refuse(damaged());
        levels_.pop_back();
      }
      if (at_ == text_.size()) return levels_.empty() || refuse(cutOff());
      if (!element()) return false;
    }
  }

  bool element() {
    const Encoding encoding = levels_.empty() ? encoding_ : levels_.back().encoding;
    const bool inSequence = !levels_.empty() && !levels_.back().isItem;
    Header header;
    if (!readHeader(encoding, header)) return false;
    if (inSequence) return itemOrEnd(header);
    if (header.tag == kItemEnd && !levels_.empty() && levels_.back().isUndefined) {
      levels_.pop_back();
      return header.length == 0 || refuse(damaged());
    }
    if (header.tag >> 16U == kItem >> 16U) return refuse(damaged());
    if (!lengthFits(header.length)) return false;

    if (header.length == kUndefined) {
      constexpr std::array<std::string_view, 5> kMayBeSequences{"", "OB", "OW", "SQ", "UN"};
      if (std::ranges::find(kMayBeSequences, header.vr) == kMayBeSequences.end()) return refuse(damaged());
      const bool isUnknown = header.vr == "UN";
      return open({.end = 0,
                   .isUndefined = true,
                   .isItem = false,
                   .encoding = isUnknown ? Encoding{.isExplicit = false, .isBigEndian = false} : encoding});
    }
    // Without a representation, what begins like an item is taken for a sequence, as DCMTK would where it knows the tag.
    const bool beginsLikeItem = header.length >= 8 && tagAt(at_, encoding.isBigEndian) == kItem;
    if (header.vr == "SQ" || (header.vr.empty() && beginsLikeItem))
      return open({.end = at_ + header.length, .isUndefined = false, .isItem = false, .encoding = encoding});
    at_ += header.length;
    return true;
  }

  bool itemOrEnd(const Header& header) {
    Level& sequence = levels_.back();
    if (header.tag == kSequenceEnd && sequence.isUndefined) {
      levels_.pop_back();
      return header.length == 0 || refuse(damaged());
    }
    if (header.tag != kItem) return refuse(damaged());
    if (!lengthFits(header.length)) return false;
    const bool isUndefined = header.length == kUndefined;
    return open({.end = isUndefined ? 0 : at_ + header.length,
                 .isUndefined = isUndefined,
                 .isItem = true,
                 .encoding = sequence.encoding});
  }

  /// Whether that many bytes lie within what is open.
  bool lengthFits(std::uint32_t length) {
    if (length == kUndefined) return true;
    if (!has(length)) return refuse(cutOff());
    const auto holder =
        std::find_if(levels_.rbegin(), levels_.rend(), [](const Level& level) { return !level.isUndefined; });
    return holder == levels_.rend() || at_ + length <= holder->end || refuse(damaged());
  }

  bool open(const Level& level) {
    if (levels_.size() >= kDeepest)
      return refuse(Sentence("ReportFiles", "is nested deeper than any report"));
    levels_.push_back(level);
    return true;
  }

  std::span<const std::byte> bytes_;
  std::string_view text_;  ///< the same bytes
  std::size_t at_ = 0;
  std::size_t count_ = 0;  ///< of elements and items so far
  Encoding encoding_;
  bool syntaxIsKnown_ = false;
  std::vector<Level> levels_;
  Sentence fault_;
};

}  // namespace

std::variant<DataSet, Sentence> dataSetIn(std::span<const std::byte> bytes) { return Walk(bytes).dataSet(); }

std::optional<Sentence> faultIn(const DataSet& elements) {
  return Walk(elements.bytes).faultOfElements(elements.encoding);
}

}  // namespace nascor::dicom
