// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/WaitingReports.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/Text.h"

namespace nascor::qt {

namespace {

/// More would not fit a screen; the others follow when these are done.
constexpr std::size_t kMostInMenu = 20;

/// The button and what it follows.
class Button final : public QToolButton {
 public:
  explicit Button(WaitingReports& reports) : reports_(reports) {
    setObjectName(QStringLiteral("waitingReports"));
    setPopupMode(QToolButton::InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    setMenu(&menu_);
    QObject::connect(&menu_, &QMenu::aboutToShow, this, [this] { fillMenu(); });
    subscription_ = reports.onChange.subscribe([this] { refresh(); });
    refresh();
  }

 private:
  void refresh() {
    const std::size_t count = reports_.reports().size();
    setVisible(count > 0);
    setText(count == 1 ? said("WaitingReports", "1 report has come")
                       : said("WaitingReports", "%1 reports have come").arg(count));
  }
  void fillMenu() {
    menu_.clear();
    for (std::size_t i = 0; i < std::min(reports_.reports().size(), kMostInMenu); ++i) {
      const auto& report = reports_.reports()[i];
      QAction* item = menu_.addAction(QString(report.text).replace(u'&', QStringLiteral("&&")));
      QObject::connect(item, &QAction::triggered, this,
                       [this, path = report.path] { reports_.import(path); });
    }
    menu_.addSeparator();
    QAction* aside = menu_.addAction(said("WaitingReports", "Set All &Aside"));
    aside->setObjectName(QStringLiteral("setReportsAsideAction"));
    QObject::connect(aside, &QAction::triggered, this, [this] { reports_.setAside(); });
  }

  WaitingReports& reports_;
  QMenu menu_;
  foundation::Subscription subscription_;
};

}  // namespace

void showWaitingReports(QMainWindow& window, WaitingReports& reports) {
  window.statusBar()->addPermanentWidget(new Button(reports));
}

void askForReportFolder(QWidget& window, WaitingReports& reports) {
  QDialog dialog(&window);
  dialog.setObjectName(QStringLiteral("reportFolderDialog"));
  dialog.setWindowTitle(said("WaitingReports", "Report Folder"));
  auto* layout = new QVBoxLayout(&dialog);
  QString folder = reports.folder();

  auto* isWatched =
      new QCheckBox(said("WaitingReports", "&Offer reports that ultrasound machines put here:"));
  isWatched->setObjectName(QStringLiteral("watchReportFolder"));
  isWatched->setChecked(!folder.isEmpty());
  layout->addWidget(isWatched);
  auto* label = new QLabel;
  label->setObjectName(QStringLiteral("reportFolder"));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setMinimumWidth(dialog.fontMetrics().averageCharWidth() * 40);
  auto* choose = new QPushButton(said("WaitingReports", "&Choose..."));
  choose->setObjectName(QStringLiteral("chooseReportFolder"));
  auto* row = new QHBoxLayout;
  row->addWidget(label, 1);
  row->addWidget(choose);
  layout->addLayout(row);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  const auto show = [&] {
    label->setText(folder.isEmpty() ? said("WaitingReports", "No folder was chosen")
                                    : QDir::toNativeSeparators(folder));
    buttons->button(QDialogButtonBox::Ok)->setEnabled(!isWatched->isChecked() || !folder.isEmpty());
  };
  QObject::connect(isWatched, &QCheckBox::toggled, &dialog, show);
  QObject::connect(choose, &QPushButton::clicked, &dialog, [&] {
    const QString chosen =
        QFileDialog::getExistingDirectory(&dialog, said("WaitingReports", "Report Folder"), folder);
    if (chosen.isEmpty()) return;
    folder = chosen;
    isWatched->setChecked(true);
    show();
  });
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  layout->addWidget(buttons);
  show();
  if (dialog.exec() == QDialog::Accepted) reports.setFolder(isWatched->isChecked() ? folder : QString());
}

}  // namespace nascor::qt
