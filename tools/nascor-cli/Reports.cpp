#include "cli_commands/Reports.h"

#include <string_view>

#include "exchange/FhirReader.h"
#include "posix/Module.h"

namespace nascor::cli {

std::variant<exchange::ReportFiles*, std::string> reportFiles() {
  const auto found = posix::moduleFunction("nascor-dicom", "nascorReportFiles");
  if (const auto* why = std::get_if<std::string>(&found)) return *why;
  // How POSIX has a function be made of what dlsym returns.
  const auto function = reinterpret_cast<exchange::ReportFiles* (*)()>(std::get<void*>(found));
  return function();
}

std::variant<std::vector<exchange::StructuredReport>, std::string> reportsIn(
    std::span<const std::byte> bytes) {
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  if (first != std::string_view::npos && text[first] == '{') return exchange::reportsInBundle(text);

  const auto files = reportFiles();
  if (const auto* why = std::get_if<std::string>(&files)) return "cannot be read: " + *why;
  auto report = std::get<exchange::ReportFiles*>(files)->read(bytes);
  if (auto* why = std::get_if<std::string>(&report)) return std::move(*why);
  std::vector<exchange::StructuredReport> reports;
  reports.push_back(std::move(std::get<exchange::StructuredReport>(report)));
  return reports;
}

}  // namespace nascor::cli
