// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "foundation/Sentence.h"

namespace nascor::exchange {

/// An encrypted connection. The files are PEM.
struct TlsSettings {
  std::string authorityFile;      ///< the certificates that the server's must come from
  std::string certificateFile{};  ///< of this program, for servers that ask for one; empty for none
  std::string keyFile{};          ///< of that certificate, not encrypted
};

/// A server of reports, and how it is spoken to.
struct ServerAddress {
  std::string host;         ///< a name or an IPv4 address
  int port = 0;             ///< 1 to 65535
  std::string serverTitle;  ///< its application entity title
  std::string ownTitle;     ///< that of this program
  std::optional<TlsSettings> tls{};
  std::chrono::seconds timeout{30};  ///< for one operation as a whole, 1 to 3600
};

/// Which reports. Patient or study must be named to fetch them.
struct ReportQuery {
  std::string patientID{};  ///< empty for every patient; never a pattern
  std::string study{};      ///< a UID; empty for every study
  std::string firstDay{};   ///< of the study, YYYYMMDD; empty for any, as the next one
  std::string lastDay{};
};

/// A report on a server. The UIDs are what `isUid` says.
struct ReportPlace {
  std::string patientID;    ///< UTF-8, as the server writes it
  std::string studyDate{};  ///< as the server writes it, YYYYMMDD when it is right
  std::string study;
  std::string series;
  std::string instance;
};

/// The most reports that one operation finds or fetches.
inline constexpr std::size_t kMostReports = 1000;
/// The longest file of a report that is fetched or sent, and the most bytes of one operation.
inline constexpr std::size_t kLongestReport = std::size_t{16} << 20U;
inline constexpr std::size_t kMostReportBytes = std::size_t{256} << 20U;

struct FoundReports {
  std::vector<ReportPlace> places;
  std::vector<foundation::Sentence> warnings;  ///< one of them when there are more than `kMostReports`
};

struct FetchedReport {
  ReportPlace place;
  std::vector<std::byte> file;  ///< of PS3.10
};

struct FetchedReports {
  std::vector<FetchedReport> reports;
  std::vector<foundation::Sentence> warnings;  ///< what was found and not fetched
};

/// Why a report was not sent.
struct SendFault {
  foundation::Sentence sentence;
  bool isOfServer = false;  ///< the next report would meet it too
};

/// Whether a text is a UID: digits and dots, so it is a good name of a file too.
constexpr bool isUid(std::string_view text) {
  constexpr std::size_t kLongest = 64;
  const auto isAllowed = [](char c) { return (c >= '0' && c <= '9') || c == '.'; };
  return !text.empty() && text.size() <= kLongest && std::ranges::all_of(text, isAllowed) &&
         text.front() != '.' && text.back() != '.' && text.find("..") == std::string_view::npos;
}

/// What is wrong with an address or a query; nothing when it may be used.
std::optional<foundation::Sentence> faultOf(const ServerAddress& address);
std::optional<foundation::Sentence> faultOf(const ReportQuery& query);

/// A server of reports, over the network. Each operation is one connection that ends within the time limit, whatever the
/// server does; none is made for an address or a query with a fault. A sentence in place of a result says why there is
/// none. Sentences may hold texts of the server as they came.
class ReportServer {
 public:
  virtual ~ReportServer() = default;

  /// Whether the server answers.
  std::optional<foundation::Sentence> echo(const ServerAddress& address);

  /// The reports of that patient, study and days. What the server answers beside them is left out, with a warning.
  std::variant<FoundReports, foundation::Sentence> find(const ServerAddress& address,
                                                        const ReportQuery& query);

  /// The files of what `find` finds. Each holds the patient, study, series and instance that its place names.
  std::variant<FetchedReports, foundation::Sentence> fetch(const ServerAddress& address,
                                                           const ReportQuery& query);

  /// Sends the file of a report. Nothing when the server says that it keeps it.
  std::optional<SendFault> send(const ServerAddress& address, std::span<const std::byte> file);

 private:
  /// The same, of addresses and queries without a fault.
  virtual std::optional<foundation::Sentence> doEcho(const ServerAddress& address) = 0;
  virtual std::variant<FoundReports, foundation::Sentence> doFind(const ServerAddress& address,
                                                                  const ReportQuery& query) = 0;
  virtual std::variant<FetchedReports, foundation::Sentence> doFetch(const ServerAddress& address,
                                                                     const ReportQuery& query) = 0;
  virtual std::optional<SendFault> doSend(const ServerAddress& address, std::span<const std::byte> file) = 0;
};

}  // namespace nascor::exchange
