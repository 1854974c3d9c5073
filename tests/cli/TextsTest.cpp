// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "cli_commands/Console.h"
#include "cli_commands/Numbers.h"

namespace nascor::tests {
namespace {

using cli::numberFromText;
using cli::oneLine;

TEST(OneLine, showsControlCharactersAndKeepsTheRest) {
  EXPECT_EQ(oneLine("Größe 7\xE2\x82\xAC"), "Größe 7\xE2\x82\xAC");
  EXPECT_EQ(oneLine("a\nb\tc\r"), "a\\nb\\tc\\x0d");
  EXPECT_EQ(oneLine("\x1B[31m\x7F"), "\\x1b[31m\\x7f");
  EXPECT_EQ(oneLine("\xC2\x9B"
                    "31m"),
            "\\x9b31m")
      << "the one-character form of escape and bracket";
  // What turns the direction of writing, and the separators of lines; their neighbours are letters, blanks and signs.
  EXPECT_EQ(oneLine("a\u200E\u200F\u2028\u2029\u202A\u202E\u2066\u2069\u061C"),
            "a\\u200e\\u200f\\u2028\\u2029\\u202a\\u202e\\u2066\\u2069\\u061c");
  EXPECT_EQ(oneLine("\u200D\u2010\u2027\u202F\u2065\u206A\u061B\u061D\u10CE"),
            "\u200D\u2010\u2027\u202F\u2065\u206A\u061B\u061D\u10CE");
  EXPECT_EQ(oneLine("\xC2\xA0"), "\xC2\xA0");
  EXPECT_EQ(oneLine("a\xFF"
                    "b\xC3"),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
  EXPECT_EQ(oneLine(std::string(1, '\0')), "\\x00");
}

TEST(NumberFromText, takesDecimalNumbers) {
  EXPECT_EQ(numberFromText("45"), 45.0);
  EXPECT_EQ(numberFromText("+45.5"), 45.5);
  EXPECT_EQ(numberFromText("-.5"), -0.5);
  EXPECT_EQ(numberFromText("1e2"), 100.0);
  EXPECT_EQ(numberFromText("4.50E-1"), 0.45);
}

TEST(NumberFromText, takesNothingElse) {
  for (const char* text :
       {"",         " 45",   "45 ",    "45mm", "0x10", "0b1", "4,5", "1'000", "nan", "inf", "-inf",
        "infinity", "1e400", "-1e400", "+-4",  "--4",  "+",   "-",   ".",     "e5",  "1e",  "\xD9\xA4"}) {
    EXPECT_FALSE(numberFromText(text)) << '"' << text << '"';
  }
}

}  // namespace
}  // namespace nascor::tests
