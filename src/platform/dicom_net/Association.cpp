// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom_net/Association.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include <dcmtk/dcmnet/assoc.h>
#include <dcmtk/dcmnet/cond.h>
#include <dcmtk/dcmnet/dcmtrans.h>
#include <dcmtk/dcmnet/diutil.h>

#include "dicom_net/HostAddress.h"

namespace nascor::dicom_net {

using foundation::Sentence;

namespace {

/// How long a server has to answer the end of a connection. The work is done by then, so its answer is not needed.
constexpr std::chrono::milliseconds kGoodbye{1000};
/// As long as it takes to send the message that a connection is broken off.
constexpr std::chrono::milliseconds kBreakOff{100};

/// Keeps what is written in memory, up to a length.
class MemoryConsumer final : public DcmConsumer {
 public:
  explicit MemoryConsumer(std::size_t longest) : longest_(longest) {}

  OFBool good() const override { return OFTrue; }
  OFCondition status() const override { return EC_Normal; }
  OFBool isFlushed() const override { return OFTrue; }
  offile_off_t avail() const override { return static_cast<offile_off_t>(longest_); }
  /// Takes all, so that the next command is found behind it; what is too long is not kept.
  offile_off_t write(const void* buffer, offile_off_t size) override {
    const auto* from = static_cast<const std::byte*>(buffer);
    isTooLong = isTooLong || bytes.size() + static_cast<std::size_t>(size) > longest_;
    if (isTooLong) {
      bytes = {};
    } else {
      bytes.insert(bytes.end(), from, from + size);
    }
    return size;
  }
  void flush() override {}

  std::vector<std::byte> bytes;
  bool isTooLong = false;

