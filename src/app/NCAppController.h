// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/NCDocument.h"
#include "foundation/NotificationCenter.h"
#include "framework/CorvelAppController.h"
#include "framework/Viewer.h"

namespace nascor::app {

/// Where the user guide lies, and who shows it.
struct HelpEnvironment {
  std::optional<std::string> resourcePath = std::nullopt;  ///< the folder of the application's resources
  framework::Viewer* viewer = nullptr;                     ///< without one nothing is shown
};

/// The application's part of the main menu: the standards and their ticks, "Show All", and what goes to the document in
/// front. Without a document in front nothing happens.
class NCAppController final : public framework::CorvelAppController, public foundation::NotificationSender {
 public:
  NCAppController(const foundation::Services& services, framework::DocumentController& documents,
                  HelpEnvironment help = {});

  std::string_view className() const override { return "NCAppController"; }

  /// Registers the five preferences and sets the tick of "Show All".
  void awakeFromNib() override;

  /// @name Actions; the tag of an item is the identifier of its standard
  /// @{
  void doSetStandard(const framework::MenuItem& sender);
  void doSetEFWStandard(const framework::MenuItem& sender);
  void doSetCRLStandard(const framework::MenuItem& sender);
  void doAdjustDeliveryDate(NCDocument::Sender sender);
  void toggleShowAll(framework::MenuItem& sender);
  // Selector: doHelp:
  /// Shows the user guide in the user's own viewer. Throws AssertionFailure when the program does not know where its
  /// resources are; a guide that cannot be shown is no error.
  void doHelp();
  /// @}

  bool validateMenuItem(framework::MenuItem& item) override;

  framework::MenuItem& showAllMenuItem() { return showAllMenuItem_; }

  /// The items of the three menus of standards, in their order, with their tags.
  std::vector<framework::MenuItem> standardsMenuItems() const;
  /// Does what choosing an item of one of the three menus does; false for an item of another menu.
  bool chooseStandard(const framework::MenuItem& item);

 private:
  NCDocument* currentDocument() const;
  std::string localized(std::string_view table, std::string_view key) const;

  HelpEnvironment help_;
  framework::MenuItem showAllMenuItem_;
};

}  // namespace nascor::app
