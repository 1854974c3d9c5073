// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <QBuffer>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <map>
#include <stdexcept>

#include "base/Translation.h"
#include "program/Application.h"
#include "user-guide/WindowPictures.h"

namespace {

using nascor::user_guide::WindowPictures;

QByteArray contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
    throw std::runtime_error(qUtf8Printable(path + QStringLiteral(" cannot be written")));
}

QByteArray pngOf(const QImage& picture) {
  QBuffer buffer;
  if (!picture.save(&buffer, "PNG")) throw std::runtime_error("a picture cannot be made a PNG");
  return buffer.data();
}

/// Writes each picture that the guide shows as FOLDER/NAME.png, and last FOLDER/pictures.css with their widths in units of
/// the window, 16 to the em. Touches no file when all hold these bytes already.
void writePictures(const QString& guide, const QString& samples, const QString& folder,
                   const QLocale& locale) {
  WindowPictures pictures(samples, locale);
  std::map<QString, QByteArray> files;
  QByteArray css;
  static const QRegularExpression shown(QStringLiteral(R"(!\[[^\]]*\]\(guide/([\w-]+)\.png\))"));
  for (auto matches = shown.globalMatch(QString::fromUtf8(contents(guide))); matches.hasNext();) {
    const QString name = matches.next().captured(1);
    const QImage picture = pictures.picture(name);
    files.emplace(name + QStringLiteral(".png"), pngOf(picture));
    css += QStringLiteral("img[src$=\"/%1.png\"] { width: %2em; }\n")
               .arg(name)
               .arg(picture.width() / picture.devicePixelRatio() / 16.0)
               .toUtf8();
  }
  if (files.empty()) throw std::runtime_error(qUtf8Printable(guide + QStringLiteral(" shows no pictures")));
  const auto path = [&](const QString& name) { return folder + u'/' + name; };
  const QString style = path(QStringLiteral("pictures.css"));
  if (contents(style) == css &&
      std::ranges::all_of(files, [&](const auto& file) { return contents(path(file.first)) == file.second; }))
    return;
  for (const auto& [name, bytes] : files) write(path(name), bytes);
  write(style, css);
}

}  // namespace

int main(int argc, char** argv) {
  const QTemporaryDir home;
  nascor::user_guide::leaveThisMachine(home.path());
  nascor::qt::Application application(argc, argv);
  const QStringList arguments = nascor::qt::Application::arguments();
  if (arguments.size() != 4 && arguments.size() != 6) {
    std::fputs("usage: nascor-window-pictures GUIDE.md SAMPLES FOLDER [LANGUAGE TEXTS]\n", stderr);
    return 2;
  }
  QLocale locale(QLocale::English, QLocale::UnitedStates);
  if (arguments.size() == 6) {
    locale = QLocale(arguments.at(4));
    if (!nascor::qt::installTranslation({arguments.at(4)}, arguments.at(5))) {
      std::fputs(
          qUtf8Printable(QStringLiteral("nascor-window-pictures: no texts of %1\n").arg(arguments.at(4))),
          stderr);
      return 1;
    }
  }
  QLocale::setDefault(locale);
  if (const QString sentence = nascor::qt::missingFontSentence(); !sentence.isEmpty()) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(sentence));
    return 1;
  }
  try {
    writePictures(arguments.at(1), arguments.at(2), arguments.at(3), locale);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "nascor-window-pictures: %s\n", error.what());
    return 1;
  }
  return 0;
}
