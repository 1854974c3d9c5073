// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "archive/FormatError.h"

namespace nascor::archive {

FormatError::FormatError(std::size_t offset, const Sentence& sentence)
    : SpokenError(Sentence("Reading", "at byte %1: %2").with(offset, sentence)), offset_(offset) {}

void refuse(std::size_t offset, const Sentence& wanted, const Sentence& instead) {
  //: %1 is what was expected, such as "an object", %2 a clause such as "the file ends here".
  throw FormatError(offset, Sentence("Reading", "expected %1, but %2").with(wanted, instead));
}

void refuse(std::size_t offset, std::string_view wanted, const Sentence& instead) {
  refuse(offset, wordsOf(wanted), instead);
}

void refuseFound(std::size_t offset, std::string_view wanted, const Sentence& found) {
  refuse(offset, wordsOf(wanted), standsHere(found));
}

Sentence wordsOf(std::string_view key) { return {"Reading", key}; }

Sentence standsHere(const Sentence& found) { return Sentence("Reading", "%1 stands here").with(found); }

Sentence countedBytes(std::uint64_t number) {
  return Sentence::counted(number, Sentence("Reading", "%1 byte").with(number),
                           Sentence("Reading", "%1 bytes").with(number));
}

Sentence fileEndsHere() { return Sentence("Reading", "the file ends here"); }

}  // namespace nascor::archive
