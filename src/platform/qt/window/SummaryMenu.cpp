// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/SummaryMenu.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFormLayout>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <algorithm>
#include <utility>
#include <variant>

#include "base/Mnemonics.h"
#include "base/Text.h"
#include "foundation/UserDefaults.h"
#include "window/SaveQuestion.h"

namespace nascor::qt {

using app::NCDocument;

namespace {

constexpr int kMessageTime = 10'000;  // ms
/// More is not seen on paper, and a page in memory grows with its square.
constexpr int kMostDotsPerInch = 300;

/// Paints each page as large as the paper.
bool paint(const std::vector<summary::Picture>& pages, QPrinter& printer) {
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  bool isFirst = true;
  for (const summary::Picture& page : pages) {
    if (!isFirst && !printer.newPage()) return false;
    isFirst = false;
    const QImage image(reinterpret_cast<const uchar*>(page.bytes.data()), page.width, page.height,
                       page.bytesPerRow, QImage::Format_RGB32);
    painter.drawImage(QRectF(painter.viewport()), image);
  }
  return painter.end();
}

}  // namespace

SummaryMenu::SummaryMenu(QMainWindow& window, QMenu& menu, QAction* before, SummaryEnvironment environment)
    : QObject(&window), window_(window), environment_(std::move(environment)) {
  add(menu, before, "exportSummaryAction", QT_TRANSLATE_NOOP("SummaryMenu", "Export Summary..."),
      [this](NCDocument& document) { exportSummary(document); });
  add(menu, before, "printSummaryAction", QT_TRANSLATE_NOOP("SummaryMenu", "Print Summary..."),
      [this](NCDocument& document) { printSummary(document); });
  add(menu, before, "summaryDetailsAction", QT_TRANSLATE_NOOP("SummaryMenu", "Summary Details..."),
      [this](NCDocument&) { editDetails(); });
  menu.insertSeparator(before);
}

void SummaryMenu::add(QMenu& menu, QAction* before, const char* name, const char* text,
                      const DocumentAction& action) {
  QString taken;
  for (const QAction* other : menu.actions()) taken += mnemonicOf(other->text());
  auto* item = new QAction(withMnemonic(said("SummaryMenu", text), taken), &window_);
  item->setObjectName(QLatin1String(name));
  connect(item, &QAction::triggered, this, [this, action] { environment_.perform(action); });
  menu.insertAction(before, item);
}

void SummaryMenu::exportSummary(NCDocument& document) {
  const auto path =
      fileToWrite(window_, said("SummaryMenu", "Export Summary"),
                  {{.filter = said("SummaryMenu", "PDF (*.pdf)"), .suffix = QStringLiteral("pdf")},
                   {.filter = said("SummaryMenu", "HTML (*.html)"), .suffix = QStringLiteral("html")}},
                  environment_.services.files.documentsFolder(), document.summaryFileName(""));
  if (!path) return;
  if (const auto sentence =
          document.exportSummary(QFile::encodeName(*path).toStdString(), environment_.typesetter)) {
    environment_.alerts.tell(toUtf8(said("SummaryMenu", "The summary was not exported.")), *sentence);
    return;
  }
  window_.statusBar()->showMessage(said("SummaryMenu", "Exported to %1").arg(*path), kMessageTime);
}

void SummaryMenu::printSummary(NCDocument& document) {
  const auto summary = document.patientSummary();
  if (!summary) return;
  framework::PrintInfo paper = document.printInfo();
  paper.isLandscape = false;
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageLayout(layoutOf(paper));
  printer.setFullPage(true);
  printer.setDocName(fromUtf8(document.summaryFileName("")));
  if (!environment_.printer.ask(printer)) return;
  if (const auto sentence = printInto(printer, *summary))
    environment_.alerts.tell(toUtf8(said("SummaryMenu", "The summary was not printed.")), *sentence);
}

std::optional<std::string> SummaryMenu::printInto(QPrinter& printer, const summary::Summary& summary) {
  const auto typesetter = environment_.typesetter();
  if (const auto* why = std::get_if<foundation::Sentence>(&typesetter))
    return said(*why, environment_.services.localizer);
  summary::Typesetter& setter = *std::get<summary::Typesetter*>(typesetter);
  const QSizeF size = printer.pageLayout().fullRect(QPageLayout::Point).size();
  const summary::Paper paper{.width = size.width(), .height = size.height()};
  if (printer.outputFormat() == QPrinter::PdfFormat) {
    const QString file = printer.outputFileName();
    if (file.isEmpty()) {
      return toUtf8(
          said("SummaryMenu", "There is no printer. Please choose a file to print into in the print panel."));
    }
    const auto bytes = setter.pdf(summary, paper);
    if (const auto* why = std::get_if<std::string>(&bytes)) return *why;
    const std::string path = QFile::encodeName(file).toStdString();
    if (const auto error =
            environment_.services.files.replaceContents(path, std::get<std::vector<std::byte>>(bytes)))
      return foundation::sentenceAbout(path, *error);
    return std::nullopt;
  }
  const auto pages = setter.pictures(summary, paper, std::min(printer.resolution(), kMostDotsPerInch));
  if (const auto* why = std::get_if<std::string>(&pages)) return *why;
  if (paint(std::get<std::vector<summary::Picture>>(pages), printer)) return std::nullopt;
  return toUtf8(said("SummaryMenu", "The printer %1 does not answer. Please look after it or choose another.")
                    .arg(printer.printerName()));
}

void SummaryMenu::editDetails() {
  foundation::UserDefaults& defaults = environment_.services.defaults;
  QDialog dialog(&window_);
  dialog.setObjectName(QStringLiteral("summaryDetails"));
  dialog.setWindowTitle(said("SummaryMenu", "Summary Details"));
  auto* form = new QFormLayout(&dialog);
  const QFontMetrics metrics = dialog.fontMetrics();

  auto* letterhead = new QPlainTextEdit(fromUtf8(defaults.value(summary::kLetterheadKey).value_or("")));
  letterhead->setObjectName(QStringLiteral("summaryLetterhead"));
  letterhead->setTabChangesFocus(true);
  letterhead->setMinimumWidth(metrics.averageCharWidth() * 50);
  letterhead->setMinimumHeight(metrics.lineSpacing() * 5);
  form->addRow(said("SummaryMenu", "&Letterhead:"), letterhead);
  auto* examiner = new QLineEdit(fromUtf8(defaults.value(summary::kExaminerKey).value_or("")));
  examiner->setObjectName(QStringLiteral("summaryExaminer"));
  form->addRow(said("SummaryMenu", "&Examiner:"), examiner);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  form->addRow(buttons);
  if (dialog.exec() != QDialog::Accepted) return;
  defaults.setValue(summary::kLetterheadKey, toUtf8(letterhead->toPlainText()));
  defaults.setValue(summary::kExaminerKey, toUtf8(examiner->text()));
}

}  // namespace nascor::qt
