// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/RecentMenu.h"

#include <utility>

#include "base/FileLabels.h"
#include "base/Text.h"
#include "foundation/Utf8.h"

namespace nascor::qt {

RecentMenu::RecentMenu(QMenu& menu, RecentFiles& files, std::function<void(const QStringList&)> open)
    : QObject(&menu), menu_(menu), files_(files), open_(std::move(open)) {
  connect(&menu_, &QMenu::aboutToShow, this, [this] { fill(); });
  fill();
}

void RecentMenu::fill() {
  menu_.clear();
  const QStringList paths = files_.paths();
  const QStringList labels = fileLabels(paths);
  constexpr int kMostSigns = 60;
  const int sign = menu_.fontMetrics().averageCharWidth();
  for (qsizetype i = 0; i < paths.size(); ++i) {
    const QString& path = paths[i];
    const QString label = menu_.fontMetrics().elidedText(labels[i], Qt::ElideMiddle, kMostSigns * sign);
    QAction* action =
        menu_.addAction(QStringLiteral("&%1  %2").arg(QString::number((i + 1) % 10), menuText(label)));
    action->setToolTip(fromUtf8(foundation::oneLine(toUtf8(path))));
    action->setData(path);
    connect(action, &QAction::triggered, this, [this, path] { open_({path}); });
  }
  if (!paths.isEmpty()) menu_.addSeparator();
  QAction* clear = menu_.addAction(said("MyDocument", "&Clear"));
  clear->setObjectName(QStringLiteral("clearRecentAction"));
  clear->setEnabled(!paths.isEmpty());
  connect(clear, &QAction::triggered, this, [this] { files_.clear(); });
  QAction* remember = menu_.addAction(said("MyDocument", "&Remember Recent Documents"));
  remember->setObjectName(QStringLiteral("rememberRecentAction"));
  remember->setCheckable(true);
  remember->setChecked(files_.isKept());
  connect(remember, &QAction::toggled, this, [this](bool kept) { files_.setKept(kept); });
}

}  // namespace nascor::qt
