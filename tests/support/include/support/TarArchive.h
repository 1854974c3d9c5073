// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <archive.h>
#include <archive_entry.h>

namespace nascor::tests {

/// How an archive is written.
struct TarKind {
  const char* name;
  int (*format)(struct archive*);  ///< libarchive's function that sets it
  int (*filter)(struct archive*);
};

inline constexpr TarKind kTarKinds[] = {
    {"ustar", archive_write_set_format_ustar, archive_write_add_filter_none},
    {"pax", archive_write_set_format_pax, archive_write_add_filter_none},
    {"gnu", archive_write_set_format_gnutar, archive_write_add_filter_none},
    {"ustarGzip", archive_write_set_format_ustar, archive_write_add_filter_gzip},
    {"paxZstd", archive_write_set_format_pax, archive_write_add_filter_zstd},
    {"gnuGzip", archive_write_set_format_gnutar, archive_write_add_filter_gzip},
    {"gnuZstd", archive_write_set_format_gnutar, archive_write_add_filter_zstd},
};

/// Names and contents.
using TarMembers = std::vector<std::pair<std::string, std::string>>;

/// The bytes of an archive of these files, as libarchive writes it.
inline std::string tarOf(const TarMembers& members, const TarKind& kind) {
  std::string bytes;
  struct archive* writer = archive_write_new();
  const auto must = [&](int result) {
    if (result != ARCHIVE_OK) throw std::runtime_error(archive_error_string(writer));
  };
  must(kind.format(writer));
  must(kind.filter(writer));
  must(archive_write_set_bytes_in_last_block(writer, 1));
  must(archive_write_open(
      writer, &bytes, nullptr,
      [](struct archive*, void* to, const void* from, std::size_t size) {
        static_cast<std::string*>(to)->append(static_cast<const char*>(from), size);
        return static_cast<la_ssize_t>(size);
      },
      nullptr));
  for (const auto& [name, contents] : members) {
    struct archive_entry* entry = archive_entry_new();
    archive_entry_set_pathname(entry, name.c_str());
    archive_entry_set_size(entry, static_cast<la_int64_t>(contents.size()));
    archive_entry_set_filetype(entry, AE_IFREG);
    archive_entry_set_perm(entry, 0600);
    must(archive_write_header(writer, entry));
    archive_write_data(writer, contents.data(), contents.size());
    archive_entry_free(entry);
  }
  must(archive_write_close(writer));
  archive_write_free(writer);
  return bytes;
}

}  // namespace nascor::tests
