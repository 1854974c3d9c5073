#include "cli_commands/Input.h"

#include <array>
#include <cerrno>
#include <span>
#include <system_error>
#include <variant>

#include <unistd.h>

#include "cli_commands/Numbers.h"
#include "posix/PosixFileStore.h"

namespace nascor::cli {

namespace {

constexpr std::string_view kStandardInput = "standard input";

/// Hands on standard input piece by piece, until `take` wants no more. False after a complaint.
bool readStandardInput(Console& console, const std::function<bool(std::span<const char>)>& take) {
  std::array<char, 65536> piece;
  for (;;) {
    // Whoever waits for an answer before writing the next line has it now.
    console.flush();
    const ssize_t count = ::read(STDIN_FILENO, piece.data(), piece.size());
    if (count == 0) return true;
    if (count > 0) {
      if (!take(std::span(piece).first(static_cast<std::size_t>(count)))) return true;
    } else if (errno != EINTR) {
      console.complain(kStandardInput, std::generic_category().message(errno));
      return false;
    }
  }
}

std::string_view withoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace

std::string nameOf(const std::string& path) { return path == "-" ? std::string(kStandardInput) : path; }

std::optional<std::vector<std::byte>> contentsOf(const std::string& path, Console& console) {
  if (path != "-") {
    auto contents = posix::PosixFileStore({}, posix::PosixFileStore::Pipes::areRead).contents(path);
    if (auto* bytes = std::get_if<std::vector<std::byte>>(&contents)) return std::move(*bytes);
    console.complain(path, std::get<foundation::FileError>(contents).reason);
    return std::nullopt;
  }
  // An endless input must end before the machine's memory does. No document comes near this.
  constexpr std::size_t kMost = std::size_t{1} << 30;
  std::vector<std::byte> bytes;
  const bool wasRead = readStandardInput(console, [&](std::span<const char> piece) {
    const auto more = std::as_bytes(piece);
    bytes.insert(bytes.end(), more.begin(), more.end());
    return bytes.size() <= kMost;
  });
  if (!wasRead) return std::nullopt;
  if (bytes.size() > kMost) {
    console.complain(kStandardInput, "longer than 1 GiB, which no document is");
    return std::nullopt;
  }
  return bytes;
}

void forEachNumberOfInput(Console& console, const std::function<void(std::optional<double>)>& take) {
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
      console.complain(kStandardInput, "line " + std::to_string(lineNumber) +
                                           ": expected a decimal number, but \"" +
                                           std::string(text.substr(0, kShown)) + "\" stands here");
    }
    take(number);
    line.clear();
  };

  readStandardInput(console, [&](std::span<const char> piece) {
    for (const char character : piece) {
      if (character == '\n') {
        endLine();
      } else if (line.size() < kLongestLine) {
        line += character;
      }
    }
    return true;
  });
  if (!line.empty()) endLine();
}

}  // namespace nascor::cli
