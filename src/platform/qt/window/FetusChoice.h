// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QObject>
#include <array>
#include <vector>

#include "app/NCDocument.h"
#include "foundation/Signal.h"
#include "window/Perform.h"

namespace nascor::qt {

/// Which fetus is on show: a box in the panel of a window, and as many items in its Patient menu.
class FetusChoice final : public QObject {
 public:
  struct Parts {
    QComboBox& box;
    QMenu& menu;
    QAction& add;     ///< enabled while there is room for one more
    QAction& remove;  ///< enabled while there is one too many
    Perform perform;
  };
  /// Belongs to `window`. `document` outlives it, or `release` is called before it goes.
  FetusChoice(QWidget& window, app::NCDocument& document, Parts parts);

  void release();
  /// Tells the document where its pop-up stands in the window.
  void place() const;

 private:
  void choose(int index);
  void show();

  QWidget& window_;
  app::NCDocument* document_;  ///< null once it is closed
  Parts parts_;
  std::array<QAction*, 5> items_{};
  std::vector<foundation::Subscription> subscriptions_;
};

}  // namespace nascor::qt
