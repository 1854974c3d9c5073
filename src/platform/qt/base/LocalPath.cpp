// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/LocalPath.h"

#include <QSysInfo>

namespace nascor::qt {
namespace {

/// Whether the host of a file's address is this machine; another's file would be looked for here in vain.
bool isHere(const QString& host) {
  return host.isEmpty() || host == QLatin1String("localhost") ||
         host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
}

}  // namespace

std::optional<QString> localPath(const QUrl& url) {
  if (!url.isLocalFile() || !isHere(url.host())) return std::nullopt;
  QUrl local = url;
  local.setHost({});  // it would stand before the path
  return local.toLocalFile();
}

}  // namespace nascor::qt
