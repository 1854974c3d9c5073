// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>
#include <QWidget>
#include <functional>

#include "foundation/Signal.h"
#include "framework/Alerts.h"
#include "window/Actions.h"

namespace nascor::qt {

/// Asks in message boxes. Their texts are shown as they are, without markup.
class QtAlerts final : public framework::Alerts {
 public:
  /// The answer of a sheet is acted on through `actions`, in its turn.
  explicit QtAlerts(Actions& actions) : actions_(actions) {}

  framework::AlertReturn runModal(const framework::Alert& alert) override;
  void beginSheet(const framework::Alert& alert, std::function<void(framework::AlertReturn)> didEnd) override;
  std::size_t chooseOne(const std::string& message, const std::string& information,
                        const std::vector<std::string>& buttons) override;
  void tell(const std::string& message, const std::string& information) override;
  void tellDetails(const std::string& message, const std::string& information,
                   const std::string& details) override;

  /// The window in front; set by the maker of windows. May return null.
  std::function<QWidget*()> frontWindow;
  /// The window of a panel; set likewise. May return null.
  std::function<QWidget*(const framework::Panel&)> windowOfPanel;
  /// Sent before a question that whatever asked it waits for.
  foundation::Signal<> onQuestion;

 private:
  QWidget* parent() const { return frontWindow ? frontWindow() : nullptr; }
  void exec(QMessageBox& box) const;
  Actions& actions_;
};

/// Whether a sheet is open on `window` or on a dialog of it.
bool hasSheet(const QWidget& window);
/// Takes the sheets of `window` and its dialogs away, unanswered.
void dropSheets(const QWidget& window);

}  // namespace nascor::qt
