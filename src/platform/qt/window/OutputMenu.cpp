// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/OutputMenu.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPageSetupDialog>
#include <QPrintPreviewDialog>
#include <QProgressDialog>
#include <QPushButton>
#include <QStatusBar>
#include <chrono>
#include <utility>

#include "base/Mnemonics.h"
#include "base/Text.h"
#include "foundation/Localizer.h"
#include "foundation/Progress.h"
#include "foundation/UserDefaults.h"
#include "framework/PageWriter.h"

namespace nascor::qt {

using app::NCDocument;
namespace export_key = framework::export_key;

namespace {

constexpr std::string_view kPaperKey = "Paper";
constexpr int kMessageTime = 10'000;  // ms
constexpr double kPreviewOfWindow = 0.9;

QString pathText(const std::string& path) { return QFile::decodeName(QByteArray::fromStdString(path)); }

void rememberPaper(foundation::UserDefaults& defaults, const framework::PrintInfo& info) {
  QStringList numbers;
  for (const double each : {info.paperWidth, info.paperHeight, info.isLandscape ? 1.0 : 0.0, info.leftMargin,
                            info.topMargin, info.rightMargin, info.bottomMargin})
    numbers << QString::number(each, 'g', 10);
  defaults.setValue(kPaperKey, toUtf8(numbers.join(u' ')));
}

}  // namespace

framework::PrintInfo usualPaper(const foundation::UserDefaults& defaults) {
  const QStringList texts = fromUtf8(defaults.value(kPaperKey).value_or("")).split(u' ');
  QList<double> numbers;
  for (const QString& text : texts) {
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && number >= 0.0) numbers << number;
  }
  constexpr qsizetype kCount = 7;
  if (numbers.size() == kCount && numbers[0] > 0.0 && numbers[1] > 0.0) {
    return {.paperWidth = numbers[0],
            .paperHeight = numbers[1],
            .isLandscape = numbers[2] != 0.0,
            .leftMargin = numbers[3],
            .topMargin = numbers[4],
            .rightMargin = numbers[5],
            .bottomMargin = numbers[6]};
  }
  framework::PrintInfo info;
  if (QLocale().measurementSystem() == QLocale::ImperialUSSystem) {
    info.paperWidth = 612.0;
    info.paperHeight = 792.0;
  }
  return info;
}

OutputMenu::OutputMenu(QMainWindow& window, QMenu& menu, QAction* before, OutputEnvironment environment)
    : QObject(&window), window_(window), environment_(std::move(environment)) {
  add(menu, before, "exportAction", QT_TRANSLATE_NOOP("OutputMenu", "Export Page"),
      QKeySequence(QStringLiteral("Ctrl+Shift+P")), [this](NCDocument& document) { exportPage(document); });
  add(menu, before, "exportAllAction", QT_TRANSLATE_NOOP("OutputMenu", "Export All Fetuses"), {},
      [this](NCDocument& document) { exportAll(document); });
  add(menu, before, "exportSettingsAction", QT_TRANSLATE_NOOP("OutputMenu", "Export Settings..."), {},
      [this](NCDocument&) { exportSettings(); });
  menu.insertSeparator(before);
  add(menu, before, "pageSetupAction", QT_TRANSLATE_NOOP("OutputMenu", "Page Setup..."), {},
      [this](NCDocument& document) { pageSetup(document); });
  add(menu, before, "printPreviewAction", QT_TRANSLATE_NOOP("OutputMenu", "Print Preview..."), {},
      [this](NCDocument& document) { printPreview(document); });
  add(menu, before, "printAction", QT_TRANSLATE_NOOP("OutputMenu", "Print..."),
      QKeySequence(QStringLiteral("Ctrl+P")),
      [](NCDocument& document) { document.printDocumentWithSettings({}, true, {}); });
  menu.insertSeparator(before);
}

void OutputMenu::add(QMenu& menu, QAction* before, const char* name, const char* text,
                     const QKeySequence& keys, const DocumentAction& action) {
  QString taken;
  for (const QAction* other : menu.actions()) taken += mnemonicOf(other->text());
  auto* item = new QAction(withMnemonic(said("OutputMenu", text), taken), &window_);
  item->setObjectName(QLatin1String(name));
  item->setShortcut(keys);
  connect(item, &QAction::triggered, this, [this, action] { environment_.perform(action); });
  menu.insertAction(before, item);
}

void OutputMenu::pageSetup(NCDocument& document) {
  QPrinter printer;
  printer.setPageLayout(layoutOf(document.printInfo()));
  // Where no printer is set up Qt warns that the paper is that of a file, which the dialog sets all the same.
  const QtMessageHandler handler =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  QPageSetupDialog dialog(&printer, &window_);
  qInstallMessageHandler(handler);
  if (dialog.exec() == QDialog::Accepted) setPaper(document, printer.pageLayout());
}

void OutputMenu::setPaper(NCDocument& document, const QPageLayout& layout) {
  document.setPrintInfo(printInfoOf(layout));
  rememberPaper(environment_.services.defaults, document.printInfo());
}

void OutputMenu::printPreview(NCDocument& document) {
  constexpr int kPrint = QDialog::Accepted + 1;
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageLayout(layoutOf(document.printInfo()));
  const QPageLayout before = printer.pageLayout();
  QPrintPreviewDialog dialog(&printer, &window_);
  dialog.resize(window_.size() * kPreviewOfWindow);
  connect(&dialog, &QPrintPreviewDialog::paintRequested, this, [this, &document](QPrinter* preview) {
    environment_.printer.paintInto(preview, [&] { document.printDocumentWithSettings({}, false, {}); });
  });
  constexpr const char* kPreviewTable = "QPrintPreviewDialog";  // Qt's own
  // The dialog's own printing writes into the file that the user names, and reports no full disk.
  for (QAction* item : dialog.findChildren<QAction*>()) {
    if (item->text() != QCoreApplication::translate(kPreviewTable, "Print")) continue;
    item->disconnect(&dialog);
    connect(item, &QAction::triggered, &dialog, [&dialog] { dialog.done(kPrint); });
  }
  const int answer = dialog.exec();
  if (printer.pageLayout() != before) setPaper(document, printer.pageLayout());
  if (answer == kPrint) document.printDocumentWithSettings({}, true, {});
}

