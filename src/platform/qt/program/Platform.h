// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>

#include "base/QtLocalizer.h"
#include "base/QtUserDefaults.h"
#include "base/SystemLog.h"
#include "foundation/NotificationCenter.h"
#include "foundation/Services.h"
#include "posix/PosixCalendar.h"
#include "posix/PosixFileStore.h"
#include "posix/SystemClock.h"

namespace nascor::qt {

/// The application's answers to what documents ask of the platform. Outlives all documents.
class Platform {
 public:
  /// A window reads no pipe: it would stand still until the pipe is written.
  explicit Platform(const QLocale& locale,
                    posix::PosixFileStore::Pipes pipes = posix::PosixFileStore::Pipes::areRefused);
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;

  foundation::Services services();

 private:
  posix::SystemClock clock_;
  posix::PosixCalendar calendar_;
  QtLocalizer localizer_;
  QtUserDefaults defaults_;
  posix::PosixFileStore files_;
  SystemLog log_;
  foundation::NotificationCenter notifications_;
};

}  // namespace nascor::qt
