// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What the core's work costs: an archive of 30 examinations of 5 fetuses, look-ups, a row of a table.
//
//   bench-core                       times, where Google Benchmark was found
//   bench-core NAME COUNT            the work itself, COUNT times, to be counted by a program such as callgrind

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#ifdef NASCOR_BENCHMARK
#include <benchmark/benchmark.h>
#endif

#include "baselines/PlainPatient.h"
#include "calc/LookUp.h"
#include "model/PatientFile.h"
#include "rows/Calculation.h"
#include "rows/CsvReader.h"
#include "synthetic_clinic/Clinic.h"

namespace {

using namespace nascor;

/// 30 examinations of five fetuses, each with a note.
model::PatientRecord largePatient() {
  const clinic::Clinic clinic;
  model::PatientRecord patient;
  patient.setMaternalIDString("NC-0000000");
  patient.setEDD(foundation::Date{830000000.0});
  patient.setNumberOfFetuses(5);
  for (int i = 0; i < 30; ++i) {
    auto examination = std::make_unique<model::NCRecord>();
    examination->setNote("Growth scan " + std::to_string(i));
    examination->setExamDate(foundation::Date{810000000.0 + i * 604800.0 + 0.5});
    for (int fetus = 0; fetus < 5; ++fetus) {
      const double size = 20.1 + 2.3 * i + 0.7 * fetus;
      examination->measurements().emplace_back(
          calc::Biometry{.bpd = size, .hc = 3.4 * size, .ac = 3.1 * size, .fl = 0.7 * size});
    }
    patient.ncRecordsArray().push_back(std::move(examination));
  }
  return patient;
}

/// The same in records that only hold values, for the other formats.
bench::PlainPatient plain(const model::PatientRecord& patient) {
  bench::PlainPatient same{.maternalID = patient.maternalIDString(),
                           .edd = patient.edd()->secondsSince2001,
                           .examinations = {},
                           .numberOfFetuses = patient.numberOfFetuses()};
  for (const auto& examination : patient.ncRecordsArray()) {
    bench::PlainExamination& one = same.examinations.emplace_back();
    one.note = examination->note();
    one.examDate = examination->examDate()->secondsSince2001;
    for (const model::MeasurementsRecord& fetus : examination->measurements()) {
      one.measurements.push_back({.bpd = fetus.bpd(), .hc = fetus.hc(), .ac = fetus.ac(), .fl = fetus.fl()});
    }
  }
  return same;
}

/// Ages and lengths as machines print them.
std::string table(std::size_t rows) {
  std::string text = "id,ga_weeks,bpd_mm,hc_mm,ac_mm,fl_mm\n";
  std::array<char, 96> line;
  for (std::size_t i = 0; i < rows; ++i) {
    const double week = 12.0 + static_cast<double>(i * 7919 % 2800) / 100.0;
    std::snprintf(line.data(), line.size(), "P%06zu,%.2f,%.1f,%.1f,%.1f,%.1f\n", i, week, 2.4 * week,
                  8.6 * week, 8.4 * week, 1.8 * week);
    text += line.data();
  }
  return text;
}

double byScan(const calc::ReferenceTable& rows, double age, double (calc::DatabaseRecord::*column)() const) {
  if (age == 0.0 || rows.empty()) return 0.0;
  std::size_t i = 0;
  while (i < rows.size() && !(rows[i].observation() >= age)) ++i;
  if (i == rows.size()) return (rows.back().*column)();
  if (i == 0) return (rows.front().*column)();
  const calc::DatabaseRecord& before = rows[i - 1];
  const calc::DatabaseRecord& after = rows[i];
  return (before.*column)() + (age - before.observation()) / (after.observation() - before.observation()) *
                                  ((after.*column)() - (before.*column)());
}

/// What a figure measures; the number keeps the work from being left out.
class Work {
 public:
  Work()
      : patient_(largePatient()),
        plain_(plain(patient_)),
        bytes_(model::archivedPatient(patient_)),
        table_(table(1000)) {
    calc::appendStandard(reference_, 0, calc::Measurement::hc);
    for (std::size_t i = 0; i < ages_.size(); ++i)
      ages_.at(i) = 11.0 + static_cast<double>(i * 37 % 256) * 0.125;
  }

