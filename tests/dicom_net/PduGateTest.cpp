// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom_net/PduGate.h"

#include <gmock/gmock.h>

#include <string>

namespace nascor::tests {
namespace {

std::string bigEndian(std::uint32_t value) {
  std::string bytes;
  for (unsigned shift = 32; shift > 0;) bytes += static_cast<char>(value >> (shift -= 8U) & 0xFFU);
  return bytes;
}

std::string unit(char type, const std::string& body) {
  return std::string{type, '\0'} + bigEndian(static_cast<std::uint32_t>(body.size())) + body;
}

/// An item of data; flags: 1 for a command, 2 for its last part.
std::string item(char flags, const std::string& body) {
  return bigEndian(static_cast<std::uint32_t>(body.size()) + 2) + '\1' + flags + body;
}

const std::string kAbort = unit(7, std::string(4, '\0'));
std::string data(const std::string& items) { return unit(4, items); }
std::string ofLength(char type, std::uint32_t length) { return std::string{type, '\0'} + bigEndian(length); }

bool passes(const std::string& bytes) {
  dicom_net::PduGate gate;
  const bool isWell = gate.take(std::as_bytes(std::span(bytes)));
  EXPECT_EQ(isWell, !gate.isBroken());
  return isWell;
}

struct StreamCase {
  const char* name;
  std::string bytes;
  bool passes;
};
class AStream : public testing::TestWithParam<StreamCase> {};

TEST_P(AStream, passesWhenAServerMaySendIt) { EXPECT_EQ(passes(GetParam().bytes), GetParam().passes); }

TEST_P(AStream, isLookedAtTheSameWayByteByByte) {
  dicom_net::PduGate gate;
  bool isWell = true;
  for (const char byte : GetParam().bytes) isWell = gate.take(std::as_bytes(std::span(&byte, 1)));
  EXPECT_EQ(isWell, GetParam().passes);
}

INSTANTIATE_TEST_SUITE_P(
    each, AStream,
    testing::Values(
        StreamCase{"nothing", "", true}, StreamCase{"anAcceptance", unit(2, std::string(200, 'x')), true},
        StreamCase{"theLongestAcceptance", ofLength(2, 65536), true},
        StreamCase{"anAcceptanceTooLong", ofLength(2, 65537), false},
        StreamCase{"aRejection", unit(3, std::string(4, '\1')), true},
        StreamCase{"aRejectionTooLong", ofLength(3, 5), false},
        StreamCase{"aRequest", ofLength(1, 68), false}, StreamCase{"noType", ofLength(0, 4), false},
        StreamCase{"aTypeThatIsNone", ofLength(8, 4), false}, StreamCase{"anAbortion", kAbort, true},
        StreamCase{"textOfAnotherProtocol", "HTTP/1.1 400", false},
        StreamCase{"aLengthOfAll", ofLength(4, 0xFFFFFFFFU), false},
        StreamCase{"theLongestData", ofLength(4, 131072), true},
        StreamCase{"dataTooLong", ofLength(4, 131073), false},
        StreamCase{"dataOfNothing", ofLength(4, 0), false},
        StreamCase{"dataThatIsNoItem", ofLength(4, 5), false},
        StreamCase{"aCommand", data(item(3, std::string(100, 'x'))) + kAbort, true},
        StreamCase{"anEmptyItem", data(item(2, "")) + kAbort, true},
        StreamCase{"twoItems", data(item(1, "ab") + item(3, "cd")) + kAbort, true},
        StreamCase{"anItemLongerThanItsUnit", data(bigEndian(20) + std::string(10, '\1')), false},
        StreamCase{"anItemWithoutItsHead", data(bigEndian(1) + std::string(8, '\1')), false},
        StreamCase{"aRestThatIsNoItem", data(item(3, "ab") + "xyz"), false},
        StreamCase{"theLongestCommand", data(item(3, std::string(4096, 'x'))), true},
        StreamCase{"aCommandTooLong", data(item(3, std::string(4098, 'x'))), false},
        StreamCase{"aCommandTooLongInParts",
                   data(item(1, std::string(4000, 'x'))) + data(item(1, std::string(98, 'x'))), false},
        StreamCase{"twoLongCommands",
                   data(item(3, std::string(4000, 'x'))) + data(item(3, std::string(4000, 'x'))), true},
        StreamCase{"longDataOfAReport", data(item(0, std::string(60000, 'x'))) + data(item(2, "ab")), true}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(AGate, staysShutOnceItIsBroken) {
  dicom_net::PduGate gate;
  const std::string wrong = ofLength(9, 4);
  EXPECT_FALSE(gate.take(std::as_bytes(std::span(wrong))));
  EXPECT_FALSE(gate.take(std::as_bytes(std::span(kAbort))));
}

TEST(AGate, knowsWhetherAnythingCame) {
  dicom_net::PduGate gate;
  EXPECT_FALSE(gate.sawAny());
  gate.take(std::as_bytes(std::span(kAbort)));
  EXPECT_TRUE(gate.sawAny());
}

}  // namespace
}  // namespace nascor::tests
