// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Sentence.h"

#include <algorithm>

#include "foundation/Localizer.h"
#include "foundation/Utf8.h"

namespace nascor::foundation {

namespace {

/// Whether the language has the form for one with that count.
bool isOne(std::uint64_t count, const Localizer& localizer) {
  //: The counts that go with the form for one, with blanks between: "1" in English and German ("1 byte", "0 bytes"), "0 1" in
  //: French.
  std::string counts = localizer.text("Counting", "1");
  counts.insert(0, 1, ' ').push_back(' ');
  std::string wanted = std::to_string(count);
  wanted.insert(0, 1, ' ').push_back(' ');
  return counts.find(wanted) != std::string::npos;
}

}  // namespace

Sentence Sentence::ofSystem(std::string text) {
  Sentence sentence = verbatim(std::move(text));
  sentence.kind_ = Kind::system;
  return sentence;
}

Sentence Sentence::joined(std::vector<Sentence> parts, std::string_view between) {
  Sentence sentence = verbatim(std::string(between));
  sentence.kind_ = Kind::joined;
  sentence.take(std::move(parts));
  return sentence;
}

/// A place holder without an argument stands as it is, and arguments without a place holder are dropped: a translation
/// cannot do more harm than that.
std::string Sentence::filled(std::string_view text, const Localizer& localizer) const {
  const std::size_t count = parts_ ? parts_->size() : 0;
  std::string result;
  for (std::size_t from = 0;;) {
    const std::size_t sign = std::min(text.find('%', from), text.size());
    result += text.substr(from, sign - from);
    if (sign == text.size()) return result;
    const char digit = sign + 1 < text.size() ? text[sign + 1] : '\0';
    const std::size_t place = digit >= '1' && digit <= '9' ? static_cast<std::size_t>(digit - '1') : count;
    const bool isHolder = place < count;
    if (isHolder) {
      result += said((*parts_)[place], localizer);
    } else {
      result += '%';
    }
    from = sign + (isHolder ? 2 : 1);
  }
}

std::string said(const Sentence& sentence, const Localizer& localizer) {
  using enum Sentence::Kind;
  switch (sentence.kind_) {
    case key: return sentence.filled(localizer.text(sentence.table_, sentence.key_), localizer);
    case system: {
      const std::string own = localizer.text("Files", sentence.text_);
      return own == sentence.text_ ? localizer.text(kSystemTable, own) : own;
    }
    case counted: return said((*sentence.parts_)[isOne(sentence.count_, localizer) ? 0 : 1], localizer);
    case joined: {
      std::string all;
      for (const Sentence& part : *sentence.parts_)
        all.append(&part == &sentence.parts_->front() ? "" : sentence.text_).append(said(part, localizer));
      return all;
    }
    case verbatim: break;
  }
  return sentence.text_;
}

std::string saidAlone(const Sentence& sentence, const Localizer& localizer) {
  std::string text = said(sentence, localizer);
  if (text.empty()) return text;
  const std::size_t first = lengthOfBeginning(text, 1);
  std::string alone = localizer.upperCased(text.substr(0, first)) + text.substr(first);
  constexpr std::string_view kEnds = ".!?";
  if (kEnds.find(alone.back()) == std::string_view::npos) alone += '.';
  return alone;
}

std::string english(const Sentence& sentence) { return said(sentence, EnglishLocalizer()); }

Sentence sentenceOf(const std::exception& error) {
  const auto* spoken = dynamic_cast<const SpokenError*>(&error);
  return spoken ? spoken->sentence() : Sentence::verbatim(error.what());
}

}  // namespace nascor::foundation
