// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "tar/TarReader.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <exception>
#include <new>
#include <utility>

#include <archive.h>
#include <archive_entry.h>

namespace nascor::tar {

using foundation::Sentence;

namespace {

using Archive = std::unique_ptr<struct archive, int (*)(struct archive*)>;

constexpr std::int64_t kBlock = 512;
// Two blocks of zeros.
constexpr std::int64_t kEndMark = 2 * kBlock;

/// No document comes near this.
constexpr std::size_t kLongestMember = std::size_t{1} << 28;

/// In the words of the library.
Sentence errorOf(struct archive* archive) {
  const char* text = ::archive_error_string(archive);
  return text ? Sentence::verbatim(text) : Sentence("Reading", "cannot be read");
}

}  // namespace

/// The archive without its compression, and the reader of its members above it. The two are apart because only who counts
/// the bytes between them can tell an end mark from a stream that was cut off where a member ends.
class TarReader::Stream {
 public:
  explicit Stream(Source source)
      : source_(std::move(source)),
        bytes_(::archive_read_new(), ::archive_read_free),
        members_(::archive_read_new(), ::archive_read_free) {
    if (!bytes_ || !members_) throw std::bad_alloc();
    ::archive_read_support_filter_gzip(bytes_.get());
    ::archive_read_support_filter_zstd(bytes_.get());
    ::archive_read_support_format_raw(bytes_.get());
    ::archive_read_support_format_empty(bytes_.get());
    ::archive_read_support_format_tar(members_.get());
  }

  bool open() {
    if (::archive_read_open(bytes_.get(), this, nullptr, readSource, nullptr) != ARCHIVE_OK) return failed();
    const int first = ::archive_read_next_header(bytes_.get(), &entry_);
    if (first != ARCHIVE_OK && first != ARCHIVE_EOF) return failed();
    isEmpty_ = first == ARCHIVE_EOF;
    return ::archive_read_open(members_.get(), this, nullptr, readBytes, nullptr) == ARCHIVE_OK;
  }

  struct archive* members() const {
    return members_.get();
  }

  /// Reads what stands behind the last member to the end of the stream. False when it cannot be read.
  bool drain() {
    const void* ignored = nullptr;
    ssize_t count = 0;
    while ((count = take(&ignored)) > 0) continue;
    return count == 0;
  }

  /// Bytes of the archive so far, without compression.
  std::int64_t count() const { return count_; }

  /// Why the bytes themselves cannot be read; nothing where they can.
  const std::optional<Sentence>& sentence() const { return sentence_; }

  /// Throws what the source threw: the library between us knows no exceptions.
  void rethrow() {
    if (thrown_) std::rethrow_exception(std::exchange(thrown_, nullptr));
  }

 private:
  static ssize_t readSource(struct archive*, void* self, const void** bytes) {
    return static_cast<Stream*>(self)->takeSource(bytes);
  }
  static ssize_t readBytes(struct archive* members, void* self, const void** bytes) {
    const ssize_t count = static_cast<Stream*>(self)->take(bytes);
    if (count < 0) ::archive_set_error(members, EIO, "cannot be read");
    return count;
  }

  ssize_t takeSource(const void** bytes) {
    try {
      const auto piece = source_();
      if (const auto* sentence = std::get_if<Sentence>(&piece)) {
        sentence_ = *sentence;
        ::archive_set_error(bytes_.get(), EIO, "cannot be read");
        return -1;
      }
      *bytes = std::get<0>(piece).data();
      return static_cast<ssize_t>(std::get<0>(piece).size());
    } catch (...) {
      thrown_ = std::current_exception();
      ::archive_set_error(bytes_.get(), EIO, "cannot be read");
      return -1;
    }
  }

