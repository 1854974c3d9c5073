// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/QtAlerts.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTextDocument>
#include <algorithm>

#include "base/Mnemonics.h"
#include "base/Text.h"
#include "foundation/Utf8.h"
#include "window/TypedAhead.h"

namespace nascor::qt {

using framework::Alert;
using framework::AlertReturn;

namespace {

const QString kSheetName = QStringLiteral("sheet");

/// The lines of a text. A name in one of them, of a file or a patient, gives it no other direction.
QString linesOf(const std::string& text) {
  // More than fits on any screen. No sentence of the program is as long, but a name in it may be.
  constexpr int kMostLines = 40;
  QStringList lines;
  std::string_view left = text;
  while (lines.size() < kMostLines) {
    const std::size_t end = left.find('\n');
    lines << fromUtf8(foundation::shownLine(left.substr(0, end)));
    if (end == std::string_view::npos) return lines.join(u'\n');
    left.remove_prefix(end + 1);
  }
  lines << fromUtf8(foundation::kCutSign);
  return lines.join(u'\n');
}

void setUp(QMessageBox& box, const std::string& message, const std::string& information) {
  box.setWindowTitle(QCoreApplication::applicationName());
  box.setTextFormat(Qt::PlainText);
  box.setText(linesOf(message));
  // Its format is not that of the text above: it would take what a file says for HTML.
  const QString plain = linesOf(information);
  box.setInformativeText(Qt::mightBeRichText(plain) ? Qt::convertFromPlainText(plain) : plain);
}

/// A button that a letter of its own presses too.
QPushButton* addButton(QMessageBox& box, const std::string& text, QMessageBox::ButtonRole role) {
  QString taken;
  for (const QAbstractButton* other : box.buttons()) taken += mnemonicOf(other->text());
  return box.addButton(withMnemonic(fromUtf8(text), taken), role);
}

void setUp(QMessageBox& box, const Alert& alert) {
  const bool hasBoth = !alert.information.empty() && !alert.addition.empty();
  setUp(box, alert.message, alert.information + (hasBoth ? "\n" : "") + alert.addition);
  box.setIcon(QMessageBox::Question);
  QPushButton* agree = addButton(box, alert.defaultButton, QMessageBox::AcceptRole);
  QPushButton* cancel = addButton(box, alert.alternateButton, QMessageBox::RejectRole);
  box.setDefaultButton(alert.isCancelledByReturn ? cancel : agree);
  box.setEscapeButton(cancel);
}

AlertReturn answerOf(const QMessageBox& box) {
  return box.clickedButton() && box.buttonRole(box.clickedButton()) == QMessageBox::AcceptRole
             ? AlertReturn::defaultButton
             : AlertReturn::alternate;
}

}  // namespace

void QtAlerts::exec(QMessageBox& box) const {
  onQuestion();
  box.exec();
}

AlertReturn QtAlerts::runModal(const Alert& alert) {
  QMessageBox box(parent());
  setUp(box, alert);
  if (!alert.interruptsTyping) {
    exec(box);
    return answerOf(box);
  }
  TypedAhead ahead(box);
  exec(box);
  const AlertReturn answer = answerOf(box);
  if (answer == AlertReturn::defaultButton) ahead.handOver();
  return answer;
}

void QtAlerts::beginSheet(const Alert& alert, std::function<void(AlertReturn)> didEnd) {
  QWidget* window = alert.window && windowOfPanel ? windowOfPanel(*alert.window) : nullptr;
  auto* box = new QMessageBox(window ? window : parent());
  box->setObjectName(kSheetName);
  box->setAttribute(Qt::WA_DeleteOnClose);
  setUp(*box, alert);
  // Without the window the box goes unanswered, and so does the question.
  QObject::connect(box, &QDialog::finished, box, [this, box, didEnd = std::move(didEnd)] {
    actions_.performInTurn([didEnd, answer = answerOf(*box)] { didEnd(answer); });
  });
  box->open();
}

std::size_t QtAlerts::chooseOne(const std::string& message, const std::string& information,
                                const std::vector<std::string>& buttons) {
  QMessageBox box(parent());
  setUp(box, message, information);
  box.setIcon(QMessageBox::Question);
  std::vector<QPushButton*> added;
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    const bool isFirst = i == 0;
    const bool isLast = i + 1 == buttons.size();
    added.push_back(addButton(box, buttons[i],
                              isFirst  ? QMessageBox::AcceptRole
                              : isLast ? QMessageBox::RejectRole
                                       : QMessageBox::DestructiveRole));
  }
  if (added.empty()) return 0;
  box.setDefaultButton(added.front());
  box.setEscapeButton(added.back());
  exec(box);
  for (std::size_t i = 0; i < added.size(); ++i) {
    if (box.clickedButton() == added[i]) return i;
  }
  return added.size() - 1;
}

void QtAlerts::tell(const std::string& message, const std::string& information) {
  tellDetails(message, information, {});
}

void QtAlerts::tellDetails(const std::string& message, const std::string& information,
                           const std::string& details) {
  QMessageBox box(parent());
  setUp(box, message, information);
  box.setIcon(QMessageBox::Warning);
  box.addButton(QMessageBox::Ok);
  if (!details.empty()) box.setDetailedText(linesOf(details));
  exec(box);
}

bool hasSheet(const QWidget& window) {
  return std::ranges::any_of(window.findChildren<QMessageBox*>(kSheetName),
                             [](const QMessageBox* box) { return box->isVisible(); });
}

void dropSheets(const QWidget& window) {
  for (QMessageBox* box : window.findChildren<QMessageBox*>(kSheetName)) {
    box->disconnect();
    box->hide();
    box->deleteLater();
  }
}

}  // namespace nascor::qt
