// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What reading a report takes beyond what DCMTK needs for the same bytes: a report of five fetuses and 1,000 measured values, read
// from memory by DCMTK alone and by the whole way to the findings, by turns in one run.
//
// usage: bench-reports [TIMES]

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <dcmtk/config/osconfig.h>
// The configuration stands first.
#include <dcmtk/dcmdata/dcistrmb.h>
#include <dcmtk/dcmdata/dctk.h>

#include "dicom/DcmtkReportFiles.h"
#include "exchange/Codes.h"
#include "exchange/Findings.h"

namespace {

using namespace nascor;
using exchange::ContentItem;
using exchange::Term;
using exchange::ValueType;
namespace term = exchange::term;

constexpr int kFetuses = 5;
constexpr int kGroupsOfAMeasure = 10;
constexpr int kValuesOfAGroup = 5;
constexpr std::size_t kValues = kFetuses * exchange::kStoredLengths * kGroupsOfAMeasure * kValuesOfAGroup;
static_assert(kValues == 1000);

constexpr Term kMean{"373098007", "SCT", "Mean"};
constexpr Term kDeviation{"386136009", "SCT", "Standard Deviation"};
constexpr Term kMeanChosen{"121412", "DCM", "Mean value chosen"};

ContentItem contentItem(ValueType type, const char* relationship, const Term& name) {
  return {
      .type = type, .relationship = relationship, .name = name.code(), .text = {}, .code = {}, .items = {}};
}

ContentItem code(const char* relationship, const Term& name, const Term& value) {
  ContentItem item = contentItem(ValueType::code, relationship, name);
  item.code = value.code();
  return item;
}

/// A number of tenths of a millimetre.
ContentItem length(const Term& name, int tenths) {
  ContentItem item = contentItem(ValueType::number, "CONTAINS", name);
  item.text = std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
  item.code = term::millimetre.code();
  return item;
}

/// What a machine writes of one measure: three values, their mean, which is chosen, and their deviation.
ContentItem group(const Term& name, int tenths) {
  ContentItem group = contentItem(ValueType::container, "CONTAINS", term::biometryGroup);
  for (const int away : {-2, 0, 2}) group.items.push_back(length(name, tenths + away));
  ContentItem mean = length(name, tenths);
  mean.items.push_back(code("HAS CONCEPT MOD", term::derivation, kMean));
  mean.items.push_back(code("HAS PROPERTIES", term::selectionStatus, kMeanChosen));
  group.items.push_back(std::move(mean));
  ContentItem deviation = length(name, 2);
  deviation.items.push_back(code("HAS CONCEPT MOD", term::derivation, kDeviation));
  group.items.push_back(std::move(deviation));
  return group;
}

ContentItem section(const Term& name, int fetus) {
  ContentItem section = contentItem(ValueType::container, "CONTAINS", name);
  section.items.push_back(code("HAS OBS CONTEXT", term::subjectClass, term::fetus));
  ContentItem id = contentItem(ValueType::text, "HAS OBS CONTEXT", term::fetusID);
  id.text = std::to_string(fetus);
  section.items.push_back(std::move(id));
  return section;
}

exchange::StructuredReport report() {
  exchange::StructuredReport report;
  report.sopClass = exchange::kComprehensiveSR;
  report.instanceUID = "2.25.1";
  report.seriesUID = "2.25.2";
  report.studyUID = "2.25.3";
  report.patientID = "QUINTUPLETS";
  report.studyDate = "20261113";
  report.contentDate = "20261113";
  report.hasContent = true;
  report.root = contentItem(ValueType::container, "", term::report);
  for (int fetus = 1; fetus <= kFetuses; ++fetus) {
    ContentItem biometry = section(term::fetalBiometry, fetus);
    ContentItem longBones = section(term::fetalLongBones, fetus);
    for (std::size_t measure = 0; measure < exchange::kStoredLengths; ++measure) {
      ContentItem& holder = measure == exchange::kFemur ? longBones : biometry;
      for (int again = 0; again < kGroupsOfAMeasure; ++again)
        holder.items.push_back(group(exchange::kLengthTerms.at(measure).term, 600 + 10 * fetus + again));
    }
    report.root.items.push_back(std::move(biometry));
    report.root.items.push_back(std::move(longBones));
  }
  return report;
}

/// DCMTK's own parse, with every value in memory.
void parse(const std::vector<std::byte>& bytes) {
  DcmInputBufferStream stream;
  stream.setBuffer(bytes.data(), static_cast<offile_off_t>(bytes.size()));
  stream.setEos();
  DcmFileFormat file;
  file.transferInit();
  const bool isRead = file.read(stream).good() && file.loadAllDataIntoMemory().good();
  file.transferEnd();
  if (!isRead) throw std::runtime_error("DCMTK does not read the report");
}

void readAll(exchange::ReportFiles& files, const std::vector<std::byte>& bytes) {
  const auto read = files.read(bytes);
  if (const auto* why = std::get_if<foundation::Sentence>(&read))
    throw std::runtime_error("The report " + english(*why));
  const auto findings = exchange::findingsIn(std::get<exchange::StructuredReport>(read));
  if (const auto* why = std::get_if<foundation::Sentence>(&findings))
    throw std::runtime_error("The report " + english(*why));
  const auto& fetuses = std::get<exchange::Findings>(findings).fetuses;
  const bool isWhole =
      fetuses.size() == kFetuses && std::ranges::all_of(fetuses, [](const exchange::FetusFindings& fetus) {
        return std::all_of(fetus.lengths.begin(), fetus.lengths.begin() + exchange::kStoredLengths,
                           [](const auto& found) { return found && found->chosen == "mean of several"; });
      });
  if (!isWhole) throw std::runtime_error("The report is not read whole");
}

double milliseconds(const std::function<void()>& what) {
  using Clock = std::chrono::steady_clock;
  const auto begin = Clock::now();
  what();
  // The thousands of pieces that were freed are put together by the next large allocation: here, not in the other's time.
  constexpr std::size_t kLarge = 65536;
  const auto large = std::make_unique<std::array<volatile char, kLarge>>();
  large->back() = 1;
  return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

double median(std::vector<double> times) {
  std::ranges::sort(times);
  return times.at(times.size() / 2);
}

}  // namespace

int main(int argc, char** argv) {
  const int times = argc > 1 ? std::atoi(argv[1]) : 101;
  if (times < 1) {
    std::fputs("usage: bench-reports [TIMES]\n", stderr);
    return 2;
  }
  try {
    dicom::DcmtkReportFiles files;
    const auto written = files.write(report());
    if (const auto* why = std::get_if<foundation::Sentence>(&written))
      throw std::runtime_error("The report " + english(*why));
    const auto& bytes = std::get<std::vector<std::byte>>(written);

    std::vector<double> alone;
    std::vector<double> whole;
    const auto parseOnce = [&] { alone.push_back(milliseconds([&] { parse(bytes); })); };
    const auto readOnce = [&] { whole.push_back(milliseconds([&] { readAll(files, bytes); })); };
    for (int i = 0; i < times; ++i) {
      if (i % 2 == 0) parseOnce();
      readOnce();
      if (i % 2 != 0) parseOnce();
    }
    std::printf("%zu values, %zu bytes\tDCMTK alone %.2f ms\tread to the findings %.2f ms\tbeyond %.2f ms\n",
                kValues, bytes.size(), median(alone), median(whole), median(whole) - median(alone));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
