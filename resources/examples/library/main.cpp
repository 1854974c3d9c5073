// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// growth FILE...: prints, for each fetus at each examination, its menstrual age, its estimated weight by Hadlock's formula of
// four lengths, and by how many standard deviations each length lies from the mean of the document's growth standard.
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>

#include "calc/Centile.h"
#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "calc/Standards.h"
#include "model/PatientFile.h"

namespace {

using namespace nascor;

std::string bytesOf(const char* path) {
  std::ifstream file(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), {}};
  if (!file) throw std::runtime_error("cannot be read");
  return bytes;
}

/// Throws a std::runtime_error whose sentence says what is wrong with the file.
void print(const char* path) {
  const std::string bytes = bytesOf(path);
  model::UnarchivedPatient document;
  try {
    document = model::unarchivedPatient(std::as_bytes(std::span(bytes)));
  } catch (const std::runtime_error& refusal) {
    throw std::runtime_error(model::refusalText(refusal));
  }
  if (!document.patient) throw std::runtime_error("holds no patient");
  const model::PatientRecord& patient = *document.patient;

  // Nothing is appended for a standard that this version does not know; the z-scores are then not finite.
  std::array<calc::ReferenceTable, calc::kMeasurements.size()> tables;
  for (const calc::Measurement length : calc::kMeasurements)
    calc::appendStandard(tables[static_cast<std::size_t>(length)], patient.standard(), length);

  std::size_t exam = 0;
  for (const auto& examination : patient.ncRecordsArray()) {
    const double age = calc::menstrualAge(examination->examDate(), patient.edd());
    std::size_t fetus = 0;
    for (const model::MeasurementsRecord& measured : examination->measurements()) {
      std::printf("%s: examination %zu, fetus %zu: %.1f weeks", path, exam, fetus, age);
      // Exactly 0.0 is a weight that lacks one of the four lengths, and a length that was not measured.
      const double weight = calc::estimatedFetalWeightHadlock4(measured.biometry());
      if (weight != 0.0) std::printf(", %.1f g", weight);
      for (const calc::Measurement length : calc::kMeasurements) {
        const double value = measured.biometry().*calc::memberFor(length);
        const double z = calc::zScore(tables[static_cast<std::size_t>(length)], value, age);
        if (value != 0.0 && std::isfinite(z))
          std::printf(", %s %.3f", std::string(calc::nameOf(length)).c_str(), z);
      }
      std::printf("\n");
      ++fetus;
    }
    ++exam;
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: growth FILE...\n", stderr);
    return 2;
  }
  int status = 0;
  for (const char* path : std::span(argv, static_cast<std::size_t>(argc)).subspan(1)) {
    try {
      print(path);
    } catch (const std::exception& error) {
      std::fprintf(stderr, "%s: %s\n", path, error.what());
      status = 1;
    }
  }
  return status;
}