  double nothing() { return 0.0; }
  double encode() { return static_cast<double>(model::archivedPatient(patient_).size()); }
  double decode() {
    return static_cast<double>(model::unarchivedPatient(bytes_).patient->ncRecordsArray().size());
  }
#ifdef NASCOR_PROTOBUF
  double encodeProtobuf() { return static_cast<double>(bench::encodedByProtobuf(plain_).size()); }
  double decodeProtobuf() {
    static const std::string kBytes = bench::encodedByProtobuf(plain_);
    return static_cast<double>(bench::decodedByProtobuf(kBytes).examinations.size());
  }
#endif
#ifdef NASCOR_BOOST
  double encodeBoost() { return static_cast<double>(bench::encodedByBoost(plain_).size()); }
  double decodeBoost() {
    static const std::string kBytes = bench::encodedByBoost(plain_);
    return static_cast<double>(bench::decodedByBoost(kBytes).examinations.size());
  }
#endif
  /// Means and deviations at 256 ages.
  double lookUp() {
    double sum = 0.0;
    for (const double age : ages_) {
      const auto [mean, sd] = calc::meanAndSDForGestation(reference_, age);
      sum += mean + sd;
    }
    return sum;
  }
  /// The same by the definition, row after row, as LookUpTest.cpp has it.
  double scan() {
    double sum = 0.0;
    for (const double age : ages_) {
      sum += byScan(reference_, age, &calc::DatabaseRecord::mean) +
             byScan(reference_, age, &calc::DatabaseRecord::sd);
    }
    return sum;
  }
  /// A table of 1000 rows: one weight and four z-scores each.
  double calculate() {
    rows::CsvReader reader;
    reader.read(table_);
    reader.finish();
    reader.next();
    rows::Calculation calculation(reader.cells(), {.standards = {0, 1, 2, 3}},
                                  std::vector<std::string>{"efw_3_g", "westerway_bpd_z", "westerway_hc_z",
                                                           "westerway_ac_z", "westerway_fl_z"},
                                  true);
    std::string out;
    while (reader.next() == rows::CsvReader::Next::record) calculation.append(out, reader.cells());
    return static_cast<double>(out.size());
  }

 private:
  model::PatientRecord patient_;
  bench::PlainPatient plain_;
  std::vector<std::byte> bytes_;
  std::string table_;
  calc::ReferenceTable reference_;
  std::array<double, 256> ages_{};
};

struct Figure {
  const char* name;
  double (Work::*run)();
};
constexpr std::array kFigures{Figure{"nothing", &Work::nothing},
                              Figure{"encode", &Work::encode},
                              Figure{"decode", &Work::decode},
#ifdef NASCOR_PROTOBUF
                              Figure{"encode-protobuf", &Work::encodeProtobuf},
                              Figure{"decode-protobuf", &Work::decodeProtobuf},
#endif
#ifdef NASCOR_BOOST
                              Figure{"encode-boost", &Work::encodeBoost},
                              Figure{"decode-boost", &Work::decodeBoost},
#endif
                              Figure{"look-up", &Work::lookUp},
                              Figure{"scan", &Work::scan},
                              Figure{"calc", &Work::calculate}};

int count(std::string_view name, long times) {
  Work work;
  for (const Figure& figure : kFigures) {
    if (name != figure.name) continue;
    double sum = 0.0;
    for (long i = 0; i < times; ++i) sum += (work.*figure.run)();
    std::printf("%g\n", sum);
    return 0;
  }
  std::fprintf(stderr, "bench-core: there is no %s\n", std::string(name).c_str());
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 3 && argv[1][0] != '-') return count(argv[1], std::strtol(argv[2], nullptr, 10));
#ifdef NASCOR_BENCHMARK
  Work work;
  for (const Figure& figure : kFigures) {
    benchmark::RegisterBenchmark(figure.name, [&](benchmark::State& state) {
      for (auto _ : state) benchmark::DoNotOptimize((work.*figure.run)());
    });
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
#else
  std::fputs("Google Benchmark was not found when this was built: bench-core NAME COUNT only\n", stderr);
  return 1;
#endif
}
