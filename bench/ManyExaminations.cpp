// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Documents of as many examinations as wanted, as a tar stream on standard output.
//
//   many-examinations EXAMINATIONS DOCUMENTS [FETUSES]

#include <cstdio>
#include <cstdlib>
#include <string>

#include "model/PatientFile.h"
#include "synthetic_clinic/TarText.h"

namespace {

using namespace nascor;

/// Fetuses, seen at as many moments between 12 and 40 weeks, each a little smaller than the one before.
model::PatientRecord patient(int examinations, int fetuses) {
  constexpr double kWeek = 604800.0;
  constexpr double kEDD = 830000000.0;
  model::PatientRecord patient;
  patient.setMaternalIDString("NC-0000000");
  patient.setEDD(foundation::Date{kEDD});
  patient.setNumberOfFetuses(fetuses);
  for (int i = 0; i < examinations; ++i) {
    const double week = 12.0 + 28.0 * (i + 0.5) / examinations;
    auto examination = std::make_unique<model::NCRecord>();
    examination->setNote("Growth scan");
    examination->setExamDate(foundation::Date{kEDD - (40.0 - week) * kWeek});
    for (int fetus = 0; fetus < fetuses; ++fetus) {
      const double size = week - 0.2 * fetus;
      examination->measurements().emplace_back(
          calc::Biometry{.bpd = 2.4 * size, .hc = 8.6 * size, .ac = 8.4 * size, .fl = 1.8 * size});
    }
    patient.ncRecordsArray().push_back(std::move(examination));
  }
  return patient;
}

}  // namespace

int main(int argc, char** argv) {
  const auto argument = [&](int place) { return place < argc ? std::atoi(argv[place]) : 0; };
  const int examinations = argument(1);
  const int documents = argument(2);
  const int fetuses = argc == 4 ? argument(3) : 1;
  if (examinations < 1 || documents < 1 || fetuses < 1 || argc > 4) {
    std::fputs("usage: many-examinations EXAMINATIONS DOCUMENTS [FETUSES]\n", stderr);
    return 2;
  }
  const auto bytes = model::archivedPatient(patient(examinations, fetuses));
  const auto send = [](const std::string& tar) {
    return std::fwrite(tar.data(), 1, tar.size(), stdout) == tar.size();
  };
  for (int i = 0; i < documents; ++i) {
    std::string tar;
    clinic::appendTarMember(tar, std::to_string(i) + ".nascor", bytes);
    if (!send(tar)) return 1;
  }
  std::string end;
  clinic::appendTarEnd(end);
  return send(end) && std::fflush(stdout) == 0 ? 0 : 1;
}
