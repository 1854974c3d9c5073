// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Reads any bytes as a tar archive. It is whole or has a complaint, and members come to an end.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <variant>

#include "tar/TarReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kPiece = 600;
  std::span<const char> left(reinterpret_cast<const char*>(data), size);
  nascor::tar::TarReader reader(
      [&]() -> std::variant<std::span<const char>, nascor::foundation::Sentence> {
        const auto piece = left.first(std::min(kPiece, left.size()));
        left = left.subspan(piece.size());
        return piece;
      },
      ".nascor");
  bool isCut = false;
  while (const auto member = reader.next()) {
    if (isCut) std::abort();
    if (!member->name.ends_with(".nascor")) std::abort();
    isCut = reader.complaint().has_value();
  }
  if (isCut && !reader.complaint()) std::abort();
  return 0;
}
