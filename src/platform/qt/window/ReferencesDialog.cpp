// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/ReferencesDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "base/Text.h"
#include "calc/Publications.h"
#include "calc/Standards.h"
#include "foundation/NumberText.h"
#include "selftest/Evidence.h"
#include "selftest/SelfTest.h"

namespace nascor::qt {

using calc::Confirmation;
using calc::Method;
using calc::Publication;
using foundation::translatable;

namespace {

QString escaped(std::string_view text) { return fromUtf8(text).toHtmlEscaped(); }

QString paragraph(const Publication& publication, const foundation::Localizer& localizer,
                  const QString& end = {}) {
  QString text =
      QStringLiteral("<p><b>%1</b><br>%2.").arg(escaped(publication.label), escaped(publication.citation));
  QStringList remarks;
  if (publication.confirmation == Confirmation::partlySeen)
    remarks << said("References", "Citation partly confirmed.");
  if (publication.confirmation == Confirmation::awaited)
    remarks << said("References", "Citation to be confirmed.");
  if (!publication.remark.empty()) remarks << fromUtf8(localizer.text("References", publication.remark));
  if (!remarks.isEmpty()) {
    text += QStringLiteral("<br><i>");
    text += remarks.join(u' ').toHtmlEscaped();
    text += QStringLiteral("</i>");
  }
  return text + end + QStringLiteral("</p>");
}

// A link names its method by the number of its kind and its place.

QString linkTo(const Method& method) {
  return QStringLiteral("<br><a href=\"%1/%2\">%3</a>")
      .arg(QString::number(static_cast<int>(method.kind)), QString::number(method.place),
           said("References", "Formula and checked values").toHtmlEscaped());
}

std::optional<Method> methodOf(const QUrl& link) {
  const QStringList parts = link.toString().split(u'/');
  if (parts.size() != 2) return std::nullopt;
  return Method{.kind = static_cast<Method::Kind>(parts[0].toInt()),
                .place = static_cast<std::size_t>(parts[1].toULongLong())};
}

QString heading(const QString& text) { return QStringLiteral("<h3>%1</h3>").arg(text.toHtmlEscaped()); }

/// All digits, with the user's decimal sign.
QString numberText(double value, const foundation::Localizer& localizer) {
  return fromUtf8(foundation::shortestText(value)).replace(u'.', QLatin1Char(localizer.decimalSign()));
}

QString equationsText(const selftest::Evidence& evidence, const foundation::Localizer& localizer) {
  QString text;
  for (const auto& [gives, equation] : evidence.equations)
    text += QStringLiteral("<p><code>%1 = %2</code></p>").arg(escaped(gives), escaped(equation));
  if (!text.isEmpty()) {
    text +=
        QStringLiteral("<p>%1</p>")
            .arg(
                said(
                    "References",
                    "Lengths in mm, weights in g; w is the age in weeks, d in days, g in tens of weeks. What "
                    "stands side by side is multiplied.")
                    .toHtmlEscaped());
  }
  if (evidence.rows.empty()) return text;
  text += QStringLiteral("<table cellpadding=\"2\"><tr><th>%1</th><th>%2</th><th>%3</th></tr>")
              .arg(said("References", "Week"), said("References", "Mean"), said("References", "SD"));
  for (const auto& [week, mean, sd] : evidence.rows) {
    text += QStringLiteral(
                "<tr><td align=\"right\">%1</td><td align=\"right\">%2</td><td align=\"right\">%3</td></tr>")
                .arg(QString::number(week), numberText(mean, localizer), numberText(sd, localizer));
  }
  return text + QStringLiteral("</table>");
}

/// The examples, each with what was printed or worked out elsewhere and what the program answers.
QString examplesText(const std::vector<selftest::Example>& examples, const foundation::Localizer& localizer) {
  if (examples.empty()) return {};
  const auto differing = static_cast<int>(
      std::ranges::count_if(examples, [](const auto& example) { return !selftest::agrees(example); }));
  const QString verdict =
      differing == 0 ? said("References", "%1 values. The program answers each of them alike.")
                     : said("References", "%1 values, of which %2 differ from what the program answers now.");
  QString text = QStringLiteral("<p>%1</p>")
                     .arg(verdict.arg(QString::number(examples.size()), QString::number(differing)));
  text += QStringLiteral("<table cellpadding=\"2\"><tr>");
  for (const QString& title : {said("References", "Example"), said("References", "Expected"),
                               said("References", "Program"), said("References", "Source")})
    text += QStringLiteral("<th align=\"left\">%1</th>").arg(title.toHtmlEscaped());
  text += QStringLiteral("</tr>");
  for (const selftest::Example& example : examples) {
    text +=
        QStringLiteral(
            "<tr><td>%1</td><td align=\"right\"><nobr>%2</nobr></td><td align=\"right\"><nobr>%3</nobr></td>"
            "<td>%4</td></tr>")
            .arg(escaped(selftest::questionText(example, localizer)), numberText(example.expected, localizer),
                 numberText(selftest::answerTo(example), localizer),
                 escaped(localizer.text("References", example.source)));
  }
  return text + QStringLiteral("</table>");
}

/// Those beside the growth standards.
std::vector<Publication> furtherReferences() {
  std::vector<Publication> publications = calc::referencePublications();
  publications.erase(publications.begin(),
                     publications.begin() + static_cast<std::ptrdiff_t>(calc::growthStandards().size()));
  return publications;
}

}  // namespace

QString referencesText(const foundation::Localizer& localizer) {
  struct Family {
    std::string_view title;
    std::vector<Publication> publications;
    std::string_view remark;
    Method first;
  };
  QString text;
  for (const Family& family :
       {Family{translatable("NCAppController", "Standards"),
               calc::growthStandardPublications(),
               {},
               {.kind = Method::Kind::reference}},
        Family{translatable("NCAppController", "Estimated Fetal Weight"),
               calc::weightFormulaPublications(),
               calc::weightBandRemark(),
               {.kind = Method::Kind::weightFormula}},
        Family{translatable("NCAppController", "Crown Rump Length"),
               calc::crlFormulaPublications(),
               {},
               {.kind = Method::Kind::crlFormula}},
        Family{translatable("NCAppController", "Further References"),
               furtherReferences(),
               {},
               {.kind = Method::Kind::reference, .place = calc::growthStandards().size()}}}) {
    text += QStringLiteral("<h2>%1</h2>")
                .arg(fromUtf8(localizer.text("NCAppController", family.title)).toHtmlEscaped());
    if (!family.remark.empty()) {
      text += QStringLiteral("<p>%1</p>")
                  .arg(fromUtf8(localizer.text("References", family.remark)).toHtmlEscaped());
    }
    Method method = family.first;
    for (const Publication& publication : family.publications) {
      text += paragraph(publication, localizer, linkTo(method));
      ++method.place;
    }
  }
  return text;
}

QString evidenceText(const Method& method, const foundation::Localizer& localizer) {
  const selftest::Evidence evidence = selftest::evidenceFor(method);
  QString text =
      evidence.publication
          ? paragraph(*evidence.publication, localizer)
          : QStringLiteral("<p>%1</p>")
                .arg(said("References", "Quotients of what was measured; nothing is published of them here.")
                         .toHtmlEscaped());
  text +=
      heading(evidence.rows.empty() ? said("References", "Formula") : said("References", "Printed table"));
  text += equationsText(evidence, localizer);
  if (evidence.first && evidence.last) {
    const bool isLength = method.kind == Method::Kind::crlFormula;
    text += heading(said("References", "Range"));
    text += QStringLiteral("<p>%1</p>")
                .arg((isLength ? said("References", "%1 to %2 mm") : said("References", "%1 to %2 weeks"))
                         .arg(numberText(*evidence.first, localizer), numberText(*evidence.last, localizer)));
  }
  if (!evidence.assumes.empty()) {
    text += heading(said("References", "Assumes"));
    text += QStringLiteral("<p>%1</p>").arg(escaped(localizer.text("References", evidence.assumes)));
  }
  if (!evidence.examples.empty()) {
    text += heading(said("References", "Checked with"));
    text += examplesText(evidence.examples, localizer);
  }
  return text;
}

ReferencesDialog::ReferencesDialog(const foundation::Localizer& localizer, QWidget* parent)
    : QDialog(parent), localizer_(localizer), text_(new QTextBrowser) {
  setObjectName(QStringLiteral("referencesDialog"));
  setWindowTitle(said("References", "References"));
  text_->setObjectName(QStringLiteral("referencesText"));
  text_->setAccessibleName(said("References", "References"));
  text_->setOpenLinks(false);
  // By the keyboard too.
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard |
                                 Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  connect(text_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
    if (const auto method = methodOf(link)) showEvidence(*method);
  });

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QPushButton* copy = buttons->addButton(said("References", "&Copy All"), QDialogButtonBox::ActionRole);
  copy->setObjectName(QStringLiteral("copyReferencesButton"));
  copy->setAutoDefault(false);
  all_ = buttons->addButton(said("References", "&All References"), QDialogButtonBox::ActionRole);
  all_->setObjectName(QStringLiteral("allReferencesButton"));
  all_->setAutoDefault(false);
  buttons->button(QDialogButtonBox::Close)->setDefault(true);
  connect(copy, &QPushButton::clicked, this,
          [this] { QApplication::clipboard()->setText(text_->toPlainText()); });
  connect(all_, &QPushButton::clicked, this, [this] {
    showAll();
    text_->setFocus();  // the button has gone
  });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text_);
  layout->addWidget(buttons);
  const QFontMetrics metrics = fontMetrics();
  resize(metrics.averageCharWidth() * 90, metrics.lineSpacing() * 32);
  showAll();
}

void ReferencesDialog::showAll() {
  text_->setHtml(referencesText(localizer_));
  all_->hide();
}

void ReferencesDialog::showEvidence(const Method& method) {
  text_->setHtml(evidenceText(method, localizer_));
  all_->show();
}

}  // namespace nascor::qt
