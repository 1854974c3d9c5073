// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/ReportFolder.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QObject>
#include <QStringList>
#include <algorithm>
#include <span>
#include <utility>

#include "base/Text.h"
#include "foundation/Localizer.h"
#include "foundation/UserDefaults.h"
#include "foundation/Utf8.h"
#include "reports/Reports.h"

namespace nascor::qt {

namespace {

constexpr std::string_view kFolderKey = "Report Folder";
/// Of each file that is not offered again a few signs that do not tell its name, which may be a patient's.
constexpr std::string_view kKnownKey = "Known Reports";
constexpr int kMarkLength = 16;
/// The newest of a folder are looked at.
constexpr int kMostFiles = 2000;
/// No report is as large; pictures and films are.
constexpr qint64 kLargestReport = 8 << 20;

/// Tells a file from others, and from itself once it was written anew.
QString markOf(const QFileInfo& file) {
  const QString text = file.fileName() + u'\n' + QString::number(file.size()) + u'\n' +
                       QString::number(file.lastModified().toMSecsSinceEpoch());
  const QByteArray hash = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
  return QString::fromLatin1(hash.toHex().left(kMarkLength));
}

}  // namespace

ReportFolder::ReportFolder(const foundation::Services& services, Import import)
    : services_(services), import_(std::move(import)) {
  looking_.setInterval(kLookingInterval);
  resting_.setSingleShot(true);
  resting_.setInterval(kRest);
  QObject::connect(&looking_, &QTimer::timeout, &watcher_, [this] { look(); });
  QObject::connect(&resting_, &QTimer::timeout, &watcher_, [this] { look(); });
  QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &watcher_, [this] { resting_.start(); });
}

void ReportFolder::begin(const QString& folder) {
  const std::string known = services_.defaults.value(kKnownKey).value_or("");
  for (const QString& mark : fromUtf8(known).split(u' ', Qt::SkipEmptyParts)) known_.insert(mark);
  const std::string preferred = services_.defaults.value(kFolderKey).value_or("");
  watch(folder.isEmpty() ? QFile::decodeName(QByteArray::fromStdString(preferred)) : folder);
}

void ReportFolder::setFolder(const QString& folder) {
  services_.defaults.setValue(kFolderKey, QFile::encodeName(folder).toStdString());
  if (folder != folder_) watch(folder);
}

void ReportFolder::watch(const QString& folder) {
  if (!folder_.isEmpty()) watcher_.removePath(folder_);
  reports_.clear();
  marks_.clear();
  folder_ = folder;
  if (folder_.isEmpty()) {
    looking_.stop();
    resting_.stop();
    onChange();
    return;
  }
  watcher_.addPath(folder_);
  looking_.start();
  look();
}

void ReportFolder::look() {
  const QDateTime now = QDateTime::currentDateTime();
  const QFileInfoList files = QDir(folder_).entryInfoList(QDir::Files | QDir::Readable, QDir::Time);
  std::erase_if(reports_, [](const Report& report) { return !QFile::exists(report.path); });
  const qsizetype count = std::min<qsizetype>(files.size(), kMostFiles);
  for (qsizetype i = count; i-- > 0;) {  // the oldest first
    const QFileInfo& file = files[i];
    const QString mark = markOf(file);
    if (known_.contains(mark) || marks_.value(file.filePath()) == mark) continue;
    if (file.lastModified().msecsTo(now) < kRest.count() && file.lastModified() <= now) {
      resting_.start();
      continue;
    }
    if (file.size() > kLargestReport) {
      known_.insert(mark);
    } else {
      take(file.filePath(), mark);
    }
  }
  onChange();
}

void ReportFolder::take(const QString& path, const QString& mark) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QByteArray bytes = file.readAll();
  const auto contents = std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size())));
  // Known, so not read again, unless it turns out below to be an obstetric report.
  known_.insert(mark);
  if (!reports::isReport(contents)) return;
  const std::string name = QFile::encodeName(path).toStdString();
  const auto found = reports::findingsInFiles({&name, 1}, services_.files);
  if (found.findings.empty()) return;
  known_.remove(mark);
  const exchange::Findings& first = found.findings.front();
  const QString patient = first.patientID ? fromUtf8(foundation::shownLine(*first.patientID))
                                          : said("WaitingReports", "No reference ID");
  const QString day =
      first.examDate ? fromUtf8(services_.localizer.longDateText(*first.examDate)) : QString();
  std::erase_if(reports_, [&](const Report& report) { return report.path == path; });
  const QString when = day.isEmpty() ? QString() : QStringLiteral(", ") + day;
  // Two reports of one visit are told apart by their files.
  const QString shown = fromUtf8(foundation::shownLine(toUtf8(QFileInfo(path).fileName())));
  reports_.push_back({path, patient + when + QStringLiteral(" (%1)").arg(shown)});
  marks_[path] = mark;
}

void ReportFolder::import(const QString& path) {
  if (!import_(path)) return;
  remember(marks_.take(path));
  std::erase_if(reports_, [&](const Report& report) { return report.path == path; });
  onChange();
}

void ReportFolder::setAside() {
  for (const Report& report : std::exchange(reports_, {})) remember(marks_.take(report.path));
  onChange();
}

void ReportFolder::remember(const QString& mark) {
  known_.insert(mark);
  // Of files that are there: what is gone does not come back.
  QStringList kept;
  for (const QFileInfo& file : QDir(folder_).entryInfoList(QDir::Files | QDir::Readable, QDir::Time)) {
    const QString each = markOf(file);
    if (known_.contains(each) && kept.size() < kMostFiles) kept << each;
  }
  services_.defaults.setValue(kKnownKey, toUtf8(kept.join(u' ')));
}

}  // namespace nascor::qt
