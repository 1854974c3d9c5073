// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/Puff.h"

#include <QPainter>
#include <QVariantAnimation>

namespace nascor::qt {
namespace {

class Puff final : public QWidget {
 public:
  explicit Puff(QWidget& window, QPoint centre) : QWidget(&window) {
    constexpr int kSide = 40;
    constexpr int kMilliseconds = 400;
    setObjectName(QStringLiteral("puff"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(centre.x() - kSide / 2, centre.y() - kSide / 2, kSide, kSide);
    auto* growth = new QVariantAnimation(this);
    growth->setStartValue(0.0);
    growth->setEndValue(1.0);
    growth->setDuration(kMilliseconds);
    connect(growth, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
      grown_ = value.toDouble();
      update();
    });
    connect(growth, &QVariantAnimation::finished, this, &QObject::deleteLater);
    growth->start();
    show();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QColor smoke(Qt::gray);
    smoke.setAlphaF(static_cast<float>(0.6 * (1.0 - grown_)));
    painter.setBrush(smoke);
    const QPointF middle = QRectF(rect()).center();
    const qreal spread = width() / 4.0 * grown_;
    const qreal radius = width() / 8.0 * (1.0 + grown_);
    for (const QPointF& way : {QPointF(-1, -1), QPointF(1, -1), QPointF(-1, 1), QPointF(1, 1), QPointF()})
      painter.drawEllipse(middle + way * spread, radius, radius);
  }

 private:
  double grown_ = 0.0;
};

}  // namespace

void showPuff(QWidget& window, QPoint centre) { new Puff(window, centre); }

}  // namespace nascor::qt
