#pragma once

#include <QApplication>
#include <QString>
#include <QStringList>

#include "foundation/Signal.h"

namespace nascor::qt {

/// Why no text could be painted, in one sentence; nothing where there is a font. Without fonts a
/// PDF is written without text and without an error.
QString missingFontSentence();

/// Installs the first table of texts in `folder` that there is for one of `languages` ("de-AT", the preferred first), and
/// Qt's own of that language. English needs none, since the keys are its texts: behind it no other language is tried.
/// Whether one was installed.
bool installTranslation(const QStringList& languages, const QString& folder);

/// The application and its edge: an exception in an event abandons what the event began, is told on standard error with
/// its place in the sources, and goes no further.
class Application final : public QApplication {
 public:
  Application(int& argc, char** argv);
  bool notify(QObject* receiver, QEvent* event) override;

  /// The session wants the program gone. Without a listener all windows are closed one by one until one stays.
  foundation::Signal<> onQuitRequest;

 protected:
  bool event(QEvent* event) override;
};

}  // namespace nascor::qt
