// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/Input.h"

#include <cerrno>
#include <span>
#include <system_error>
#include <variant>

#include <fcntl.h>
#include <unistd.h>

#include "cli_commands/Numbers.h"
#include "posix/PosixFileStore.h"

namespace nascor::cli {

namespace {

/// Hands on standard input piece by piece, until `use` wants no more. Why it cannot be read, if so.
std::optional<Sentence> readStandardInput(Console& console,
                                          const std::function<bool(std::span<const char>)>& use) {
  InputStream input(console, "-");
  for (;;) {
    const auto piece = input.next();
    if (const auto* error = std::get_if<Sentence>(&piece)) return *error;
    const auto bytes = std::get<0>(piece);
    if (bytes.empty() || !use(bytes)) return std::nullopt;
  }
}

std::string_view withoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace

InputStream::InputStream(Console& console, const std::string& path)
    : console_(console),
      descriptor_(path == "-" ? STDIN_FILENO : ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY)),
      error_(Sentence::ofSystem(descriptor_ < 0 ? std::generic_category().message(errno) : "")),
      piece_(std::size_t{1} << 16) {}

InputStream::~InputStream() {
  if (descriptor_ > STDIN_FILENO) ::close(descriptor_);
}

std::variant<std::span<const char>, Sentence> InputStream::next() {
  if (descriptor_ < 0) return error_;
  console_.flush();
  for (;;) {
    const ssize_t count = ::read(descriptor_, piece_.data(), piece_.size());
    if (count >= 0) return std::span<const char>(piece_.data(), static_cast<std::size_t>(count));
    if (errno != EINTR) return Sentence::ofSystem(std::generic_category().message(errno));
  }
}

std::variant<std::vector<std::byte>, Sentence> standardInput(Console& console) {
  // An endless input must end before the machine's memory does. No document comes near this.
  constexpr std::size_t kMost = std::size_t{1} << 30;
  std::vector<std::byte> bytes;
  auto error = readStandardInput(console, [&](std::span<const char> piece) {
    const auto more = std::as_bytes(piece);
    bytes.insert(bytes.end(), more.begin(), more.end());
    return bytes.size() <= kMost;
  });
  if (error) return std::move(*error);
  if (bytes.size() > kMost) return Sentence("CommandLine", "longer than 1 GiB, which no document is");
  return bytes;
}

Sentence reasonOf(const foundation::FileError& error) { return Sentence::ofSystem(error.reason); }

std::string nameOf(const std::string& path) { return path == "-" ? std::string(kStandardInput) : path; }

std::optional<std::vector<std::byte>> contentsOf(const std::string& path, Console& console) {
  if (path != "-") {
    auto contents = posix::PosixFileStore({}, posix::PosixFileStore::Pipes::areRead).contents(path);
    if (auto* bytes = std::get_if<std::vector<std::byte>>(&contents)) return std::move(*bytes);
    console.complain(path, reasonOf(std::get<foundation::FileError>(contents)));
    return std::nullopt;
  }
  auto contents = standardInput(console);
  if (auto* bytes = std::get_if<std::vector<std::byte>>(&contents)) return std::move(*bytes);
  console.complain(kStandardInput, std::get<Sentence>(contents));
  return std::nullopt;
}

void forEachNumberOfInput(Console& console, const std::function<void(std::optional<double>)>& use) {
  // Longer than any number that is worth writing; what is longer is not kept.
  constexpr std::size_t kLongestLine = 4096;
  constexpr std::size_t kShown = 40;
  std::size_t lineNumber = 0;
  std::string line;
  const auto endLine = [&] {
    ++lineNumber;
    const std::string_view text = withoutBlanks(line);
    const auto number = line.size() < kLongestLine ? numberFromText(text) : std::nullopt;
    if (!number) {
      console.complain(kStandardInput,
                       Sentence("CommandLine", "line %1: expected a decimal number, but \"%2\" stands here")
                           .with(lineNumber, text.substr(0, kShown)));
    }
    use(number);
    line.clear();
  };

  const auto error = readStandardInput(console, [&](std::span<const char> piece) {
    for (const char character : piece) {
      if (character == '\n') {
        endLine();
      } else if (line.size() < kLongestLine) {
        line += character;
      }
    }
    return true;
  });
  if (error) console.complain(kStandardInput, *error);
  if (!line.empty()) endLine();
}

}  // namespace nascor::cli
