// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/OverlayMenu.h"

#include <QActionGroup>
#include <utility>

#include "base/Mnemonics.h"
#include "base/Text.h"

namespace nascor::qt {

OverlayMenu::OverlayMenu(QMenu& menu, const foundation::Localizer& localizer,
                         std::function<charts::Overlay()> shown, Perform perform)
    : QObject(&menu), shown_(std::move(shown)), perform_(std::move(perform)), joinMarks_(new QAction(&menu)) {
  new QActionGroup(&menu);
  menu.setToolTipsVisible(true);
  add(menu, nullptr, said("Overlay", "No Centiles"));
  for (const calc::Reference& reference : calc::references()) {
    add(menu, &reference, fromUtf8(reference.label));
    choices_.back().action->setToolTip(fromUtf8(localizer.text("References", reference.assumes)));
  }
  menu.addSeparator();
  QString taken;
  for (const Choice& choice : choices_) taken += mnemonicOf(choice.action->text());
  joinMarks_->setText(withMnemonic(said("Overlay", "Join Marks"), taken));
  joinMarks_->setObjectName(QStringLiteral("joinMarksAction"));
  joinMarks_->setCheckable(true);
  menu.addAction(joinMarks_);
  connect(joinMarks_, &QAction::triggered, this, [this](bool isOn) {
    perform_([isOn](app::NCDocument& document) {
      document.setOverlay({.centiles = document.overlay().centiles, .joinsMarks = isOn});
    });
    validate();  // it may have been held back
  });
  connect(&menu, &QMenu::aboutToShow, this, [this] { validate(); });
  validate();
}

void OverlayMenu::add(QMenu& menu, const calc::Reference* reference, const QString& title) {
  QString taken;
  for (const Choice& choice : choices_) taken += mnemonicOf(choice.action->text());
  QAction* action = menu.addAction(withMnemonic(title, taken));
  action->setCheckable(true);
  menu.findChild<QActionGroup*>()->addAction(action);
  choices_.push_back({.centiles = reference, .action = action});
  connect(action, &QAction::triggered, this, [this, reference] {
    perform_([reference](app::NCDocument& document) {
      document.setOverlay({.centiles = reference, .joinsMarks = document.overlay().joinsMarks});
    });
    validate();
  });
}

void OverlayMenu::validate() {
  const charts::Overlay shown = shown_();
  for (const Choice& choice : choices_) choice.action->setChecked(choice.centiles == shown.centiles);
  joinMarks_->setChecked(shown.joinsMarks);
}

}  // namespace nascor::qt
