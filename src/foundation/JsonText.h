// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace nascor::foundation {

/// Writes JSON without blanks and line ends, value after value, at the end of a string. Nothing is kept but the open brackets, so that a
/// text as long as wanted can be taken away piece by piece.
///
///     JsonText json(out);
///     json.beginObject().key("weeks").number(20.5).key("formula").integer(3).endObject();
///
/// Calls must come in an order that makes JSON: in an object a key before each value, every bracket closed.
/// Values at the top may follow one another; what stands between them (a line end, say) is the caller's to
/// write.
class JsonText {
 public:
  explicit JsonText(std::string& out) : out_(out) {}

  JsonText& beginObject() { return open('{'); }
  JsonText& endObject() { return close('}'); }
  JsonText& beginArray() { return open('['); }
  JsonText& endArray() { return close(']'); }
  JsonText& key(std::string_view name);

  /// UTF-8 stays as it is; quotation mark, backslash, control characters and signs of direction are escaped, so that a
  /// terminal shows the text as it is and takes no orders from it. Each byte that is no UTF-8 becomes U+FFFD, since JSON has
  /// no way to write it.
  JsonText& text(std::string_view value);
  /// The shortest digits that read back to the same double. Not finite: the texts "nan", "inf" and "-inf".
  JsonText& number(double value);
  /// With that many digits behind the point, as `fixedText` gives them. Not finite: as `number`.
  JsonText& fixed(double value, int decimals);
  JsonText& integer(std::int64_t value);
  JsonText& unsignedInteger(std::uint64_t value);
  JsonText& boolean(bool value);
  JsonText& null();

 private:
  JsonText& open(char bracket);
  JsonText& close(char bracket);
  void startElement();
  void appendQuoted(std::string_view value);

  std::string& out_;
  std::vector<bool> hasElements_;  // of each open bracket
  bool afterKey_ = false;
};

}  // namespace nascor::foundation
