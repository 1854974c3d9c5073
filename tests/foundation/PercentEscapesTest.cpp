// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/PercentEscapes.h"

#include <gtest/gtest.h>

namespace nascor::foundation {
namespace {

TEST(PercentEscapes, leaveLettersDigitsAndSlashes) {
  EXPECT_EQ(withPercentEscapes("/usr/share/nascor-1.0/A_b~9"), "/usr/share/nascor-1.0/A_b~9");
  EXPECT_EQ(withPercentEscapes(""), "");
}

TEST(PercentEscapes, standForWhatAUrlMayNotHold) {
  EXPECT_EQ(withPercentEscapes("Nascor User Guide.pdf"), "Nascor%20User%20Guide.pdf");
  EXPECT_EQ(withPercentEscapes("100%<a>\"{b}|^`[c]\\\n"), "100%25%3Ca%3E%22%7Bb%7D%7C%5E%60%5Bc%5D%5C%0A");
}

TEST(PercentEscapes, standForWhatWouldEndThePath) { EXPECT_EQ(withPercentEscapes("a?b#c"), "a%3Fb%23c"); }

TEST(PercentEscapes, areThoseOfTheUtf8Bytes) { EXPECT_EQ(withPercentEscapes("Zo\xC3\xAB"), "Zo%C3%AB"); }

}  // namespace
}  // namespace nascor::foundation
