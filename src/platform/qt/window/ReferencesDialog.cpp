#include "window/ReferencesDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <array>
#include <cstddef>
#include <vector>

#include "base/Text.h"
#include "calc/Publications.h"
#include "calc/Standards.h"

namespace nascor::qt {

using calc::Confirmation;
using calc::Publication;
using foundation::translatable;

namespace {

QString paragraph(const Publication& publication, const foundation::Localizer& localizer) {
  QString text =
      QStringLiteral("<p><b>%1</b><br>%2.")
          .arg(fromUtf8(publication.label).toHtmlEscaped(), fromUtf8(publication.citation).toHtmlEscaped());
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
  return text + QStringLiteral("</p>");
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
  };
  QString text;
  for (const Family& family :
       {Family{translatable("NCAppController", "Standards"), calc::growthStandardPublications(), {}},
        Family{translatable("NCAppController", "Estimated Fetal Weight"), calc::weightFormulaPublications(),
               calc::weightBandRemark()},
        Family{translatable("NCAppController", "Crown Rump Length"), calc::crlFormulaPublications(), {}},
        Family{translatable("NCAppController", "Further References"), furtherReferences(), {}}}) {
    text += QStringLiteral("<h2>%1</h2>")
                .arg(fromUtf8(localizer.text("NCAppController", family.title)).toHtmlEscaped());
    if (!family.remark.empty()) {
      text += QStringLiteral("<p>%1</p>")
                  .arg(fromUtf8(localizer.text("References", family.remark)).toHtmlEscaped());
    }
    for (const Publication& publication : family.publications) text += paragraph(publication, localizer);
  }
  return text;
}

ReferencesDialog::ReferencesDialog(const foundation::Localizer& localizer, QWidget* parent)
    : QDialog(parent), text_(new QTextBrowser) {
  setObjectName(QStringLiteral("referencesDialog"));
  setWindowTitle(said("References", "References"));
  text_->setObjectName(QStringLiteral("referencesText"));
  text_->setAccessibleName(said("References", "References"));
  text_->setHtml(referencesText(localizer));
  // By the keyboard too.
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QPushButton* copy = buttons->addButton(said("References", "&Copy All"), QDialogButtonBox::ActionRole);
  copy->setObjectName(QStringLiteral("copyReferencesButton"));
  copy->setAutoDefault(false);
  buttons->button(QDialogButtonBox::Close)->setDefault(true);
  connect(copy, &QPushButton::clicked, this,
          [this] { QApplication::clipboard()->setText(text_->toPlainText()); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text_);
  layout->addWidget(buttons);
  const QFontMetrics metrics = fontMetrics();
  resize(metrics.averageCharWidth() * 90, metrics.lineSpacing() * 32);
}

}  // namespace nascor::qt
