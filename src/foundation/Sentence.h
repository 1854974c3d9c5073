// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nascor::foundation {

class Localizer;

/// A sentence, or a part of one. Rooms that know no `Localizer` answer and throw sentences; the edge of the program says them
/// in the language of the user.
///
/// The English text is the key. Its place holders are %1 to %9, and a translation may change their order:
///
///     Sentence("Reading", "expected %1, but %2 stands here").with(wanted, found)
///
/// A module that is loaded at run time makes sentences with this header alone: what says them is in the program. Their keys
/// lie in the module, which stays as long as the program.
class Sentence {
 public:
  /// Says nothing.
  Sentence() = default;
  /// The text `key` of `table`. Both are literals in this very call, where the tables of texts are gathered from.
  Sentence(std::string_view table, std::string_view key) : kind_(Kind::key), table_(table), key_(key) {}

  /// With texts, whole numbers or other sentences in place of %1, %2, ...
  template <class... Arguments>
  Sentence with(Arguments&&... arguments) const {
    std::vector<Sentence> parts;
    parts.reserve(sizeof...(arguments));
    (parts.push_back(part(std::forward<Arguments>(arguments))), ...);
    Sentence whole = *this;
    whole.take(std::move(parts));
    return whole;
  }

  /// The same in every language: a name, a number, or what a library says.
  static Sentence verbatim(std::string text) {
    Sentence sentence;
    sentence.text_ = std::move(text);
    return sentence;
  }
  /// What the operating system says of an error, in English, which has translations of its own; or, in place of it, a key of
  /// the table "Files".
  static Sentence ofSystem(std::string text);
  /// `one` or `many`, as the language has it for that count.
  static Sentence counted(std::uint64_t count, Sentence one, Sentence many) {
    Sentence sentence;
    sentence.kind_ = Kind::counted;
    sentence.count_ = count;
    std::vector<Sentence> parts;
    parts.reserve(2);
    parts.push_back(std::move(one));
    parts.push_back(std::move(many));
    sentence.take(std::move(parts));
    return sentence;
  }
  /// All of them, with `between` between.
  static Sentence joined(std::vector<Sentence> parts, std::string_view between);

  bool isEmpty() const { return kind_ == Kind::verbatim && text_.empty(); }

 private:
  enum class Kind { verbatim, key, system, counted, joined };

  static Sentence part(Sentence sentence) { return sentence; }
  static Sentence part(std::string text) { return verbatim(std::move(text)); }
  static Sentence part(std::string_view text) { return verbatim(std::string(text)); }
  static Sentence part(const char* text) { return verbatim(text); }
  static Sentence part(std::integral auto number) { return verbatim(std::to_string(number)); }

  friend std::string said(const Sentence& sentence, const Localizer& localizer);
  std::string filled(std::string_view text, const Localizer& localizer) const;
  void take(std::vector<Sentence> parts) {
    parts_ = std::make_shared<const std::vector<Sentence>>(std::move(parts));
  }

  Kind kind_ = Kind::verbatim;
  std::string_view table_{};
  std::string_view key_{};
  std::string text_{};
  std::uint64_t count_ = 0;
  std::shared_ptr<const std::vector<Sentence>> parts_{};  ///< null for none; copies share them
};

/// The sentence in the user's language; what a table does not have is English.
std::string said(const Sentence& sentence, const Localizer& localizer);
/// The same where it stands alone: with a capital letter at its beginning and a full stop at its end.
std::string saidAlone(const Sentence& sentence, const Localizer& localizer);
/// The English sentence.
std::string english(const Sentence& sentence);

/// The table of what the operating system says, which is in its own catalogue.
inline constexpr std::string_view kSystemTable = "system";

/// An error that people are told of. `what()` is the English sentence.
class SpokenError : public std::runtime_error {
 public:
  explicit SpokenError(Sentence sentence)
      : std::runtime_error(english(sentence)), sentence_(std::make_shared<Sentence>(std::move(sentence))) {}

  const Sentence& sentence() const { return *sentence_; }

 private:
  std::shared_ptr<const Sentence> sentence_;  // an error is copied without a throw
};

/// What an error says: its sentence, where it has one.
Sentence sentenceOf(const std::exception& error);

}  // namespace nascor::foundation
