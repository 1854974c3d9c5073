// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// nascor-readme-pictures SAMPLES FOLDER: writes FOLDER/window-light.png and FOLDER/window-dark.png, the window of a sample
// patient as README.md shows it to readers of a light and of a dark page.

#include <QApplication>
#include <QImageWriter>
#include <QLocale>
#include <QPalette>
#include <QTemporaryDir>
#include <cstdio>
#include <exception>
#include <stdexcept>

#include "program/Application.h"
#include "user-guide/WindowPictures.h"

namespace {

/// The colours of a dark desktop.
QPalette darkPalette() {
  QPalette palette(QColor(0x30, 0x30, 0x30));
  palette.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
  palette.setColor(QPalette::Highlight, QColor(0x2a, 0x60, 0xa8));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0x8c, 0x8c, 0x8c));
  return palette;
}

/// Whoever opens the README loads both: three quarters of the size, and of each colour five bits, half the bytes.
QImage small(const QImage& picture) {
  QImage image = picture.scaled(picture.size() * 3 / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                     .convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x)
      pixels[x] = (pixels[x] & 0xfff8f8f8U) | ((pixels[x] >> 5U) & 0x00070707U);
  }
  return image;
}

void write(const QImage& picture, const QString& path) {
  QImageWriter writer(path, "PNG");
  writer.setCompression(100);
  if (!writer.write(small(picture)))
    throw std::runtime_error(qUtf8Printable(path + QStringLiteral(": ") + writer.errorString()));
}

}  // namespace

int main(int argc, char** argv) {
  const QTemporaryDir home;
  nascor::user_guide::leaveThisMachine(home.path());
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  nascor::qt::Application application(argc, argv);
  const QStringList arguments = nascor::qt::Application::arguments();
  if (arguments.size() != 3) {
    std::fputs("usage: nascor-readme-pictures SAMPLES FOLDER\n", stderr);
    return 2;
  }
  if (const QString sentence = nascor::qt::missingFontSentence(); !sentence.isEmpty()) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(sentence));
    return 1;
  }
  try {
    for (const bool isDark : {false, true}) {
      if (isDark) QApplication::setPalette(darkPalette());
      nascor::user_guide::WindowPictures pictures(arguments.at(1), QLocale());
      write(pictures.picture(QStringLiteral("window")),
            arguments.at(2) +
                (isDark ? QStringLiteral("/window-dark.png") : QStringLiteral("/window-light.png")));
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "nascor-readme-pictures: %s\n", error.what());
    return 1;
  }
  return 0;
}
