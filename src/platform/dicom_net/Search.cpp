// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom_net/Search.h"

#include <algorithm>
#include <functional>
#include <set>
#include <tuple>
#include <utility>

#include <dcmtk/dcmnet/diutil.h>

#include "dicom_net/DataSets.h"
#include "dicom_net/Messages.h"
#include "exchange/Codes.h"

namespace nascor::dicom_net {

namespace {

using exchange::FoundReports;
using exchange::ReportPlace;
using exchange::ReportQuery;
using foundation::Sentence;

/// An answer names one report with a few texts.
constexpr std::size_t kLongestAnswer = 65536;

/// A key of a question, and what it is to be; empty asks for it.
struct Key {
  DcmTag tag;
  std::string value{};
};

std::string daysOf(const ReportQuery& query) {
  if (query.firstDay.empty() && query.lastDay.empty()) return {};
  return query.firstDay + "-" + query.lastDay;
}

bool isDay(std::string_view text) {
  constexpr std::size_t kDigits = 8;
  return text.size() == kDigits && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

class Search {
 public:
  Search(const ReportQuery& query, Association& association)
      : query_(query),
        association_(association),
        context_(association.requiredContext(
            UID_FINDStudyRootQueryRetrieveInformationModel,
            Sentence("ReportServer", "does not search for reports (C-FIND of the study root)"))) {}

  FoundReports run() {
    for (const ReportPlace& study : studies()) {
      if (isFull()) break;
      for (const ReportPlace& series : seriesOf(study)) {
        if (isFull()) break;
        addReportsOf(series);
      }
    }
    std::ranges::sort(found_.places, {}, [](const ReportPlace& place) {
      return std::tie(place.patientID, place.studyDate, place.study, place.series, place.instance);
    });
    if (isCut_)
      found_.warnings.push_back(
          Sentence(
              "ReportServer",
              "at most %1 reports are taken, and there are others; name a patient, a study or fewer days")
              .with(exchange::kMostReports));
    if (ignored_ > 0) {
      const auto one = Sentence("ReportServer",
                                "%1 answer was left out: it is of another patient, study or day, or names no "
                                "report by proper UIDs");
      const auto many = Sentence("ReportServer",
                                 "%1 answers were left out: they are of another patient, study or day, or "
                                 "name no report by proper UIDs");
      found_.warnings.push_back(Sentence::counted(ignored_, one.with(ignored_), many.with(ignored_)));
    }
    return std::move(found_);
  }

 private:
  bool isFull() {
    const bool isFull = found_.places.size() >= exchange::kMostReports;
    isCut_ = isCut_ || isFull;
    return isFull;
  }

  std::vector<ReportPlace> studies() {
    std::vector<ReportPlace> studies;
    ask({{DcmTag(DCM_QueryRetrieveLevel), "STUDY"},
         {DcmTag(DCM_PatientID), query_.patientID},
         {DcmTag(DCM_StudyDate), daysOf(query_)},
         {DcmTag(DCM_ModalitiesInStudy), "SR"},
         {DcmTag(DCM_StudyInstanceUID), query_.study}},
        [&](DcmItem& answer) {
          ReportPlace study{.patientID = patientIDIn(answer),
                            .studyDate = plainIn(answer, DCM_StudyDate),
                            .study = plainIn(answer, DCM_StudyInstanceUID),
                            .series = {},
                            .instance = {}};
          if (!isAsked(study)) return false;
          if (seen_.insert(study.study).second) studies.push_back(std::move(study));
          return true;
        });
    return studies;
  }

  /// A server may take what it is asked for by rules of its own.
  bool isAsked(const ReportPlace& study) const {
    const auto& [patient, uid, first, last] = query_;
    return exchange::isUid(study.study) && (uid.empty() || study.study == uid) &&
           (patient.empty() || study.patientID == patient) &&
           (first.empty() || (isDay(study.studyDate) && study.studyDate >= first)) &&
           (last.empty() || (isDay(study.studyDate) && study.studyDate <= last));
  }

  std::vector<ReportPlace> seriesOf(const ReportPlace& study) {
    std::vector<ReportPlace> all;
    ask({{DcmTag(DCM_QueryRetrieveLevel), "SERIES"},
         {DcmTag(DCM_StudyInstanceUID), study.study},
         {DcmTag(DCM_Modality), "SR"},
         {DcmTag(DCM_SeriesInstanceUID)}},
        [&](DcmItem& answer) {
          ReportPlace series = study;
          series.series = plainIn(answer, DCM_SeriesInstanceUID);
          if (!exchange::isUid(series.series) || !isOf(study.study, answer, DCM_StudyInstanceUID))
            return false;
          const std::string modality = plainIn(answer, DCM_Modality);
          // Pictures of the same study are no reports.
          if (!modality.empty() && modality != "SR") return true;
          if (seen_.insert(series.series).second) all.push_back(std::move(series));
          return true;
        });
    return all;
  }

  void addReportsOf(const ReportPlace& series) {
    ask({{DcmTag(DCM_QueryRetrieveLevel), "IMAGE"},
         {DcmTag(DCM_StudyInstanceUID), series.study},
         {DcmTag(DCM_SeriesInstanceUID), series.series},
         {DcmTag(DCM_SOPClassUID)},
         {DcmTag(DCM_SOPInstanceUID)}},
        [&](DcmItem& answer) {
          ReportPlace report = series;
          report.instance = plainIn(answer, DCM_SOPInstanceUID);
          if (!exchange::isUid(report.instance) || !isOf(series.study, answer, DCM_StudyInstanceUID) ||
              !isOf(series.series, answer, DCM_SeriesInstanceUID))
            return false;
          const std::string sopClass = plainIn(answer, DCM_SOPClassUID);
          if (!sopClass.empty() && sopClass != exchange::kComprehensiveSR &&
              sopClass != exchange::kEnhancedSR)
            return true;
          if (!isFull() && seen_.insert(report.instance).second) found_.places.push_back(std::move(report));
          return true;
        });
  }

  /// Whether an answer that names what is above it names that.
  static bool isOf(const std::string& uid, DcmItem& answer, const DcmTagKey& tag) {
    const std::string named = plainIn(answer, tag);
    return named.empty() || named == uid;
  }

  /// Asks, and hands on each answer, at most `kMostReports` of them. `use` says whether the answer has to do with the
  /// question.
  void ask(const std::vector<Key>& keys, const std::function<bool(DcmItem&)>& use) {
    DcmDataset question;
    OFCondition status = question.putAndInsertString(DCM_SpecificCharacterSet, "ISO_IR 192");
    for (const Key& key : keys) {
      if (status.good())
        status = question.putAndInsertOFStringArray(key.tag, OFString(key.value.data(), key.value.size()));
    }
    if (status.bad()) throw Failure(Sentence("ReportServer", "cannot be asked: %1").with(status.text()));

    T_DIMSE_Message message{};
    message.CommandField = DIMSE_C_FIND_RQ;
    T_DIMSE_C_FindRQ& request = findRequest(message);
    request.MessageID = association_.nextMessage();
    put(request.AffectedSOPClassUID, UID_FINDStudyRootQueryRetrieveInformationModel);
    request.Priority = DIMSE_PRIORITY_MEDIUM;
    request.DataSetType = DIMSE_DATASET_PRESENT;
    association_.send(context_, message, &question);
    takeAnswers(request.MessageID, use);
  }

  void takeAnswers(DIC_US asked, const std::function<bool(DcmItem&)>& use) {
    std::size_t count = 0;
    bool isStopped = false;
    while (true) {
      T_ASC_PresentationContextID context = 0;
      const T_DIMSE_Message answer = association_.receive(context);
      if (answer.CommandField != DIMSE_C_FIND_RSP || context != context_ ||
          findResponse(answer).MessageIDBeingRespondedTo != asked)
        throw Failure(Sentence("ReportServer", "gave an answer that was not asked for"));
      const T_DIMSE_C_FindRSP& response = findResponse(answer);
      Received data;
      if (response.DataSetType != DIMSE_DATASET_NULL)
        data = association_.receiveData(context, kLongestAnswer);
      if (!DICOM_PENDING_STATUS(response.DimseStatus)) {
        // 0xFE00: it stopped, as it was told.
        constexpr DIC_US kCancelled = 0xFE00;
        if (response.DimseStatus == STATUS_Success || (isStopped && response.DimseStatus == kCancelled))
          return;
        throw Failure(
            Sentence("ReportServer", "does not search: %1").with(DU_cfindStatusString(response.DimseStatus)));
      }
      if (++count > exchange::kMostReports) {
        // The others are passed over, and few servers look whether they may stop.
        if (!std::exchange(isStopped, true)) association_.cancel(context, asked);
        isCut_ = true;
        continue;
      }
      const auto answered = parsed({.bytes = data.bytes, .encoding = {.isExplicit = data.isExplicit}});
      const auto* item = std::get_if<std::unique_ptr<DcmDataset>>(&answered);
      if (data.isTooLong || !item || !use(**item)) ++ignored_;
    }
  }

  const ReportQuery& query_;
  Association& association_;
  T_ASC_PresentationContextID context_;
  FoundReports found_;
  std::set<std::string, std::less<>> seen_;  ///< a server may answer twice
  std::size_t ignored_ = 0;
  bool isCut_ = false;
};

}  // namespace

FoundReports reportsOf(const ReportQuery& query, Association& association) {
  return Search(query, association).run();
}

}  // namespace nascor::dicom_net
