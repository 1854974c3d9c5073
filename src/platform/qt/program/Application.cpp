// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/Application.h"

#include <QEvent>
#include <QFontInfo>

#include "base/AbandonedAction.h"
#include "base/Introduction.h"

namespace nascor::qt {

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
