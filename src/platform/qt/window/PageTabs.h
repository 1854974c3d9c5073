// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>
#include <QMenu>
#include <QObject>
#include <QString>
#include <QTabWidget>
#include <cstdint>
#include <vector>

#include "app/NCDocument.h"
#include "foundation/Signal.h"
#include "window/ClickCounter.h"
#include "window/PageView.h"
#include "window/Perform.h"

namespace nascor::qt {

/// The pages of a document: the tabs of its window, and an item for each in the View menu.
class PageTabs final : public QObject {
 public:
  struct Parts {
    QTabWidget& tabs;
    QMenu& menu;
    const QLabel& examination;  ///< says which examination of how many is on show
    Perform perform;
  };
  /// Belongs to `window`. `document` outlives it, or `release` is called before it goes.
  PageTabs(QWidget& window, app::NCDocument& document, Parts parts);

  /// The pages are blank from now on.
  void release();
  const std::vector<PageView*>& views() const { return views_; }
  /// May be null in between.
  const PageView* pageOnShow() const;
  /// Draws the pages anew, and says of the one on show what it lacks and what screen readers read.
  void update();

  foundation::Signal<> onUpdate;  ///< the pages are drawn anew, and what else shows the same may be

 private:
  /// Adds a page, and an item with a letter that is not in `taken`.
  void add(std::int64_t index, QString& taken);
  void showSelected();

  app::NCDocument* document_;  ///< null once it is closed
  Parts parts_;
  ClickCounter clicks_;
  std::vector<PageView*> views_;
  std::vector<foundation::Subscription> subscriptions_;
};

}  // namespace nascor::qt
