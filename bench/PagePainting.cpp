// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Times one redraw of the page of the BPD (title, chart, axis strip, twelve marks; 800 x 560 units at scale 1) against
// plain programs that draw the same, in turns, so that a machine that slows down slows them all.
//
//     bench-painting [ROUNDS]                prints the median of each and its ratio to the first
//     bench-painting --only NAME FRAMES      redraws that often, for a counter of instructions
//
// The data change with every frame.

#include <qcustomplot.h>
#include <time.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QStaticText>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "app/NCDocument.h"
#include "calc/Standards.h"
#include "framework/DocumentController.h"
#include "model/NCRecord.h"
#include "painting/QtSurface.h"
#include "support/ScriptedAlerts.h"
#include "support/TestServices.h"

namespace {

using namespace nascor;

constexpr int kExaminations = 12;
constexpr double kDay = 86400.0;

double weekOf(int exam) { return 14.0 + 2.0 * exam; }
double lengthOf(int exam, int frame) { return 24.0 + 5.8 * exam + 0.01 * (frame % 100); }

/// The page as the application paints it.
class Application {
 public:
  Application() {
    document_.windowControllerDidLoadNib();
    model::PatientRecord& patient = *document_.patientRecord();
    const double edd = 829008000.0;
    patient.setMaternalIDString("AB-123");
    patient.setEDD(foundation::Date{edd});
    patient.ncRecordsArray().clear();
    for (int exam = 0; exam < kExaminations; ++exam) {
      auto record = std::make_unique<model::NCRecord>();
      record->setExamDate(foundation::Date{edd - (40.0 - weekOf(exam)) * 7.0 * kDay});
      record->measurements().emplace_back();
      patient.ncRecordsArray().push_back(std::move(record));
    }
    document_.setCurrentExam(kExaminations - 1);
    document_.synchronizeFromData();
  }
  void redraw(QImage& image, int frame) {
    for (int exam = 0; exam < kExaminations; ++exam) {
      document_.patientRecord()
          ->ncRecordsArray()[static_cast<std::size_t>(exam)]
          ->measurementsForFetus(0)
          .setBPD(lengthOf(exam, frame));
    }
    QPainter painter(&image);
    qt::paintPage(painter, document_.tabView().page(1), QRectF(image.rect()), texts_);
  }

  /// Every page follows the choice; the one on show is drawn anew.
  void chooseStandard(QImage& image, int frame) {
    document_.doSetStandard(frame % 4);
    redraw(image, frame);
  }

 private:
  qt::TextLayouts texts_;
  tests::TestServices platform_;
  tests::ScriptedAlerts alerts_;
  tests::ScriptedFilePanels panels_{"."};
  framework::DocumentController documents_{platform_.services(), alerts_, panels_};
  app::NCDocument document_{{.services = platform_.services(), .alerts = alerts_, .controller = documents_}};
};

// The same page by plain means.

const calc::ReferenceTable& rows() {
  static const calc::ReferenceTable table = [] {
    calc::ReferenceTable made;
    calc::appendStandard(made, 0, calc::Measurement::bpd);
    return made;
  }();
  return table;
}

QPointF place(double week, double mm) {
  return {60.0 + (week - 8.0) / 34.0 * 720.0, 495.0 - mm / 120.0 * 460.0};
}

/// Draws texts, shaped anew or laid out once.
class Texts {
 public:
  explicit Texts(bool areKept) : areKept_(areKept) { font_.setPixelSize(10); }
  const QFont& font() const { return font_; }
  double width(const QString& text) {
    return areKept_ ? kept(text).size().width() : QFontMetricsF(font_).horizontalAdvance(text);
  }
  /// With its lower left corner at `at`.
  void draw(QPainter& painter, QPointF at, const QString& text) {
    const QFontMetricsF metrics(font_);
    if (areKept_) {
      painter.drawStaticText(at - QPointF(0.0, metrics.height()), kept(text));
    } else {
      painter.drawText(at - QPointF(0.0, metrics.descent()), text);
    }
  }

