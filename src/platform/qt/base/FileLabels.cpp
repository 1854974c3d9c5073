// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/FileLabels.h"

#include <algorithm>

#include "base/Text.h"
#include "foundation/Utf8.h"

namespace nascor::qt {
namespace {

/// The name of the file and its last `folders` folders.
QString endOf(const QString& path, qsizetype folders) { return path.section(u'/', -1 - folders); }

}  // namespace

QStringList fileLabels(const QStringList& paths) {
  QStringList labels;
  for (const QString& path : paths) {
    const auto isShared = [&](qsizetype folders) {
      return std::ranges::any_of(paths, [&](const QString& other) {
        return other != path && endOf(other, folders) == endOf(path, folders);
      });
    };
    qsizetype folders = 0;
    while (isShared(folders) && folders < path.count(u'/')) ++folders;
    const QString name = endOf(path, 0);
    const QString folder = path.section(u'/', -1 - folders, -2);
    labels << (folders == 0
                   ? name
                   : QStringLiteral("%1 (%2)").arg(name, folder.isEmpty() ? QStringLiteral("/") : folder));
  }
  return labels;
}

QString menuText(const QString& name) {
  return fromUtf8(foundation::oneLine(toUtf8(name))).replace(u'&', QStringLiteral("&&"));
}

}  // namespace nascor::qt
