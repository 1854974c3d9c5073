// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>
#include <QObject>
#include <functional>
#include <vector>

#include "framework/ZuDocument.h"

namespace nascor::qt {

/// The open documents in a menu, the one of this window marked. Choosing one brings its window to the front.
class WindowMenu final : public QObject {
 public:
  struct Parts {
    std::function<std::vector<framework::ZuDocument*>()> documents;  ///< in the order of opening
    std::function<const framework::ZuDocument*()> own;               ///< null once it is closed
    std::function<void(framework::ZuDocument&)> bringToFront;
  };
  /// Fills `menu` whenever it is opened. It belongs to `menu`.
  WindowMenu(QMenu& menu, Parts parts);

 private:
  void fill();

  QMenu& menu_;
  Parts parts_;
};

}  // namespace nascor::qt
