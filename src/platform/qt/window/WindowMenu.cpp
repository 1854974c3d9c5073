// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/WindowMenu.h"

#include <QActionGroup>
#include <QFile>
#include <algorithm>
#include <utility>

#include "base/FileLabels.h"
#include "base/Text.h"

namespace nascor::qt {

using framework::ZuDocument;

WindowMenu::WindowMenu(QMenu& menu, Parts parts) : QObject(&menu), menu_(menu), parts_(std::move(parts)) {
  connect(&menu_, &QMenu::aboutToShow, this, [this] { fill(); });
}

void WindowMenu::fill() {
  menu_.clear();
  const std::vector<ZuDocument*> documents = parts_.documents();
  QStringList names;
  for (const ZuDocument* document : documents) {
    names << (document->filePath() ? QFile::decodeName(QByteArray::fromStdString(*document->filePath()))
                                   : fromUtf8(document->nameForUser()));
  }
  const QStringList labels = fileLabels(names);
  auto* group = new QActionGroup(&menu_);
  connect(&menu_, &QMenu::aboutToShow, group, &QObject::deleteLater);
  for (std::size_t i = 0; i < documents.size(); ++i) {
    constexpr std::size_t kDigits = 9;
    const QString label = menuText(labels[static_cast<qsizetype>(i)]);
    QAction* action =
        menu_.addAction(i < kDigits ? QStringLiteral("&%1  %2").arg(QString::number(i + 1), label) : label);
    group->addAction(action);
    action->setCheckable(true);
    action->setChecked(documents[i] == parts_.own());
    connect(action, &QAction::triggered, this, [this, document = documents[i]] {
      // The menu may have stood open while another program closed the document.
      const auto open = parts_.documents();
      if (std::ranges::find(open, document) != open.end()) parts_.bringToFront(*document);
    });
  }
}

}  // namespace nascor::qt
