// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>
#include <vector>

namespace nascor::framework {

class Panel;

/// A question with two answers.
struct Alert {
  std::string message;
  std::string information;  ///< may be empty
  std::string defaultButton;
  std::string alternateButton;
  /// Whether the Return key cancels: what the default button does cannot be taken back.
  bool isCancelledByReturn = false;
  const Panel* window = nullptr;  ///< the panel that is asked on; null for the document's own window
  bool interruptsTyping = false;  ///< asked because the user began to type in a field
  std::string addition = {};      ///< what else a person reads beneath the information; may be empty
};

/// What was answered: 1 for the default button, 0 for the alternate one.
enum class AlertReturn { alternate = 0, defaultButton = 1 };

/// Asks the user. While a question is open the document's other actions are disabled.
class Alerts {
 public:
  virtual ~Alerts() = default;

  /// Asks in front of the whole application and waits for the answer.
  virtual AlertReturn runModal(const Alert& alert) = 0;
  /// Asks on one window; `didEnd` is called once with the answer, at once or later.
  virtual void beginSheet(const Alert& alert, std::function<void(AlertReturn)> didEnd) = 0;
  /// Asks for one of several answers and waits; returns its place.
  virtual std::size_t chooseOne(const std::string& message, const std::string& information,
                                const std::vector<std::string>& buttons) = 0;
  /// Says that something could not be done. Nothing to answer.
  virtual void tell(const std::string& message, const std::string& information) = 0;
  /// The same with `details`, which are shown when the user asks for them; empty for none.
  virtual void tellDetails(const std::string& message, const std::string& information,
                           const std::string& details) = 0;
};

}  // namespace nascor::framework