 private:
  const QStaticText& kept(const QString& text) {
    auto found = texts_.find(text);
    if (found == texts_.end()) {
      QStaticText made(text);
      made.setTextFormat(Qt::PlainText);
      made.prepare(QTransform(), font_);
      found = texts_.insert(text, made);
    }
    return *found;
  }
  bool areKept_;
  QFont font_{QStringLiteral("DejaVu Sans")};
  QHash<QString, QStaticText> texts_;
};

void redrawPlainly(QImage& image, int frame, Texts& texts) {
  QPainter painter(&image);
  painter.fillRect(image.rect(), Qt::white);
  painter.setFont(texts.font());
  painter.setPen(Qt::black);
  texts.draw(painter, {50.0, 22.0}, QStringLiteral("AB-123 (G0)"));
  // The chart.
  const QRectF area(place(8, 120), place(42, 0));
  painter.drawLine(area.bottomLeft(), area.topLeft());
  for (int mm = 0; mm <= 120; mm += 20) {
    const QPointF at = place(8, mm);
    painter.drawLine(at, at - QPointF(5.0, 0.0));
    const QString label = QString::number(mm);
    texts.draw(painter, at + QPointF(-8.0 - texts.width(label), 6.0), label);
  }
  painter.save();
  const QString title = QStringLiteral("Biparietal Diameter (mm)");
  painter.translate(26.0, area.center().y() + texts.width(title) / 2.0);
  painter.rotate(-90.0);
  texts.draw(painter, {0.0, 0.0}, title);
  painter.restore();
  painter.setPen(QColor(0xDA, 0xDA, 0xDA));
  painter.drawRect(area);
  painter.setRenderHint(QPainter::Antialiasing);
  QPolygonF band, curve;
  for (const auto& row : rows()) band << place(row.observation(), row.mean() + 2.0 * row.sd());
  for (auto row = rows().rbegin(); row != rows().rend(); ++row) {
    band << place(row->observation(), row->mean() - 2.0 * row->sd());
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0xFB, 0xE5, 0xCC));
  painter.drawPolygon(band);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QColor(0xB8, 0x64, 0x0F));
  for (const auto& row : rows()) curve << place(row.observation(), row.mean());
  painter.drawPolyline(curve);
  for (int exam = 0; exam < kExaminations; ++exam) {
    const QPointF at = place(weekOf(exam), lengthOf(exam, frame));
    if (exam == kExaminations - 1) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(QColor(0xDA, 0xDA, 0xDA));
      painter.drawEllipse(at, 10.0, 10.0);
    }
    painter.setPen(QPen(QColor(0x9A, 0x43, 0x00), 1.4));
    painter.drawLine(at - QPointF(3.5, 0.0), at + QPointF(3.5, 0.0));
    painter.drawLine(at - QPointF(0.0, 3.5), at + QPointF(0.0, 3.5));
  }
  painter.setRenderHint(QPainter::Antialiasing, false);
  // The strip.
  painter.setPen(Qt::black);
  constexpr double kBase = 510.0;
  painter.drawLine(QPointF(60.0, kBase), QPointF(780.0, kBase));
  for (int week = 8; week <= 42; ++week) {
    const double x = place(week, 0).x();
    painter.drawLine(QPointF(x, kBase), QPointF(x, kBase + (week % 4 == 0 ? 5.0 : 3.0)));
    if (week % 4 != 0) continue;
    const QString label = QString::number(week);
    texts.draw(painter, {std::max(60.0, x - texts.width(label) / 2.0), kBase + 18.0}, label);
  }
  texts.draw(painter, {60.0, kBase + 34.0}, QStringLiteral("Menstrual Age (Weeks)"));
  const QString standard = QStringLiteral("Nascor Standard: Westerway (ASUM 2001)");
  texts.draw(painter, {780.0 - texts.width(standard), kBase + 34.0}, standard);
}

