// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "archive/TypeString.h"

#include <algorithm>
#include <limits>

#include "archive/Encoding.h"
#include "foundation/Localizer.h"

namespace nascor::archive {
namespace {

using foundation::Sentence;
using foundation::translatable;

constexpr std::string_view kPlainCodes = "@#:*+%cCBsSiIlLqQfd";
constexpr std::uint64_t kEndless = std::numeric_limits<std::uint64_t>::max();

std::uint64_t saturatingAdd(std::uint64_t a, std::uint64_t b) { return a > kEndless - b ? kEndless : a + b; }

std::uint64_t saturatingMultiply(std::uint64_t a, std::uint64_t b) {
  return b != 0 && a > kEndless / b ? kEndless : a * b;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  std::vector<TypeNode> parse() {
    while (at_ < text_.size()) parseType(0);
    return std::move(nodes_);
  }

 private:
  void parseType(std::size_t depth) {
    if (depth > kDepthLimit) {
      //: Behind "the type string ...", as are the next ones.
      throw TypeStringError{
          Sentence("Reading", "nests arrays and structures more than %1 deep").with(kDepthLimit)};
    }
    const std::size_t begin = at_;
    const std::size_t self = nodes_.size();
    const char code = text_[at_++];
    nodes_.push_back({.code = code, .size = 1, .count = 0, .minBytes = 1, .text = {}});
    if (code == '[') {
      parseArray(self, depth);
    } else if (code == '{') {
      parseStructure(self, depth);
    } else if (kPlainCodes.find(code) == std::string_view::npos) {
      throw TypeStringError{Sentence("Reading", "has the unknown type code %1").with(inQuotes({&code, 1}))};
    }
    nodes_[self].size = nodes_.size() - self;
    nodes_[self].text = text_.substr(begin, at_ - begin);
  }

  void parseArray(std::size_t self, std::size_t depth) {
    std::uint64_t count = 0;
    const std::size_t digits = at_;
    for (; at_ < text_.size() && isDigit(text_[at_]); ++at_) {
      count = saturatingAdd(saturatingMultiply(count, 10), static_cast<std::uint64_t>(text_[at_] - '0'));
    }
    if (at_ == digits) throw TypeStringError{Sentence("Reading", "has an array without a count")};
    if (at_ == text_.size()) throw TypeStringError{Sentence("Reading", "ends inside an array")};
    if (text_[at_] == ']') throw TypeStringError{Sentence("Reading", "has an array without an element type")};
    parseType(depth + 1);
    if (at_ == text_.size() || text_[at_] != ']')
      throw TypeStringError{Sentence("Reading", "has an array that is not closed")};
    ++at_;
    const std::uint64_t elementBytes = nodes_[self + 1].minBytes;
    if (count > 0 && elementBytes == 0)
      throw TypeStringError{Sentence("Reading", "has an array whose elements take no bytes")};
    nodes_[self].count = count;
    nodes_[self].minBytes = saturatingMultiply(count, elementBytes);
  }

  void parseStructure(std::size_t self, std::size_t depth) {
    while (at_ < text_.size() && text_[at_] != '=' && text_[at_] != '}') ++at_;
    if (at_ == text_.size() || text_[at_] == '}')
      throw TypeStringError{Sentence("Reading", "has a structure without members")};
    ++at_;
    std::uint64_t minBytes = 0;
    while (at_ < text_.size() && text_[at_] != '}') {
      const std::size_t member = nodes_.size();
      parseType(depth + 1);
      minBytes = saturatingAdd(minBytes, nodes_[member].minBytes);
    }
    if (at_ == text_.size()) throw TypeStringError{Sentence("Reading", "has a structure that is not closed")};
    ++at_;
    nodes_[self].minBytes = minBytes;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::vector<TypeNode> nodes_;
};

std::string_view inWords(char code) {
  switch (code) {
    case '@': return translatable("Reading", "an object");
    case '#': return translatable("Reading", "a class");
    case ':': return translatable("Reading", "a selector");
    case '*': return translatable("Reading", "a C string");
    case '+': return translatable("Reading", "a string");
    case '%': return translatable("Reading", "a shared string");
    case 'c': return translatable("Reading", "a byte");
    case 'C': return translatable("Reading", "an unsigned byte");
    case 'B': return translatable("Reading", "a truth value");
    case 's': return translatable("Reading", "a 16-bit integer");
    case 'S': return translatable("Reading", "an unsigned 16-bit integer");
    case 'i': return translatable("Reading", "a 32-bit integer");
    case 'I': return translatable("Reading", "an unsigned 32-bit integer");
    case 'l': return translatable("Reading", "a long integer");
    case 'L': return translatable("Reading", "an unsigned long integer");
    case 'q': return translatable("Reading", "a 64-bit integer");
    case 'Q': return translatable("Reading", "an unsigned 64-bit integer");
    case 'f': return translatable("Reading", "a 32-bit real");
    case 'd': return translatable("Reading", "a 64-bit real");
    case '[': return translatable("Reading", "an array");
    case '{': return translatable("Reading", "a structure");
    default: return translatable("Reading", "a value");
  }
}

template <class Lowest, class Highest>
constexpr IntegerRange range() {
  return {std::numeric_limits<Lowest>::min(), std::numeric_limits<Highest>::max()};
}

}  // namespace

IntegerRange integerRangeOf(char code) {
  switch (code) {
    case 'c': return range<std::int8_t, std::int8_t>();
    case 'C':
    case 'B': return range<std::uint8_t, std::uint8_t>();
    case 's': return range<std::int16_t, std::int16_t>();
    case 'S': return range<std::int16_t, std::uint16_t>();
    case 'i': return range<std::int32_t, std::int32_t>();
    case 'I': return range<std::int32_t, std::uint32_t>();
    default: return range<std::int64_t, std::int64_t>();
  }
}

std::vector<TypeNode> parseTypeString(std::string_view text) { return Parser(text).parse(); }

Sentence describeTypes(std::string_view types) {
  const bool single = types.size() == 1 || types.starts_with('[') || types.starts_with('{');
  const Sentence words = single ? Sentence("Reading", inWords(types.front())) : Sentence("Reading", "values");
  //: %1 is a type in words, such as "an object", %2 as it is spelled.
  return Sentence("Reading", "%1 (type %2)").with(words, inQuotes(types));
}

std::string printable(std::string_view text) {
  constexpr std::size_t kShown = 48;
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string result;
  for (const char c : text.substr(0, kShown)) {
    if (c >= 0x20 && c < 0x7f) {
      result += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      result += "\\x";
      result += kDigits[byte >> 4U];
      result += kDigits[byte & 15U];
    }
  }
  if (text.size() > kShown) result += "...";
  return result;
}

std::string inQuotes(std::string_view text) { return '"' + printable(text) + '"'; }

}  // namespace nascor::archive
