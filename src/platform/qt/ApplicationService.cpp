#include "qt/ApplicationService.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFileInfo>
#include <QHash>
#include <QMetaObject>
#include <QUrl>
#include <QVariantMap>
#include <optional>

namespace nascor::qt {
namespace {

const QString kInterface = QStringLiteral("org.freedesktop.Application");
constexpr int kPatience = 10'000;  // milliseconds that the one that runs has for its answer

/// Whether somebody has started a bus. Asking the library would start one, which nobody else would be on.
bool hasSessionBus() {
  if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return true;
  const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !folder.isEmpty() && QFileInfo::exists(folder + QStringLiteral("/bus"));
}

/// Nothing when one of them is no file of this machine.
std::optional<QStringList> localPaths(const QStringList& uris) {
  QStringList paths;
  for (const QString& uri : uris) {
    const QUrl url(uri, QUrl::StrictMode);
    if (!url.isLocalFile()) return std::nullopt;
    paths << url.toLocalFile();
  }
  return paths;
}

}  // namespace

ApplicationService::Start ApplicationService::start(const QStringList& paths) {
  if (!hasSessionBus()) return Start::alone;
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return Start::alone;
  // The object first: whoever sees the name may call at once.
  bus.registerVirtualObject(QLatin1String(kPath), this);
  const auto registered =
      bus.interface()->registerService(QLatin1String(kName), QDBusConnectionInterface::DontQueueService,
                                       QDBusConnectionInterface::DontAllowReplacement);
  if (registered.isValid() && registered.value() == QDBusConnectionInterface::ServiceRegistered)
    return Start::first;

  bus.unregisterObject(QLatin1String(kPath));
  QDBusMessage call = QDBusMessage::createMethodCall(
      QLatin1String(kName), QLatin1String(kPath), kInterface,
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
  return answer.type() == QDBusMessage::ReplyMessage ? Start::handedOver : Start::alone;
}

QString ApplicationService::introspect(const QString&) const {
  return QStringLiteral(R"(<interface name="org.freedesktop.Application">
  <method name="Activate"><arg type="a{sv}" name="platform_data" direction="in"/></method>
  <method name="Open"><arg type="as" name="uris" direction="in"/><arg type="a{sv}" name="platform_data" direction="in"/></method>
  <method name="ActivateAction"><arg type="s" name="action_name" direction="in"/><arg type="av" name="parameter" direction="in"/><arg type="a{sv}" name="platform_data" direction="in"/></method>
</interface>
)");
}

bool ApplicationService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
  if (message.interface() != kInterface) return false;
  const auto refuse = [&](QDBusError::ErrorType error, const QString& sentence) {
    connection.send(message.createErrorReply(error, message.member() + QStringLiteral(": ") + sentence));
    return true;
  };
  static const QHash<QString, QString> signatures{
      {QStringLiteral("Activate"), QStringLiteral("a{sv}")},
      {QStringLiteral("Open"), QStringLiteral("asa{sv}")},
      {QStringLiteral("ActivateAction"), QStringLiteral("sava{sv}")}};
  const auto signature = signatures.constFind(message.member());
  if (signature == signatures.constEnd())
    return refuse(QDBusError::UnknownMethod, QStringLiteral("there is no such method"));
  if (message.signature() != *signature)
    return refuse(QDBusError::InvalidArgs, QStringLiteral("expected the arguments ") + *signature);

  std::function<void()> act;
  if (message.member() == QStringLiteral("Open")) {
    const auto paths = localPaths(message.arguments().constFirst().toStringList());
    if (!paths)
      return refuse(QDBusError::InvalidArgs, QStringLiteral("only files of this machine can be opened"));
    act = [this, files = *paths] { onOpen(files); };
  } else if (message.member() == QStringLiteral("Activate")) {
    act = [this] { onActivate(); };
  } else {
    if (message.arguments().constFirst().toString() != QStringLiteral("new"))
      return refuse(QDBusError::InvalidArgs, QStringLiteral("the one action is \"new\""));
    act = [this] { onNew(); };
  }
  // Answered first: what follows may ask the user, and the caller is not to wait for that.
  connection.send(message.createReply());
  QMetaObject::invokeMethod(this, act, Qt::QueuedConnection);
  return true;
}

}  // namespace nascor::qt
