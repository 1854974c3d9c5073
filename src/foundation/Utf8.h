#pragma once

#include <string>
#include <string_view>

namespace nascor::foundation {

/// Whether `bytes` are well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF. NUL is a
/// character like any other.
bool isValidUtf8(std::string_view bytes);

/// `text` with its control characters made visible (`\n`, `\x1b`, `\u202e`) and bytes that are no UTF-8 replaced, so that
/// a name from outside stays on one line, gives a terminal no orders, and neither mirrors nor reorders what stands beside
/// it. Whatever is drawn or shown outside its own field goes through here; what is stored does not.
std::string oneLine(std::string_view text);

/// Takes the last character off `text`, valid UTF-8: what a reader counts as one, so a base with its combining diacritics,
/// variation selectors and modifiers, a sequence of joined signs, a flag. An empty text stays empty.
void removeLastCharacter(std::string& text);

}  // namespace nascor::foundation
