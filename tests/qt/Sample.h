// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QLocale>
#include <QString>
#include <QTemporaryDir>
#include <memory>
#include <string>
#include <vector>

#include "app/NCAppController.h"
#include "base/QtLocalizer.h"
#include "foundation/Calendar.h"
#include "foundation/Log.h"
#include "foundation/NotificationCenter.h"
#include "foundation/Services.h"
#include "framework/DocumentController.h"
#include "model/PatientFile.h"
#include "model/PatientRecord.h"
#include "posix/PosixCalendar.h"
#include "posix/PosixFileStore.h"
#include "support/FixedClock.h"
#include "support/MemoryUserDefaults.h"
#include "support/ScriptedAlerts.h"

namespace nascor::tests {

/// The platform with preferences in memory, a clock that stands, and the United States' ways of writing, if no others are told.
class TestPlatform {
 public:
  explicit TestPlatform(const QLocale& locale = QLocale(QLocale::English, QLocale::UnitedStates))
      : localizer(locale) {
    app::NCAppController(services(), documents).awakeFromNib();
  }

  foundation::Services services() { return servicesWith(files); }
  foundation::Services servicesWith(foundation::FileStore& store) {
    return {.clock = clock,
            .calendar = calendar,
            .localizer = localizer,
            .defaults = defaults,
            .files = store,
            .log = log,
            .notifications = notifications};
  }
  /// For a document without a window.
  framework::DocumentEnvironment environment() {
    return {.services = services(), .alerts = alerts, .controller = documents};
  }

  FixedClock clock{foundation::Date{816948000.0}};  // 2026-11-21 10:00 UTC
  posix::PosixCalendar calendar;
  qt::QtLocalizer localizer;
  MemoryUserDefaults defaults;
  QTemporaryDir documentsFolder;
  posix::PosixFileStore files{documentsFolder.path().toStdString()};
  foundation::NotificationCenter notifications;
  ScriptedAlerts alerts;
  ScriptedFilePanels panels{documentsFolder.path().toStdString()};

 private:
  struct NoLog final : foundation::Log {
    void write(std::string_view) override {}
  };
  NoLog log;

 public:
  framework::DocumentController documents{services(), alerts, panels};
};

/// One examination: its day, and the biparietal diameter of each fetus.
struct Visit {
  foundation::CivilDay day;
  std::vector<double> bpd;
};

/// A patient due on 10 April 2027, so 20 weeks pregnant on 21 November 2026.
inline model::PatientRecord patient(const std::vector<Visit>& visits) {
  const posix::PosixCalendar calendar;
  model::PatientRecord record;
  record.setMaternalIDString("AB-123");
  record.setGravida(2);
  record.setNumberOfFetuses(visits.empty() ? 1 : static_cast<std::int64_t>(visits.front().bpd.size()));
  record.setExtrapolatedGestation(40.0);
  record.setEDD(foundation::startOfDay({2027, 4, 10}, calendar));
  for (const Visit& visit : visits) {
    auto examination = std::make_unique<model::NCRecord>();
    examination->setExamDate(foundation::startOfDay(visit.day, calendar));
    for (const double bpd : visit.bpd) {
      examination->measurements().push_back(
          model::MeasurementsRecord({.bpd = bpd, .hc = 0.0, .ac = 0.0, .fl = 0.0}));
    }
    record.ncRecordsArray().push_back(std::move(examination));
  }
  return record;
}

/// Six examinations, from 12 weeks to 32, one every four weeks.
inline model::PatientRecord singleton() {
  return patient({{{2026, 9, 26}, {20.0}},
                  {{2026, 10, 24}, {34.0}},
                  {{2026, 11, 21}, {48.0}},
                  {{2026, 12, 19}, {61.0}},
                  {{2027, 1, 16}, {70.0}},
                  {{2027, 2, 13}, {82.0}}});
}

/// Two fetuses far apart, at 20 and 24 weeks.
inline model::PatientRecord twins() {
  return patient({{{2026, 11, 21}, {30.0, 70.0}}, {{2026, 12, 19}, {40.0, 80.0}}});
}

inline void writeFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
    qFatal("cannot write the test's file");
}

inline QByteArray documentBytes(const model::PatientRecord& record) {
  const auto bytes = model::archivedPatient(record);
  return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

/// The first bytes of a document, and no more.
inline QByteArray cutDocument() { return documentBytes(singleton()).left(60); }

/// @name Where a point of the BPD chart stands on its page
///
/// The chart lies at (10, 30) and is 780 x 470. Its plotting area leaves 50 on the left, 10 on the right and 5 above and
/// below free; it shows 8 to 42 weeks and 0 to 120 mm.
/// @{
inline double pageX(double week) { return 10.0 + 50.0 + (week - 8.0) / 34.0 * 720.0; }
inline double pageY(double mm) { return 30.0 + 470.0 - 5.0 - mm / 120.0 * 460.0; }
/// @}

}  // namespace nascor::tests