  ssize_t take(const void** bytes) {
    if (isEmpty_) return 0;
    std::size_t size = 0;
    std::int64_t offset = 0;
    // An empty block is not the end.
    int result = ARCHIVE_OK;
    while (result == ARCHIVE_OK && size == 0) {
      result = ::archive_read_data_block(bytes_.get(), bytes, &size, &offset);
    }
    if (result == ARCHIVE_EOF) {
      isEmpty_ = true;
      return 0;
    }
    if (result != ARCHIVE_OK) {
      failed();
      return -1;
    }
    count_ += static_cast<std::int64_t>(size);
    return static_cast<ssize_t>(size);
  }

  bool failed() {
    if (!sentence_) sentence_ = errorOf(bytes_.get());
    return false;
  }

  Source source_;
  Archive bytes_;
  Archive members_;
  struct archive_entry* entry_ = nullptr;
  std::int64_t count_ = 0;
  bool isEmpty_ = false;
  std::optional<Sentence> sentence_;
  std::exception_ptr thrown_;
};

TarReader::TarReader(Source source, std::string suffix)
    : stream_(std::make_unique<Stream>(std::move(source))), suffix_(std::move(suffix)) {
  if (stream_->open()) return;
  isAtEnd_ = true;
  complaint_ = sentence();
}

TarReader::~TarReader() = default;

Sentence TarReader::sentence() const { return stream_->sentence().value_or(errorOf(stream_->members())); }

std::optional<Member> TarReader::next() {
  while (!isAtEnd_) {
    struct archive_entry* entry = nullptr;
    const int result = ::archive_read_next_header(stream_->members(), &entry);
    stream_->rethrow();
    if (result == ARCHIVE_EOF) {
      end();
      break;
    }
    if (result == ARCHIVE_RETRY) continue;
    if (result != ARCHIVE_OK && result != ARCHIVE_WARN) {
      isAtEnd_ = true;
      complaint_ = sentence();
      break;
    }
    const char* name = ::archive_entry_pathname(entry);
    if (name == nullptr) name = ::archive_entry_pathname_utf8(entry);
    if (name == nullptr || !std::string_view(name).ends_with(suffix_)) continue;
    if (::archive_entry_filetype(entry) != AE_IFREG || ::archive_entry_hardlink(entry) != nullptr) continue;
    Member member{.name = name, .contents = {}};
    member.contents = contents();
    return member;
  }
  stream_->rethrow();
  return std::nullopt;
}

std::variant<std::vector<std::byte>, Sentence> TarReader::contents() {
  std::vector<std::byte> bytes;
  for (;;) {
    const void* piece = nullptr;
    std::size_t size = 0;
    std::int64_t offset = 0;
    const int result = ::archive_read_data_block(stream_->members(), &piece, &size, &offset);
    stream_->rethrow();
    if (result == ARCHIVE_EOF) return bytes;
    if (result != ARCHIVE_OK && result != ARCHIVE_WARN) {
      isAtEnd_ = true;
      complaint_ = sentence();
      return *complaint_;
    }
    // A file with holes has bytes of zero between its blocks.
    const auto begin = static_cast<std::uint64_t>(std::max<std::int64_t>(offset, 0));
    if (begin > kLongestMember || size > kLongestMember - begin) {
      return Sentence("Reading", "longer than 256 MiB, which no document is");
    }
    bytes.resize(std::max(bytes.size(), static_cast<std::size_t>(begin) + size));
    const auto* from = static_cast<const std::byte*>(piece);
    std::copy(from, from + size, bytes.begin() + static_cast<std::ptrdiff_t>(begin));
  }
}

void TarReader::end() {
  isAtEnd_ = true;
  const std::int64_t lastMemberEnd = ::archive_read_header_position(stream_->members());
  const bool isRead = stream_->drain();
  stream_->rethrow();
  if (!isRead) {
    complaint_ = stream_->sentence();
  } else if (stream_->count() < lastMemberEnd + kEndMark) {
    complaint_ = Sentence("Reading", "the tar archive ends before its end mark");
  }
}

}  // namespace nascor::tar
