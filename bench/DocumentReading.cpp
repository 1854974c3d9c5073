// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What `nascor-cli rows FOLDER` spends on its documents before there is a row, beside the least that it can be:
//
//   bench-reading FOLDER ROUNDS
//
// FOLDER is what `nascor-clinic COUNT --out FOLDER` writes. In each round all of these read it once, by turns; the figures are
// medians of the processor time, which other programs disturb less than the clock.
//
//   plain read    the names as the system has them, openat, read and close for each, one buffer for all
//   with fstat    the same, and a look at each open file, without which a device in a document's place would be read
//   read          the program's own way: names in their order, the bytes of each document in memory of its own
//   flat decode   plain read of the same patients as flat bytes, each number as the processor has it, to the same records
//   decode        the program's own way to the records
//
// The flat bytes lie in FOLDER.flat, written when that is missing.

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "cli_commands/DocumentSource.h"
#include "cli_commands/Documents.h"

namespace {

using namespace nascor;

// Patients as flat bytes

void put(std::string& out, double number) {
  out.append(reinterpret_cast<const char*>(&number), sizeof number);
}
void put(std::string& out, std::int64_t number) {
  out.append(reinterpret_cast<const char*>(&number), sizeof number);
}
void put(std::string& out, const std::optional<std::string>& text) {
  put(out, text ? static_cast<std::int64_t>(text->size()) : -1);
  if (text) out += *text;
}
void put(std::string& out, const std::optional<foundation::Date>& date) {
  put(out, std::int64_t{date.has_value()});
  put(out, date ? date->secondsSince2001 : 0.0);
}

std::string flatBytes(const model::PatientRecord& patient) {
  std::string out;
  put(out, patient.maternalIDString());
  put(out, patient.edd());
  for (const std::int64_t number : {patient.standard(), patient.fetalWeightStandard(), patient.crlStandard(),
                                    patient.numberOfFetuses(), patient.gravida()})
    put(out, number);
  put(out, patient.extrapolatedGestation());
  put(out, static_cast<std::int64_t>(patient.ncRecordsArray().size()));
  for (const auto& examination : patient.ncRecordsArray()) {
    put(out, examination->note());
    put(out, examination->examDate());
    put(out, static_cast<std::int64_t>(examination->measurements().size()));
    for (const auto& measured : examination->measurements()) {
      for (const double length : {measured.bpd(), measured.hc(), measured.ac(), measured.fl()})
        put(out, length);
    }
  }
  return out;
}

/// Takes values off bytes that are known to be whole.
class FlatReader {
 public:
  explicit FlatReader(const char* at) : at_(at) {}

  template <class Number>
  Number number() {
    Number value;
    std::memcpy(&value, at_, sizeof value);
    at_ += sizeof value;
    return value;
  }
  std::optional<std::string> text() {
    const auto size = number<std::int64_t>();
    if (size < 0) return std::nullopt;
    std::string text(at_, static_cast<std::size_t>(size));
    at_ += size;
    return text;
  }
  std::optional<foundation::Date> date() {
    const bool isThere = number<std::int64_t>() != 0;
    const double seconds = number<double>();
    return isThere ? std::optional(foundation::Date{seconds}) : std::nullopt;
  }
  calc::Biometry lengths() {
    const auto bpd = number<double>();
    const auto hc = number<double>();
    const auto ac = number<double>();
    return {.bpd = bpd, .hc = hc, .ac = ac, .fl = number<double>()};
  }

 private:
  const char* at_;
};

std::unique_ptr<model::PatientRecord> patientOfFlatBytes(const char* bytes) {
  FlatReader reader(bytes);
  auto patient = std::make_unique<model::PatientRecord>();
  patient->setMaternalIDString(reader.text());
  patient->setEDD(reader.date());
  patient->setStandard(reader.number<std::int64_t>());
  patient->setFetalWeightStandard(reader.number<std::int64_t>());
  patient->setCRLStandard(reader.number<std::int64_t>());
  patient->setNumberOfFetuses(reader.number<std::int64_t>());
  patient->setGravida(reader.number<std::int64_t>());
  patient->setExtrapolatedGestation(reader.number<double>());
  const auto count = static_cast<std::size_t>(reader.number<std::int64_t>());
  patient->ncRecordsArray().reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    auto examination = std::make_unique<model::NCRecord>();
    examination->setNote(reader.text());
    examination->setExamDate(reader.date());
    const auto fetuses = static_cast<std::size_t>(reader.number<std::int64_t>());
    examination->measurements().reserve(fetuses);
    for (std::size_t fetus = 0; fetus < fetuses; ++fetus)
      examination->measurements().emplace_back(reader.lengths());
    patient->ncRecordsArray().push_back(std::move(examination));
  }
  return patient;
}

