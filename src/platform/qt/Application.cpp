#include "qt/Application.h"

#include <QFontInfo>
#include <cstdio>
#include <exception>
#include <string>

#include "foundation/RangeError.h"

namespace nascor::qt {
namespace {

void tell(const std::string& what) {
  std::fputs(("nascor: " + what + "; the action was abandoned\n").c_str(), stderr);
}

}  // namespace

QString programVersion() { return QStringLiteral(NASCOR_VERSION); }

QString disclaimer() {
  return QCoreApplication::translate("Application", "Not a medical device. Not validated for clinical use.");
}

QString missingFontSentence() {
  if (!QFontInfo(QApplication::font()).family().isEmpty()) return {};
  return QCoreApplication::translate(
      "Application",
      "No font is installed, so no text could be shown. Please install one, such as DejaVu Sans.");
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("Nascor"));
  setApplicationDisplayName(QStringLiteral("Nascor"));
  setApplicationVersion(programVersion());
  setDesktopFileName(QStringLiteral("nascor"));
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const foundation::RangeError& error) {
    tell(std::string(error.what()) + " (" + error.where().file_name() + ":" +
         std::to_string(error.where().line()) + ")");
  } catch (const std::exception& error) {
    tell(error.what());  // a failed assertion names its place itself
  } catch (...) {
    tell("unknown exception");
  }
  return false;
}

}  // namespace nascor::qt
