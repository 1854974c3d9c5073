// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The references: all publications, and behind each its formula and what it was checked with.
#include "window/ReferencesDialog.h"

#include <QTextBrowser>

#include "WindowTest.h"
#include "calc/FetalWeight.h"

namespace nascor::tests {
namespace {

using calc::Method;
using testing::HasSubstr;
using testing::StartsWith;

struct TheReferences : WindowTest {
  TheReferences() {
    open(singleton());
    action("referencesAction").trigger();
    settle();
  }
  QTextBrowser& text() { return widget<QTextBrowser>("referencesText"); }
  std::string shown() { return text().toPlainText().toStdString(); }
};

TEST_F(TheReferences, leadToTheFormulaAndTheCheckedValues) {
  auto& all = widget<QPushButton>("allReferencesButton");
  EXPECT_FALSE(all.isVisible());
  const std::string publications = shown();
  // The first link is that of the first growth standard; the keys reach it.
  text().setFocus();
  QTest::keyClick(&text(), Qt::Key_Tab);
  QTest::keyClick(&text(), Qt::Key_Return);
  EXPECT_THAT(shown(), StartsWith("Westerway (ASUM 2001)\nWesterway SC"));
  EXPECT_THAT(shown(), HasSubstr("mean FL = -28.489 + 3.1263 w + 0.0032 w^2 - 0.0004 w^3"));
  EXPECT_THAT(shown(), HasSubstr(" values. The program answers each of them alike."));
  ASSERT_TRUE(all.isVisible());
  QTest::mouseClick(&all, Qt::LeftButton);
  EXPECT_EQ(shown(), publications);
  EXPECT_FALSE(all.isVisible());
}

TEST_F(TheReferences, haveALinkForEachOfThem) {
  const int links = static_cast<int>(text().toHtml().count(QStringLiteral("<a href=")));
  EXPECT_EQ(links, 4 + 8 + 4 + 4);
}

TEST_F(TheReferences, showEachExampleWithWhatTheProgramAnswers) {
  const QString evidence =
      qt::evidenceText({.kind = Method::Kind::weightFormula, .place = 7}, platform.services().localizer);
  EXPECT_THAT(evidence.toStdString(), HasSubstr("1000 10^(-1.7492 + 0.166 (BPD/10)"));
  EXPECT_THAT(evidence.toStdString(), HasSubstr("BPD 19.6, HC 70.3, AC 55.7, FL 8.4: EFW"));
  EXPECT_THAT(evidence.toStdString(), HasSubstr("63.6052682852"));
}

}  // namespace
}  // namespace nascor::tests
