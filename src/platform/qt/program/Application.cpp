#include "program/Application.h"

#include <QEvent>
#include <QFontInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "base/AbandonedAction.h"
#include "base/Introduction.h"

namespace nascor::qt {
QString missingFontSentence() {
  if (!QFontInfo(QApplication::font()).family().isEmpty()) return {};
  return QCoreApplication::translate(
      "Application",
      "No font is installed, so no text could be shown. Please install one, such as DejaVu Sans.");
}

bool installTranslation(const QStringList& languages, const QString& folder) {
  for (const QString& language : languages) {
    const QLocale locale(language);
    if (locale.language() == QLocale::English || locale.language() == QLocale::C) return false;
    // An installed translator stays as long as the application.
    auto* texts = new QTranslator(qApp);
    if (!texts->load(locale, QStringLiteral("nascor"), QStringLiteral("_"), folder)) {
      delete texts;
      continue;
    }
    auto* qtsOwn = new QTranslator(qApp);
    if (qtsOwn->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
      QCoreApplication::installTranslator(qtsOwn);
    }
    return QCoreApplication::installTranslator(texts);
  }
  return false;
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("Nascor"));
  setApplicationDisplayName(QStringLiteral("Nascor"));
  setApplicationVersion(programVersion());
  setDesktopFileName(QStringLiteral("org.nascor.Nascor"));
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& error) {
    logAbandoned(error);
  } catch (...) {
    logAbandoned("unknown exception");
  }
  return false;
}

bool Application::event(QEvent* event) {
  if (event->type() != QEvent::Quit || !onQuitRequest.hasListeners()) return QApplication::event(event);
  onQuitRequest();
  return true;
}

}  // namespace nascor::qt
