#pragma once

#include <QDBusVirtualObject>
#include <QStringList>
#include <vector>

#include "bus/BusObjects.h"
#include "foundation/Log.h"
#include "foundation/Signal.h"

namespace nascor::qt {

/// The running application as others find it on the session bus. A second start hands its files to the first one; scripts
/// find the documents of the first one. Without a bus the application runs all the same, and scripts cannot drive it.
class ApplicationService final : public QDBusVirtualObject {
 public:
  static constexpr const char* kName = "org.nascor.Nascor";

  enum class Start {
    first,       ///< no other one runs; messages are answered by the objects from now on
    handedOver,  ///< the one that runs has taken the files
    alone        ///< there is no bus, or it does not answer; the log says so
  };

  /// Both outlive the service.
  ApplicationService(BusObjects& objects, foundation::Log& log) : objects_(objects), log_(log) {}

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

  /// A call that is being done.
  struct Call {
    const QDBusMessage& message;
    const QDBusConnection& connection;
    bool isAnswered = false;
  };
  void answer(Call& call, const QDBusMessage& reply) const;

  BusObjects& objects_;
  foundation::Log& log_;
  std::vector<Call*> calls_;  ///< each came while the one before was asking
};

}  // namespace nascor::qt
