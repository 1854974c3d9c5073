#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "app/NCDocument.h"
#include "foundation/Services.h"

namespace Ui {
class AdjustDelivery;
}

namespace nascor::qt {

/// The panel in which the planned delivery is moved by days. Shown and hidden by its document.
class AdjustDeliveryDialog final : public QDialog {
 public:
  /// Does something with the document between two other actions, or does not.
  using Perform = std::function<void(const std::function<void(app::NCDocument&)>&)>;

  AdjustDeliveryDialog(app::NCDocument& document, const foundation::Services& services, Perform perform,
                       QWidget* parent);
  ~AdjustDeliveryDialog() override;

  /// Ends the binding: the document goes.
  void release();
  void done(int result) override;

 private:
  void refresh();
  void showPanel();

  foundation::Services services_;
  Perform perform_;
  std::unique_ptr<Ui::AdjustDelivery> ui_;
  app::NCDocument* document_;
  framework::Panel* panel_ = nullptr;
};

}  // namespace nascor::qt
