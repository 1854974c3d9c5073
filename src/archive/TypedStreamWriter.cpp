// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "archive/TypedStreamWriter.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace nascor::archive {
namespace {

template <class Integer>
bool fits(std::int64_t value) {
  return value >= std::numeric_limits<Integer>::min() && value <= std::numeric_limits<Integer>::max();
}

}  // namespace

std::byte* writtenLongNumber(std::byte* to, std::int64_t value) {
  if (fits<std::int16_t>(value))
    return writtenFixed(writtenByte(to, kInt16Tag), static_cast<std::uint16_t>(value));
  if (fits<std::int32_t>(value))
    return writtenFixed(writtenByte(to, kInt32Tag), static_cast<std::uint32_t>(value));
  return writtenFixed(writtenByte(to, kInt64Tag), static_cast<std::uint64_t>(value));
}

TypedStreamWriter::TypedStreamWriter(std::int64_t systemVersion) {
  plainHeads_.fill(kNilTag);
  constexpr std::size_t kUsual = 16;  // strings, and classes, of a document
  byText_.reserve(kUsual);
  notObjects_.reserve(kUsual);
  appendNumber(kStreamerVersion);
  appendUnshared(kLittleEndianSignature);
  appendNumber(systemVersion);
}

// ---- Bytes and numbers

[[gnu::noinline]] void TypedStreamWriter::grow(std::size_t size) {
  constexpr std::size_t kLeast = 4096;
  const auto used = static_cast<std::size_t>(at_ - bytes_.get());
  const std::size_t room = std::max(kLeast, 2 * (used + size));
  // NOLINTNEXTLINE(*-avoid-c-arrays): room that is not cleared before it is written
  auto larger = std::make_unique_for_overwrite<std::byte[]>(room);
  std::copy(bytes_.get(), at_, larger.get());
  bytes_ = std::move(larger);
  at_ = bytes_.get() + used;
  end_ = bytes_.get() + room;
}

void TypedStreamWriter::appendByte(int value) { at_ = writtenByte(roomFor(1), value); }

void TypedStreamWriter::appendBytes(std::span<const std::byte> bytes) {
  at_ = std::ranges::copy(bytes, roomFor(bytes.size())).out;
}

void TypedStreamWriter::appendNumber(std::int64_t value) {
  at_ = writtenNumber(roomFor(kLongestNumber), value);
}

void TypedStreamWriter::appendUnshared(std::string_view text) {
  appendNumber(static_cast<std::int64_t>(text.size()));
  appendBytes(std::as_bytes(std::span(text)));
}

/// The shared string of that text. A new one has the next number and must be written next.
TypedStreamWriter::SharedString& TypedStreamWriter::sharedString(std::string_view text) {
  const auto isBefore = [](const SharedString* one, std::string_view other) {
    return one->text.size() != other.size() ? one->text.size() < other.size() : one->text < other;
  };
  const auto place = std::lower_bound(byText_.begin(), byText_.end(), text, isBefore);
  if (place != byText_.end() && (*place)->text == text) return **place;
  strings_.push_back({.text = std::string(text), .number = strings_.size()});
  return **byText_.insert(place, &strings_.back());
}

void TypedStreamWriter::appendShared(SharedString& string) {
  if (std::exchange(string.isWritten, true)) {
    appendLabel(string.number);
  } else {
    appendByte(kNewTag);
    appendUnshared(string.text);
  }
}

TypedStreamWriter::SharedString& TypedStreamWriter::appendShared(std::string_view text) {
  SharedString& string = sharedString(text);
  appendShared(string);
  return string;
}

/// The label of the class; nothing for nil.
std::optional<Label> TypedStreamWriter::appendClass(const ClassDescription* cls) {
  std::optional<Label> label;
  for (; cls != nullptr; cls = cls->superclass) {
    SharedString& name = sharedString(cls->name);
    if (name.cls) {
      appendLabel(*name.cls);
      return label.value_or(*name.cls);
    }
    appendByte(kNewTag);
    appendShared(name);
    appendNumber(cls->version);
    name.cls = nextLabel_;
    if (!label) label = nextLabel_;
    notObjects_.emplace_back(nextLabel_++, '#');
  }
  appendByte(kNilTag);
  return label;
}

/// The type code of what has that label: '@', '#' or '*'.
char TypedStreamWriter::kindOf(Label label) const {
  const auto other = std::ranges::lower_bound(notObjects_, label, {}, &std::pair<Label, char>::first);
  return other != notObjects_.end() && other->first == label ? other->second : '@';
}

// ---- Groups and values

void TypedStreamWriter::beginGroup(std::string_view types) {
  walk_.requireBetweenGroups();
  SharedString& shared = appendShared(types);
  if (shared.types.empty()) {
    try {
      shared.types = parseTypeString(shared.text);
    } catch (const TypeStringError& error) {
      throw std::logic_error("the type string " + inQuotes(types) + " " + english(error.reason));
    }
  }
  walk_.beginGroup(shared.types);
}

const TypeNode& TypedStreamWriter::dueOf(std::string_view codes) const {
  const TypeNode* type = walk_.due();
  if (type == nullptr) throw std::logic_error("no value is due");
  if (codes.find(type->code) == std::string_view::npos) {
    throw std::logic_error(english(describeTypes(type->text)) + " is due, not one of " + std::string(codes));
  }
  return *type;
}

void TypedStreamWriter::writeInteger(std::int64_t value) {
  const TypeNode& type = dueOf("cCBsSiIlLqQ");
  const IntegerRange range = integerRangeOf(type.code);
  if (value < range.min || value > range.max) {
    throw std::logic_error(std::to_string(value) + " does not fit " + english(describeTypes(type.text)));
  }
  if (type.isRawByte()) {
    appendByte(static_cast<std::uint8_t>(value));
  } else {
    appendNumber(value);
  }
  walk_.passValue();
}

