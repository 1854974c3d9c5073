// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/PercentEscapes.h"

namespace nascor::foundation {

std::string withPercentEscapes(std::string_view path) {
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~!$&'()*+,;=:@/";
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string escaped;
  for (const char each : path) {
    if (kPlain.find(each) != std::string_view::npos) {
      escaped += each;
      continue;
    }
    const auto byte = static_cast<unsigned char>(each);
    escaped += '%';
    escaped += kDigits[byte / 16U];
    escaped += kDigits[byte % 16U];
  }
  return escaped;
}

}  // namespace nascor::foundation
