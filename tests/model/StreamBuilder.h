// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <bit>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "model/ClassNames.h"

namespace nascor::tests {

using Bytes = std::vector<std::byte>;

inline std::string hexOf(std::span<const std::byte> bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  for (const std::byte byte : bytes) {
    text += kDigits[std::to_integer<std::size_t>(byte) >> 4U];
    text += kDigits[std::to_integer<std::size_t>(byte) & 15U];
    text += ' ';
  }
  return text;
}

/// The bytes of a dump: pairs of hexadecimal digits, and texts in quotes, which stand for themselves. From "//" to
/// the end of the line is comment.
inline Bytes bytesOf(std::string_view dump) {
  Bytes bytes;
  for (std::size_t i = 0; i < dump.size(); ++i) {
    if (std::isspace(static_cast<unsigned char>(dump[i])) != 0) continue;
    if (dump.substr(i, 2) == "//") {
      i = std::min(dump.find('\n', i), dump.size());
    } else if (dump[i] == '"') {
      for (++i; dump.at(i) != '"'; ++i) bytes.push_back(static_cast<std::byte>(dump[i]));
    } else {
      bytes.push_back(static_cast<std::byte>(std::stoi(std::string(dump.substr(i, 2)), nullptr, 16)));
      ++i;
    }
  }
  return bytes;
}

/// Composes a typed stream without the program's own writer: it numbers texts, classes and objects by itself, and
/// writes whatever it is told to, however wrong.
class StreamBuilder {
 public:
  enum class Order { little, big };
  using Label = std::int64_t;

  explicit StreamBuilder(Order order = Order::little) : order_(order) {
    number(4);
    unshared(order == Order::little ? "streamtyped" : "typedstream");
    number(1000);
  }

  /// The version that the class record of that name is going to state.
  void setVersion(std::string_view cls, std::int64_t version) { versions_[std::string(cls)] = version; }

  // ---- Single values

  /// Bytes as they stand, spelled as for bytesOf().
  void raw(std::string_view dump) { append(bytesOf(dump)); }
  /// A whole number in its shortest form.
  void number(std::int64_t value) {
    if (value >= -110 && value <= 127) {
      fixed(static_cast<std::uint64_t>(value), 1);
    } else if (value >= -32768 && value <= 32767) {
      raw("81");
      fixed(static_cast<std::uint64_t>(value), 2);
    } else {
      raw("82");
      fixed(static_cast<std::uint64_t>(value), 4);
    }
  }
  void unshared(std::string_view text) {
    number(static_cast<std::int64_t>(text.size()));
    for (const char c : text) bytes_.push_back(static_cast<std::byte>(c));
  }
  /// A type string or the name of a class: in full the first time, its number afterwards.
  void shared(std::string_view text) {
    const auto [place, isNew] = texts_.try_emplace(std::string(text), static_cast<Label>(texts_.size()));
    if (!isNew) return number(place->second - 110);
    raw("84");
    unshared(text);
  }
  void cls(const std::string& name) {
    const auto [place, isNew] = classes_.try_emplace(name, labels_);
    if (!isNew) return number(place->second - 110);
    ++labels_;
    raw("84");
    shared(name);
    number(versions_.contains(name) ? versions_.at(name) : 0);
    const auto super = kSuperclasses.find(name);
    if (super == kSuperclasses.end()) return raw("85");
    cls(super->second);
  }

  // ---- Groups

  /// Begins an object, after which its groups follow until end(). Returns its label.
  Label begin(const std::string& name) {
    shared("@");
    raw("84");
    const Label label = labels_++;
    cls(name);
    return label;
  }
  void end() { raw("86"); }
  void nil() {
    shared("@");
    raw("85");
  }
  void reference(Label label) {
    shared("@");
    number(label - 110);
  }
  void integer(std::int64_t value) {
    shared("i");
    number(value);
  }
  void single(double value) {
    shared("f");
    if (isWhole(value)) return number(static_cast<std::int64_t>(value));
    raw("83");
    fixed(std::bit_cast<std::uint32_t>(static_cast<float>(value)), 4);
  }
  void real(double value) {
    shared("d");
    if (isWhole(value)) return number(static_cast<std::int64_t>(value));
    raw("83");
    fixed(std::bit_cast<std::uint64_t>(value), 8);
  }
  /// A group of any type, its value as raw().
  void group(std::string_view types, std::string_view dump) {
    shared(types);
    raw(dump);
  }

  // ---- Whole objects; each returns its label

  Label string(std::string_view text, const std::string& name = "NSString") {
    const Label label = begin(name);
    shared("+");
    unshared(text);
    end();
    return label;
  }
  Label date(double seconds) {
    const Label label = begin("NSDate");
    real(seconds);
    end();
    return label;
  }
  /// The elements follow, until end().
  Label beginArray(std::int64_t count, const std::string& name = "NSMutableArray") {
    const Label label = begin(name);
    integer(count);
    return label;
  }
  Label measurements(double bpd, double hc, double ac, double fl) {
    const Label label = begin("MeasurementsRecord");
    for (const double length : {bpd, hc, ac, fl}) single(length);
    end();
    return label;
  }

  std::size_t size() const { return bytes_.size(); }
  const Bytes& bytes() const { return bytes_; }

 private:
  static bool isWhole(double value) {
    return std::trunc(value) == value && value >= -2147483648.0 && value <= 2147483647.0;
  }
  void append(std::span<const std::byte> bytes) { bytes_.insert(bytes_.end(), bytes.begin(), bytes.end()); }
  void fixed(std::uint64_t bits, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i) {
      const std::size_t place = order_ == Order::little ? i : width - 1 - i;
      bytes_.push_back(static_cast<std::byte>(bits >> (8 * place) & 0xFFU));
    }
  }

  inline static const std::map<std::string, std::string> kSuperclasses{
      {"PatientRecord", "NSObject"}, {"NCRecord", "NSObject"},        {"MeasurementsRecord", "NSObject"},
      {"NSString", "NSObject"},      {"NSMutableString", "NSString"}, {"NSDate", "NSObject"},
      {"NSArray", "NSObject"},       {"NSMutableArray", "NSArray"},   {"NSNumber", "NSObject"},
      {"patientRecord", "NSObject"}};

  Order order_;
  Bytes bytes_;
  std::map<std::string, Label> texts_;
  std::map<std::string, Label> classes_;
  std::map<std::string, std::int64_t> versions_{{"PatientRecord", model::class_version::patientRecord},
                                                {"NCRecord", 1},
                                                {"NSString", 1},
                                                {"NSMutableString", 1}};
  Label labels_ = 0;
};

}  // namespace nascor::tests