void TypedStreamWriter::writeReal(double value) {
  const bool single = dueOf("fd").code == 'f';
  constexpr double kLargestFloat = std::numeric_limits<float>::max();
  if (single && std::isfinite(value)) {
    const bool isFloat = std::abs(value) <= kLargestFloat && static_cast<float>(value) == value;
    if (!isFloat) throw std::logic_error("a 32-bit real is due, and the value has more digits");
  }
  std::byte* to = roomFor(kLongestNumber);
  at_ = single ? writtenReal(to, static_cast<float>(value)) : writtenReal(to, value);
  walk_.passValue();
}

void TypedStreamWriter::writeString(std::string_view text) {
  if (dueOf("+:%").code == '+') {
    appendUnshared(text);
  } else {
    appendShared(text);
  }
  walk_.passValue();
}

Label TypedStreamWriter::writeCString(std::string_view text) {
  dueOf("*");
  appendByte(kNewTag);
  appendShared(text);
  notObjects_.emplace_back(nextLabel_, '*');
  walk_.passValue();
  return nextLabel_++;
}

void TypedStreamWriter::writeClass(const ClassDescription& cls) {
  dueOf("#");
  appendClass(&cls);
  walk_.passValue();
}

void TypedStreamWriter::writeBytes(std::span<const std::byte> bytes) {
  const TypeNode& type = dueOf("[");
  if (!type.isByteArray() || type.count != bytes.size()) {
    throw std::logic_error(english(describeTypes(type.text)) + " is due, not " +
                           std::to_string(bytes.size()) + " bytes");
  }
  appendBytes(bytes);
  walk_.passValue();
}

void TypedStreamWriter::beginArray() {
  dueOf("[");
  walk_.enterArray();
}

void TypedStreamWriter::beginStructure() {
  dueOf("{");
  walk_.enterStructure();
}

Label TypedStreamWriter::beginObject(const ClassDescription& cls) {
  dueOf("@");
  appendByte(kNewTag);
  const Label label = nextLabel_++;  // before its class
  appendClass(&cls);
  walk_.enterObject(label);
  return label;
}

void TypedStreamWriter::endObject() {
  walk_.leaveObject();
  appendByte(kEndTag);
}

void TypedStreamWriter::writeNil() {
  dueOf("@#*+:%");
  appendByte(kNilTag);
  walk_.passValue();
}

void TypedStreamWriter::writeReference(Label label) {
  const TypeNode& type = dueOf("@*");
  if (label >= nextLabel_ || kindOf(label) != type.code) {
    throw std::logic_error("label " + std::to_string(label) + " is not " + english(describeTypes(type.text)));
  }
  appendLabel(label);
  walk_.passValue();
}

// ---- Groups of one value. They are complete as soon as they begin, so the walk need not open them.

[[gnu::noinline]] std::byte* TypedStreamWriter::beginOtherPlainGroup(char type) {
  const SharedString& shared = appendShared({&type, 1});
  const std::int64_t head = static_cast<std::int64_t>(shared.number) + kFirstNumber;
  if (head <= std::numeric_limits<std::int8_t>::max()) {
    plainHeads_.at(static_cast<unsigned char>(type)) = static_cast<std::int16_t>(head);
  }
  return roomFor(kLongestPlainValue);
}

/// Writes the type, and returns where its value may be written.
inline std::byte* TypedStreamWriter::beginPlainGroup(char type) {
  walk_.requireBetweenGroups();
  const int head = plainHeads_[static_cast<unsigned char>(type)];
  if (head == kNilTag) return beginOtherPlainGroup(type);
  return writtenByte(roomFor(1 + kLongestPlainValue), head);
}

void TypedStreamWriter::putInt(std::int32_t value) { at_ = writtenNumber(beginPlainGroup('i'), value); }

void TypedStreamWriter::putFloat(float value) { at_ = writtenReal(beginPlainGroup('f'), value); }

void TypedStreamWriter::putDouble(double value) { at_ = writtenReal(beginPlainGroup('d'), value); }

void TypedStreamWriter::putString(std::string_view text) {
  at_ = writtenNumber(beginPlainGroup('+'), static_cast<std::int64_t>(text.size()));
  std::ranges::copy(std::as_bytes(std::span(text)), roomFor(text.size()));
  at_ += text.size();
}

Label TypedStreamWriter::putObject(const ClassDescription& cls) {
  WrittenClass unknown{&cls};
  return putObject(unknown);
}

[[gnu::noinline]] Label TypedStreamWriter::putFirstObject(WrittenClass& cls) {
  at_ = writtenByte(beginPlainGroup('@'), kNewTag);
  const Label label = nextLabel_++;  // before its class
  cls.label = appendClass(cls.description);
  walk_.enterObjectOfItsGroup(label);
  return label;
}

Label TypedStreamWriter::putObjectOf(Label cls) {
  std::byte* to = writtenByte(beginPlainGroup('@'), kNewTag);
  at_ = writtenNumber(to, static_cast<std::int64_t>(cls) + kFirstNumber);
  walk_.enterObjectOfItsGroup(nextLabel_);
  return nextLabel_++;
}

void TypedStreamWriter::putNil() { at_ = writtenByte(beginPlainGroup('@'), kNilTag); }

void TypedStreamWriter::putReference(Label label) {
  beginGroup("@");
  writeReference(label);
}

std::vector<std::byte> TypedStreamWriter::finish() && {
  walk_.requireBetweenGroups();
  if (walk_.insideObject()) throw std::logic_error("an object is still open");
  return {bytes_.get(), at_};
}

}  // namespace nascor::archive
