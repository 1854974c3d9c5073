// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/ServerMenu.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "exchange/DecimalText.h"
#include "exchange/OutgoingExamination.h"
#include "foundation/Localizer.h"
#include "foundation/Utf8.h"
#include "window/ServerSettings.h"
#include "window/TableLook.h"

namespace nascor::qt {

using app::NCDocument;
using exchange::ReportPlace;
using foundation::Sentence;

namespace {

constexpr int kMessageTime = 10'000;  // ms

}  // namespace

ServerMenu::ServerMenu(QMainWindow& window, QMenu& menu, ServerEnvironment environment)
    : QObject(&window), window_(window), environment_(std::move(environment)) {
  QAction* fetching = add(menu, "fetchReportsAction", said("ServerMenu", "&Fetch Reports..."),
                          [this](NCDocument& document) { fetch(document); });
  QAction* sending = add(menu, "sendExaminationAction", said("ServerMenu", "&Send This Examination..."),
                         [this](NCDocument& document) { send(document); });
  add(menu, "serverSettingsAction", said("ServerMenu", "Server S&ettings..."),
      [this](NCDocument&) { editSettings(); });
  connect(&menu, &QMenu::aboutToShow, this, [this, fetching, sending] {
    const bool isSetUp = preferredServer(environment_.services.defaults).has_value();
    fetching->setEnabled(isSetUp);
    sending->setEnabled(isSetUp);
  });
}

QAction* ServerMenu::add(QMenu& menu, const char* name, const QString& text, const DocumentAction& action) {
  auto* item = new QAction(text, &window_);
  item->setObjectName(QLatin1String(name));
  connect(item, &QAction::triggered, this, [this, action] { environment_.perform(action); });
  menu.addAction(item);
  return item;
}

std::string ServerMenu::inWords(const Sentence& sentence) const {
  return said(sentence, environment_.services.localizer);
}

std::string ServerMenu::inLines(const std::vector<Sentence>& sentences) const {
  std::string lines;
  for (const Sentence& each : sentences) {
    if (!lines.empty()) lines += '\n';
    lines += foundation::shownLine(inWords(each));
  }
  return lines;
}

std::optional<exchange::ServerAddress> ServerMenu::address() {
  auto address = preferredServer(environment_.services.defaults);
  if (!address) {
    environment_.alerts.tell(
        toUtf8(said("ServerMenu", "There is no server.")),
        toUtf8(said("ServerMenu", "Please name one in File > Report Folder and Server > Server Settings.")));
  }
  return address;
}

template <class Result>
std::optional<Result> ServerMenu::ask(
    const QString& what, const std::string& failure,
    std::function<std::variant<Result, Sentence>(exchange::ReportServer&)> question) {
  const auto found = environment_.server();
  if (const auto* why = std::get_if<Sentence>(&found)) {
    environment_.alerts.tell(failure, inWords(*why));
    return std::nullopt;
  }
  // The work outlives this call where the user does not wait for it.
  auto answer = std::make_shared<std::variant<Result, Sentence>>();
  exchange::ReportServer* server = std::get<exchange::ReportServer*>(found);
  const bool isAnswered = environment_.task.run(
      window_, what, [answer, server, question = std::move(question)] { *answer = question(*server); });
  if (!isAnswered) return std::nullopt;
  if (const auto* why = std::get_if<Sentence>(answer.get())) {
    environment_.alerts.tell(failure, inWords(*why));
    return std::nullopt;
  }
  return std::move(std::get<Result>(*answer));
}

void ServerMenu::fetch(NCDocument& document) {
  const auto server = address();
  if (!server) return;
  const std::string failure = toUtf8(said("ServerMenu", "The reports cannot be fetched."));
  bool isWanted = false;
  const QString id = QInputDialog::getText(
      &window_, said("ServerMenu", "Fetch Reports"),
      said("ServerMenu", "Reference ID of the patient on %1:").arg(serverName(*server)), QLineEdit::Normal,
      document.patientRecord() ? fromUtf8(document.patientRecord()->maternalIDString().value_or("")).trimmed()
                               : QString(),
      &isWanted);
  if (!isWanted || id.trimmed().isEmpty()) return;
  const exchange::ReportQuery query{.patientID = toUtf8(id.trimmed())};

  const auto found = ask<exchange::FoundReports>(
      said("ServerMenu", "Asking %1...").arg(serverName(*server)), failure,
      [server = *server, query](exchange::ReportServer& asked) { return asked.find(server, query); });
  if (!found) return;
  if (found->places.empty()) {
    environment_.alerts.tell(
        failure, toUtf8(said("ServerMenu", "The server has no report of the patient %1.").arg(id.trimmed())));
    return;
  }
  const std::vector<ReportPlace> chosen = choose(found->places, found->warnings);
  std::vector<std::vector<std::byte>> files;
  std::vector<std::string> studies;
  for (const ReportPlace& place : chosen) {
    if (std::ranges::find(studies, place.study) != studies.end()) continue;
    studies.push_back(place.study);
    exchange::ReportQuery one = query;
    one.study = place.study;
    auto fetched = ask<exchange::FetchedReports>(
        said("ServerMenu", "Fetching from %1...").arg(serverName(*server)), failure,
        [server = *server, one](exchange::ReportServer& asked) { return asked.fetch(server, one); });
    if (!fetched) return;
    for (exchange::FetchedReport& report : fetched->reports) {
      const bool isChosen =
          std::ranges::find(chosen, report.place.instance, &ReportPlace::instance) != chosen.end();
      if (isChosen) files.push_back(std::move(report.file));
    }
    if (!fetched->warnings.empty())
      environment_.alerts.tell(toUtf8(said("ServerMenu", "Not all reports were fetched.")),
                               inLines(fetched->warnings));
  }
  if (!files.empty()) environment_.import(std::move(files), document);
}

std::vector<ReportPlace> ServerMenu::choose(const std::vector<ReportPlace>& places,
                                            const std::vector<Sentence>& warnings) {
  QDialog dialog(&window_);
  dialog.setObjectName(QStringLiteral("fetchDialog"));
  dialog.setWindowTitle(said("ServerMenu", "Fetch Reports"));
  auto* layout = new QVBoxLayout(&dialog);
  std::vector<ReportPlace> newestFirst = places;
  std::ranges::stable_sort(newestFirst, std::ranges::greater{}, &ReportPlace::studyDate);
  auto* table = new QTableWidget(static_cast<int>(newestFirst.size()), 3);
  table->setObjectName(QStringLiteral("fetchTable"));
  table->setHorizontalHeaderLabels(
      {said("ServerMenu", "Examination"), said("ServerMenu", "Reference ID"), said("ServerMenu", "Report")});
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  dressTable(*table);
  for (int row = 0; row < table->rowCount(); ++row) {
    const ReportPlace& place = newestFirst[static_cast<std::size_t>(row)];
    const auto day = exchange::dayFromDigits(place.studyDate);
    const std::string when = day ? environment_.services.localizer.longDateText(*day) : place.studyDate;
    table->setItem(row, 0, new QTableWidgetItem(fromUtf8(foundation::shownLine(when))));
    table->setItem(row, 1, new QTableWidgetItem(fromUtf8(foundation::shownLine(place.patientID))));
    table->setItem(row, 2, new QTableWidgetItem(fromUtf8(foundation::shownLine(place.instance))));
  }
  table->resizeColumnsToContents();
  table->selectRow(0);
  layout->addWidget(table);
  if (!warnings.empty()) {
    auto* label = new QLabel(fromUtf8(inLines(warnings)));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    layout->addWidget(label);
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  connect(table, &QTableWidget::itemSelectionChanged, &dialog, [table, buttons] {
    buttons->button(QDialogButtonBox::Ok)->setEnabled(table->selectionModel()->hasSelection());
  });
  layout->addWidget(buttons);
  const QFontMetrics metrics = dialog.fontMetrics();
  dialog.resize(metrics.averageCharWidth() * 90, metrics.lineSpacing() * 20);
  table->setFocus();
  if (dialog.exec() != QDialog::Accepted) return {};
  std::vector<ReportPlace> chosen;
  for (int row = 0; row < table->rowCount(); ++row) {
    if (table->selectionModel()->isRowSelected(row))
      chosen.push_back(newestFirst[static_cast<std::size_t>(row)]);
  }
  return chosen;
}

void ServerMenu::send(NCDocument& document) {
  const auto server = address();
  if (!server || !document.patientRecord()) return;
  const std::string failure = toUtf8(said("ServerMenu", "The examination was not sent."));
  const auto all = exchange::outgoingExaminations(*document.patientRecord(), environment_.services.calendar);
  const auto shown = std::ranges::find(all, static_cast<std::size_t>(document.currentExam()),
                                       &exchange::OutgoingExamination::place);
  if (shown == all.end()) return;
  const auto files = environment_.reportFiles();
  if (const auto* why = std::get_if<Sentence>(&files))
    return environment_.alerts.tell(failure, inWords(*why));
  const auto written = std::get<exchange::ReportFiles*>(files)->write(exchange::reportOf(*shown));
  if (const auto* why = std::get_if<Sentence>(&written))
    return environment_.alerts.tell(failure, inWords(*why));

  const foundation::Localizer& localizer = environment_.services.localizer;
  const QString day =
      shown->day ? fromUtf8(localizer.longDateText(*shown->day)) : said("ServerMenu", "without a date");
  QString information = said("ServerMenu", "Patient %1, examination %2, to %3.")
                            .arg(fromUtf8(foundation::shownLine(shown->patientID)), day, serverName(*server));
  if (!server->tls) information += u'\n' + said("ServerMenu", "The connection is not encrypted.");
  if (!shown->warnings.empty()) information += u'\n' + fromUtf8(inLines(shown->warnings));
  if (environment_.alerts.runModal(
          {.message = toUtf8(said("ServerMenu", "Send this examination to the server?")),
           .information = toUtf8(information),
           .defaultButton = toUtf8(said("ServerMenu", "Send")),
           .alternateButton = localizer.text("ZuVersion", "Cancel")}) !=
      framework::AlertReturn::defaultButton)
    return;
  const auto sent = ask<bool>(said("ServerMenu", "Sending to %1...").arg(serverName(*server)), failure,
                              [server = *server, bytes = std::get<std::vector<std::byte>>(written)](
                                  exchange::ReportServer& asked) -> std::variant<bool, Sentence> {
                                if (const auto fault = asked.send(server, bytes)) return fault->sentence;
                                return true;
                              });
  if (sent) {
    window_.statusBar()->showMessage(said("ServerMenu", "Sent to %1").arg(serverName(*server)), kMessageTime);
  }
}

void ServerMenu::editSettings() {
  askForServer(
      window_, environment_.services.defaults, environment_.services.localizer,
      [this](const exchange::ServerAddress& address) -> std::optional<QString> {
        const auto found = environment_.server();
        if (const auto* why = std::get_if<Sentence>(&found)) return fromUtf8(inWords(*why));
        auto answer = std::make_shared<std::optional<Sentence>>();
        exchange::ReportServer* server = std::get<exchange::ReportServer*>(found);
        const bool isAnswered =
            environment_.task.run(window_, said("ServerMenu", "Asking %1...").arg(serverName(address)),
                                  [answer, server, address] { *answer = server->echo(address); });
        if (!isAnswered) return said("ServerMenu", "The answer was not waited for.");
        return *answer ? std::optional(fromUtf8(foundation::shownLine(inWords(**answer)))) : std::nullopt;
      });
}

}  // namespace nascor::qt
