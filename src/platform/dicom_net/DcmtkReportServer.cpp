// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom_net/DcmtkReportServer.h"

#include <array>
#include <new>
#include <utility>

#include <dcmtk/config/osconfig.h>
// The configuration stands first.
#include <dcmtk/dcmnet/diutil.h>
#include <dcmtk/oflog/oflog.h>

#include "dicom_net/Association.h"
#include "dicom_net/DataSets.h"
#include "dicom_net/Messages.h"
#include "dicom_net/Search.h"
#include "exchange/Codes.h"

namespace nascor::dicom_net {

namespace {

using exchange::FetchedReports;
using exchange::ReportPlace;
using exchange::ReportQuery;
using exchange::SendFault;
using exchange::ServerAddress;
using foundation::Sentence;

constexpr Wish kSearch{.uid = UID_FINDStudyRootQueryRetrieveInformationModel};
constexpr Wish kFetch{.uid = UID_GETStudyRootQueryRetrieveInformationModel};
constexpr const char* kComprehensive = UID_ComprehensiveSRStorage;
constexpr const char* kEnhanced = UID_EnhancedSRStorage;

/// Fetches reports one by one.
class Fetch {
 public:
  explicit Fetch(Association& association)
      : association_(association),
        context_(association.requiredContext(
            kFetch.uid, Sentence("ReportServer", "does not hand out reports (C-GET of the study root)"))) {}

  /// The file of a report; a sentence when the server does not give it.
  std::variant<std::vector<std::byte>, Sentence> file(const ReportPlace& place) {
    const DIC_US asked = ask(place);
    std::optional<std::vector<std::byte>> file;
    std::optional<Sentence> fault;
    while (true) {
      T_ASC_PresentationContextID context = 0;
      T_DIMSE_Message message = association_.receive(context);
      if (message.CommandField == DIMSE_C_STORE_RQ) {
        auto given = receive(storeRequest(message), context, place);
        if (auto* bytes = std::get_if<std::vector<std::byte>>(&given)) {
          file = std::move(*bytes);
        } else {
          fault = std::get<Sentence>(given);
        }
        continue;
      }
      if (message.CommandField != DIMSE_C_GET_RSP || getResponse(message).MessageIDBeingRespondedTo != asked)
        throw Failure(Sentence("ReportServer", "gave an answer that was not asked for"));
      const T_DIMSE_C_GetRSP& response = getResponse(message);
      // What it says of failures there is nothing new.
      if (response.DataSetType != DIMSE_DATASET_NULL) association_.receiveData(context, 0);
      if (DICOM_PENDING_STATUS(response.DimseStatus)) continue;
      if (file) return std::move(*file);
      if (fault) return std::move(*fault);
      return Sentence("ReportServer", "was not given: %1").with(DU_cgetStatusString(response.DimseStatus));
    }
  }

 private:
  DIC_US ask(const ReportPlace& place) {
    DcmDataset which;
    OFCondition status = which.putAndInsertString(DCM_QueryRetrieveLevel, "IMAGE");
    if (status.good()) status = which.putAndInsertString(DCM_StudyInstanceUID, place.study.c_str());
    if (status.good()) status = which.putAndInsertString(DCM_SeriesInstanceUID, place.series.c_str());
    if (status.good()) status = which.putAndInsertString(DCM_SOPInstanceUID, place.instance.c_str());
    if (status.bad()) throw Failure(Sentence("ReportServer", "cannot be asked: %1").with(status.text()));
    T_DIMSE_Message message{};
    message.CommandField = DIMSE_C_GET_RQ;
    T_DIMSE_C_GetRQ& request = getRequest(message);
    request.MessageID = association_.nextMessage();
    put(request.AffectedSOPClassUID, kFetch.uid);
    request.Priority = DIMSE_PRIORITY_MEDIUM;
    request.DataSetType = DIMSE_DATASET_PRESENT;
    association_.send(context_, message, &which);
    return request.MessageID;
  }

  /// What the server stores here, and the answer to it.
  std::variant<std::vector<std::byte>, Sentence> receive(const T_DIMSE_C_StoreRQ& request,
                                                         T_ASC_PresentationContextID context,
                                                         const ReportPlace& place) {
    const Received data = association_.receiveData(context, exchange::kLongestReport);
    auto result = fileOfReceived(request, data, place);
    T_DIMSE_Message message{};
    message.CommandField = DIMSE_C_STORE_RSP;
    T_DIMSE_C_StoreRSP& response = storeResponse(message);
    response.MessageIDBeingRespondedTo = request.MessageID;
    put(response.AffectedSOPClassUID, request.AffectedSOPClassUID);
    put(response.AffectedSOPInstanceUID, request.AffectedSOPInstanceUID);
    response.opts = O_STORE_AFFECTEDSOPCLASSUID | O_STORE_AFFECTEDSOPINSTANCEUID;
    response.DataSetType = DIMSE_DATASET_NULL;
    response.DimseStatus = result.index() == 0 ? STATUS_Success : STATUS_STORE_Error_CannotUnderstand;
    association_.send(context, message, nullptr);
    return result;
  }

