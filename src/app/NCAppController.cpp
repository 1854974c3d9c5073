// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/NCAppController.h"

#include <algorithm>
#include <array>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "calc/Standards.h"
#include "foundation/Assertion.h"
#include "foundation/Localizer.h"
#include "foundation/PercentEscapes.h"
#include "foundation/UserDefaults.h"

namespace nascor::app {

using foundation::translatable;
using framework::MenuItem;
namespace defaults_key = foundation::defaults_key;

namespace {

/// One menu of standards. A missing document reads as standard 0.
struct StandardsMenu {
  std::string_view title;
  std::int64_t (*chosen)(const NCDocument* document);
  void (NCAppController::*choose)(const MenuItem& sender);
};

constexpr std::array<StandardsMenu, 3> kStandardsMenus{{
    {translatable("NCAppController", "Standards"),
     [](const NCDocument* document) { return document ? document->standard() : 0; },
     &NCAppController::doSetStandard},
    {translatable("NCAppController", "Estimated Fetal Weight"),
     [](const NCDocument* document) { return document ? document->fetalWeightStandard() : 0; },
     &NCAppController::doSetEFWStandard},
    {translatable("NCAppController", "Crown Rump Length"),
     [](const NCDocument* document) {
       return document && document->patientRecord() ? document->patientRecord()->crlStandard() : 0;
     },
     &NCAppController::doSetCRLStandard},
}};

}  // namespace

NCAppController::NCAppController(const foundation::Services& services,
                                 framework::DocumentController& documents, HelpEnvironment help)
    : CorvelAppController(services, documents), help_(std::move(help)) {}

void NCAppController::awakeFromNib() {
  CorvelAppController::awakeFromNib();
  foundation::UserDefaults& defaults = services().defaults;
  defaults.registerDefault(defaults_key::dataFileExtension, "nascor");
  defaults.registerDefault(defaults_key::showAll, "YES");
  defaults.registerDefault(defaults_key::standard, "0");
  defaults.registerDefault(defaults_key::estimatedFetalWeightStandard, "0");
  defaults.registerDefault(defaults_key::crlStandard, "0");
  showAllMenuItem_ = {.menuTitle = localized("NCAppController", "View"),
                      .title = localized("NCAppController", "Show All"),
                      .tag = 0,
                      .state = foundation::boolForKey(defaults, defaults_key::showAll) ? 1 : 0};
}

void NCAppController::doSetStandard(const MenuItem& sender) {
  if (NCDocument* document = currentDocument()) document->doSetStandard(sender.tag);
}

void NCAppController::doSetEFWStandard(const MenuItem& sender) {
  if (NCDocument* document = currentDocument()) document->doSetEFWStandard(sender.tag);
}

void NCAppController::doSetCRLStandard(const MenuItem& sender) {
  if (NCDocument* document = currentDocument()) document->doSetCRLStandard(sender.tag);
}

void NCAppController::doAdjustDeliveryDate(NCDocument::Sender sender) {
  if (NCDocument* document = currentDocument()) document->doAdjustDeliveryDate(sender);
}

void NCAppController::toggleShowAll(MenuItem& sender) {
  sender.state = sender.state == 0 ? 1 : 0;
  services().defaults.setValue(defaults_key::showAll, sender.state != 0 ? "true" : "false");
  services().notifications.post(foundation::NotificationName::updateShowAll, this);
}

void NCAppController::doHelp() {
  const std::string guide = foundation::required(help_.resourcePath).value() + "/Nascor User Guide.pdf";
  if (help_.viewer) help_.viewer->open("file://" + foundation::withPercentEscapes(guide));
}

bool NCAppController::validateMenuItem(MenuItem& item) {
  const NCDocument* document = currentDocument();
  for (const StandardsMenu& menu : kStandardsMenus) {
    if (item.menuTitle != localized("NCAppController", menu.title)) continue;
    item.state = item.tag == menu.chosen(document) ? 1 : 0;
    return document != nullptr;
  }
  return CorvelAppController::validateMenuItem(item);
}

std::vector<MenuItem> NCAppController::standardsMenuItems() const {
  std::vector<MenuItem> items;
  const auto add = [&](std::string_view menu, std::string_view title, std::size_t tag) {
    items.push_back({.menuTitle = localized("NCAppController", menu),
                     .title = std::string(title),
                     .tag = static_cast<std::int64_t>(tag),
                     .state = 0});
  };
  const auto growth = calc::growthStandards();
  for (std::size_t i = 0; i < growth.size(); ++i) add(kStandardsMenus[0].title, growth[i].label, i);
  const auto weight = calc::weightFormulas();
  for (std::size_t i = 0; i < weight.size(); ++i) add(kStandardsMenus[1].title, weight[i].longLabel, i);
  const auto crl = calc::crlFormulas();
  for (std::size_t i = 0; i < crl.size(); ++i) add(kStandardsMenus[2].title, crl[i].label, i);
  return items;
}

bool NCAppController::chooseStandard(const MenuItem& item) {
  const auto menu = std::ranges::find_if(kStandardsMenus, [&](const StandardsMenu& candidate) {
    return item.menuTitle == localized("NCAppController", candidate.title);
  });
  if (menu == kStandardsMenus.end()) return false;
  (this->*menu->choose)(item);
  return true;
}

NCDocument* NCAppController::currentDocument() const {
  return dynamic_cast<NCDocument*>(documentController().currentDocument());
}

std::string NCAppController::localized(std::string_view table, std::string_view key) const {
  return services().localizer.text(table, key);
}

}  // namespace nascor::app
