// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Reads any bytes as a CSV table and computes beside it, in pieces of two sizes. Both give the same rows, and every row is
// whole.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <span>
#include <string>

#include "rows/Calculation.h"
#include "rows/CsvReader.h"

namespace {

std::string computed(std::span<const char> table, std::size_t step) {
  using namespace nascor::rows;
  std::string out;
  CsvReader reader;
  std::optional<Calculation> calculation;
  try {
    for (std::size_t at = 0;;) {
      const auto next = reader.next();
      if (next == CsvReader::Next::end) return out;
      if (next == CsvReader::Next::more) {
        const auto piece = table.subspan(at, std::min(step, table.size() - at));
        at += piece.size();
        piece.empty() ? reader.finish() : reader.read(piece);
      } else if (!calculation) {
        calculation.emplace(reader.cells(), Choice{.standards = allStandards()}, std::nullopt, false);
        calculation->appendHeader(out);
      } else {
        const auto wrong = calculation->append(out, reader.cells());
        if (!out.ends_with('\n')) std::abort();
        if (wrong) out += english(*wrong);
      }
    }
  } catch (const CsvError& error) {
    return out + error.what() + std::to_string(error.line());
  } catch (const HeaderError& error) {
    return out + error.what();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const char> table(reinterpret_cast<const char*>(data), size);
  if (computed(table, 7) != computed(table, size + 1)) std::abort();
  return 0;
}
