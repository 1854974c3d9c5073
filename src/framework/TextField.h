#pragma once

#include <functional>
#include <string>
#include <utility>

namespace nascor::framework {

/// The state of one text field. The document reads and writes it; a view binds to `onChange`.
class TextField {
 public:
  const std::string& text() const { return text_; }
  void setText(std::string text) {
    text_ = std::move(text);
    if (onChange) onChange();
  }
  std::function<void()> onChange;  ///< set by the view that shows this field; may be empty

 private:
  std::string text_;
};

}  // namespace nascor::framework
