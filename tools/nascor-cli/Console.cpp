#include "cli_commands/Console.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <unistd.h>

#include "foundation/Utf8.h"

namespace nascor::cli {

namespace {

/// 0, or the number of the system's error.
int writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (written == 0) {
      return ENOSPC;
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

void writeOutput(std::string_view bytes) {
  const int error = writeAll(STDOUT_FILENO, bytes);
  if (error != 0) throw OutputError(std::generic_category().message(error), error == EPIPE);
}

/// Bytes of the UTF-8 character at the start of `text`, 0 when there is none.
std::size_t characterLength(std::string_view text) {
  for (std::size_t length = 1; length <= 4 && length <= text.size(); ++length) {
    if (foundation::isValidUtf8(text.substr(0, length))) return length;
  }
  return 0;
}

}  // namespace

std::string oneLine(std::string_view text) {
  constexpr std::string_view kHexDigits = "0123456789abcdef";
  std::string line;
  while (!text.empty()) {
    const std::size_t length = characterLength(text);
    const auto byte = static_cast<unsigned char>(text.front());
    // U+0080 to U+009F are control characters too; in UTF-8 they begin with C2.
    const bool isC1 = length == 2 && byte == 0xC2 && static_cast<unsigned char>(text[1]) < 0xA0;
    if (length == 0) {
      line += "\xEF\xBF\xBD";
    } else if (byte == '\n') {
      line += "\\n";
    } else if (byte == '\t') {
      line += "\\t";
    } else if (byte < 0x20 || byte == 0x7F || isC1) {
      const auto code = isC1 ? static_cast<unsigned char>(text[1]) : byte;
      line += "\\x";
      line += kHexDigits[code >> 4U];
      line += kHexDigits[code & 15U];
    } else {
      line += text.substr(0, length);
    }
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return line;
}

Console::Console() : outputIsTerminal_(::isatty(STDOUT_FILENO) == 1) {}

void Console::lineDone() {
  out_ += '\n';
  outputIsTerminal_ ? flush() : partDone();
}

void Console::partDone() {
  constexpr std::size_t kEnough = std::size_t{1} << 16;
  if (out_.size() >= kEnough) flush();
}

void Console::flush() {
  // Emptied first: what could not be written is not tried again.
  const std::string text = std::exchange(out_, {});
  writeOutput(text);
}

void Console::writeBytes(std::span<const std::byte> bytes) {
  flush();
  writeOutput({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

void Console::complain(std::string_view source, std::string_view sentence) {
  allWell_ = false;
  warn(source, sentence);
}

void Console::warn(std::string_view source, std::string_view sentence) {
  // In the order of events, where both go to the same place.
  flush();
  tell(oneLine(source) + ": " + oneLine(sentence) + "\n");
}

void Console::tell(std::string_view text) { writeAll(STDERR_FILENO, text); }

}  // namespace nascor::cli
