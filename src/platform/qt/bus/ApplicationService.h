// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>
#include <QTimer>
#include <cstddef>
#include <deque>
#include <vector>

#include "bus/BusObjects.h"
#include "foundation/Log.h"
#include "foundation/Signal.h"

namespace nascor::qt {

/// The running application as others find it on the session bus. A second start hands its files to the first one; scripts
/// find the documents of the first one. Without a bus the application runs all the same, and scripts cannot drive it.
///
/// Calls are done in their order, a slice of time after another, so that the windows answer their user however many come.
class ApplicationService final : public QDBusVirtualObject {
 public:
  static constexpr const char* kName = "org.nascor.Nascor";

  enum class Start {
    first,       ///< no other one runs; messages are answered by the objects from now on
    handedOver,  ///< the one that runs has taken the files
    alone        ///< there is no bus, or it does not answer; the log says so
  };

  /// How many calls may wait at a time, how many bytes of text these may hold together, and how many may be in the midst of
  /// a question to the user. What comes beyond is refused, and nothing is done.
  static constexpr std::size_t kMostWaiting = 4'096;
  static constexpr std::size_t kMostWaitingBytes = std::size_t{64} * 1024 * 1024;
  static constexpr std::size_t kMostAsking = 8;

  /// Both outlive the service.
  ApplicationService(BusObjects& objects, foundation::Log& log);

  /// Looks for an application that runs, and hands `paths` over to it (nothing: a new document).
  Start start(const QStringList& paths);

  /// A question stands on the screen. Answers the callers that wait for what follows it, since the user may take long.
  void questionIsAsked();

  /// Sent after each message, whatever it asked.
  foundation::Signal<> onMessage;

  QString introspect(const QString& path) const override;
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

 private:
  Start alone(const char* reason);

  struct Call {
    QDBusMessage message;
    QDBusConnection connection;
    std::size_t bytes = 0;  ///< of its texts
    bool isAnswered = false;
  };
  /// Does what waits, for one slice of time.
  void work();
  static void answer(Call& call, const QDBusMessage& reply);

  BusObjects& objects_;
  foundation::Log& log_;
  std::deque<Call> waiting_;
  std::size_t waitingBytes_ = 0;
  QTimer turn_;
  std::vector<Call*> calls_;  ///< being done; each came while the one before was asking
};

}  // namespace nascor::qt
