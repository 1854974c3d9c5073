// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/Platform.h"

#include <QFile>
#include <QStandardPaths>

namespace nascor::qt {

Platform::Platform(const QLocale& locale, posix::PosixFileStore::Pipes pipes)
    : localizer_(locale),
      files_(QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
                 .toStdString(),
             pipes) {}

foundation::Services Platform::services() {
  return {.clock = clock_,
          .calendar = calendar_,
          .localizer = localizer_,
          .defaults = defaults_,
          .files = files_,
          .log = log_,
          .notifications = notifications_};
}

}  // namespace nascor::qt
