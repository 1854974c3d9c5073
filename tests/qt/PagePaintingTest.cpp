// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What stands on a page, by the colours at the places that the numbers give.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>

#include "Pixels.h"
#include "Sample.h"
#include "app/NCDocument.h"
#include "painting/QtSurface.h"
#include "window/PageView.h"

namespace nascor::tests {
namespace {

using framework::NamedColor;

class PagePainting : public testing::Test {
 protected:
  PagePainting() : document(platform.environment()) {}

  void load(const model::PatientRecord& record) {
    document.loadDataRepresentation(model::archivedPatient(record), {});
    document.windowControllerDidLoadNib();
  }

  QImage painted(double scale) {
    QImage image((QSizeF(800.0, 560.0) * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    qt::paintPage(painter, document.tabView().page(1), QRectF(image.rect()), texts);
    return image;
  }

  TestPlatform platform;
  qt::TextLayouts texts;
  app::NCDocument document;
};

TEST_F(PagePainting, putsBandCurveAndMarkWhereTheNumbersSay) {
  // 30 mm lies far below the band, whose mean at 20 weeks is 47.414 mm.
  load(patient({{{2026, 11, 21}, {30.0}}}));
  for (const double scale : {1.0, 1.37, 2.0}) {
    SCOPED_TRACE(scale);
    const QImage image = painted(scale);
    const auto at = [&](double week, double mm) {
      return colorAt(image, QPointF(pageX(week), pageY(mm)) * scale);
    };
    EXPECT_EQ(at(20.0, 46.0), colorOf(NamedColor::faintOrange));
    EXPECT_EQ(at(20.0, 49.0), colorOf(NamedColor::faintOrange));
    EXPECT_EQ(at(20.0, 60.0), QColor(Qt::white));
    EXPECT_EQ(at(20.0, 38.0), QColor(Qt::white));
    // One unit wide and slanted: between two pixels it shares its colour with the band.
    EXPECT_LT(at(20.0, 47.414).blue(), 0.75 * colorOf(NamedColor::faintOrange).blue()) << at(20.0, 47.414);
    EXPECT_TRUE(isNear(at(20.0, 30.0), colorOf(NamedColor::orange), 60)) << at(20.0, 30.0);
  }
}

TEST_F(PagePainting, putsTheDiscAroundTheExaminationOnShowAlone) {
  load(singleton());
  document.setCurrentExam(2);
  const QImage image = painted(2.0);
  const auto besideMark = [&](double week, double mm) {
    return colorAt(image, QPointF(pageX(week) + 5.0, pageY(mm) - 5.0) * 2.0);
  };
  const QColor disc = colorOf(NamedColor::faintGray, colorOf(NamedColor::faintOrange));
  EXPECT_TRUE(isNear(besideMark(20.0, 48.0), disc, 3)) << besideMark(20.0, 48.0);
  EXPECT_FALSE(isNear(besideMark(24.0, 61.0), disc, 3)) << besideMark(24.0, 61.0);
}

TEST_F(PagePainting, putsEachWeekOfTheStripUnderThatOfTheChart) {
  load(singleton());
  const QImage image = painted(1.0);
  // The axis stands on the lower edge of the strip's plotting area of 10 units, which begins under the chart at 500; its
  // long ticks hang from there.
  for (const double week : {12.0, 20.0, 40.0}) {
    const int x = static_cast<int>(std::floor(pageX(week)));
    const QRect ticks = inkOf(image.copy(x - 3, 512, 7, 2));
    EXPECT_EQ(ticks.width(), 1) << week;
    EXPECT_NEAR(ticks.x(), 3, 1) << week;
  }
}

TEST_F(PagePainting, clipsEachViewToItsFrame) {
  struct Splash final : framework::ZuPrimitiveGraphView {
    using ZuPrimitiveGraphView::ZuPrimitiveGraphView;
    void drawRect(const framework::Rect&) override { canvas().fillOval({-500.0, -500.0, 2000.0, 2000.0}); }
  };
  const auto splash = framework::make<Splash>(platform.services(), {});
  framework::Page page("Splash");
  page.addView(*splash, [](double, double) { return framework::Rect{100.0, 50.0, 300.0, 200.0}; });
  QImage image(800, 560, QImage::Format_RGB32);
  QPainter painter(&image);
  qt::paintPage(painter, page, QRectF(image.rect()), texts);
  EXPECT_EQ(inkOf(image), QRect(100, 50, 300, 200));
}

TEST_F(PagePainting, survivesAPatientOfNonsense) {
  model::PatientRecord record = singleton();
  record.ncRecordsArray()[0]->measurements()[0].setBPD(std::numeric_limits<double>::quiet_NaN());
  record.ncRecordsArray()[1]->measurements()[0].setBPD(std::numeric_limits<double>::infinity());
  record.ncRecordsArray()[2]->measurements()[0].setBPD(3e38);
  record.ncRecordsArray()[3]->setExamDate(foundation::Date{std::numeric_limits<double>::infinity()});
  load(record);
  const QImage image = painted(1.0);
  EXPECT_TRUE(isNear(colorAt(image, {pageX(28.0), pageY(70.0)}), colorOf(NamedColor::orange), 60));
}

TEST_F(PagePainting, fillsThePaperAndNothingBesideIt) {
  load(singleton());
  QImage image(1000, 700, QImage::Format_RGB32);
  image.fill(Qt::red);
  QPainter painter(&image);
  qt::paintPage(painter, document.tabView().page(1), QRectF(100.0, 70.0, 800.0, 560.0), texts);
  EXPECT_EQ(colorAt(image, {101.5, 71.5}), QColor(Qt::white));
  EXPECT_EQ(colorAt(image, {98.5, 300.5}), QColor(Qt::red));
  EXPECT_EQ(colorAt(image, {500.5, 632.5}), QColor(Qt::red));
}

TEST_F(PagePainting, keepsThePagesShapeInAnyWidget) {
  qt::ClickCounter clicks;
  qt::PageView view(document.tabView().page(1), clicks);
  view.resize(1016, 576);
  EXPECT_EQ(view.paper(), QRectF(108.0, 8.0, 800.0, 560.0));
  view.resize(416, 576);
  EXPECT_EQ(view.paper(), QRectF(8.0, 148.0, 400.0, 280.0));
}

// Nothing is painted below it, so a pixel that it leaves out would show what stood there before.
TEST_F(PagePainting, leavesNoPixelOfItsWidgetOut) {
  load(singleton());
  qt::ClickCounter clicks;
  qt::PageView view(document.tabView().page(1), clicks);
  for (const double ratio : {1.0, 1.25, 2.0}) {
    for (const QSize size : {QSize(1016, 576), QSize(871, 669), QSize(640, 711), QSize(499, 333)}) {
      SCOPED_TRACE(testing::Message() << size.width() << " x " << size.height() << " at " << ratio);
      view.resize(size);
      QImage image((QSizeF(size) * ratio).toSize(), QImage::Format_RGB32);
      image.setDevicePixelRatio(ratio);
      image.fill(Qt::magenta);
      view.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
      int left = 0;
      for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) left += image.pixelColor(x, y) == QColor(Qt::magenta);
      }
      EXPECT_EQ(left, 0);
    }
  }
}

TEST_F(PagePainting, isBlackOnWhiteOnADarkDesktopToo) {
  load(singleton());
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(40, 40, 40)));
  qt::ClickCounter clicks;
  qt::PageView view(document.tabView().page(1), clicks);
  view.resize(1016, 576);
  const QImage image = view.grab().toImage();
  QApplication::setPalette(before);
  EXPECT_EQ(colorAt(image, {2.5, 2.5}), QColor(Qt::white));
  EXPECT_EQ(colorAt(image, {108.0 + pageX(20.0), 8.0 + pageY(100.0)}), QColor(Qt::white));
  // The axis of the strip, 10 units under its upper edge at 500.
  EXPECT_TRUE(colorAt(image, {408.5, 517.5}) == QColor(Qt::black) ||
              colorAt(image, {408.5, 518.5}) == QColor(Qt::black));
}

}  // namespace
}  // namespace nascor::tests
