// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>

#include <CLI/CLI.hpp>

#include "synthetic_clinic/Clinic.h"
#include "synthetic_clinic/TarText.h"

namespace {

namespace clinic = nascor::clinic;

/// False when standard output takes no more.
bool sendOn(std::string& bytes) {
  const bool isSent = std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size();
  bytes.clear();
  return isSent;
}

int writeTar(const clinic::Clinic& patients, std::uint64_t first, std::uint64_t count) {
  constexpr std::size_t kEnough = std::size_t{1} << 18;
  std::string tar;
  for (std::uint64_t number = first; number < first + count; ++number) {
    const clinic::Document document = patients.document(number);
    clinic::appendTarMember(tar, document.name, document.bytes);
    if (tar.size() >= kEnough && !sendOn(tar)) return 1;
  }
  clinic::appendTarEnd(tar);
  return sendOn(tar) && std::fflush(stdout) == 0 ? 0 : 1;
}

int writeFolder(const clinic::Clinic& patients, std::uint64_t first, std::uint64_t count,
                const std::filesystem::path& folder) {
  for (std::uint64_t number = first; number < first + count; ++number) {
    const clinic::Document document = patients.document(number);
    const std::filesystem::path path = folder / document.name;
    if (number == first || number % 1000 == 0) std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(document.bytes.data()),
               static_cast<std::streamsize>(document.bytes.size()));
    file.close();
    if (!file) {
      std::fprintf(stderr, "%s: cannot be written\n", path.c_str());
      return 1;
    }
  }
  return 0;
}

int run(int argc, char** argv) {
  CLI::App app(
      "Writes documents of patients that do not exist. The same numbers and seed give the same bytes.");
  std::uint64_t count = 0;
  std::uint64_t first = 0;
  std::uint64_t seed = 1;
  std::string folder;
  app.add_option("COUNT", count, "how many documents")->required();
  app.add_option("--first", first, "the number of the first");
  app.add_option("--seed", seed, "which clinic");
  app.add_option("--out", folder, "a folder for them; without it a tar stream goes to standard output");
  CLI11_PARSE(app, argc, argv);
  const clinic::Clinic patients(seed);
  return folder.empty() ? writeTar(patients, first, count) : writeFolder(patients, first, count, folder);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "nascor-clinic: %s\n", error.what());
    return 1;
  }
}
