// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "framework/Controls.h"
#include "framework/DocumentController.h"

namespace nascor::framework {

/// The controller of an application that works on documents.
class CorvelAppController {
 public:
  CorvelAppController(const foundation::Services& services, DocumentController& documents)
      : services_(services), documents_(documents) {}
  virtual ~CorvelAppController() = default;
  CorvelAppController(const CorvelAppController&) = delete;
  CorvelAppController& operator=(const CorvelAppController&) = delete;

  /// The main menu is there; no document exists yet.
  virtual void awakeFromNib() {}
  // Selector: validateMenuItem:
  /// Sets the item's tick and returns whether it may be chosen now.
  virtual bool validateMenuItem(MenuItem& item);

 protected:
  const foundation::Services& services() const { return services_; }
  DocumentController& documentController() const { return documents_; }

 private:
  foundation::Services services_;
  DocumentController& documents_;
};

}  // namespace nascor::framework
