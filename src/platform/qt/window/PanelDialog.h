// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <vector>

#include "app/NCDocument.h"
#include "foundation/Signal.h"
#include "window/Perform.h"

class QLabel;
class QLineEdit;

namespace nascor::qt {

/// A window beside the document's own, bound to one of its panels: shown and hidden by the document. Closing it, by
/// whatever key or button, cancels it.
class PanelDialog : public QDialog {
 public:
  ~PanelDialog() override = default;

  /// What it shows; null once the document is gone.
  const framework::Panel* panel() const { return panel_; }
  /// Shows itself when the document has its panel shown, and hides otherwise.
  void followPanel();
  /// Stands in the middle of the document's window.
  void center();
  /// Lets go of the document, which is about to go.
  void release();
  void done(int result) override;

 protected:
  PanelDialog(app::NCDocument& document, Perform perform, QWidget* parent);

  /// Finds the panel of the dialog's own name; it has been set up.
  void bindPanel();
  /// Null once the document is gone.
  app::NCDocument* document() const { return document_; }
  void perform(const DocumentAction& action) { perform_(action); }
  /// Keeps `subscription`, to something of the document, until that goes.
  void keep(foundation::Subscription subscription) { subscriptions_.push_back(std::move(subscription)); }
  /// Whether the document has it open.
  bool isPanelShown() const { return panel_ != nullptr && panel_->isShown(); }
  /// The document's field of that widget's name.
  framework::TextField& fieldFor(const QWidget& widget) const;

  /// Stays as tall as its texts need at its width: a layout alone would cut the last line of a text that wraps.
  bool event(QEvent* event) override;

  /// Shows what nothing shows by itself.
  virtual void refresh() = 0;
  /// Puts the focus where work begins.
  virtual void focusFirst() = 0;

 private:
  app::NCDocument* document_;
  QString title_;
  Perform perform_;
  framework::Panel* panel_ = nullptr;
  std::vector<foundation::Subscription> subscriptions_;
};

}  // namespace nascor::qt
