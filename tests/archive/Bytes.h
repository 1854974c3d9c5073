// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <cctype>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "archive/FormatError.h"

namespace nascor::archive {

using Bytes = std::vector<std::byte>;

/// Bytes from their spelling: two hexadecimal digits each, texts in single quotes, blanks where they please.
inline Bytes bytes(std::string_view spelling) {
  const auto digit = [](char c) {
    const auto value = std::string_view("0123456789abcdef").find(c);
    if (value == std::string_view::npos) throw std::invalid_argument("no hexadecimal digit");
    return value;
  };
  Bytes result;
  for (std::size_t i = 0; i < spelling.size(); ++i) {
    if (spelling[i] == ' ') continue;
    if (spelling[i] == '\'') {
      for (++i; spelling.at(i) != '\''; ++i) result.push_back(static_cast<std::byte>(spelling[i]));
    } else {
      result.push_back(static_cast<std::byte>(digit(spelling[i]) * 16 + digit(spelling.at(i + 1))));
      ++i;
    }
  }
  return result;
}

inline constexpr std::string_view kLittle = "04 0b 'streamtyped' 81 e8 03 ";
inline constexpr std::string_view kBig = "04 0b 'typedstream' 81 03 e8 ";

/// A little-endian stream: header and what follows it.
inline Bytes little(std::string_view body) { return bytes(std::string(kLittle) + std::string(body)); }
inline Bytes big(std::string_view body) { return bytes(std::string(kBig) + std::string(body)); }

/// `count` times the bytes of a spelling.
inline Bytes repeated(std::size_t count, std::string_view spelling) {
  const Bytes once = bytes(spelling);
  Bytes result;
  for (std::size_t i = 0; i < count; ++i) result.insert(result.end(), once.begin(), once.end());
  return result;
}

inline Bytes operator+(Bytes left, const Bytes& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

/// The message of the FormatError that `action` throws; a failure and "" when it throws none.
template <class Action>
std::string refusal(Action action) {
  try {
    action();
  } catch (const FormatError& error) {
    return error.what();
  }
  ADD_FAILURE() << "nothing was refused";
  return {};
}

/// A patient as a new window saves it: 224 bytes, spelled out by hand.
inline Bytes freshPatient() {
  return little(
      "84 01 '@'"                                              // type string 0
      "84"                                                     // object 0
      "  84 84 0d 'PatientRecord' 07"                          // class 1, string 1
      "     84 84 08 'NSObject' 00 85"                         // class 2, string 2
      "  92 84"                                                // object 3: the reference ID
      "        84 84 08 'NSString' 01 94"                      // class 4, string 3
      "        84 01 '+' 00 86"                                // string 4; an empty text
      "  92 84 96 96 0a 'Deprecated' 86"                       // object 5
      "  92 85"                                                // no date
      "  92 84"                                                // object 6: the examinations
      "        84 84 0e 'NSMutableArray' 00"                   // class 7, string 5
      "        84 84 07 'NSArray' 00 94"                       // class 8, string 6
      "        84 01 'i' 01"                                   // string 7; one of them
      "        92 84"                                          // object 9
      "           84 84 08 'NCRecord' 01 94"                   // class 10, string 8
      "           92 95"                                       // its note is the empty text, object 3
      "           92 84"                                       // object 11: its date
      "              84 84 06 'NSDate' 00 94"                  // class 12, string 9
      "              84 01 'd' 83 00 00 c8 0f 8b 5f aa 41 86"  // string 10; 221234567.890625
      "           92 84 99 99 01"                              // object 13: one measurement
      "              92 84"                                    // object 14
      "                 84 84 12 'MeasurementsRecord' 00 94"   // class 15, string 11
      "                 84 01 'f' 00 9e 00 9e 00 9e 00"        // string 12; four zeros
      "                 86"
      "              86"
      "           86"
      "        86"
      "  99 00 99 00 99 01"
      "  9e 28"
      "  99 00 99 00"
      "86");
}

}  // namespace nascor::archive
