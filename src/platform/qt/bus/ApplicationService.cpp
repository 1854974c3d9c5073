#include "bus/ApplicationService.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFileInfo>
#include <QUrl>
#include <QVariantMap>
#include <string>

namespace nascor::qt {
namespace {

constexpr int kPatience = 10'000;  // milliseconds that the one that runs has for its answer

/// Whether the session has a bus. Asking the library would start one for this process alone.
bool hasSessionBus() {
  if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return true;
  const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !folder.isEmpty() && QFileInfo::exists(folder + QStringLiteral("/bus"));
}

}  // namespace

ApplicationService::Start ApplicationService::start(const QStringList& paths) {
  if (!hasSessionBus()) return alone("there is no session bus");
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return alone("the session bus does not answer");
  // Registers the object before the name: a client may call as soon as it sees the name.
  bus.registerVirtualObject(QLatin1String(BusObjects::kPath), this, QDBusConnection::SubPath);
  const auto registered =
      bus.interface()->registerService(QLatin1String(kName), QDBusConnectionInterface::DontQueueService,
                                       QDBusConnectionInterface::DontAllowReplacement);
  if (registered.isValid() && registered.value() == QDBusConnectionInterface::ServiceRegistered)
    return Start::first;

  bus.unregisterObject(QLatin1String(BusObjects::kPath), QDBusConnection::UnregisterTree);
  QDBusMessage call = QDBusMessage::createMethodCall(
      QLatin1String(kName), QLatin1String(BusObjects::kPath), QStringLiteral("org.freedesktop.Application"),
      paths.isEmpty() ? QStringLiteral("ActivateAction") : QStringLiteral("Open"));
  if (paths.isEmpty()) {
    call << QStringLiteral("new") << QVariantList() << QVariantMap();
  } else {
    QStringList uris;
    for (const QString& path : paths)
      uris << QString::fromLatin1(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded());
    call << uris << QVariantMap();
  }
  const QDBusMessage answer = bus.call(call, QDBus::Block, kPatience);
  return answer.type() == QDBusMessage::ReplyMessage
             ? Start::handedOver
             : alone("another application has its name on the bus, and does not answer");
}

ApplicationService::Start ApplicationService::alone(const char* reason) {
  log_.write(std::string("Scripting: not available, because ") + reason);
  return Start::alone;
}

QString ApplicationService::introspect(const QString&) const {
  return {};  // answered like every other message
}

bool ApplicationService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
  Call call{message, connection};
  calls_.push_back(&call);
  const QDBusMessage reply = objects_.answer(message);
  calls_.pop_back();
  answer(call, reply);
  onMessage();
  return true;
}

void ApplicationService::questionIsAsked() {
  for (Call* call : calls_) {
    answer(*call, call->message.createErrorReply(
                      QStringLiteral("org.nascor.Error.Asking"),
                      call->message.member() +
                          QStringLiteral(": the user is asked a question, and it goes on with the answer")));
  }
}

void ApplicationService::answer(Call& call, const QDBusMessage& reply) const {
  if (!call.isAnswered && call.message.isReplyRequired()) call.connection.send(reply);
  call.isAnswered = true;
}

}  // namespace nascor::qt