/// What is read, so that no reading can be left out.
struct Sum {
  std::size_t documents = 0;
  std::size_t bytes = 0;
  std::size_t examinations = 0;
  void add(const model::PatientRecord& patient) { examinations += patient.ncRecordsArray().size(); }
};

/// Reads the documents of a folder and of those in it.
class PlainLoop {
 public:
  enum class Kind { bytes, bytesAndStatus, records };
  explicit PlainLoop(Kind kind) : kind_(kind) {}

  Sum run(const std::string& folder) {
    enter(AT_FDCWD, folder.c_str());
    return sum_;
  }

 private:
  void enter(int parent, const char* name) {
    const int descriptor = ::openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::fdopendir(descriptor), ::closedir);
    if (!folder) return;
    while (const dirent* entry = ::readdir(folder.get())) {
      if (entry->d_name[0] == '.') continue;
      entry->d_type == DT_DIR ? enter(descriptor, entry->d_name) : read(descriptor, entry->d_name);
    }
  }
  void read(int folder, const char* name) {
    const int file = ::openat(folder, name, O_RDONLY | O_CLOEXEC);
    struct stat status {};
    if (kind_ == Kind::bytesAndStatus && (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode))) return;
    const ssize_t count = ::read(file, buffer_.data(), buffer_.size());
    ::close(file);
    ++sum_.documents;
    if (count <= 0) return;
    sum_.bytes += static_cast<std::size_t>(count);
    if (kind_ == Kind::records) sum_.add(*patientOfFlatBytes(buffer_.data()));
  }

  Kind kind_;
  Sum sum_;
  std::vector<char> buffer_ = std::vector<char>(std::size_t{1} << 18);
};

/// Reads them as the program does.
Sum readByProgram(const std::string& folder, bool isDecoded) {
  const foundation::EnglishLocalizer english;
  cli::Console console(english);
  const auto source = cli::namedDocuments(console, {.paths = {folder}, .listPath = {}});
  Sum sum;
  while (auto pending = source->next()) {
    ++sum.documents;
    const auto contents = cli::contentsOf(std::move(*pending));
    const auto* bytes = std::get_if<std::vector<std::byte>>(&contents);
    if (bytes == nullptr) continue;
    sum.bytes += bytes->size();
    if (!isDecoded) continue;
    const auto document = cli::documentFrom(*bytes);
    if (const auto* read = std::get_if<model::UnarchivedPatient>(&document)) sum.add(*read->patient);
  }
  return sum;
}

void writeFlat(const std::string& from, const std::string& to) {
  const foundation::EnglishLocalizer english;
  cli::Console console(english);
  const auto source = cli::namedDocuments(console, {.paths = {from}, .listPath = {}});
  while (auto pending = source->next()) {
    const std::filesystem::path path = to + pending->name.substr(from.size());
    std::filesystem::create_directories(path.parent_path());
    const auto contents = cli::contentsOf(std::move(*pending));
    std::ofstream file(path, std::ios::binary);
    const auto document = cli::documentFrom(std::get<0>(contents));
    if (const auto* read = std::get_if<model::UnarchivedPatient>(&document))
      file << flatBytes(*read->patient);
  }
}

double processorSeconds() {
  timespec time{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

struct Work {
  const char* name;
  std::function<Sum()> run;
  std::vector<double> seconds{};
  Sum sum{};
  double median() {
    std::ranges::sort(seconds);
    return seconds[seconds.size() / 2];
  }
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: bench-reading FOLDER ROUNDS\n", stderr);
    return 2;
  }
  const std::string folder = argv[1];
  const std::string flat = folder + ".flat";
  if (!std::filesystem::exists(flat)) writeFlat(folder, flat);
  using Kind = PlainLoop::Kind;
  std::array<Work, 5> works{{{"plain read", [&] { return PlainLoop(Kind::bytes).run(folder); }},
                             {"with fstat", [&] { return PlainLoop(Kind::bytesAndStatus).run(folder); }},
                             {"read", [&] { return readByProgram(folder, false); }},
                             {"flat decode", [&] { return PlainLoop(Kind::records).run(flat); }},
                             {"decode", [&] { return readByProgram(folder, true); }}}};
  for (int round = std::atoi(argv[2]); round >= 0; --round) {
    for (Work& work : works) {
      const double before = processorSeconds();
      work.sum = work.run();
      work.seconds.push_back(processorSeconds() - before);
    }
  }
  double least = 0.0;
  for (std::size_t i = 0; i < works.size(); ++i) {
    Work& work = works[i];
    if (i == 0 || i == 3) least = work.median();
    std::printf("%-12s %6zu documents %9zu bytes %7zu examinations %7.1f ms  %.2f\n", work.name,
                work.sum.documents, work.sum.bytes, work.sum.examinations, 1e3 * work.median(),
                work.median() / least);
  }
  return 0;
}
