// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The mouse on a page of the window: what it does there is told by stories; here it is that the presses arrive, counted.
#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTabWidget>
#include <QToolTip>

#include "WindowTest.h"
#include "window/PageView.h"

namespace nascor::tests {
namespace {

class TheMouseOnAPage : public WindowTest {
 protected:
  QTabWidget& tabs() { return widget<QTabWidget>("tabView"); }
  qt::PageView& page() { return static_cast<qt::PageView&>(*tabs().currentWidget()); }
  /// Where a point of the page stands in the widget on show.
  QPointF inPage(QPointF point) {
    const QRectF paper = page().paper();
    return paper.topLeft() + point * (paper.width() / 800.0);
  }
  /// Presses and releases the left button there, that many milliseconds after the press before.
  void press(QPointF point, quint64 after, Qt::MouseButton button = Qt::LeftButton) {
    time_ += after;
    const QPointF local = inPage(point);
    const QPointF global = page().mapToGlobal(local);
    QMouseEvent down(QEvent::MouseButtonPress, local, global, button, button, Qt::NoModifier);
    down.setTimestamp(time_);
    QWidget& target = page();
    QCoreApplication::sendEvent(&target, &down);
    QMouseEvent up(QEvent::MouseButtonRelease, local, global, button, Qt::NoButton, Qt::NoModifier);
    up.setTimestamp(time_);
    QCoreApplication::sendEvent(&target, &up);
    settle();
    page().grab();  // what came on show is painted before the next press
  }
  void show(int index) {
    tabs().setCurrentIndex(index);
    settle();
    page().grab();
  }

 private:
  quint64 time_ = 100'000;
};

constexpr quint64 kLater = 5'000;
constexpr quint64 kAtOnce = 50;

TEST_F(TheMouseOnAPage, choosesAnExaminationByAClickInTheBand) {
  open(singleton());
  show(1);
  EXPECT_EQ(label("examinationLabel"), "6 of 6");
  press({pageX(20.3), pageY(47.4)}, kLater);
  EXPECT_EQ(label("examinationLabel"), "3 of 6");
  press({pageX(20.3), pageY(100)}, kLater);
  press({pageX(12), pageY(20)}, kLater, Qt::RightButton);
  EXPECT_EQ(label("examinationLabel"), "3 of 6");
  EXPECT_EQ(tabs().currentIndex(), 1);
}

TEST_F(TheMouseOnAPage, leadsToAnotherPageByADoubleClickAndNoFurtherByATripleOne) {
  open(singleton());
  show(1);
  const QPointF inBand(pageX(20), pageY(47.4));
  press(inBand, kLater);
  press(inBand, kAtOnce);
  EXPECT_EQ(tabs().currentIndex(), 0);
  EXPECT_EQ(label("examinationLabel"), "3 of 6");
  // On the trends the same place is another week of another chart: a third press must not choose there.
  press(inBand, kAtOnce);
  press(inBand, kAtOnce);
  EXPECT_EQ(tabs().currentIndex(), 0);
  EXPECT_EQ(label("examinationLabel"), "3 of 6");
}

TEST_F(TheMouseOnAPage, takesTwoSlowPressesForTwoClicks) {
  open(singleton());
  show(1);
  const QPointF inBand(pageX(20), pageY(47.4));
  press(inBand, kLater);
  press(inBand, static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval()) + 50);
  EXPECT_EQ(tabs().currentIndex(), 1);
  press(inBand + QPointF(30, -20), kAtOnce);
  EXPECT_EQ(tabs().currentIndex(), 1) << "in another place";
}

TEST_F(TheMouseOnAPage, isHeldBackByARefusedLength) {
  open(singleton());
  show(1);
  auto& bpd = widget<QLineEdit>("bpdField");
  bpd.setFocus();
  bpd.selectAll();
  QTest::keyClicks(&bpd, QStringLiteral("200.1"));
  press({pageX(20), pageY(47.4)}, kLater);
  EXPECT_EQ(label("examinationLabel"), "6 of 6");
  EXPECT_EQ(focus(), "bpdField");
  QTest::keyClick(&bpd, Qt::Key_Escape);
}

TEST_F(TheMouseOnAPage, readsAMarkWhenItRestsOnIt) {
  open(singleton());
  show(1);
  const auto rest = [&](QPointF point) {
    const QPoint local = inPage(point).toPoint();
    QHelpEvent help(QEvent::ToolTip, local, page().mapToGlobal(local));
    QCoreApplication::sendEvent(&page(), &help);
    return QToolTip::text();
  };
  // Westerway at 20 weeks: 47.414, 1.9.
  EXPECT_EQ(rest({pageX(20), pageY(48)}), QStringLiteral("11/21/26, 20w 0d<br>48.0 mm, z-score +0.31"));
  QToolTip::hideText();
  settle();
  rest({pageX(20), pageY(100)});
  QTRY_VERIFY_WITH_TIMEOUT(!QToolTip::isVisible(), 5000);
}

TEST_F(TheMouseOnAPage, isNotNeededToReadAMark) {
  open(singleton());
  show(1);
  page().setFocus(Qt::TabFocusReason);
  QTest::keyClick(&page(), Qt::Key_Right);
  EXPECT_EQ(QToolTip::text(), QStringLiteral("9/26/26, 12w 0d<br>20.0 mm, z-score +0.55"));
  QTest::keyClick(&page(), Qt::Key_End);
  EXPECT_THAT(QToolTip::text().toStdString(), testing::StartsWith("2/13/27, 32w 0d<br>82.0 mm"));
  EXPECT_THAT(page().accessibleDescription().toStdString(),
              testing::StartsWith("2/13/27, 32w 0d, 82.0 mm, z-score +0.47. Growth chart of"));
  QTest::keyClick(&page(), Qt::Key_Left);
  EXPECT_THAT(QToolTip::text().toStdString(), testing::StartsWith("1/16/27"));
  QTest::keyClick(&page(), Qt::Key_Home);
  QTest::keyClick(&page(), Qt::Key_Left);
  EXPECT_THAT(QToolTip::text().toStdString(), testing::StartsWith("9/26/26"));
  QTest::keyClick(&page(), Qt::Key_Escape);
  EXPECT_THAT(page().accessibleDescription().toStdString(), testing::StartsWith("Growth chart of"));
}

TEST_F(TheMouseOnAPage, copiesTheReportAsATable) {
  open(singleton());
  action("copyReportAction").trigger();
  settle();
  const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
  EXPECT_THAT(copied->text().toStdString(),
              testing::HasSubstr("\n9/26/26\t12w 0d\t20.0\t0.0\t0.0\t0.0\t-\n"));
  EXPECT_EQ(copied->data(QStringLiteral("text/tab-separated-values")), copied->text().toUtf8());
  widget<QTabWidget>("tabView").setCurrentIndex(static_cast<int>(model::indexOf(model::PatientPage::report)));
  EXPECT_THAT(widget<QWidget>("ReportPage").accessibleDescription().toStdString(),
              testing::HasSubstr("9/26/26\t12w 0d\t20.0"));
}

}  // namespace
}  // namespace nascor::tests
