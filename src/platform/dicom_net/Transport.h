// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <variant>

#include <dcmtk/config/osconfig.h>
// The configuration stands first.
#include <dcmtk/dcmnet/dcmlayer.h>

#include "dicom_net/Deadline.h"
#include "dicom_net/PduGate.h"
#include "exchange/ReportServer.h"
#include "foundation/Sentence.h"

namespace nascor::dicom_net {

/// What was seen of a connection, for the sentence about its end.
struct Seen {
  PduGate gate{};
  bool isConnected = false;
  bool isSecured = false;  ///< encrypted, where it is to be
  bool isEnded = false;    ///< the server closed it, or the network did
  std::string refusal{};   ///< why the certificate of the server was not accepted
};

/// What gives DCMTK its connections: plain, or encrypted alone. All are cut at the deadline. `deadline` and `seen` outlive
/// it. A sentence when a file of the settings cannot be used.
std::variant<std::unique_ptr<DcmTransportLayer>, foundation::Sentence> transportTo(
    const exchange::ServerAddress& address, Deadline& deadline, Seen& seen);

}  // namespace nascor::dicom_net
