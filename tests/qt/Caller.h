// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QString>
#include <QVariant>
#include <string>
#include <vector>

namespace nascor::tests {

inline const QString kApplicationPath = QStringLiteral("/org/nascor/Nascor");
inline const QString kApplicationInterface = QStringLiteral("org.nascor.Application");
inline const QString kDocumentInterface = QStringLiteral("org.nascor.Document");
inline const QString kPropertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

inline QString documentPath(int number) {
  return kApplicationPath + QStringLiteral("/documents/") + QString::number(number);
}

/// Somebody on the session bus who calls the application.
class Caller {
 public:
  explicit Caller(const QString& name = QStringLiteral("a caller"))
      : name_(name),
        bus_(QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), name)) {}
  Caller(const Caller&) = delete;
  Caller& operator=(const Caller&) = delete;
  ~Caller() { QDBusConnection::disconnectFromBus(name_); }

  QDBusConnection& bus() { return bus_; }

  static QDBusMessage message(const QString& path, const QString& interface, const QString& member,
                              const QVariantList& arguments = {}) {
    QDBusMessage result =
        QDBusMessage::createMethodCall(QStringLiteral("org.nascor.Nascor"), path, interface, member);
    result.setArguments(arguments);
    return result;
  }
  static QDBusMessage settingOf(const QString& path, const char* key, const QVariant& value) {
    return message(path, kPropertiesInterface, QStringLiteral("Set"),
                   {kDocumentInterface, QLatin1String(key), QVariant::fromValue(QDBusVariant(value))});
  }

  QDBusMessage call(const QString& path, const QString& interface, const QString& member,
                    const QVariantList& arguments = {}) {
    constexpr int kPatience = 60'000;
    return bus_.call(message(path, interface, member, arguments), QDBus::Block, kPatience);
  }
  /// Of the application's own interface.
  QDBusMessage application(const char* member, const QVariantList& arguments = {}) {
    return call(kApplicationPath, kApplicationInterface, QLatin1String(member), arguments);
  }
  QDBusMessage getting(const QString& path, const char* key) {
    return call(path, kPropertiesInterface, QStringLiteral("Get"), {kDocumentInterface, QLatin1String(key)});
  }
  QVariant get(const QString& path, const char* key) {
    const QDBusMessage answer = getting(path, key);
    return answer.arguments().isEmpty() ? QVariant() : answer.arguments()[0].value<QDBusVariant>().variant();
  }
  QDBusMessage set(const QString& path, const char* key, const QVariant& value) {
    return bus_.call(settingOf(path, key, value));
  }
  /// The path of a document that an answer gives.
  static std::string pathIn(const QDBusMessage& answer) {
    if (answer.arguments().isEmpty()) return answer.errorName().toStdString();
    return answer.arguments()[0].value<QDBusObjectPath>().path().toStdString();
  }
  std::vector<std::string> documents() {
    const QDBusMessage answer = application("documents");
    std::vector<std::string> paths;
    for (const QDBusObjectPath& path : qdbus_cast<QList<QDBusObjectPath>>(answer.arguments().value(0)))
      paths.push_back(path.path().toStdString());
    return paths;
  }

 private:
  QString name_;
  QDBusConnection bus_;
};

}  // namespace nascor::tests
