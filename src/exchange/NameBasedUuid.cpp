// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/NameBasedUuid.h"

#include <algorithm>
#include <bit>
#include <vector>

namespace nascor::exchange {

namespace {

using Digest = std::array<std::uint32_t, 5>;

/// One block of SHA-1 (FIPS 180-4).
void digestBlock(const std::uint8_t* block, Digest& digest) {
  std::array<std::uint32_t, 80> words{};
  for (std::size_t i = 0; i < 16; ++i) {
    for (std::size_t byte = 0; byte < 4; ++byte) words.at(i) = words.at(i) << 8U | block[4 * i + byte];
  }
  for (std::size_t i = 16; i < words.size(); ++i)
    words.at(i) = std::rotl(words.at(i - 3) ^ words.at(i - 8) ^ words.at(i - 14) ^ words.at(i - 16), 1);

  auto [a, b, c, d, e] = digest;
  for (std::size_t i = 0; i < words.size(); ++i) {
    std::uint32_t mixed = b ^ c ^ d;
    std::uint32_t constant = 0xCA62C1D6U;
    if (i < 20) {
      mixed = (b & c) | (~b & d);
      constant = 0x5A827999U;
    } else if (i < 40) {
      constant = 0x6ED9EBA1U;
    } else if (i < 60) {
      mixed = (b & c) | (b & d) | (c & d);
      constant = 0x8F1BBCDCU;
    }
    const std::uint32_t next = std::rotl(a, 5) + mixed + e + constant + words.at(i);
    e = d;
    d = c;
    c = std::rotl(b, 30);
    b = a;
    a = next;
  }
  digest[0] += a;
  digest[1] += b;
  digest[2] += c;
  digest[3] += d;
  digest[4] += e;
}

Digest digestOf(std::vector<std::uint8_t> bytes) {
  constexpr std::size_t kBlock = 64;
  const std::uint64_t bits = bytes.size() * std::uint64_t{8};
  bytes.push_back(0x80);
  while (bytes.size() % kBlock != kBlock - 8) bytes.push_back(0);
  for (unsigned shift = 64; shift > 0; shift -= 8)
    bytes.push_back(static_cast<std::uint8_t>(bits >> (shift - 8)));
  Digest digest{0x67452301U, 0xEFCDAB89U, 0x98BADCFEU, 0x10325476U, 0xC3D2E1F0U};
  for (std::size_t at = 0; at < bytes.size(); at += kBlock) digestBlock(bytes.data() + at, digest);
  return digest;
}

}  // namespace

Uuid nameBasedUuid(const Uuid& nameSpace, std::string_view name) {
  std::vector<std::uint8_t> bytes(nameSpace.begin(), nameSpace.end());
  bytes.insert(bytes.end(), name.begin(), name.end());
  const Digest digest = digestOf(std::move(bytes));
  Uuid uuid{};
  for (std::size_t i = 0; i < uuid.size(); ++i)
    uuid.at(i) = static_cast<std::uint8_t>(digest.at(i / 4) >> (24U - 8U * (i % 4)));
  uuid[6] = static_cast<std::uint8_t>((uuid[6] & 0x0FU) | 0x50U);
  uuid[8] = static_cast<std::uint8_t>((uuid[8] & 0x3FU) | 0x80U);
  return uuid;
}

std::string textOf(const Uuid& uuid) {
  constexpr std::string_view kHexDigits = "0123456789abcdef";
  std::string text;
  for (std::size_t i = 0; i < uuid.size(); ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
    text += kHexDigits[uuid.at(i) >> 4U];
    text += kHexDigits[uuid.at(i) & 15U];
  }
  return text;
}

std::string uidOf(const Uuid& uuid) {
  Uuid rest = uuid;
  std::string digits;
  while (std::ranges::any_of(rest, [](std::uint8_t byte) { return byte != 0; })) {
    unsigned remainder = 0;
    for (std::uint8_t& byte : rest) {
      const unsigned value = remainder * 256 + byte;
      byte = static_cast<std::uint8_t>(value / 10);
      remainder = value % 10;
    }
    digits += static_cast<char>('0' + remainder);
  }
  std::ranges::reverse(digits);
  return "2.25." + (digits.empty() ? "0" : digits);
}

}  // namespace nascor::exchange