  static std::variant<std::vector<std::byte>, Sentence> fileOfReceived(const T_DIMSE_C_StoreRQ& request,
                                                                       const Received& data,
                                                                       const ReportPlace& place) {
    if (data.isTooLong) return Sentence("ReportServer", "was not taken: it is longer than any report");
    const std::string sopClass(request.AffectedSOPClassUID);
    if (sopClass != kComprehensive && sopClass != kEnhanced)
      return Sentence("ReportServer", "was not taken: it is another kind of report");
    const dicom::DataSet elements{.bytes = data.bytes, .encoding = {.isExplicit = data.isExplicit}};
    const auto read = parsed(elements);
    //: %1 is what is wrong with it: "is cut off: it ends before its end".
    if (const auto* why = std::get_if<Sentence>(&read))
      return Sentence("ReportServer", "was not taken: it %1").with(*why);
    DcmDataset& dataset = *std::get<0>(read);
    // What was asked for is another patient's otherwise.
    if (request.AffectedSOPInstanceUID != place.instance ||
        plainIn(dataset, DCM_SOPInstanceUID) != place.instance ||
        plainIn(dataset, DCM_SOPClassUID) != sopClass ||
        plainIn(dataset, DCM_StudyInstanceUID) != place.study ||
        plainIn(dataset, DCM_SeriesInstanceUID) != place.series)
      return Sentence("ReportServer", "was not taken: the server gave another report than it was asked for");
    if (patientIDIn(dataset) != place.patientID)
      return Sentence("ReportServer",
                      R"(was not taken: it is of "%1", although the server lists it under "%2")")
          .with(patientIDIn(dataset), place.patientID);
    return fileOf(elements, sopClass, place.instance);
  }

