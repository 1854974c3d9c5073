// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/UserDefaults.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "support/MemoryUserDefaults.h"

namespace nascor::foundation {
namespace {

constexpr std::string_view kKey = defaults_key::showAll;

TEST(BoolForKey, isTrueForYesTrueAndEveryNumberButZero) {
  for (const char* text :
       {"YES", "yes", "Yes", "Y",  "y",    "true", "TRUE", "True", "T",   "t",
        "1",   "2",   "-1",  "+1", " YES", "\t1",  "10",   "01",   "1.5", "99999999999999999999"}) {
    tests::MemoryUserDefaults defaults;
    defaults.setValue(kKey, text);
    EXPECT_TRUE(boolForKey(defaults, kKey)) << '"' << text << '"';
  }
}

TEST(BoolForKey, isFalseForAllElse) {
  for (const char* text : {"NO", "no", "No", "N", "false", "FALSE", "0", "00", "-0", "+0", "", " ", "\t",
                           "on", "maybe", "0.9", "-"}) {
    tests::MemoryUserDefaults defaults;
    defaults.setValue(kKey, text);
    EXPECT_FALSE(boolForKey(defaults, kKey)) << '"' << text << '"';
  }
  EXPECT_FALSE(boolForKey(tests::MemoryUserDefaults(), kKey));
}

TEST(IntegerForKey, readsLeadingDigits) {
  tests::MemoryUserDefaults defaults;
  EXPECT_EQ(integerForKey(defaults, defaults_key::standard), 0);
  defaults.setValue(defaults_key::standard, " 3rd");
  EXPECT_EQ(integerForKey(defaults, defaults_key::standard), 3);
  defaults.setValue(defaults_key::standard, "Westerway");
  EXPECT_EQ(integerForKey(defaults, defaults_key::standard), 0);
  defaults.setValue(defaults_key::standard, "-99999999999999999999");
  EXPECT_EQ(integerForKey(defaults, defaults_key::standard), std::numeric_limits<std::int64_t>::min());
}

TEST(RegisteredDefaults, countUntilTheUserChooses) {
  tests::MemoryUserDefaults defaults;
  EXPECT_EQ(defaults.value(kKey), std::nullopt);
  defaults.registerDefault(kKey, "YES");
  EXPECT_TRUE(boolForKey(defaults, kKey));
  EXPECT_TRUE(defaults.written().empty());

  defaults.setValue(kKey, "NO");
  EXPECT_FALSE(boolForKey(defaults, kKey));
  defaults.registerDefault(kKey, "YES");
  EXPECT_FALSE(boolForKey(defaults, kKey)) << "registering again does not undo the choice";
  defaults.setValue(kKey, "");
  EXPECT_EQ(defaults.value(kKey), "") << "an empty choice is a choice";
}

}  // namespace
}  // namespace nascor::foundation
