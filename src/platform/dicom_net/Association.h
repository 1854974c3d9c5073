// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <csignal>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include <dcmtk/config/osconfig.h>
// The configuration stands first.
#include <dcmtk/dcmdata/dctk.h>
#include <dcmtk/dcmnet/dimse.h>

#include "dicom_net/Deadline.h"
#include "dicom_net/Transport.h"
#include "exchange/ReportServer.h"
#include "foundation/Sentence.h"

namespace nascor::dicom_net {

/// Why an operation ended. It never leaves this room, which cannot say a sentence: that is in the program.
class Failure : public std::exception {
 public:
  explicit Failure(foundation::Sentence sentence)
      : sentence_(std::make_shared<const foundation::Sentence>(std::move(sentence))) {}

  const foundation::Sentence& sentence() const { return *sentence_; }

 private:
  std::shared_ptr<const foundation::Sentence> sentence_;  // an error is copied without a throw
};

/// A kind of object or service that the connection is for.
struct Wish {
  const char* uid;
  bool isReceived = false;  ///< objects of this kind come from the server
};

/// Data that came behind a command.
struct Received {
  std::vector<std::byte> bytes;
  bool isExplicit = false;  ///< else implicit; both little endian
  bool isTooLong = false;   ///< then the bytes are gone
};

/// One connection to a server, from its opening to its end. Each function throws Failure, and after that the connection is
/// of no use. None takes longer than the time of the address.
class Association {
 public:
  Association(const exchange::ServerAddress& address, std::span<const Wish> wishes);
  ~Association();
  Association(const Association&) = delete;
  Association& operator=(const Association&) = delete;

  /// The context of a kind, with 0 when the server does not take it.
  T_ASC_PresentationContextID contextOf(const char* uid) const;
  /// The same; throws with `without`, what the server does not do.
  T_ASC_PresentationContextID requiredContext(const char* uid, const foundation::Sentence& without) const;

  DIC_US nextMessage();
  void send(T_ASC_PresentationContextID context, T_DIMSE_Message& message, DcmDataset* data);
  /// Asks to stop answering that message.
  void cancel(T_ASC_PresentationContextID context, DIC_US message);
  /// The next command, and the context in which it came.
  T_DIMSE_Message receive(T_ASC_PresentationContextID& context);
  /// The data of that command.
  Received receiveData(T_ASC_PresentationContextID context, std::size_t longest);

  /// Says goodbye. Without it the connection is broken off.
  void release();

 private:
  [[noreturn]] void fail(const OFCondition& condition) const;
  void open(const std::string& host);
  int seconds() const;

  exchange::ServerAddress address_;
  Deadline deadline_;
  Seen seen_;
  std::unique_ptr<DcmTransportLayer> layer_;
  T_ASC_Network* network_ = nullptr;
  T_ASC_Parameters* parameters_ = nullptr;  ///< the association's, once there is one
  T_ASC_Association* association_ = nullptr;
};

/// Turns off the signal that a connection which the server closed would send, as long as the object lives. DCMTK turns it
/// off for the program and for good.
class WithoutPipeSignal {
 public:
  WithoutPipeSignal();
  ~WithoutPipeSignal();
  WithoutPipeSignal(const WithoutPipeSignal&) = delete;
  WithoutPipeSignal& operator=(const WithoutPipeSignal&) = delete;

 private:
  struct sigaction before_ {};
};

}  // namespace nascor::dicom_net
