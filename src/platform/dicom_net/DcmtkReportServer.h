// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "exchange/ReportServer.h"
#include "foundation/Sentence.h"

namespace nascor::dicom_net {

/// A server of reports by DICOM's own protocol (PS3.7, PS3.8), spoken by DCMTK: C-ECHO, C-FIND and C-GET of the study root,
/// and C-STORE. C-GET brings the reports over the connection that asked for them, so that no port is ever opened for a
/// server to connect to. Nothing is printed, and no signal is left changed.
class DcmtkReportServer final : public exchange::ReportServer {
 public:
  DcmtkReportServer();

 private:
  std::optional<foundation::Sentence> doEcho(const exchange::ServerAddress& address) override;
  std::variant<exchange::FoundReports, foundation::Sentence> doFind(
      const exchange::ServerAddress& address, const exchange::ReportQuery& query) override;
  std::variant<exchange::FetchedReports, foundation::Sentence> doFetch(
      const exchange::ServerAddress& address, const exchange::ReportQuery& query) override;
  std::optional<exchange::SendFault> doSend(const exchange::ServerAddress& address,
                                            std::span<const std::byte> file) override;
};

}  // namespace nascor::dicom_net
