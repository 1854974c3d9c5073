// A mebibyte of anything is read, or refused, within a tenth of a second.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "archive/FormatError.h"
#include "foundation/IsoDate.h"
#include "foundation/JsonText.h"
#include "foundation/LeadingInteger.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "foundation/ShortDate.h"
#include "foundation/Utf8.h"
#include "model/PatientFile.h"
#include "model/PatientJsonReader.h"
#include "posix/PosixCalendar.h"
#include "support/HeavyDocuments.h"
#include "support/Spent.h"

namespace nascor::cli {
namespace {

constexpr std::size_t kMebibyte = std::size_t{1} << 20U;
constexpr double kMostSecondsOfAReader = tests::kIsSlowed ? 5.0 : 0.1;

/// Other programs on the machine make a reader slower, never quicker: the best of a few tries counts.
void expectQuick(const std::string& name, const std::function<void()>& read) {
  constexpr int kTries = 5;
  double seconds = 0.0;
  for (int i = 0; i == 0 || (i < kTries && seconds >= kMostSecondsOfAReader); ++i) {
    const tests::Spent spent;
    read();
    seconds = spent.seconds();
  }
  EXPECT_LT(seconds, kMostSecondsOfAReader) << name;
}

TEST(AMebibyteOfText, isReadOrRefusedAtOnceByWhateverReadsTexts) {
  const posix::PosixCalendar calendar;
  const foundation::ShortDateForm form = foundation::EnglishLocalizer().shortDateForm();
  auto texts = tests::heavyTexts(kMebibyte);
  for (const char* piece : {"1", "-", "1/", "0.", "9999999999 ", "\\", "\"", "{\"a\":", "[", "\xFF", "e9"})
    texts.push_back({piece, tests::repeated(piece, kMebibyte)});
  for (const tests::HeavyText& each : texts) {
    const std::string& name = each.name;
    const std::string& text = each.text;
    expectQuick(name + " as a number", [&] { static_cast<void>(foundation::numberFromFieldText(text)); });
    expectQuick(name + " as a whole number",
                [&] { static_cast<void>(foundation::integerFromFieldText(text)); });
    expectQuick(name + " as a leading number", [&] { static_cast<void>(foundation::leadingInteger(text)); });
    expectQuick(name + " as a date",
                [&] { static_cast<void>(foundation::civilDayFromShortText(text, form)); });
    expectQuick(name + " as an ISO date", [&] { static_cast<void>(dateFromIsoText(text, calendar)); });
    expectQuick(name + " as an old gravidity", [&] { static_cast<void>(model::gravidaFromOldText(text)); });
    expectQuick(name + " as a line", [&] { static_cast<void>(foundation::shownLine(text)); });
    expectQuick(name + " as JSON", [&] {
      EXPECT_THROW(static_cast<void>(model::patientFromJson(text, calendar)), model::JsonDocumentError);
    });
    expectQuick(name + " as a file", [&] {
      EXPECT_THROW(static_cast<void>(model::unarchivedPatient(std::as_bytes(std::span(text)))),
                   archive::FormatError);
    });
    // A control character takes six bytes.
    constexpr std::size_t kLongestEscape = 6;
    std::string note = "{\"maternalIDString\":";
    foundation::JsonText(note).text(std::string_view(text).substr(0, kMebibyte / kLongestEscape));
    note += '}';
    expectQuick(name + " within JSON", [&] { static_cast<void>(model::patientFromJson(note, calendar)); });
  }
}

TEST(AMebibyteOfText, isReadAtOnceWithinAFile) {
  const posix::PosixCalendar calendar;
  for (const tests::HeavyText& each : tests::heavyTexts(kMebibyte / 2)) {
    const auto bytes =
        model::archivedPatient(*tests::heavyPatient({.identifier = each.text, .note = each.text}, calendar));
    expectQuick(each.name, [&] { EXPECT_TRUE(model::unarchivedPatient(bytes).patient); });
  }
}

}  // namespace
}  // namespace nascor::cli
