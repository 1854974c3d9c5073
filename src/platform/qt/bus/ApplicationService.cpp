// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "bus/ApplicationService.h"

#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QUrl>
#include <QVariantMap>
#include <string>
#include <utility>

namespace nascor::qt {
namespace {

constexpr int kPatience = 10'000;  // milliseconds that the one that runs has for its answer
constexpr int kSlice = 20;         // milliseconds of calls, after which the windows have their turn

/// Whether the session has a bus. Asking the library would start one for this process alone.
bool hasSessionBus() {
  if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return true;
  const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !folder.isEmpty() && QFileInfo::exists(folder + QStringLiteral("/bus"));
}

/// The bytes of the texts in the arguments of a call, which are what can be long.
std::size_t bytesIn(const QVariantList& arguments) {
  std::size_t bytes = 0;
  for (const QVariant& argument : arguments) {
    const bool isWrapped = argument.userType() == qMetaTypeId<QDBusVariant>();
    const QVariant value = isWrapped ? argument.value<QDBusVariant>().variant() : argument;
    if (value.typeId() == QMetaType::QString)
      bytes += static_cast<std::size_t>(value.toString().size()) * sizeof(QChar);
    if (value.typeId() == QMetaType::QByteArray)
      bytes += static_cast<std::size_t>(value.toByteArray().size());
    if (value.typeId() == QMetaType::QStringList) {
      for (const QString& text : value.toStringList())
        bytes += static_cast<std::size_t>(text.size()) * sizeof(QChar);
    }
  }
  return bytes;
}

}  // namespace

ApplicationService::ApplicationService(BusObjects& objects, foundation::Log& log)
    : objects_(objects), log_(log) {
  turn_.setInterval(0);
  connect(&turn_, &QTimer::timeout, this, [this] { work(); });
}

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
  Call call{.message = message, .connection = connection, .bytes = bytesIn(message.arguments())};
  if (waiting_.size() >= kMostWaiting || waitingBytes_ + call.bytes > kMostWaitingBytes) {
    answer(call,
           message.createErrorReply(
               QDBusError::LimitsExceeded,
               message.member() + QStringLiteral(": too many calls wait to be done; wait for replies")));
    return true;
  }
  waitingBytes_ += call.bytes;
  waiting_.push_back(std::move(call));
  // Runs on in the event loop of a question that a call asks.
  turn_.start();
  return true;
}

void ApplicationService::work() {
  QElapsedTimer spent;
  spent.start();
  while (!waiting_.empty() && spent.elapsed() < kSlice) {
    Call call = std::move(waiting_.front());
    waiting_.pop_front();
    waitingBytes_ -= call.bytes;
    if (calls_.size() >= kMostAsking) {
      answer(call, call.message.createErrorReply(
                       QDBusError::LimitsExceeded,
                       call.message.member() + QStringLiteral(": the user is asked too many questions")));
      continue;
    }
    calls_.push_back(&call);
    const QDBusMessage reply = objects_.answer(call.message);
    calls_.pop_back();
    answer(call, reply);
    onMessage();
  }
  if (waiting_.empty()) turn_.stop();
}

void ApplicationService::questionIsAsked() {
  for (Call* call : calls_) {
    answer(*call, call->message.createErrorReply(
                      QStringLiteral("org.nascor.Error.Asking"),
                      call->message.member() +
                          QStringLiteral(": the user is asked a question, and it goes on with the answer")));
  }
}

void ApplicationService::answer(Call& call, const QDBusMessage& reply) {
  if (!call.isAnswered && call.message.isReplyRequired()) call.connection.send(reply);
  call.isAnswered = true;
}

}  // namespace nascor::qt
