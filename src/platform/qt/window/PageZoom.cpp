// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/PageZoom.h"

#include <QFontInfo>
#include <cmath>
#include <utility>

#include "framework/Canvas.h"

namespace nascor::qt {

namespace {

constexpr double kStep = 1.25;
constexpr int kMostSteps = 6;  // to texts nearly four times as large as the window's

}  // namespace

PageZoom::PageZoom(Parts parts, QWidget& window)
    : QObject(&window), parts_(std::move(parts)), window_(window) {
  // The sign of a plus lies above that of equals on many keyboards.
  parts_.in.setShortcuts({QKeySequence(QStringLiteral("Ctrl++")), QKeySequence(QStringLiteral("Ctrl+="))});
  connect(&parts_.in, &QAction::triggered, this, [this] { show(nextStep(1)); });
  connect(&parts_.out, &QAction::triggered, this, [this] {
    const double scale = nextStep(-1);
    constexpr double kVisibly = 1.01;
    show(scale > parts_.pageOnShow()->fittingScale() * kVisibly ? std::optional(scale) : std::nullopt);
  });
  connect(&parts_.fit, &QAction::triggered, this, [this] { show(std::nullopt); });
  showActions();
}

double PageZoom::readableScale() const {
  return QFontInfo(window_.font()).pixelSize() / framework::kTextHeight;
}

double PageZoom::nextStep(int direction) const {
  const double steps = std::log(parts_.pageOnShow()->scale() / readableScale()) / std::log(kStep);
  constexpr double kNearly = 0.01;  // a step that is all but reached counts as reached
  const double next = direction > 0 ? std::floor(steps + kNearly) + 1.0 : std::ceil(steps - kNearly) - 1.0;
  return readableScale() * std::pow(kStep, next);
}

void PageZoom::show(std::optional<double> scale) {
  scale_ = scale;
  for (PageView* view : parts_.views) view->setScale(scale_);
  showActions();
}

void PageZoom::showActions() {
  const double greatest = readableScale() * std::pow(kStep, kMostSteps);
  parts_.in.setEnabled(!scale_ || *scale_ < greatest * 0.99);
  parts_.out.setEnabled(scale_.has_value());
  parts_.fit.setEnabled(scale_.has_value());
}

}  // namespace nascor::qt
