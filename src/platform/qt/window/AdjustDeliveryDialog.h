// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "foundation/Services.h"
#include "window/PanelDialog.h"

namespace Ui {
class AdjustDelivery;
}

namespace nascor::qt {

/// The panel in which the planned delivery is moved by days.
class AdjustDeliveryDialog final : public PanelDialog {
 public:
  AdjustDeliveryDialog(app::NCDocument& document, const foundation::Services& services, Perform perform,
                       QWidget* parent);
  ~AdjustDeliveryDialog() override;

 private:
  void refresh() override;
  void focusFirst() override;

  foundation::Services services_;
  std::unique_ptr<Ui::AdjustDelivery> ui_;
};

}  // namespace nascor::qt
