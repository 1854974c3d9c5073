// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/AboutBox.h"

#include <QMessageBox>
#include <QPushButton>

#include "base/Introduction.h"
#include "base/Text.h"
#include "base/Translation.h"
#include "selftest/SelfTest.h"

namespace nascor::qt {
namespace {

/// Works the examples out anew and tells how they came out, group by group.
void showSelfTest(QWidget& parent) {
  const auto results = selftest::replay(selftest::examples());
  const selftest::GroupResult& total = results.back();
  QMessageBox box(&parent);
  box.setWindowTitle(said("MyDocument", "Check the Numbers"));
  box.setTextFormat(Qt::PlainText);
  box.setIcon(total.differences == 0 ? QMessageBox::Information : QMessageBox::Critical);
  box.setText(total.differences == 0
                  ? said("MyDocument", "All %1 worked examples give the expected results.")
                        .arg(QString::number(total.values))
                  : said("MyDocument", "%1 of %2 worked examples come out otherwise.")
                        .arg(QString::number(total.differences), QString::number(total.values)));
  box.setInformativeText(
      total.differences == 0
          ? said("MyDocument",
                 "Every formula, standard, reference, look-up and date was worked out again. Help > "
                 "References shows the "
                 "examples of each.")
          : said("MyDocument", "Do not rely on this installation. Please have it installed again."));
  QString details;
  for (const auto& [group, values, differences] : results)
    details += QStringLiteral("%1\t%2\t%3\n")
                   .arg(fromUtf8(group), QString::number(values), QString::number(differences));
  box.setDetailedText(details);
  box.exec();
}

}  // namespace

void showAbout(QWidget& parent) {
  QMessageBox box(&parent);
  box.setWindowTitle(said("MyDocument", "About Nascor"));
  box.setTextFormat(Qt::PlainText);
  box.setText(said("MyDocument", "Nascor %1").arg(programVersion()));
  QStringList paragraphs{disclaimer()};
  if (!spokenLanguage().isEmpty())
    paragraphs << said("MyDocument", "Translated by machine, not yet reviewed by a clinician.");
  paragraphs
      << said("MyDocument", "Copyright (c) 2026 The Nascor developers. MIT License.")
      << said("MyDocument",
              "Linked with Qt %1 (GNU LGPL 3), the D-Bus library (AFL 2.1 or GNU GPL 2) and the GNU C++ "
              "library (GNU GPL 3 with the GCC Runtime Library Exception).")
             .arg(QLatin1String(qVersion()));
  box.setInformativeText(paragraphs.join(QStringLiteral("\n\n")));
  box.setStandardButtons(QMessageBox::Ok);
  box.setDefaultButton(QMessageBox::Ok);
  box.setEscapeButton(QMessageBox::Ok);
  const QPushButton* check = box.addButton(said("MyDocument", "&Check the Numbers"), QMessageBox::ActionRole);
  box.exec();
  if (box.clickedButton() == check) showSelfTest(parent);
}

}  // namespace nascor::qt