 private:
  std::size_t longest_;
};

class MemoryStream final : public DcmOutputStream {
 public:
  explicit MemoryStream(MemoryConsumer& consumer) : DcmOutputStream(&consumer) {}
};

/// What DCMTK says, in one line, without its own words before it.
std::string reasonIn(const OFCondition& condition) {
  std::string text = condition.text();
  constexpr std::string_view kPrefix = "TCP Initialization Error: ";
  if (text.starts_with(kPrefix)) text.erase(0, kPrefix.size());
  while (!text.empty() && text.back() == '\n') text.pop_back();
  return text;
}

Sentence rejection(T_ASC_Parameters* parameters, const exchange::ServerAddress& address) {
  T_ASC_RejectParameters reject{};
  ASC_getRejectParameters(parameters, &reject);
  switch (reject.reason) {
    case ASC_REASON_SU_CALLEDAETITLENOTRECOGNIZED:
      return Sentence("ReportServer", "refuses the connection: its title is not \"%1\"")
          .with(address.serverTitle);
    case ASC_REASON_SU_CALLINGAETITLENOTRECOGNIZED:
      return Sentence("ReportServer",
                      "refuses the connection: the title \"%1\" of this program must be entered there first")
          .with(address.ownTitle);
    case ASC_REASON_SP_PRES_TEMPORARYCONGESTION:
    case ASC_REASON_SP_PRES_LOCALLIMITEXCEEDED:
      return Sentence("ReportServer", "refuses the connection: it is busy; try again later");
    default: return Sentence("ReportServer", "refuses the connection, and does not say why");
  }
}

}  // namespace

WithoutPipeSignal::WithoutPipeSignal() {
  struct sigaction ignored {};
  ignored.sa_handler = SIG_IGN;
  ::sigaction(SIGPIPE, &ignored, &before_);
}

WithoutPipeSignal::~WithoutPipeSignal() { ::sigaction(SIGPIPE, &before_, nullptr); }

Association::Association(const exchange::ServerAddress& address, std::span<const Wish> wishes)
    : address_(address), deadline_(address.timeout) {
  if (!dcmDataDict.isDictionaryLoaded())
    throw Failure(
        Sentence("ReportServer",
                 "DCMTK does not find its data dictionary (DCMDICTPATH), without which it does not use the "
                 "network"));
  auto layer = transportTo(address_, deadline_, seen_);
  if (auto* why = std::get_if<Sentence>(&layer)) throw Failure(*why);
  layer_ = std::move(std::get<0>(layer));
  const auto host = addressOfHost(address_.host, deadline_.remaining());
  if (const auto* why = std::get_if<Sentence>(&host)) throw Failure(*why);

  try {
    OFCondition condition = ASC_initializeNetwork(NET_REQUESTOR, 0, seconds(), &network_);
    if (condition.good()) condition = ASC_setTransportLayer(network_, layer_.get(), 0);
    if (condition.good()) condition = ASC_createAssociationParameters(&parameters_, ASC_DEFAULTMAXPDU);
    if (condition.good())
      condition =
          ASC_setAPTitles(parameters_, address_.ownTitle.c_str(), address_.serverTitle.c_str(), nullptr);
    // The layer makes the connection that it is for, whatever this says.
    if (condition.good()) condition = ASC_setTransportLayerType(parameters_, OFTrue);
    std::array<const char*, 2> syntaxes{UID_LittleEndianExplicitTransferSyntax,
                                        UID_LittleEndianImplicitTransferSyntax};
    T_ASC_PresentationContextID context = 1;
    for (const Wish& wish : wishes) {
      if (condition.good())
        condition =
            ASC_addPresentationContext(parameters_, context, wish.uid, syntaxes.data(), syntaxes.size(),
                                       wish.isReceived ? ASC_SC_ROLE_SCP : ASC_SC_ROLE_DEFAULT);
      context = static_cast<T_ASC_PresentationContextID>(context + 2);
    }
    if (condition.bad()) fail(condition);
    open(std::get<HostAddress>(host).digits);
  } catch (...) {
    if (association_) {
      ASC_destroyAssociation(&association_);
    } else if (parameters_) {
      ASC_destroyAssociationParameters(&parameters_);
    }
    if (network_) ASC_dropNetwork(&network_);
    throw;
  }
}

Association::~Association() {
  deadline_.shorten(kBreakOff);
  if (!seen_.isEnded && !deadline_.isPassed()) ASC_abortAssociation(association_);
  ASC_destroyAssociation(&association_);
  ASC_dropNetwork(&network_);
}

void Association::open(const std::string& host) {
  const std::string place = host + ":" + std::to_string(address_.port);
  OFCondition condition = ASC_setPresentationAddresses(parameters_, "localhost", place.c_str());
  if (condition.bad()) fail(condition);
  // They are of the whole library, and no connection waits longer than its own time.
  const auto longest = static_cast<Sint32>(seconds());
  dcmConnectionTimeout.set(longest);
  dcmSocketSendTimeout.set(longest);
  dcmSocketReceiveTimeout.set(longest);
  condition =
      ASC_requestAssociation(network_, parameters_, &association_, nullptr, nullptr, DUL_NOBLOCK, seconds());
  if (condition.good()) return;
  if (condition == DUL_ASSOCIATIONREJECTED) throw Failure(rejection(parameters_, address_));
  if (deadline_.isPassed() || !seen_.isConnected || !address_.tls || seen_.isSecured) fail(condition);
  if (!seen_.refusal.empty())
    throw Failure(
        Sentence("ReportServer", "shows a certificate that is not accepted: %1").with(seen_.refusal));
  throw Failure(
      Sentence("ReportServer", "does not make an encrypted connection: %1").with(reasonIn(condition)));
}

int Association::seconds() const {
  return static_cast<int>(std::chrono::ceil<std::chrono::seconds>(deadline_.remaining()).count());
}

void Association::fail(const OFCondition& condition) const {
  if (seen_.gate.isBroken()) throw Failure(Sentence("ReportServer", "answers what is not DICOM"));
  const bool isTime =
      deadline_.isPassed() || condition == DIMSE_NODATAAVAILABLE || condition == DUL_READTIMEOUT;
  const auto seconds = address_.timeout.count();
  if (!seen_.isConnected)
    throw Failure(isTime ? Sentence("ReportServer", "cannot be reached within %1 s").with(seconds)
                         : Sentence("ReportServer", "cannot be reached: %1").with(reasonIn(condition)));
  if (isTime) throw Failure(Sentence("ReportServer", "gave no complete answer within %1 s").with(seconds));
  if (condition == DUL_PEERABORTEDASSOCIATION && !seen_.isEnded)
    throw Failure(Sentence("ReportServer", "broke off the connection without saying why"));
  if (seen_.isEnded || condition == DUL_PEERREQUESTEDRELEASE)
    throw Failure(seen_.gate.sawAny()
                      ? Sentence("ReportServer", "ended the connection before its answer was complete")
                      : Sentence("ReportServer",
                                 "ended the connection without an answer; the connection may have to be "
                                 "encrypted, or must not be"));
  throw Failure(
      Sentence("ReportServer", "gave an answer that is not understood: %1").with(reasonIn(condition)));
}

T_ASC_PresentationContextID Association::contextOf(const char* uid) const {
  return ASC_findAcceptedPresentationContextID(association_, uid);
}

T_ASC_PresentationContextID Association::requiredContext(const char* uid, const Sentence& without) const {
  const T_ASC_PresentationContextID context = contextOf(uid);
  if (context == 0) throw Failure(without);
  return context;
}

DIC_US Association::nextMessage() { return association_->nextMsgID++; }

void Association::send(T_ASC_PresentationContextID context, T_DIMSE_Message& message, DcmDataset* data) {
  const OFCondition condition =
      DIMSE_sendMessageUsingMemoryData(association_, context, &message, nullptr, data, nullptr, nullptr);
  if (condition.bad() || deadline_.isPassed()) fail(condition);
}

void Association::cancel(T_ASC_PresentationContextID context, DIC_US message) {
  const OFCondition condition = DIMSE_sendCancelRequest(association_, context, message);
  if (condition.bad() || deadline_.isPassed()) fail(condition);
}

T_DIMSE_Message Association::receive(T_ASC_PresentationContextID& context) {
  T_DIMSE_Message message{};
  DcmDataset* details = nullptr;
  const OFCondition condition =
      DIMSE_receiveCommand(association_, DIMSE_NONBLOCKING, seconds(), &context, &message, &details);
  delete details;
  if (condition != EC_Normal || deadline_.isPassed()) fail(condition);
  return message;
}

Received Association::receiveData(T_ASC_PresentationContextID context, std::size_t longest) {
  MemoryConsumer consumer(longest);
  MemoryStream stream(consumer);
  T_ASC_PresentationContextID used = 0;
  const OFCondition condition = DIMSE_receiveDataSetInFile(association_, DIMSE_NONBLOCKING, seconds(), &used,
                                                           &stream, nullptr, nullptr);
  if (condition != EC_Normal || deadline_.isPassed()) fail(condition);
  T_ASC_PresentationContext accepted{};
  if (used != context || ASC_findAcceptedPresentationContext(association_->params, used, &accepted).bad())
    throw Failure(Sentence("ReportServer", "gave an answer in a context that was not agreed on"));
  return {.bytes = std::move(consumer.bytes),
          .isExplicit =
              std::string_view(accepted.acceptedTransferSyntax) == UID_LittleEndianExplicitTransferSyntax,
          .isTooLong = consumer.isTooLong};
}

void Association::release() {
  deadline_.shorten(kGoodbye);
  static_cast<void>(ASC_releaseAssociation(association_));
  seen_.isEnded = true;
}

}  // namespace nascor::dicom_net
