// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "foundation/Sentence.h"

namespace nascor::tar {

/// A file within an archive.
struct Member {
  std::string name;  ///< bytes, as the archive has them
  /// All of its bytes, or why they cannot be had: a sentence without the name.
  std::variant<std::vector<std::byte>, foundation::Sentence> contents;
};

/// Reads a tar archive (ustar, pax, GNU) from a stream, member after member, compressed with gzip or zstd or not at all.
/// Holds one member at a time.
class TarReader {
 public:
  /// The next bytes of the archive, valid until the next call; none at its end; a sentence says why they cannot be read.
  /// What it throws comes out of `next`.
  using Source = std::function<std::variant<std::span<const char>, foundation::Sentence>()>;

  /// Members are those whose names end with `suffix`.
  TarReader(Source source, std::string suffix);
  ~TarReader();
  TarReader(const TarReader&) = delete;
  TarReader& operator=(const TarReader&) = delete;

  /// The next regular file; what else there is (folders, links, devices, files of other names) is passed over. Nothing at
  /// the end. A member that the archive does not hold whole is the last one.
  std::optional<Member> next();

  /// After the end: why the archive is not whole, in a sentence; nothing where it is. One that ends before its end mark is
  /// not whole, whether within a member or between two.
  const std::optional<foundation::Sentence>& complaint() const { return complaint_; }

 private:
  class Stream;

  std::variant<std::vector<std::byte>, foundation::Sentence> contents();
  void end();
  foundation::Sentence sentence() const;

  std::unique_ptr<Stream> stream_;
  std::string suffix_;
  std::optional<foundation::Sentence> complaint_;
  bool isAtEnd_ = false;
};

}  // namespace nascor::tar
