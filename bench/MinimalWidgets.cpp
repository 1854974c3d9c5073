// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The least that a program with widgets and a menu bar can be: what Nascor's start-up is compared with.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  QMenu* file = window.menuBar()->addMenu(QStringLiteral("&File"));
  file->addAction(QStringLiteral("&Quit"), &window, &QWidget::close);
  window.resize(1280, 800);
  window.show();
  return QApplication::exec();
}
