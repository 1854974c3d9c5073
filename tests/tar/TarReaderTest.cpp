// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "tar/TarReader.h"

#include <gmock/gmock.h>

#include "support/TarArchive.h"

namespace nascor::tar {
namespace {

using tests::TarMembers;

std::string textOf(const std::vector<std::byte>& bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// Bytes that no compression shortens to nothing.
std::string noise(std::size_t size, unsigned seed) {
  std::string bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>((seed = seed * 1664525U + 1013904223U) >> 24U);
  return bytes;
}

struct Read {
  TarMembers whole;
  TarMembers broken;  // name and sentence
  std::optional<std::string> complaint;
};

/// Reads `bytes`, which come in pieces of `piece`.
Read read(const std::string& bytes, std::size_t piece) {
  std::size_t at = 0;
  TarReader reader(
      [&]() -> std::variant<std::span<const char>, foundation::Sentence> {
        const std::size_t count = std::min(piece, bytes.size() - at);
        const auto span = std::span(bytes).subspan(at, count);
        at += count;
        return std::span<const char>(span);
      },
      ".nascor");
  Read result;
  while (auto member = reader.next()) {
    if (const auto* contents = std::get_if<std::vector<std::byte>>(&member->contents)) {
      result.whole.emplace_back(member->name, textOf(*contents));
    } else {
      result.broken.emplace_back(member->name, english(std::get<foundation::Sentence>(member->contents)));
    }
  }
  if (reader.complaint()) result.complaint = english(*reader.complaint());
  return result;
}

class Archives : public testing::TestWithParam<tests::TarKind> {};

TEST_P(Archives, giveTheirFilesByTheirWholeNames) {
  // Up to 100 bytes fit into the head of a member; a longer path may be split once at a slash in the oldest format.
  TarMembers files{{"a.nascor", noise(700, 1)},
                   {std::string(60, 'f') + "/" + std::string(80, 'n') + ".nascor", noise(1024, 2)},
                   {"empty.nascor", ""}};
  if (!std::string_view(GetParam().name).starts_with("ustar")) {
    files.emplace_back(std::string(180, 'g') + "/" + std::string(190, 'm') + ".nascor", noise(513, 3));
  }
  const std::string bytes = tests::tarOf(files, GetParam());
  for (const std::size_t piece : {std::size_t{1}, std::size_t{511}, bytes.size()}) {
    const Read result = read(bytes, piece);
    EXPECT_EQ(result.whole, files) << piece;
    EXPECT_THAT(result.broken, testing::IsEmpty()) << piece;
    EXPECT_EQ(result.complaint, std::nullopt) << piece;
  }
}

TEST_P(Archives, cutAnywhereGiveWholeFilesAndAComplaint) {
  const TarMembers files{{"a.nascor", noise(300, 1)},
                         {std::string(120, 'f') + "/b.nascor", noise(600, 2)},
                         {"c.nascor", noise(100, 3)}};
  const std::string bytes = tests::tarOf(files, GetParam());
  ASSERT_EQ(read(bytes, 4096).complaint, std::nullopt);
  std::size_t complete = 0;
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    const Read result = read(bytes.substr(0, length), 4096);
    ASSERT_TRUE(result.complaint.has_value()) << length << " of " << bytes.size();
    EXPECT_FALSE(result.complaint->empty()) << length;
    ASSERT_LE(result.whole.size(), files.size()) << length;
    for (std::size_t i = 0; i < result.whole.size(); ++i) ASSERT_EQ(result.whole[i], files[i]) << length;
    ASSERT_LE(result.broken.size(), 1U) << length;
    complete = std::max(complete, result.whole.size());
  }
  // Of a small compressed archive nothing comes before its end is looked at.
  const bool isPlain = GetParam().filter == archive_write_add_filter_none;
  EXPECT_EQ(complete, isPlain ? files.size() : 0U) << "between the last file and the end mark all are there";
}

TEST_P(Archives, cutBehindTheirHalfStillGiveTheirFirstFiles) {
  TarMembers files;
  for (unsigned i = 0; i < 6; ++i) files.emplace_back(std::to_string(i) + ".nascor", noise(300'000, i));
  const std::string bytes = tests::tarOf(files, GetParam());
  const Read result = read(bytes.substr(0, bytes.size() * 3 / 5), 4096);
  EXPECT_TRUE(result.complaint.has_value());
  EXPECT_GE(result.whole.size(), 2U);
  for (std::size_t i = 0; i < result.whole.size(); ++i) EXPECT_EQ(result.whole[i], files.at(i));
}

INSTANTIATE_TEST_SUITE_P(, Archives, testing::ValuesIn(tests::kTarKinds),
                         [](const auto& kind) { return std::string(kind.param.name); });

}  // namespace
}  // namespace nascor::tar
