// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>
#include <QMenu>
#include <QObject>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "app/NCDocument.h"
#include "exchange/ReportServer.h"
#include "exchange/StructuredReport.h"
#include "foundation/Sentence.h"
#include "foundation/Services.h"
#include "framework/Alerts.h"
#include "window/Perform.h"
#include "window/ServerTask.h"

namespace nascor::qt {

/// What the items of the server ask of their window.
struct ServerEnvironment {
  foundation::Services services;
  framework::Alerts& alerts;
  Perform perform;
  ServerTask& task;
  /// What speaks to servers, and what reads and writes reports; or why there is nothing that does.
  std::function<std::variant<exchange::ReportServer*, foundation::Sentence>()> server;
  std::function<std::variant<exchange::ReportFiles*, foundation::Sentence>()> reportFiles;
  /// Shows reports before they are stored in the document: the bytes of their files.
  std::function<void(std::vector<std::vector<std::byte>>, app::NCDocument&)> import;
};

/// The items that fetch reports from a server and send them there, once one was set up.
class ServerMenu final : public QObject {
 public:
  /// Adds its items to `menu`. They belong to `window`.
  ServerMenu(QMainWindow& window, QMenu& menu, ServerEnvironment environment);

 private:
  QAction* add(QMenu& menu, const char* name, const QString& text, const DocumentAction& action);
  void fetch(app::NCDocument& document);
  void send(app::NCDocument& document);
  void editSettings();
  /// The server that was set up; nothing where there is none, which the user is told.
  std::optional<exchange::ServerAddress> address();
  /// Asks the server; nothing when the user does not wait, and after a failure, which the user is told.
  template <class Result>
  std::optional<Result> ask(
      const QString& what, const std::string& failure,
      std::function<std::variant<Result, foundation::Sentence>(exchange::ReportServer&)> question);
  /// A sentence, or several a line each, in the user's language.
  std::string inWords(const foundation::Sentence& sentence) const;
  std::string inLines(const std::vector<foundation::Sentence>& sentences) const;
  /// Which of them; empty for none.
  std::vector<exchange::ReportPlace> choose(const std::vector<exchange::ReportPlace>& places,
                                            const std::vector<foundation::Sentence>& warnings);

  QMainWindow& window_;
  ServerEnvironment environment_;
};

}  // namespace nascor::qt
