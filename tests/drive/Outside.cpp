#include "drive/Outside.h"

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <system_error>

namespace nascor::drive {

std::optional<std::string> doOutside(const std::vector<std::string>& words) {
  const auto is = [&](const char* what, std::size_t count) {
    return words.size() == count && words.front() == what;
  };
  bool isDone = false;
  std::error_code error;
  if (is("copy", 3)) {
    isDone = std::filesystem::copy_file(words[1], words[2], std::filesystem::copy_options::overwrite_existing,
                                        error);
  } else if (is("append", 3)) {
    isDone = bool(std::ofstream(words[1], std::ios::app | std::ios::binary) << words[2] << std::flush);
  } else if (is("remove", 2)) {
    isDone = std::filesystem::remove(words[1], error);
  } else if (is("pipe", 2)) {
    isDone = ::mkfifo(words[1].c_str(), 0600) == 0;
  } else if (is("folder", 2)) {
    isDone = std::filesystem::create_directory(words[1], error);
  } else {
    return "expected copy, append, remove, pipe or folder and their files";
  }
  if (isDone) return std::nullopt;
  return "that cannot be done to \"" + words[1] + "\"";
}

}  // namespace nascor::drive
