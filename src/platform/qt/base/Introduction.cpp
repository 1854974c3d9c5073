// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/Introduction.h"

#include <QCoreApplication>

#include "foundation/ProgramVersion.h"

namespace nascor::qt {

QString programVersion() {
  const std::string_view version = foundation::programVersion();
  return QString::fromLatin1(version.data(), static_cast<qsizetype>(version.size()));
}

QString disclaimer() {
  return QCoreApplication::translate("Application", "Not a medical device. Not validated for clinical use.");
}

}  // namespace nascor::qt
