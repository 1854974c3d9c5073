// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/JsonText.h"

#include <cmath>

#include "foundation/NumberText.h"
#include "foundation/Utf8.h"

namespace nascor::foundation {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

}  // namespace

JsonText& JsonText::key(std::string_view name) {
  startElement();
  appendQuoted(name);
  out_ += ':';
  afterKey_ = true;
  return *this;
}

JsonText& JsonText::text(std::string_view value) {
  startElement();
  appendQuoted(value);
  return *this;
}

JsonText& JsonText::number(double value) {
  if (!std::isfinite(value)) return text(shortestText(value));
  startElement();
  out_ += shortestText(value);
  return *this;
}

JsonText& JsonText::fixed(double value, int decimals) {
  if (!std::isfinite(value)) return number(value);
  startElement();
  out_ += fixedText(value, decimals);
  return *this;
}

JsonText& JsonText::integer(std::int64_t value) {
  startElement();
  out_ += std::to_string(value);
  return *this;
}

JsonText& JsonText::unsignedInteger(std::uint64_t value) {
  startElement();
  out_ += std::to_string(value);
  return *this;
}

JsonText& JsonText::boolean(bool value) {
  startElement();
  out_ += value ? "true" : "false";
  return *this;
}

JsonText& JsonText::null() {
  startElement();
  out_ += "null";
  return *this;
}

JsonText& JsonText::open(char bracket) {
  startElement();
  out_ += bracket;
  hasElements_.push_back(false);
  return *this;
}

JsonText& JsonText::close(char bracket) {
  hasElements_.pop_back();
  out_ += bracket;
  return *this;
}

void JsonText::startElement() {
  if (afterKey_) {
    afterKey_ = false;
  } else if (!hasElements_.empty()) {
    if (hasElements_.back()) out_ += ',';
    hasElements_.back() = true;
  }
}

void JsonText::appendQuoted(std::string_view value) {
  constexpr std::string_view kHexDigits = "0123456789abcdef";
  constexpr char32_t kSeen = 0xFFFD;
  out_ += '"';
  while (!value.empty()) {
    const auto byte = static_cast<unsigned char>(value.front());
    std::size_t length = 1;
    switch (byte) {
      case '"': out_ += "\\\""; break;
      case '\\': out_ += "\\\\"; break;
      case '\b': out_ += "\\b"; break;
      case '\f': out_ += "\\f"; break;
      case '\n': out_ += "\\n"; break;
      case '\r': out_ += "\\r"; break;
      case '\t': out_ += "\\t"; break;
      default:
        if (byte >= 0x20 && byte < 0x7F) {
          out_ += value.front();
        } else if (length = characterLength(value); length == 0) {
          out_ += kReplacement;
          length = 1;
        } else if (const char32_t code = codeOfUnseen(value.substr(0, length)); code != kSeen) {
          out_ += "\\u";
          for (const unsigned shift : {12U, 8U, 4U, 0U}) out_ += kHexDigits[(code >> shift) & 15U];
        } else {
          out_ += value.substr(0, length);
        }
    }
    value.remove_prefix(length);
  }
  out_ += '"';
}

}  // namespace nascor::foundation
