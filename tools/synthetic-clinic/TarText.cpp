// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "synthetic_clinic/TarText.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace nascor::clinic {

namespace {

constexpr std::size_t kBlock = 512;

}  // namespace

void appendTarMember(std::string& tar, std::string_view name, std::span<const std::byte> contents) {
  std::array<char, kBlock> header{};
  const auto put = [&](std::size_t at, std::string_view text) {
    std::ranges::copy(text, header.begin() + static_cast<std::ptrdiff_t>(at));
  };
  std::array<char, 16> number;
  put(0, name.substr(0, 100));
  put(100, "0000600");
  put(108, "0000000");
  put(116, "0000000");
  std::snprintf(number.data(), number.size(), "%011zo", contents.size());
  put(124, number.data());
  // The first second of 2026.
  put(136, "15125334400");
  put(148, "        ");
  put(156, "0");
  put(257, "ustar");
  put(263, "00");
  unsigned sum = 0;
  for (const char byte : header) sum += static_cast<unsigned char>(byte);
  std::snprintf(number.data(), number.size(), "%06o", sum);
  put(148, std::string_view(number.data(), 7));
  tar.append(header.data(), header.size());
  tar.append(reinterpret_cast<const char*>(contents.data()), contents.size());
  tar.append((kBlock - contents.size() % kBlock) % kBlock, '\0');
}

void appendTarEnd(std::string& tar) { tar.append(2 * kBlock, '\0'); }

}  // namespace nascor::clinic
