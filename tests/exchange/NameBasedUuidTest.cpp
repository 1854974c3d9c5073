// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/NameBasedUuid.h"

#include <gtest/gtest.h>

namespace nascor::tests {
namespace {

// The name space of domain names, and what Python's uuid.uuid5 gives in it.
constexpr exchange::Uuid kDomains{0x6b, 0xa7, 0xb8, 0x10, 0x9d, 0xad, 0x11, 0xd1,
                                  0x80, 0xb4, 0x00, 0xc0, 0x4f, 0xd4, 0x30, 0xc8};

TEST(AUuid, followsFromItsName) {
  EXPECT_EQ(exchange::textOf(exchange::nameBasedUuid(kDomains, "python.org")),
            "886313e1-3b8a-5372-9b90-0c9aee199e5d");
  EXPECT_EQ(exchange::textOf(exchange::nameBasedUuid(kDomains, std::string(200, 'x'))),
            "ddcc691a-b8e2-53e5-b059-6a232874b2eb");
}

TEST(AUuid, isADecimalUidToo) {
  EXPECT_EQ(exchange::uidOf(exchange::nameBasedUuid(kDomains, "python.org")),
            "2.25.181289448026289383154478846676280385117");
  EXPECT_EQ(exchange::uidOf({}), "2.25.0");
}

}  // namespace
}  // namespace nascor::tests
