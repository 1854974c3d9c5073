// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QString>

#include "foundation/Signal.h"

namespace nascor::qt {

/// Why no text could be painted, in one sentence; nothing where there is a font. Without fonts a
/// PDF is written without text and without an error.
QString missingFontSentence();

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
