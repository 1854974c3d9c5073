// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/PageTabs.h"

#include <QAction>
#include <QKeySequence>
#include <QSignalBlocker>
#include <QStringList>
#include <utility>

#include "app/PageTexts.h"
#include "base/Mnemonics.h"
#include "base/Text.h"

namespace nascor::qt {

using app::NCDocument;

PageTabs::PageTabs(QWidget& window, NCDocument& document, Parts parts)
    : QObject(&window), document_(&document), parts_(std::move(parts)) {
  framework::TabView& tabs = document.tabView();
  QString taken;
  for (const QAction* item : parts_.menu.actions()) taken += mnemonicOf(item->text());
  for (std::int64_t i = 0; i < tabs.numberOfPages(); ++i) add(i, taken);
  subscriptions_.push_back(tabs.onSelect.subscribe([this] { showSelected(); }));
  subscriptions_.push_back(tabs.onNeedsDisplay.subscribe([this] { update(); }));
  connect(&parts_.tabs, &QTabWidget::currentChanged, this, [this](int index) {
    if (!document_ || index == document_->tabView().indexOfSelectedPage()) return;
    parts_.perform([index](NCDocument& shown) { shown.switchToGraph(index); });
    if (document_) showSelected();
  });
}

void PageTabs::add(std::int64_t index, QString& taken) {
  framework::Page& page = document_->tabView().page(index);
  auto* view = new PageView(page, clicks_);
  subscriptions_.push_back(view->onClick.subscribe([this, &page](framework::Point point, int count) {
    parts_.perform([&page, point, count](NCDocument&) { page.click(point, count); });
  }));
  const QString name = said("MyDocument", page.name().c_str());
  view->setObjectName(fromUtf8(page.name()) + QStringLiteral("Page"));
  view->setAccessibleName(name);
  parts_.tabs.addTab(view, name);
  views_.push_back(view);
  auto* item = new QAction(withMnemonic(name, taken), parent());
  taken += mnemonicOf(item->text());
  item->setObjectName(fromUtf8(page.name()) + QStringLiteral("Action"));
  item->setShortcut(QKeySequence(QStringLiteral("Alt+%1").arg(index + 1)));
  connect(item, &QAction::triggered, this,
          [this, index] { parts_.tabs.setCurrentIndex(static_cast<int>(index)); });
  parts_.menu.addAction(item);
}

void PageTabs::release() {
  subscriptions_.clear();
  for (PageView* view : views_) view->release();
  document_ = nullptr;
}

const PageView* PageTabs::pageOnShow() const { return dynamic_cast<PageView*>(parts_.tabs.currentWidget()); }

void PageTabs::showSelected() {
  const QSignalBlocker quiet(&parts_.tabs);
  parts_.tabs.setCurrentIndex(static_cast<int>(document_->tabView().indexOfSelectedPage()));
  update();
}

void PageTabs::update() {
  if (!document_) return;
  for (PageView* view : views_) view->update();
  onUpdate();
  const std::int64_t shown = document_->tabView().indexOfSelectedPage();
  QStringList advice;
  for (const std::string& sentence : app::adviceOnPage(*document_, shown)) advice << fromUtf8(sentence);
  views_.at(static_cast<std::size_t>(shown))->setAdvice(advice.join(u'\n'));
  views_.at(static_cast<std::size_t>(shown))
      ->setDescription(shown == model::indexOf(model::PatientPage::report)
                           ? fromUtf8(document_->report().shownText())
                           : said("MyDocument", "Growth chart of %1. Examination %2, %3. %4")
                                 .arg(fromUtf8(document_->shownTitle(true)), parts_.examination.text(),
                                      fromUtf8(document_->ageField().text()),
                                      fromUtf8(app::spokenPage(*document_, shown))));
}

}  // namespace nascor::qt
