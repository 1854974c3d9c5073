// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/FetusChoice.h"

#include <QActionGroup>
#include <QKeySequence>
#include <QSignalBlocker>
#include <utility>

#include "base/Text.h"
#include "calc/EditingBounds.h"
#include "window/Puff.h"

namespace nascor::qt {

using app::NCDocument;

FetusChoice::FetusChoice(QWidget& window, NCDocument& document, Parts parts)
    : QObject(&window), window_(window), document_(&document), parts_(std::move(parts)) {
  framework::PopUpButton& popUp = document.multiplePopUp();
  subscriptions_.push_back(popUp.onChange.subscribe([this] { show(); }));
  subscriptions_.push_back(popUp.onAnimationEffect.subscribe(
      [this](int, framework::Point at) { showPuff(window_, QPointF(at.x, at.y).toPoint()); }));
  // Only what the user chooses: the box also changes while it is filled.
  connect(&parts_.box, &QComboBox::activated, this, [this](int index) { choose(index); });
  auto* group = new QActionGroup(this);
  for (std::size_t i = 0; i < items_.size(); ++i) {
    auto* item = new QAction(&window_);
    item->setObjectName(QStringLiteral("fetusAction%1").arg(i + 1));
    item->setCheckable(true);
    group->addAction(item);
    connect(item, &QAction::triggered, this, [this, i] { choose(static_cast<int>(i)); });
    parts_.menu.addAction(item);
    items_.at(i) = item;
  }
  show();
}

void FetusChoice::release() {
  subscriptions_.clear();
  document_ = nullptr;
}

void FetusChoice::choose(int index) {
  parts_.perform([index](NCDocument& document) {
    document.multiplePopUp().selectItemAtIndex(index);
    document.chooseFetus(document.multiplePopUp());
  });
  show();
}

void FetusChoice::show() {
  if (!document_) return;
  const framework::PopUpButton& popUp = document_->multiplePopUp();
  QComboBox& box = parts_.box;
  const QSignalBlocker quiet(&box);
  box.clear();
  for (const auto& item : popUp.items()) box.addItem(fromUtf8(item.title));
  const auto selected = static_cast<int>(popUp.indexOfSelectedItem());
  box.setCurrentIndex(selected);
  for (std::size_t i = 0; i < items_.size(); ++i) {
    QAction& action = *items_.at(i);
    const bool isThere = i < popUp.items().size();
    action.setVisible(isThere);
    action.setEnabled(isThere);
    if (!isThere) continue;
    const auto& item = popUp.items().at(i);
    // The last sign tells them apart.
    action.setText(QStringLiteral("&%1  %2").arg(QString::number(i + 1), fromUtf8(item.title)));
    action.setShortcut(item.keyEquivalent.empty()
                           ? QKeySequence()
                           : QKeySequence(QStringLiteral("Ctrl+") + fromUtf8(item.keyEquivalent)));
    action.setChecked(static_cast<int>(i) == selected);
  }
  parts_.add.setEnabled(popUp.numberOfItems() < calc::kMostFetuses);
  parts_.remove.setEnabled(popUp.numberOfItems() > calc::kFewestFetuses);
}

void FetusChoice::place() const {
  const QPoint at = parts_.box.mapTo(&window_, QPoint());
  document_->multiplePopUp().setFrame({.x = static_cast<double>(at.x()),
                                       .y = static_cast<double>(at.y()),
                                       .width = static_cast<double>(parts_.box.width()),
                                       .height = static_cast<double>(parts_.box.height())});
}

}  // namespace nascor::qt
