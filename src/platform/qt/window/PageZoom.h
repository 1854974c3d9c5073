// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QObject>
#include <functional>
#include <optional>
#include <vector>

#include "window/PageView.h"

namespace nascor::qt {

/// How large a window's pages are: as they fit, or in steps of which one makes their texts as large as the window's own. All
/// pages of the window have the same scale.
class PageZoom final : public QObject {
 public:
  /// `pageOnShow` may be empty in between. The actions and the views outlive it.
  struct Parts {
    QAction& in;
    QAction& out;
    QAction& fit;
    std::vector<PageView*> views;
    std::function<const PageView*()> pageOnShow;
  };
  PageZoom(Parts parts, QWidget& window);

 private:
  /// The step after the scale on show; before it when `direction` is negative.
  double nextStep(int direction) const;
  /// The scale at which a page's texts are as large as the window's.
  double readableScale() const;
  void show(std::optional<double> scale);
  void showActions();

  Parts parts_;
  QWidget& window_;
  std::optional<double> scale_;
};

}  // namespace nascor::qt
