// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "model/PatientRecord.h"

namespace nascor::model {
namespace {

using namespace std::string_literals;

struct GravidityCase {
  const char* why;
  std::optional<std::string> text;
  std::int64_t gravida;
};

constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

const GravidityCase kGravidities[] = {
    {"a number", "3", 3},
    {"a number", "2", 2},
    {"a number of two digits", "10", 10},
    {"zero", "0", 0},
    {"leading zeros", "03", 3},
    {"an empty text", "", 0},
    {"no text at all", std::nullopt, 1},

    {"a letter before", "G3", 1},
    {"letters after", "2nd", 1},
    {"letters at both ends", "G3P", 1},
    {"nothing but letters", "primigravida", 1},
    {"letters inside", "3P2", 3},
    {"a letter behind a blank is no end", " G3", 0},
    {"a letter of another script", "漢3", 1},
    {"an accented letter", "3é", 1},
    {"a combining mark", "3\u0301", 1},
    {"a spacing mark", "3\u0903", 1},
    {"a letter beyond the basic plane", "3\U00010400", 1},

    {"a full stop", "3.", 1},
    {"nothing but a full stop", ".", 1},
    {"a hyphen is punctuation", "-3", 1},
    {"a hyphen inside", "3-4", 3},
    {"a dash", "\u20143", 1},
    {"a dash inside", "3\u20134", 3},
    {"a slash inside", "3/2", 3},
    {"parentheses", "(3)", 1},
    {"a number sign", "#3", 1},
    {"a percent sign", "3%", 1},
    {"an underscore", "_3", 1},
    {"quotes", "\u201c3\u201d", 1},
    {"an inverted question mark", "\u00bf3", 1},
    {"an ideographic full stop", "3\u3002", 1},
    {"letters, then punctuation", "G.3", 1},

    {"a plus is a sign of the number", "+3", 3},
    {"a plus and a blank", "+ 3", 0},
    {"two pluses", "++3", 0},
    {"a dollar sign", "$3", 0},
    {"a less-than sign", "<3", 0},
    {"an equals sign", "=3", 0},
    {"a tilde", "~3", 0},
    {"a circumflex", "^3", 0},
    {"a grave accent", "`3", 0},
    {"a bar", "|3", 0},
    {"a bar after", "3|", 3},
    {"a plus after", "3+", 3},
    {"a euro sign after", "3\u20ac", 3},
    {"a symbol in the shape of a letter", "\u24b73", 0},
    {"a picture after", "3\U0001f930", 3},

    {"a blank before", " 3", 3},
    {"a blank after", "3 ", 3},
    {"a tab and a line end before", "\t\n3", 3},
    {"a NUL after", "3\0"s, 3},
    {"nothing but blanks", "  ", 0},
    {"a minus behind a blank", " -3", -3},

    {"digits of another script", "\u0663", 0},
    {"a fraction", "\u00bd", 0},
    {"a number and a half", "3\u00bd", 3},
    {"a Roman numeral of one character", "\u2162", 0},
    {"a superscript", "3\u00b2", 3},

    {"the largest number", "9223372036854775807", kLargest},
    {"one more", "9223372036854775808", kLargest},
    {"more digits than a number has", "99999999999999999999999999", kLargest},
};

TEST(AnOldGravidityText, isTheNumberItBeginsWithUnlessItNeededTrimming) {
  for (const GravidityCase& row : kGravidities) {
    EXPECT_EQ(gravidaFromOldText(row.text), row.gravida) << row.why << ": " << row.text.value_or("(missing)");
  }
}

}  // namespace
}  // namespace nascor::model
