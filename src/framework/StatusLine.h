// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <utility>

#include "foundation/Signal.h"

namespace nascor::framework {

class TextField;

/// What the status line of a window tells the user: one sentence, which stays until the next change to the document.
class StatusLine {
 public:
  /// Empty when there is nothing to tell.
  const std::string& message() const { return message_; }
  /// The field that the message is about; null for none.
  const TextField* field() const { return field_; }

  /// Takes the place of the message before.
  void say(std::string message, const TextField* field = nullptr) {
    message_ = std::move(message);
    field_ = field;
    onChange();
  }
  void clear() {
    if (!message_.empty()) say({});
  }

  foundation::Signal<> onChange;  ///< there is another message, or none

 private:
  std::string message_;
  const TextField* field_ = nullptr;
};

}  // namespace nascor::framework
