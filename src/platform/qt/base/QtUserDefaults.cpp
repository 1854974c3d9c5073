// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/QtUserDefaults.h"

#include <QDir>
#include <QFileInfo>

#include <fcntl.h>
#include <unistd.h>

#include "base/Text.h"

namespace nascor::qt {

namespace {

/// QDir makes folders as the umask permits.
void makePrivate(const QString& folder) {
  constexpr QFile::Permissions kOwnersAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
  constexpr QFile::Permissions kOfThisUser = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser;
  if ((QFileInfo(folder).permissions() & ~(kOwnersAlone | kOfThisUser)) != 0)
    QFile::setPermissions(folder, kOwnersAlone);
}

/// The names of documents stand among the preferences, and reference IDs in the names: the file is its owner's alone,
/// whatever the umask. QSettings keeps the permissions of a file that is there.
void keepPrivate(const QString& path) {
  constexpr QFile::Permissions kOwnersAlone = QFile::ReadOwner | QFile::WriteOwner;
  const QFileInfo file(path);
  if (!file.exists()) {
    QDir().mkpath(file.path());
    makePrivate(file.path());
    const int made = ::open(QFile::encodeName(path).constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC,
                            S_IRUSR | S_IWUSR);
    if (made >= 0) ::close(made);
  } else if ((file.permissions() & ~(kOwnersAlone | QFile::ReadUser | QFile::WriteUser)) != 0) {
    QFile::setPermissions(path, kOwnersAlone);
  }
}

}  // namespace

QtUserDefaults::QtUserDefaults()
    : settings_(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Nascor"),
                QStringLiteral("nascor")) {
  // Ignores the preferences of the whole machine: they are not this user's.
  settings_.setFallbacksEnabled(false);
  if (!QFileInfo::exists(settings_.fileName())) return;
  makePrivate(QFileInfo(settings_.fileName()).path());
  keepPrivate(settings_.fileName());
}

std::optional<std::string> QtUserDefaults::value(std::string_view key) const {
  const QString name = fromUtf8(key);
  if (settings_.contains(name)) return toUtf8(settings_.value(name).toString());
  if (const auto found = registered_.find(key); found != registered_.end()) return found->second;
  return std::nullopt;
}

void QtUserDefaults::setValue(std::string_view key, std::string value) {
  const QString name = fromUtf8(key);
  const QString text = fromUtf8(value);
  // Writing waits for the disk, and a patient who is opened again changes nothing.
  if (settings_.contains(name) && settings_.value(name).toString() == text) return;
  keepPrivate(settings_.fileName());
  settings_.setValue(name, text);
  settings_.sync();
}

void QtUserDefaults::registerDefault(std::string_view key, std::string value) {
  registered_.insert_or_assign(std::string(key), std::move(value));
}

}  // namespace nascor::qt
