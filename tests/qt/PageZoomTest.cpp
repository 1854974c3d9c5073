// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// How large the pages of the window are, and what is said over a page that lacks something.
#include <QFontInfo>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTabWidget>
#include <QWheelEvent>
#include <algorithm>

#include "Run.h"
#include "WindowTest.h"
#include "framework/PageWriter.h"
#include "model/PatientPage.h"
#include "window/PageView.h"

namespace nascor::tests {
namespace {

class ThePages : public WindowTest {
 protected:
  qt::PageView& page() { return static_cast<qt::PageView&>(*widget<QTabWidget>("tabView").currentWidget()); }
  void show(int index) {
    widget<QTabWidget>("tabView").setCurrentIndex(index);
    settle();
    page().grab();
  }
  void enlarge(int steps) {
    for (int i = 0; i < steps; ++i) action("zoomInAction").trigger();
    settle();
    page().grab();
  }
  QScrollBar& bar(Qt::Orientation orientation) {
    for (QScrollBar* each : page().findChildren<QScrollBar*>()) {
      if (each->orientation() == orientation) return *each;
    }
    throw std::runtime_error("no scroll bar");
  }
  /// Where a point of the page stands in the widget.
  QPointF inWidget(QPointF point) { return page().paper().topLeft() + point * page().scale(); }
  void press(QPointF local) {
    QMouseEvent down(QEvent::MouseButtonPress, local, page().mapToGlobal(local), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    down.setTimestamp(time_ += 10'000);
    QCoreApplication::sendEvent(&page(), &down);
    settle();
    page().grab();
  }
  std::string advice() {
    const auto* label = page().findChild<QLabel*>(QStringLiteral("pageAdvice"));
    return label && !label->isHidden() ? label->text().toStdString() : "";
  }

 private:
  quint64 time_ = 100'000;
};

TEST_F(ThePages, growInStepsOfWhichOneMakesTheirTextsAsLargeAsTheWindowsOwn) {
  open(singleton()).resize(1000, 700);
  settle();
  const double readable = QFontInfo(front().font()).pixelSize() / 10.0;  // texts are 10 units high
  const double fitting = page().scale();
  EXPECT_DOUBLE_EQ(fitting, page().fittingScale());
  std::vector<double> scales;
  while (action("zoomInAction").isEnabled() && scales.size() < 50) {
    enlarge(1);
    EXPECT_GT(page().scale(), scales.empty() ? fitting : scales.back());
    scales.push_back(page().scale());
  }
  EXPECT_TRUE(std::ranges::any_of(scales, [&](double each) { return std::abs(each - readable) < 1e-9; }));
  EXPECT_GT(scales.back(), 3.5 * readable);
  EXPECT_LT(scales.size(), 20U);

  while (action("zoomOutAction").isEnabled()) {
    action("zoomOutAction").trigger();
    scales.pop_back();
    EXPECT_DOUBLE_EQ(page().scale(), scales.empty() ? fitting : scales.back());
  }
  EXPECT_TRUE(scales.empty());
  EXPECT_FALSE(action("zoomFitAction").isEnabled());
}

TEST_F(ThePages, areAllOfOneSizeAndFitAgain) {
  open(singleton());
  enlarge(2);
  const double scale = page().scale();
  show(3);
  EXPECT_DOUBLE_EQ(page().scale(), scale);
  action("zoomFitAction").trigger();
  EXPECT_DOUBLE_EQ(page().scale(), page().fittingScale());
  EXPECT_TRUE(bar(Qt::Vertical).isHidden());
  EXPECT_TRUE(bar(Qt::Horizontal).isHidden());
  show(0);
  EXPECT_DOUBLE_EQ(page().scale(), page().fittingScale());
}

TEST_F(ThePages, growWithoutTheShiftKeyToo) {
  open(singleton());
  WindowTest::press(Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_GT(page().scale(), page().fittingScale() * 1.02);
}

TEST_F(ThePages, scrollWhenTheyAreLargerThanTheWindow) {
  open(singleton());
  show(1);
  enlarge(4);
  EXPECT_FALSE(bar(Qt::Vertical).isHidden());
  bar(Qt::Vertical).setValue(0);
  bar(Qt::Horizontal).setValue(0);
  EXPECT_EQ(page().paper().topLeft(), QPointF(8.0, 8.0));
  bar(Qt::Vertical).setValue(bar(Qt::Vertical).maximum());
  bar(Qt::Horizontal).setValue(bar(Qt::Horizontal).maximum());
  EXPECT_NEAR(page().paper().right() + 8.0, page().width() - bar(Qt::Vertical).width(), 1.5);
  EXPECT_NEAR(page().paper().bottom() + 8.0, page().height() - bar(Qt::Horizontal).height(), 1.5);

  QWheelEvent up({50, 50}, page().mapToGlobal(QPointF(50, 50)), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                 Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&page(), &up);
  EXPECT_LT(bar(Qt::Vertical).value(), bar(Qt::Vertical).maximum());

  page().setFocus();
  for (int i = 0; i < 10; ++i) QTest::keyClick(&page(), Qt::Key_PageUp);
  EXPECT_EQ(bar(Qt::Vertical).value(), 0);
  QTest::keyClick(&page(), Qt::Key_PageDown);
  EXPECT_GT(bar(Qt::Vertical).value(), 0);
  // Without Shift the key goes from mark to mark.
  QTest::keyClick(&page(), Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_LT(bar(Qt::Horizontal).value(), bar(Qt::Horizontal).maximum());
}

TEST_F(ThePages, keepTheirMiddleWhenTheyGrow) {
  open(singleton());
  show(1);
  enlarge(4);
  bar(Qt::Vertical).setValue(bar(Qt::Vertical).maximum() / 3);
  bar(Qt::Horizontal).setValue(bar(Qt::Horizontal).maximum() / 2);
  const QPointF middle((page().width() - bar(Qt::Vertical).width()) / 2.0,
                       (page().height() - bar(Qt::Horizontal).height()) / 2.0);
  const QPointF before = (middle - page().paper().topLeft()) / page().scale();
  enlarge(1);
  const QPointF after = (middle - page().paper().topLeft()) / page().scale();
  EXPECT_NEAR(after.x(), before.x(), 1.0);
  EXPECT_NEAR(after.y(), before.y(), 1.0);
}

TEST_F(ThePages, takeAClickForTheMarkThatStandsThereAtAnySize) {
  open(singleton());
  show(1);
  for (const int steps : {0, 1, 3, 2}) {
    SCOPED_TRACE(page().scale());
    enlarge(steps);
    for (const int share : {0, 1}) {
      for (QScrollBar* each : page().findChildren<QScrollBar*>()) each->setValue(each->maximum() * share);
      settle();
      page().grab();
      press(inWidget({pageX(20.3), pageY(47.4)}));
      EXPECT_EQ(label("examinationLabel"), "3 of 6");
      press(inWidget({pageX(27.8), pageY(70.0)}));
      EXPECT_EQ(label("examinationLabel"), "5 of 6");
    }
  }
}

TEST_F(ThePages, sayWhatIsMissingUntilItIsThere) {
  openBlank();
  EXPECT_FALSE(action("adjustDeliveryAction").isEnabled());
  EXPECT_EQ(
      advice(),
      "No EDD, so no marks. Patient > EDD from ...\nNo lengths, so no marks. Type BPD, HC, AC or FL beside "
      "the page.");
  show(static_cast<int>(model::indexOf(model::PatientPage::report)));
  EXPECT_THAT(advice(), testing::HasSubstr("No EDD, so no ages."));
  enter("bpdField", "50");
  enter("birthDateField", "4/10/27");
  EXPECT_TRUE(action("adjustDeliveryAction").isEnabled());
  EXPECT_EQ(advice(), "");
  show(0);
  EXPECT_EQ(advice(), "");
  show(2);
  EXPECT_EQ(advice(), "No HC, so no marks. Type it beside the page.");
}

TEST_F(ThePages, keepWhatIsSaidOverThemInTheWindowAndLetClicksThrough) {
  model::PatientRecord undated = singleton();
  undated.setEDD(std::nullopt);
  open(undated);
  for (const int steps : {0, 3}) {
    enlarge(steps);
    const auto& label = *page().findChild<QLabel*>(QStringLiteral("pageAdvice"));
    EXPECT_TRUE(page().rect().contains(label.geometry()));
    EXPECT_EQ(page().childAt(label.geometry().center()), nullptr);
  }
  QTemporaryDir out;
  platform.defaults.setValue(framework::export_key::folder, out.path().toStdString());
  action("exportAction").trigger();
  settle();
  const Answer text = run("pdftotext", {out.filePath(QStringLiteral("AB-123 (G2) - Trends.pdf")), "-"});
  EXPECT_THAT(text.output, testing::HasSubstr("Biparietal"));
  EXPECT_THAT(text.output, testing::Not(testing::HasSubstr("No EDD")));
}

}  // namespace
}  // namespace nascor::tests
