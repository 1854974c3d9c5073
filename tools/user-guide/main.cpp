#include <QLocale>
#include <QSaveFile>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "qt/Application.h"
#include "user-guide/GuideDocument.h"
#include "user-guide/GuideText.h"
#include "user-guide/WindowPictures.h"

namespace {

int write(const QStringList& arguments) {
  if (arguments.size() < 4) {
    std::fputs("usage: nascor-user-guide GUIDE.pdf SAMPLES CHAPTER.md...\n", stderr);
    return 2;
  }
  nascor::user_guide::WindowPictures pictures(arguments.at(2));
  const QByteArray pdf = nascor::user_guide::guidePdf(
      {.title = QStringLiteral("Nascor User Guide"),
       .subtitle = QStringLiteral("Version %1. Obstetric ultrasound biometry: one document for each patient.")
                       .arg(nascor::qt::programVersion()),
       .warning = nascor::qt::disclaimer()},
      nascor::user_guide::guideText(arguments.mid(3)),
      [&](const QString& name) { return pictures.picture(name); });
  QSaveFile file(arguments.at(1));
  if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size() || !file.commit()) {
    std::fprintf(stderr, "%s cannot be written\n", qUtf8Printable(arguments.at(1)));
    return 1;
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  // The same guide on every machine: no display, no preferences, no place on earth.
  const QTemporaryDir home;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
  qputenv("TZ", "UTC");
  qunsetenv("QT_SCALE_FACTOR");
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  nascor::qt::Application application(argc, argv);
  if (const QString sentence = nascor::qt::missingFontSentence(); !sentence.isEmpty()) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(sentence));
    return 1;
  }
  try {
    return write(nascor::qt::Application::arguments());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "nascor-user-guide: %s\n", error.what());
    return 1;
  }
}
