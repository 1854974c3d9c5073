#include "window/QtViewer.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include "base/Text.h"

namespace nascor::qt {
namespace {

/// The file itself or, where only that is there, the HTML beside it of the same name.
QUrl asBuilt(const QUrl& target) {
  if (!target.isLocalFile() || QFile::exists(target.toLocalFile())) return target;
  const QFileInfo file(target.toLocalFile());
  const QString html = file.path() + u'/' + file.completeBaseName() + QStringLiteral(".html");
  return QFile::exists(html) ? QUrl::fromLocalFile(html) : target;
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
  return QDesktopServices::openUrl(target) || fail(said("Viewer", "There is no program that shows %1."));
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
