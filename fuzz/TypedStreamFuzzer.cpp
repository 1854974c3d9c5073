// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Reads any bytes as a typed stream, to its end, and prints what it holds. Whatever the bytes are, they are read or
// refused with a place inside them; a call of the reader out of order, an exception of another kind or a text out of
// proportion is a fault of ours.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <span>
#include <string>

#include "archive/FormatError.h"
#include "archive/TreeDump.h"

namespace {

using nascor::archive::FormatError;

/// What reading came to: nothing, or the place of the refusal.
std::optional<std::size_t> refusal(std::string (*dump)(std::span<const std::byte>),
                                   std::span<const std::byte> stream) {
  try {
    const std::string text = dump(stream);
    if (text.size() > 1'000'000 + 1'000 * stream.size()) std::abort();
    return std::nullopt;
  } catch (const FormatError& error) {
    if (error.offset() > stream.size()) std::abort();
    return error.offset();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto stream = std::as_bytes(std::span(data, size));
  const auto json = refusal(nascor::archive::dumpAsJson, stream);
  const auto text = refusal(nascor::archive::dumpAsText, stream);
  // One form may outgrow the limit of its length before the other does; short streams are far below it.
  if (size < 64 && json != text) std::abort();
  return 0;
}