  Association& association_;
  T_ASC_PresentationContextID context_;
};

FetchedReports fetched(const ServerAddress& address, const ReportQuery& query) {
  const std::array<Wish, 4> wishes{
      {kSearch, kFetch, {.uid = kComprehensive, .isReceived = true}, {.uid = kEnhanced, .isReceived = true}}};
  Association association(address, wishes);
  exchange::FoundReports found = reportsOf(query, association);
  FetchedReports result{.reports = {}, .warnings = std::move(found.warnings)};
  std::size_t bytes = 0;
  if (!found.places.empty()) {
    Fetch fetch(association);
    for (ReportPlace& place : found.places) {
      if (bytes > exchange::kMostReportBytes) {
        const Sentence left =
            Sentence("ReportServer",
                     "the other reports were not fetched: these are as many bytes as are taken at once");
        result.warnings.push_back(left);
        break;
      }
      auto file = fetch.file(place);
      if (const auto* why = std::get_if<Sentence>(&file)) {
        //: %1 is the UID of a report, %2 what became of it: "was not taken: it is another kind of report".
        result.warnings.push_back(Sentence("ReportServer", "%1 %2").with(place.instance, *why));
        continue;
      }
      auto& taken = std::get<std::vector<std::byte>>(file);
      bytes += taken.size();
      result.reports.push_back({.place = std::move(place), .file = std::move(taken)});
    }
  }
  association.release();
  return result;
}

/// What is to be sent, with what the server is told of it.
struct Outgoing {
  std::unique_ptr<DcmDataset> dataset;
  std::string sopClass;
  std::string instance;
};

std::variant<Outgoing, Sentence> outgoing(std::span<const std::byte> file) {
  if (file.size() > exchange::kLongestReport) return Sentence("ReportServer", "is longer than any report");
  const auto elements = dicom::dataSetIn(file);
  if (const auto* why = std::get_if<Sentence>(&elements)) return *why;
  auto read = parsed(std::get<dicom::DataSet>(elements));
  if (const auto* why = std::get_if<Sentence>(&read)) return *why;
  Outgoing result{.dataset = std::move(std::get<0>(read)), .sopClass = {}, .instance = {}};
  result.sopClass = plainIn(*result.dataset, DCM_SOPClassUID);
  result.instance = plainIn(*result.dataset, DCM_SOPInstanceUID);
  if (result.sopClass != kComprehensive && result.sopClass != kEnhanced)
    return Sentence("ReportServer",
                    "is no report that is sent: its kind is neither Comprehensive SR nor Enhanced SR");
  if (!exchange::isUid(result.instance))
    return Sentence("ReportServer", "has no proper SOP Instance UID, and is not sent");
  return result;
}

/// How the server answers to a report; nothing when it keeps it.
std::optional<Sentence> storeAnswer(Association& association, Outgoing& report) {
  const T_ASC_PresentationContextID context = association.contextOf(report.sopClass.c_str());
  if (context == 0)
    return Sentence("ReportServer", "is not taken: the server takes no reports (%1)")
        .with(report.sopClass == kComprehensive ? "Comprehensive SR" : "Enhanced SR");
  T_DIMSE_Message message{};
  message.CommandField = DIMSE_C_STORE_RQ;
  T_DIMSE_C_StoreRQ& request = storeRequest(message);
  request.MessageID = association.nextMessage();
  put(request.AffectedSOPClassUID, report.sopClass);
  put(request.AffectedSOPInstanceUID, report.instance);
  request.Priority = DIMSE_PRIORITY_MEDIUM;
  request.DataSetType = DIMSE_DATASET_PRESENT;
  association.send(context, message, report.dataset.get());

  T_ASC_PresentationContextID answered = 0;
  const T_DIMSE_Message answer = association.receive(answered);
  const T_DIMSE_C_StoreRSP& response = storeResponse(answer);
  if (answer.CommandField != DIMSE_C_STORE_RSP || response.MessageIDBeingRespondedTo != request.MessageID ||
      response.DataSetType != DIMSE_DATASET_NULL)
    throw Failure(Sentence("ReportServer", "gave an answer that was not asked for"));
  // A warning says that it is kept, perhaps not as it was.
  if (response.DimseStatus == STATUS_Success) return std::nullopt;
  const std::string status = DU_cstoreStatusString(response.DimseStatus);
  if (DICOM_WARNING_STATUS(response.DimseStatus))
    return Sentence("ReportServer", "is kept by the server, but perhaps not as it was: %1").with(status);
  return Sentence("ReportServer", "is not taken by the server: %1").with(status);
}

}  // namespace

DcmtkReportServer::DcmtkReportServer() { OFLog::configure(OFLogger::OFF_LOG_LEVEL); }

std::optional<Sentence> DcmtkReportServer::doEcho(const ServerAddress& address) try {
  const WithoutPipeSignal quiet;
  const std::array<Wish, 1> wishes{{{.uid = UID_VerificationSOPClass}}};
  Association association(address, wishes);
  const auto context =
      association.requiredContext(wishes[0].uid, Sentence("ReportServer", "does not answer to C-ECHO"));
  T_DIMSE_Message message{};
  message.CommandField = DIMSE_C_ECHO_RQ;
  T_DIMSE_C_EchoRQ& request = echoRequest(message);
  request.MessageID = association.nextMessage();
  put(request.AffectedSOPClassUID, wishes[0].uid);
  request.DataSetType = DIMSE_DATASET_NULL;
  association.send(context, message, nullptr);
  T_ASC_PresentationContextID answered = 0;
  const T_DIMSE_Message answer = association.receive(answered);
  if (answer.CommandField != DIMSE_C_ECHO_RSP ||
      echoResponse(answer).MessageIDBeingRespondedTo != request.MessageID ||
      echoResponse(answer).DimseStatus != STATUS_Success)
    return Sentence("ReportServer", "gave an answer that was not asked for");
  association.release();
  return std::nullopt;
} catch (const Failure& failure) {
  return failure.sentence();
} catch (const std::bad_alloc&) {
  return Sentence("ReportServer", "answers with more than there is memory for");
}

std::variant<exchange::FoundReports, Sentence> DcmtkReportServer::doFind(const ServerAddress& address,
                                                                         const ReportQuery& query) try {
  const WithoutPipeSignal quiet;
  const std::array<Wish, 1> wishes{{kSearch}};
  Association association(address, wishes);
  exchange::FoundReports found = reportsOf(query, association);
  association.release();
  return found;
} catch (const Failure& failure) {
  return failure.sentence();
} catch (const std::bad_alloc&) {
  return Sentence("ReportServer", "answers with more than there is memory for");
}

std::variant<FetchedReports, Sentence> DcmtkReportServer::doFetch(const ServerAddress& address,
                                                                  const ReportQuery& query) try {
  const WithoutPipeSignal quiet;
  return fetched(address, query);
} catch (const Failure& failure) {
  return failure.sentence();
} catch (const std::bad_alloc&) {
  return Sentence("ReportServer", "answers with more than there is memory for");
}

std::optional<SendFault> DcmtkReportServer::doSend(const ServerAddress& address,
                                                   std::span<const std::byte> file) try {
  auto report = outgoing(file);
  if (const auto* why = std::get_if<Sentence>(&report)) return SendFault{.sentence = *why};
  const WithoutPipeSignal quiet;
  const std::array<Wish, 1> wishes{{{.uid = std::get<Outgoing>(report).sopClass.c_str()}}};
  Association association(address, wishes);
  const auto fault = storeAnswer(association, std::get<Outgoing>(report));
  association.release();
  if (fault) return SendFault{.sentence = *fault};
  return std::nullopt;
} catch (const Failure& failure) {
  return SendFault{.sentence = failure.sentence(), .isOfServer = true};
} catch (const std::bad_alloc&) {
  return SendFault{.sentence = Sentence("ReportServer", "there is not enough memory"), .isOfServer = true};
}

}  // namespace nascor::dicom_net