/// The same chart by a plotting library.
class Plot {
 public:
  Plot() {
    plot_.resize(800, 560);
    for (const auto& row : rows()) weeks_ << row.observation();
    QVector<double> upper, lower, mean;
    for (const auto& row : rows()) {
      upper << row.mean() + 2.0 * row.sd();
      lower << row.mean() - 2.0 * row.sd();
      mean << row.mean();
    }
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(10);
    QCPGraph* above = plot_.addGraph();
    QCPGraph* below = plot_.addGraph();
    QCPGraph* curve = plot_.addGraph();
    marks_ = plot_.addGraph();
    above->setData(weeks_, upper);
    below->setData(weeks_, lower);
    above->setPen(Qt::NoPen);
    below->setPen(Qt::NoPen);
    above->setBrush(QColor(0xFB, 0xE5, 0xCC));
    above->setChannelFillGraph(below);
    curve->setData(weeks_, mean);
    curve->setPen(QColor(0xB8, 0x64, 0x0F));
    marks_->setLineStyle(QCPGraph::lsNone);
    marks_->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssPlus, QColor(0x9A, 0x43, 0x00), 7));
    plot_.xAxis->setRange(8, 42);
    plot_.yAxis->setRange(0, 120);
    plot_.xAxis->grid()->setVisible(false);
    plot_.yAxis->grid()->setVisible(false);
    for (QCPAxis* axis : {plot_.xAxis, plot_.yAxis}) {
      axis->setLabelFont(font);
      axis->setTickLabelFont(font);
    }
    const QSharedPointer<QCPAxisTickerFixed> ticker(new QCPAxisTickerFixed);
    ticker->setTickStep(4);
    plot_.xAxis->setTicker(ticker);
    plot_.xAxis->setLabel(QStringLiteral("Menstrual Age (Weeks)"));
    plot_.yAxis->setLabel(QStringLiteral("Biparietal Diameter (mm)"));
    plot_.plotLayout()->insertRow(0);
    plot_.plotLayout()->addElement(0, 0, new QCPTextElement(&plot_, QStringLiteral("AB-123 (G0)"), font));
  }
  void replot(int frame) {
    QVector<double> weeks, lengths;
    for (int exam = 0; exam < kExaminations; ++exam) {
      weeks << weekOf(exam);
      lengths << lengthOf(exam, frame);
    }
    marks_->setData(weeks, lengths);
    plot_.replot(QCustomPlot::rpQueuedRefresh);
  }

 private:
  QCustomPlot plot_;
  QVector<double> weeks_;
  QCPGraph* marks_ = nullptr;
};

struct Contender {
  std::string name;
  std::function<void(int frame)> redraw;
  std::vector<double> microseconds;
};

/// Of this thread alone, so that other programs do not count.
double processorMicroseconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

double median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QImage image(800, 560, QImage::Format_ARGB32_Premultiplied);
  Application nascor;
  Texts shaped(false);
  Texts kept(true);
  Plot plot;
  std::vector<Contender> contenders{
      {"plain", [&](int frame) { redrawPlainly(image, frame, shaped); }, {}},
      {"plain-kept-texts", [&](int frame) { redrawPlainly(image, frame, kept); }, {}},
      {"plotting-library", [&](int frame) { plot.replot(frame); }, {}},
      {"nascor", [&](int frame) { nascor.redraw(image, frame); }, {}},
      {"nascor-standard", [&](int frame) { nascor.chooseStandard(image, frame); }, {}}};

  if (argc == 4 && std::string(argv[1]) == "--only") {
    for (Contender& contender : contenders) {
      if (contender.name != argv[2]) continue;
      for (int frame = 0; frame < std::atoi(argv[3]); ++frame) contender.redraw(frame);
      if (contender.name != "plotting-library") image.save(QString::fromStdString(contender.name) + ".png");
      return 0;
    }
    std::fprintf(stderr, "There is no contender \"%s\".\n", argv[2]);
    return 2;
  }

  const int rounds = argc > 1 ? std::atoi(argv[1]) : 200;
  if (rounds < 1) {
    std::fputs("usage: bench-painting [ROUNDS] | --only NAME FRAMES\n", stderr);
    return 2;
  }
  constexpr int kFrames = 10;
  for (int round = -5; round < rounds; ++round) {  // the first ones warm up
    for (Contender& contender : contenders) {
      const double start = processorMicroseconds();
      for (int frame = 0; frame < kFrames; ++frame) contender.redraw(round * kFrames + frame);
      const double took = processorMicroseconds() - start;
      if (round >= 0) contender.microseconds.push_back(took / kFrames);
    }
  }
  const double first = median(contenders.front().microseconds);
  for (const Contender& contender : contenders) {
    const double its = median(contender.microseconds);
    std::printf("%-18s %7.1f us  %.2f\n", contender.name.c_str(), its, its / first);
  }
  return 0;
}
