// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

namespace nascor::foundation {

class Calendar;
class Clock;
class FileStore;
class Localizer;
class Log;
class NotificationCenter;
class UserDefaults;

/// What a document and its views ask of the platform, handed down through their constructors. All of it outlives
/// them.
struct Services {
  const Clock& clock;
  const Calendar& calendar;
  const Localizer& localizer;
  UserDefaults& defaults;
  FileStore& files;
  Log& log;
  NotificationCenter& notifications;
};

}  // namespace nascor::foundation
