// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "app/NCDocument.h"
#include "model/PatientRecord.h"
#include "scripting/NCDocumentScripting.h"
#include "support/TestApplication.h"

namespace nascor::scripting {

/// 2027-04-10 00:00 in the zone of the tests, ten hours ahead of UTC.
inline constexpr foundation::Date kEDD{829008000.0 - 36000.0};

/// A document as a script sees it, with its window loaded.
class ScriptedDocument : public testing::Test {
 protected:
  tests::TestApplication platform;
  app::NCDocument document{platform.environment()};
  NCDocumentScripting scripted{document, platform.log};

  void SetUp() override { document.windowControllerDidLoadNib(); }
  /// Examinations that many days before the EDD, in the order given.
  void setExaminations(const std::vector<double>& daysBefore, std::int64_t fetuses = 1) {
    auto& exams = document.patientRecord()->ncRecordsArray();
    exams.clear();
    document.patientRecord()->setNumberOfFetuses(fetuses);
    for (const double days : daysBefore) {
      document.patientRecord()->addNCRecordWithNumberOfFetuses(fetuses, platform.clock);
      exams.back()->setExamDate(foundation::Date{kEDD.secondsSince2001 - days * foundation::kSecondsPerDay});
    }
    document.updateMultiplePopUp();
    document.setCurrentExam(document.lastExam());
    document.synchronizeFromData();
  }
  model::NCRecord& exam(std::size_t index) { return *document.patientRecord()->ncRecordsArray().at(index); }
};

}  // namespace nascor::scripting