void OutputMenu::exportPage(NCDocument& document) {
  const auto exported = document.onExported.subscribe([this](const std::string& path) {
    window_.statusBar()->showMessage(said("OutputMenu", "Exported to %1").arg(pathText(path)), kMessageTime);
  });
  document.doExport(&environment_.sender);
}

void OutputMenu::exportAll(NCDocument& document) {
  QProgressDialog progress(said("OutputMenu", "Exporting pages..."), said("OutputMenu", "Cancel"), 0, 0,
                           &window_);
  progress.setObjectName(QLatin1String(kProgressName));
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(0);
  progress.setAutoClose(false);
  int written = 0;
  std::string last;
  const auto exported = document.onExported.subscribe([&](const std::string& path) {
    ++written;
    last = path;
  });
  const auto now = [] {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
  };
  foundation::Progress rate(0, now());
  const auto sentences = document.autoExport([&](std::int64_t done, std::int64_t total) {
    rate.set(done, total, now());
    if (rate.isDue()) {
      progress.setLabelText(said("OutputMenu", "Exporting pages...") + u'\n' +
                            fromUtf8(rate.text(environment_.services.localizer)));
    }
    progress.setMaximum(static_cast<int>(total));
    progress.setValue(static_cast<int>(done));
    QCoreApplication::processEvents();
    return !progress.wasCanceled();
  });
  progress.close();
  if (written > 0) {
    const QString folder = pathText(last.substr(0, last.rfind('/') + 1));
    window_.statusBar()->showMessage(
        said("OutputMenu", "%1 pages were exported to %2").arg(QString::number(written), folder),
        kMessageTime);
  }
  if (sentences.empty()) return;
  constexpr std::size_t kMostShown = 3;
  std::string reasons;
  for (std::size_t i = 0; i < sentences.size() && i < kMostShown; ++i) reasons += sentences[i] + "\n";
  environment_.alerts.tell(
      toUtf8(said("OutputMenu", "%1 pages were not exported.").arg(QString::number(sentences.size()))),
      reasons + toUtf8(said("OutputMenu",
                            "Please make room in this folder, or choose another in Export Settings.")));
}

void OutputMenu::exportSettings() {
  foundation::UserDefaults& defaults = environment_.services.defaults;
  QDialog dialog(&window_);
  dialog.setObjectName(QStringLiteral("exportSettings"));
  dialog.setWindowTitle(said("OutputMenu", "Export Settings"));
  auto* form = new QFormLayout(&dialog);

  std::string folder = defaults.value(export_key::folder).value_or("");
  auto* folderLabel = new QLabel;
  folderLabel->setObjectName(QStringLiteral("exportFolder"));
  folderLabel->setTextFormat(Qt::PlainText);
  folderLabel->setMinimumWidth(dialog.fontMetrics().averageCharWidth() * 40);
  folderLabel->setWordWrap(true);
  const auto showFolder = [&] {
    folderLabel->setText(folder.empty() ? said("OutputMenu", "Asked for at the first export")
                                        : pathText(folder));
  };
  showFolder();
  auto* choose = new QPushButton(said("OutputMenu", "&Choose..."));
  choose->setObjectName(QStringLiteral("chooseExportFolder"));
  connect(choose, &QPushButton::clicked, &dialog, [&] {
    if (const auto chosen = environment_.panels.chooseFolder()) folder = *chosen;
    showFolder();
  });
  auto* row = new QHBoxLayout;
  row->addWidget(folderLabel, 1);
  row->addWidget(choose);
  form->addRow(said("OutputMenu", "Folder:"), row);

  auto* formats = new QComboBox;
  formats->setObjectName(QStringLiteral("exportFormat"));
  const auto format = framework::pageFormatNamed(defaults.value(export_key::format).value_or(""))
                          .value_or(framework::PageFormat::pdf);
  for (const auto& [each, title] :
       {std::pair(framework::PageFormat::pdf, said("OutputMenu", "PDF, for print and archive")),
        std::pair(framework::PageFormat::png, said("OutputMenu", "PNG, a picture")),
        std::pair(framework::PageFormat::svg, said("OutputMenu", "SVG, a drawing"))}) {
    formats->addItem(title, fromUtf8(framework::extensionOf(each)));
    if (each == format) formats->setCurrentIndex(formats->count() - 1);
  }
  form->addRow(said("OutputMenu", "&Format:"), formats);

  auto* foot = new QCheckBox(said("OutputMenu", "&Patient, standards and date under each page"));
  foot->setObjectName(QStringLiteral("exportFoot"));
  foot->setChecked(!defaults.value(export_key::pageFoot) ||
                   foundation::boolForKey(defaults, export_key::pageFoot));
  form->addRow(QString(), foot);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  form->addRow(buttons);
  if (dialog.exec() != QDialog::Accepted) return;
  if (!folder.empty()) defaults.setValue(export_key::folder, folder);
  defaults.setValue(export_key::format, toUtf8(formats->currentData().toString()));
  defaults.setValue(export_key::pageFoot, foot->isChecked() ? "true" : "false");
}

}  // namespace nascor::qt
