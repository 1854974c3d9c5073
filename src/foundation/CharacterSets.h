// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace nascor::foundation {

/// Letters of all scripts, with the marks that combine with them (Unicode general categories L and M).
bool isLetter(char32_t point);

/// Unicode general category P: quotes, brackets, dashes, stops; not the symbols + $ < = ~ ^ ` |.
bool isPunctuation(char32_t point);

/// `text`, valid UTF-8, without the characters at both ends that `isTrimmed` accepts.
std::string_view trimmed(std::string_view text, bool (*isTrimmed)(char32_t));

}  // namespace nascor::foundation
