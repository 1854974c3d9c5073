// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/QtViewer.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include "base/Text.h"
#include "base/Translation.h"

namespace nascor::qt {
namespace {

/// The file as the build has made it for this user: in the folder of the language that is spoken, else here; with its own
/// name, else as HTML. The file itself where there is none of them.
QUrl asBuilt(const QUrl& target) {
  if (!target.isLocalFile()) return target;
  const QFileInfo file(target.toLocalFile());
  const QString html = file.completeBaseName() + QStringLiteral(".html");
  QStringList folders{file.path()};
  if (const QString language = spokenLanguage(); !language.isEmpty())
    folders.prepend(file.path() + u'/' + language);
  for (const QString& folder : folders) {
    for (const QString& name : {file.fileName(), html}) {
      const QString path = folder + u'/' + name;
      if (QFile::exists(path)) return QUrl::fromLocalFile(path);
    }
  }
  return target;
}

}  // namespace

bool QtViewer::open(const std::string& url) {
  const QUrl target = asBuilt(QUrl(fromUtf8(url), QUrl::StrictMode));
  const QString name = target.isLocalFile() ? target.toLocalFile() : target.toString();
  const auto fail = [&](const QString& sentence) {
    onFailure(sentence.arg(name));
    return false;
  };
  if (target.isLocalFile() && !QFile::exists(name)) return fail(said("Viewer", "%1 is not installed."));
  if (QDesktopServices::openUrl(target)) return true;
  // Guide and handbook.
  if (name.endsWith(QLatin1String(".pdf"))) {
    return fail(
        said("Viewer",
             "There is no program that shows PDF files. Please install one, or open the page for browsers "
             "that lies beside %1."));
  }
  return fail(said("Viewer", "There is no program that shows %1."));
}

std::string resourceFolder() {
  const QDir program(QCoreApplication::applicationDirPath());
  const auto folder = [&](const char* place) {
    return QDir::cleanPath(program.filePath(QLatin1String(place)));
  };
  const QString built = folder("../resources");
  return QFile::encodeName(QDir(built).exists() ? built : folder("../share/nascor")).toStdString();
}

}  // namespace nascor::qt
