// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

#include "framework/Surface.h"
#include "painting/TextLayouts.h"

namespace nascor::qt {

/// A page as a drawing of XML. Qt's generator knows no clipping, so each view is a drawing of its own, and
/// these are put together, each with its clip.
class SvgSurface final : public framework::Surface {
 public:
  SvgSurface(double width, double height, TextLayouts& texts);
  SvgSurface(const SvgSurface&) = delete;
  SvgSurface& operator=(const SvgSurface&) = delete;
  ~SvgSurface() override;

  framework::Canvas& pageCanvas() override;
  framework::Canvas& beginView(const framework::ZuPrimitiveGraphView& view,
                               const framework::Rect& frame) override;
  void endView() override;

  /// What is drawn until `endView` lies in `frame` and is clipped to it.
  framework::Canvas& beginLayer(const framework::Rect& frame, bool isFlipped);

  /// What the drawing says of itself; what is empty is left out.
  struct Facts {
    QString title;
    QString author;
    QString subject;
  };
  /// The whole drawing, UTF-8.
  QByteArray finish(const Facts& facts);

 private:
  class Layer;
  double width_;
  double height_;
  TextLayouts& texts_;
  std::unique_ptr<Layer> page_;
  std::unique_ptr<Layer> view_;
  QString views_;
  int layers_ = 0;
};

}  // namespace nascor::qt
