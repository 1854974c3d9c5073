// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/ReportServer.h"

#include <algorithm>
#include <utility>

#include "exchange/DecimalText.h"
#include "foundation/Utf8.h"

namespace nascor::exchange {

using foundation::Sentence;

namespace {

/// At most 16 characters of ASCII that are neither controls nor backslashes, and not blanks alone (PS3.5, 6.2).
bool isTitle(std::string_view text) {
  constexpr std::size_t kLongest = 16;
  const auto isAllowed = [](char c) { return c >= ' ' && c <= '~' && c != '\\'; };
  return text.size() <= kLongest && std::ranges::all_of(text, isAllowed) &&
         text.find_first_not_of(' ') != std::string_view::npos;
}

bool isHost(std::string_view text) {
  constexpr std::size_t kLongest = 253;
  const auto isAllowed = [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-' ||
           c == '.' || c == '_';
  };
  return !text.empty() && text.size() <= kLongest && std::ranges::all_of(text, isAllowed);
}

}  // namespace

std::optional<Sentence> faultOf(const ServerAddress& address) {
  constexpr int kHighestPort = 65535;
  constexpr std::chrono::seconds kLongest{3600};
  if (!isHost(address.host)) return Sentence("ReportServer", "the host is no name and no IPv4 address");
  if (address.port < 1 || address.port > kHighestPort)
    return Sentence("ReportServer", "the port is no number from 1 to 65535");
  if (!isTitle(address.serverTitle))
    return Sentence("ReportServer",
                    "the called title is not of 1 to 16 characters of ASCII without a backslash");
  if (!isTitle(address.ownTitle))
    return Sentence("ReportServer",
                    "the calling title is not of 1 to 16 characters of ASCII without a backslash");
  if (address.timeout < std::chrono::seconds(1) || address.timeout > kLongest)
    return Sentence("ReportServer", "the timeout is no number of seconds from 1 to 3600");
  if (address.tls && address.tls->authorityFile.empty())
    return Sentence("ReportServer", "an encrypted connection needs the file of the certificate authority");
  if (address.tls && address.tls->certificateFile.empty() != address.tls->keyFile.empty())
    return Sentence("ReportServer", "a certificate needs its key, and a key its certificate");
  return std::nullopt;
}

std::optional<Sentence> faultOf(const ReportQuery& query) {
  constexpr std::size_t kLongestID = 64;
  const auto isPattern = [](char c) {
    return c == '*' || c == '?' || c == '\\' || static_cast<unsigned char>(c) < ' ' || c == '\x7f';
  };
  // A server would take the first for patterns, and the next for a list.
  if (std::ranges::any_of(query.patientID, isPattern))
    return Sentence(
        "ReportServer",
        "the reference ID holds *, ?, a backslash or a control character, which a server does not search "
        "for");
  if (foundation::oneLine(query.patientID) != query.patientID)
    return Sentence("ReportServer", "the reference ID holds characters that do not show");
  if (query.patientID.size() > kLongestID)
    return Sentence("ReportServer", "the reference ID is longer than 64 bytes");
  if (!query.patientID.empty() && (query.patientID.front() == ' ' || query.patientID.back() == ' '))
    return Sentence("ReportServer",
                    "the reference ID begins or ends with a blank, which a server does not keep");
  if (!query.study.empty() && !isUid(query.study))
    return Sentence("ReportServer", "the study is no UID, which has digits and dots");
  for (const std::string& day : {query.firstDay, query.lastDay}) {
    constexpr std::size_t kDigits = 8;
    if (!day.empty() && (day.size() != kDigits || !dayFromDigits(day)))
      return Sentence("ReportServer", "a day is not in the calendar");
  }
  if (!query.firstDay.empty() && !query.lastDay.empty() && query.lastDay < query.firstDay)
    return Sentence("ReportServer", "the last day is before the first");
  return std::nullopt;
}

std::optional<Sentence> ReportServer::echo(const ServerAddress& address) {
  if (auto fault = faultOf(address)) return fault;
  return doEcho(address);
}

std::variant<FoundReports, Sentence> ReportServer::find(const ServerAddress& address,
                                                        const ReportQuery& query) {
  if (auto fault = faultOf(address)) return std::move(*fault);
  if (auto fault = faultOf(query)) return std::move(*fault);
  return doFind(address, query);
}

std::variant<FetchedReports, Sentence> ReportServer::fetch(const ServerAddress& address,
                                                           const ReportQuery& query) {
  if (auto fault = faultOf(address)) return std::move(*fault);
  if (auto fault = faultOf(query)) return std::move(*fault);
  if (query.patientID.empty() && query.study.empty())
    return Sentence("ReportServer", "neither a patient nor a study is named");
  return doFetch(address, query);
}

std::optional<SendFault> ReportServer::send(const ServerAddress& address, std::span<const std::byte> file) {
  if (auto fault = faultOf(address)) return SendFault{.sentence = std::move(*fault), .isOfServer = true};
  return doSend(address, file);
}

}  // namespace nascor::exchange
