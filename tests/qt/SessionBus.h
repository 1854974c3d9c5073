// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace nascor::tests {

/// A bus of the test's own, which ends with it. Programs that are started meanwhile find it.
class SessionBus {
 public:
  explicit SessionBus(const QStringList& options = {QStringLiteral("--session")}) {
    constexpr int kPatience = 60'000;
    bus_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    bus_.start(QStringLiteral("dbus-daemon"), options + QStringList{"--nofork", "--print-address"});
    while (!bus_.canReadLine() && bus_.waitForReadyRead(kPatience)) {
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus_.readLine().trimmed());
  }
  SessionBus(const SessionBus&) = delete;
  SessionBus& operator=(const SessionBus&) = delete;
  ~SessionBus() {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    bus_.terminate();
    bus_.waitForFinished();
  }

 private:
  QProcess bus_;
};

}  // namespace nascor::tests
