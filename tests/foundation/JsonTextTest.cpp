// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/JsonText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace nascor::foundation {
namespace {

/// What `write` gives.
template <class Write>
std::string written(Write write) {
  std::string out;
  JsonText json(out);
  write(json);
  return out;
}

TEST(Json, hasNoBlanks) {
  EXPECT_EQ(
      written([](JsonText& json) {
        json.beginObject();
        json.key("id").text("AB-123").key("weeks").number(20.5).key("fetuses").integer(2);
        json.key("open").boolean(false).key("saved").boolean(true).key("edd").null();
        json.key("rows").beginArray().integer(1).beginArray().endArray().beginObject().endObject().endArray();
        json.endObject();
      }),
      R"({"id":"AB-123","weeks":20.5,"fetuses":2,"open":false,"saved":true,"edd":null,"rows":[1,[],{}]})");
}

TEST(Json, isAppendedToWhatIsThere) {
  std::string out = "# ";
  JsonText json(out);
  json.beginArray().null().endArray();
  out += '\n';
  json.beginObject().endObject();
  EXPECT_EQ(out, "# [null]\n{}");
}

TEST(Json, writesNumbersAsTheyAreWanted) {
  EXPECT_EQ(written([](JsonText& json) {
              json.beginArray().fixed(38.0, 1).fixed(25.25, 1).fixed(-1.2345, 3).fixed(0.0 / 0.0, 1);
              json.unsignedInteger(18446744073709551615U).endArray();
            }),
            R"([38.0,25.2,-1.234,"nan",18446744073709551615])");
}

struct NumberCase {
  double value;
  const char* json;
};
class AJsonNumber : public testing::TestWithParam<NumberCase> {};

TEST_P(AJsonNumber, hasTheShortestDigitsThatReadBack) {
  EXPECT_EQ(written([](JsonText& json) { json.number(GetParam().value); }), GetParam().json);
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(ofEveryKind, AJsonNumber,
                         testing::Values(NumberCase{0.0, "0"}, NumberCase{40.0, "40"},
                                         NumberCase{25.3, "25.3"},
                                         NumberCase{25.299999237060547, "25.299999237060547"},
                                         NumberCase{-0.1, "-0.1"}, NumberCase{1e300, "1e+300"},
                                         NumberCase{kInfinity, "\"inf\""}, NumberCase{-kInfinity, "\"-inf\""},
                                         NumberCase{std::numeric_limits<double>::quiet_NaN(), "\"nan\""}));

TEST(AJsonNumber, mayBeAnyInteger) {
  EXPECT_EQ(written([](JsonText& json) {
              json.beginArray();
              json.integer(std::numeric_limits<std::int64_t>::min());
              json.integer(std::numeric_limits<std::int64_t>::max());
              json.endArray();
            }),
            "[-9223372036854775808,9223372036854775807]");
}

struct TextCase {
  const char* name;
  std::string text;
  const char* json;
};
class AJsonText : public testing::TestWithParam<TextCase> {};

TEST_P(AJsonText, isEscapedWhereItMust) {
  EXPECT_EQ(written([](JsonText& json) { json.text(GetParam().text); }), GetParam().json);
  EXPECT_EQ(written([](JsonText& json) { json.beginObject().key(GetParam().text).null().endObject(); }),
            std::string("{").append(GetParam().json).append(":null}"));
}

INSTANTIATE_TEST_SUITE_P(
    ofEveryKind, AJsonText,
    testing::Values(TextCase{"empty", "", R"("")"}, TextCase{"plain", "a/b '~", R"("a/b '~")"},
                    TextCase{"quotesAndBackslash", "\"\\", R"("\"\\")"},
                    TextCase{"namedControls", "\b\f\n\r\t", R"("\b\f\n\r\t")"},
                    TextCase{"otherControls", std::string("\0\x1f\x10", 3), R"("\u0000\u001f\u0010")"},
                    TextCase{"del", "\x7f", "\"\\u007f\""},
                    TextCase{"utf8", "\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80",
                             "\"\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80\""}),
    [](const auto& row) { return std::string(row.param.name); });

// Every byte that is not part of a character becomes one U+FFFD (EF BF BD); what is around it stays.
INSTANTIATE_TEST_SUITE_P(thatIsNoUtf8, AJsonText,
                         testing::Values(TextCase{"strayByte", "a\xff\xc3\xa4", "\"a\xef\xbf\xbd\xc3\xa4\""},
                                         TextCase{"cutCharacter", "\xe2\x82", "\"\xef\xbf\xbd\xef\xbf\xbd\""},
                                         TextCase{"surrogate", "\xed\xa0\x80\"",
                                                  "\"\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd\\\"\""},
                                         TextCase{"wholeBesideBroken", "\xf0\x9f\x98\x80\xf0",
                                                  "\"\xf0\x9f\x98\x80\xef\xbf\xbd\""}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ATextInJson, givesATerminalNoOrdersAndMirrorsNothing) {
  const auto quoted = [](std::string_view text) { return written([&](JsonText& json) { json.text(text); }); };
  EXPECT_EQ(quoted("a\x7F\u0080\u009B\u009Fz"), R"("a\u007f\u0080\u009b\u009fz")");
  EXPECT_EQ(quoted("\u061C\u200E\u200F\u2028\u2029\u202A\u202E\u2066\u2069"),
            R"("\u061c\u200e\u200f\u2028\u2029\u202a\u202e\u2066\u2069")");
  EXPECT_EQ(quoted("~\u00A0\u200D\u2010\U0001F476"), "\"~\u00A0\u200D\u2010\U0001F476\"") << "others stay";
  EXPECT_EQ(quoted("\xC2\x9B\xFF"), "\"\\u009b\xEF\xBF\xBD\"") << "beside what is no UTF-8 too";
}

}  // namespace
}  // namespace nascor::foundation
