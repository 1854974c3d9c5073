// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What the Compare window costs: a change of the examination and an undo with it and without it, by turns in one run, and its
// opening. Beside them what drawing the page again takes by itself, and two dialogs of its size: an empty one, and one that shows
// the same texts by Qt's own widgets alone, all laid down beforehand.
//
// usage: bench-compare DOCUMENT [TIMES]

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

#include "program/DocumentApplication.h"
#include "program/Platform.h"

namespace {

using namespace nascor;

double milliseconds(const std::function<void()>& what) {
  using Clock = std::chrono::steady_clock;
  const auto begin = Clock::now();
  what();
  // What is to be painted is painted here.
  QCoreApplication::processEvents();
  return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

double median(std::vector<double> times) {
  std::ranges::sort(times);
  return times.empty() ? 0.0 : times[times.size() / 2];
}

/// The same texts in the same places.
QTableWidget* copyOf(const QTableView& view) {
  const QAbstractItemModel& from = *view.model();
  auto* table = new QTableWidget(from.rowCount(), from.columnCount());
  for (int column = 0; column < from.columnCount(); ++column) {
    table->setHorizontalHeaderItem(column,
                                   new QTableWidgetItem(from.headerData(column, Qt::Horizontal).toString()));
    table->setColumnWidth(column, view.columnWidth(column));
    for (int row = 0; row < from.rowCount(); ++row)
      table->setItem(row, column, new QTableWidgetItem(from.index(row, column).data().toString()));
  }
  table->verticalHeader()->hide();
  table->verticalHeader()->setDefaultSectionSize(view.verticalHeader()->defaultSectionSize());
  table->setShowGrid(false);
  table->setAlternatingRowColors(true);
  table->setWordWrap(false);
  return table;
}

void fillLike(QDialog& plain, const QDialog& dialog) {
  auto* heading = new QLabel(dialog.findChild<QLabel*>(QStringLiteral("compareHeading"))->text());
  heading->setWordWrap(true);
  const auto& tabs = *dialog.findChild<QTabWidget*>();
  auto* copies = new QTabWidget;
  for (int i = 0; i < tabs.count(); ++i)
    copies->addTab(copyOf(*qobject_cast<QTableView*>(tabs.widget(i))), tabs.tabText(i));
  auto* buttons = new QDialogButtonBox;
  for (const auto* button : dialog.findChildren<QPushButton*>())
    buttons->addButton(button->text(), QDialogButtonBox::ActionRole);
  auto* layout = new QVBoxLayout(&plain);
  layout->addWidget(heading);
  layout->addWidget(copies);
  layout->addWidget(buttons);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: bench-compare DOCUMENT [TIMES]\n", stderr);
    return 2;
  }
  const int times = argc > 2 ? std::atoi(argv[2]) : 101;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  const QTemporaryDir home;
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
  qputenv("XDG_STATE_HOME", QFile::encodeName(home.path()));
  const QString copy = home.filePath(QStringLiteral("copy.nascor"));
  QFile::copy(QFile::decodeName(argv[1]), copy);
  qt::Platform platform{QLocale()};
  qt::DocumentApplication documents(platform.services());
  documents.openFiles({copy});
  framework::ZuDocument* document = documents.documents().currentDocument();
  qt::DocumentWindow* window = document ? documents.windowOf(*document) : nullptr;
  if (!window || !document->filePath()) {
    std::fputs("the document cannot be opened\n", stderr);
    return 1;
  }
  QCoreApplication::processEvents();
  const auto action = [window](const char* name) { return window->findChild<QAction*>(QLatin1String(name)); };
  QAction& previous = *action("previousAction");
  QAction& next = *action("nextAction");
  QAction& compare = *action("compareAction");

  const double first = milliseconds([&] { compare.trigger(); });
  auto* dialog = window->findChild<QDialog*>(QStringLiteral("compareDialog"));
  // What showing any dialog of that size costs, and any with those texts.
  QDialog empty(window);
  QDialog plain(window);
  fillLike(plain, *dialog);
  for (QDialog* other : {&empty, &plain}) {
    other->resize(dialog->size());
    other->show();
    QCoreApplication::processEvents();
    other->hide();
  }
  const auto opened = [](QDialog& other) {
    QCoreApplication::processEvents();
    const double time = milliseconds([&other] {
      other.show();
      other.raise();
      other.activateWindow();
    });
    other.hide();
    QCoreApplication::processEvents();
    return time;
  };
  std::vector<double> emptyOpening;
  std::vector<double> plainOpening;
  std::vector<double> opening;
  std::vector<double> with;
  std::vector<double> without;
  std::vector<double> redraw;
  std::vector<double> undo;
  std::vector<double> comparedUndo;
  app::NCDocument& patient = *window->document();
  const auto undone = [&patient] {
    patient.addFetus(nullptr);
    QCoreApplication::processEvents();
    return milliseconds([&patient] { patient.undo(); });
  };
  for (int i = 0; i < times; ++i) {
    QAction& change = i % 2 == 0 ? previous : next;
    dialog->hide();
    QCoreApplication::processEvents();
    without.push_back(milliseconds([&] { change.trigger(); }));
    redraw.push_back(milliseconds([&patient] { patient.tabView().setNeedsDisplay(); }));
    undo.push_back(undone());
    emptyOpening.push_back(opened(empty));
    plainOpening.push_back(opened(plain));
    opening.push_back(milliseconds([&] { compare.trigger(); }));
    QAction& back = i % 2 == 0 ? next : previous;
    with.push_back(milliseconds([&] { back.trigger(); }));
    comparedUndo.push_back(undone());
  }
  std::printf("opening, the first time\t%.2f ms\n", first);
  std::printf("an empty dialog of its size\t%.2f ms\n", median(emptyOpening));
  std::printf("the same texts in Qt's own widgets\t%.2f ms\n", median(plainOpening));
  std::printf("opening again\t%.2f ms\n", median(opening));
  std::printf("another examination\t%.2f ms\n", median(without));
  std::printf("another examination, compared\t%.2f ms\n", median(with));
  std::printf("the page drawn again\t%.2f ms\n", median(redraw));
  std::printf("undo\t%.2f ms\n", median(undo));
  std::printf("undo, compared\t%.2f ms\n", median(comparedUndo));
  return 0;
}
