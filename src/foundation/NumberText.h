// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace nascor::foundation {

/// The shortest decimal text that reads back to the same double; `nan`, `inf` and `-inf` for the rest.
/// For programs: JSON, CSV, the command line. No locale.
std::string shortestText(double value);
/// The shortest that reads back to the same single-precision number.
std::string shortestSingleText(float value);

/// What C's "%.*f" gives in the C locale: the exact value rounded to `decimals` places (0 to 9), ties
/// to even; a NaN is `nan` whatever its sign bit. For the report and logs. No locale.
std::string fixedText(double value, int decimals);

/// The most characters that `fixedText` has: a sign, the digits of the greatest double, a point, and the decimals.
inline constexpr std::size_t kLongestFixedText = 1 + 309 + 1 + 9;

/// Writes the same to `at`, where there is room for `kLongestFixedText`; what stands behind it there is undefined. The end of
/// the text.
char* writeFixedText(char* at, double value, int decimals);

/// What a number field shows: the exact decimal value rounded half away from zero to `decimals` places
/// (25.25 is 25.3 where `fixedText` gives 25.2), with `decimalSign` as its point. A value that rounds to
/// zero shows no minus sign. Empty when the value is not finite.
std::string fieldText(double value, int decimals, char decimalSign);

/// Reads a number field: blanks around, one sign, digits, one decimal point or comma. An empty or
/// blank text is 0. Nothing for any other text (exponents, `inf`, `nan`, units, two signs) and for a
/// number beyond the greatest double. A minus before zero is dropped.
std::optional<double> numberFromFieldText(std::string_view text);

/// The same for a field of whole numbers: no point or comma. Saturates at the 64-bit limits.
std::optional<std::int64_t> integerFromFieldText(std::string_view text);

}  // namespace nascor::foundation
