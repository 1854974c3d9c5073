#include "reports/Reports.h"

#include <filesystem>
#include <string_view>
#include <utility>

#include "exchange/FhirReader.h"
#include "posix/Module.h"

namespace nascor::reports {

namespace {

std::string_view textOf(std::span<const std::byte> bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

bool isObject(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  return first != std::string_view::npos && text[first] == '{';
}

/// PS3.10: 128 bytes for whoever wants them, then this.
bool isDicom(std::string_view text) {
  constexpr std::size_t kPreamble = 128;
  return text.size() > kPreamble && text.substr(kPreamble).starts_with("DICM");
}

}  // namespace

std::variant<exchange::ReportFiles*, std::string> reportFiles() {
  const auto found = posix::moduleFunction<exchange::ReportFiles* (*)()>("nascor-dicom", "nascorReportFiles");
  if (const auto* why = std::get_if<std::string>(&found)) return *why;
  return std::get<0>(found)();
}

bool isReport(std::span<const std::byte> bytes) {
  const std::string_view text = textOf(bytes);
  return isDicom(text) || isObject(text);
}

std::variant<std::vector<exchange::StructuredReport>, std::string> reportsIn(
    std::span<const std::byte> bytes) {
  const std::string_view text = textOf(bytes);
  if (isObject(text)) return exchange::reportsInBundle(text);

  const auto files = reportFiles();
  if (const auto* why = std::get_if<std::string>(&files)) return "cannot be read: " + *why;
  auto report = std::get<exchange::ReportFiles*>(files)->read(bytes);
  if (auto* why = std::get_if<std::string>(&report)) return std::move(*why);
  std::vector<exchange::StructuredReport> reports;
  reports.push_back(std::move(std::get<exchange::StructuredReport>(report)));
  return reports;
}

FoundInFiles findingsInFiles(std::span<const std::string> paths, const foundation::FileStore& files) {
  FoundInFiles found;
  for (const std::string& path : paths) {
    const auto contents = files.contents(path);
    if (const auto* error = std::get_if<foundation::FileError>(&contents)) {
      found.failures.push_back(foundation::sentenceAbout(path, *error));
      continue;
    }
    const std::string start = std::filesystem::path(path).filename().string() + ": ";
    const auto reports = reportsIn(std::get<std::vector<std::byte>>(contents));
    if (const auto* why = std::get_if<std::string>(&reports)) {
      found.failures.push_back(start + *why + ".");
      continue;
    }
    for (const exchange::StructuredReport& report : std::get<0>(reports)) {
      auto findings = exchange::findingsIn(report);
      if (const auto* why = std::get_if<std::string>(&findings)) {
        found.failures.push_back(start + *why + ".");
      } else {
        found.findings.push_back(std::move(std::get<exchange::Findings>(findings)));
      }
    }
  }
  return found;
}

}  // namespace nascor::reports
