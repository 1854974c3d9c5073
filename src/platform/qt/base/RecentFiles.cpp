// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/RecentFiles.h"

#include <QFileInfo>
#include <QUrl>

#include "base/Text.h"

namespace nascor::qt {
namespace {

constexpr std::string_view kKey = "Recent Files";
constexpr std::string_view kSwitchKey = "Remember Recent Files";

}  // namespace

QStringList RecentFiles::paths() const {
  QStringList paths;
  // As URLs, which hold neither blanks nor line ends whatever a file is called.
  for (const QString& url : fromUtf8(defaults_.value(kKey).value_or("")).split(u' ', Qt::SkipEmptyParts)) {
    const QString path = QUrl(url, QUrl::StrictMode).toLocalFile();
    if (!path.isEmpty()) paths << path;
  }
  return paths;
}

bool RecentFiles::isKept() const {
  return !defaults_.value(kSwitchKey) || foundation::boolForKey(defaults_, kSwitchKey);
}

void RecentFiles::setKept(bool kept) {
  defaults_.setValue(kSwitchKey, kept ? "true" : "false");
  if (!kept) clear();
}

void RecentFiles::note(const QString& path) {
  if (!isKept()) return;
  const QString absolute = QFileInfo(path).absoluteFilePath();
  QStringList all = paths();
  all.removeAll(absolute);
  all.prepend(absolute);
  keep(all.mid(0, kMost));
}

void RecentFiles::forget(const QString& path) {
  QStringList all = paths();
  if (all.removeAll(QFileInfo(path).absoluteFilePath()) > 0) keep(all);
}

void RecentFiles::clear() { keep({}); }

void RecentFiles::keep(const QStringList& all) {
  QStringList urls;
  for (const QString& path : all) urls << QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
  defaults_.setValue(kKey, toUtf8(urls.join(u' ')));
}

}  // namespace nascor::qt
