// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/DataMenu.h"

#include <QFile>
#include <QStatusBar>
#include <utility>

#include "base/Mnemonics.h"
#include "base/Text.h"
#include "window/SaveQuestion.h"

namespace nascor::qt {

using app::NCDocument;

namespace {

constexpr int kMessageTime = 10'000;  // ms

}  // namespace

DataMenu::DataMenu(QMainWindow& window, QMenu& menu, QAction* before, DataEnvironment environment)
    : QObject(&window), window_(window), environment_(std::move(environment)) {
  QString taken;
  for (const QAction* other : menu.actions()) taken += mnemonicOf(other->text());
  auto* item = new QAction(withMnemonic(said("DataMenu", "Export Data..."), taken), &window_);
  item->setObjectName(QStringLiteral("exportDataAction"));
  connect(item, &QAction::triggered, this,
          [this] { environment_.perform([this](NCDocument& document) { exportData(document); }); });
  menu.insertAction(before, item);
  menu.insertSeparator(before);
}

void DataMenu::exportData(NCDocument& document) {
  const auto path = fileToWrite(
      window_, said("DataMenu", "Export Data"),
      {{.filter = said("DataMenu", "Table for spreadsheets (*.csv)"), .suffix = QStringLiteral("csv")},
       {.filter = said("DataMenu", "JSON (*.json)"), .suffix = QStringLiteral("json")},
       {.filter = said("DataMenu", "FHIR bundle for health records (*.fhir.json)"),
        .suffix = QStringLiteral("fhir.json")},
       {.filter = said("DataMenu", "DICOM report of this examination (*.dcm)"),
        .suffix = QStringLiteral("dcm")}},
      environment_.services.files.documentsFolder(), document.dataFileName(""));
  if (!path) return;
  if (const auto sentence =
          document.exportData(QFile::encodeName(*path).toStdString(), environment_.reportFiles)) {
    environment_.alerts.tell(toUtf8(said("DataMenu", "The data were not exported.")), *sentence);
    return;
  }
  window_.statusBar()->showMessage(said("DataMenu", "Exported to %1").arg(*path), kMessageTime);
}

}  // namespace nascor::qt
