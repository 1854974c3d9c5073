// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <QLocale>
#include <QTemporaryDir>

#include "program/Application.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  // Nothing of the user's own reaches the tests, and nothing of theirs reaches the user.
  const QTemporaryDir home;
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  nascor::qt::Application application(argc, argv);
  return RUN_ALL_TESTS();
}
