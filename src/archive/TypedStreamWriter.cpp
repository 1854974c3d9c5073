#include "archive/TypedStreamWriter.h"

#include <bit>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

namespace nascor::archive {
namespace {

template <class Integer>
bool fits(std::int64_t value) {
  return value >= std::numeric_limits<Integer>::min() && value <= std::numeric_limits<Integer>::max();
}

/// Whole numbers of 32 bits are written as integers, whatever the width of the real. The border is that of
/// the conversion to a 32-bit integer, with which the value is compared; a NaN fails every comparison.
bool isWrittenAsInteger(double value) {
  return value >= -2147483648.0 && value < 2147483648.0 && value == std::trunc(value);
}

}  // namespace

TypedStreamWriter::TypedStreamWriter(std::int64_t systemVersion) {
  appendNumber(kStreamerVersion);
  appendUnshared(kLittleEndianSignature);
  appendNumber(systemVersion);
}

// ---- Bytes and numbers

void TypedStreamWriter::appendFixed(std::uint64_t bits, std::size_t width) {
  for (std::size_t i = 0; i < width; ++i) bytes_.push_back(static_cast<std::byte>(bits >> (8 * i) & 0xffU));
}

void TypedStreamWriter::appendNumber(std::int64_t value) {
  if (value >= kFirstNumber && value <= std::numeric_limits<std::int8_t>::max()) {
    appendByte(static_cast<int>(value));
  } else if (fits<std::int16_t>(value)) {
    appendByte(kInt16Tag);
    appendFixed(static_cast<std::uint64_t>(value), 2);
  } else if (fits<std::int32_t>(value)) {
    appendByte(kInt32Tag);
    appendFixed(static_cast<std::uint64_t>(value), 4);
  } else {
    appendByte(kInt64Tag);
    appendFixed(static_cast<std::uint64_t>(value), 8);
  }
}

void TypedStreamWriter::appendUnshared(std::string_view text) {
  appendNumber(static_cast<std::int64_t>(text.size()));
  const auto bytes = std::as_bytes(std::span(text));
  bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
}

TypedStreamWriter::SharedString& TypedStreamWriter::appendShared(std::string_view text) {
  if (const auto known = stringNumbers_.find(text); known != stringNumbers_.end()) {
    appendLabel(known->second);
    return strings_[known->second];
  }
  appendByte(kNewTag);
  appendUnshared(text);
  strings_.push_back({.text = std::string(text), .types = {}});
  stringNumbers_.emplace(strings_.back().text, strings_.size() - 1);
  return strings_.back();
}

void TypedStreamWriter::appendClass(const ClassDescription* cls) {
  for (; cls != nullptr; cls = cls->superclass) {
    const auto [place, isNew] = classes_.try_emplace(std::string(cls->name), labels_.size());
    if (!isNew) {
      appendLabel(place->second);
      return;
    }
    appendByte(kNewTag);
    appendShared(cls->name);
    appendNumber(cls->version);
    labels_.push_back('#');
  }
  appendByte(kNilTag);
}

// ---- Groups and values

void TypedStreamWriter::beginGroup(std::string_view types) {
  walk_.requireBetweenGroups();
  SharedString& shared = appendShared(types);
  if (shared.types.empty()) {
    try {
      shared.types = parseTypeString(shared.text);
    } catch (const TypeStringError& error) {
      throw std::logic_error("the type string " + inQuotes(types) + " " + error.reason);
    }
  }
  walk_.beginGroup(shared.types);
}

const TypeNode& TypedStreamWriter::dueOf(std::string_view codes) const {
  const TypeNode* type = walk_.due();
  if (type == nullptr) throw std::logic_error("no value is due");
  if (codes.find(type->code) == std::string_view::npos) {
    throw std::logic_error(describeTypes(type->text) + " is due, not one of " + std::string(codes));
  }
  return *type;
}

void TypedStreamWriter::writeInteger(std::int64_t value) {
  const TypeNode& type = dueOf("cCBsSiIlLqQ");
  const IntegerRange range = integerRangeOf(type.code);
  if (value < range.min || value > range.max) {
    throw std::logic_error(std::to_string(value) + " does not fit " + describeTypes(type.text));
  }
  if (type.isRawByte()) {
    appendFixed(static_cast<std::uint64_t>(value), 1);
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
  if (isWrittenAsInteger(value)) {
    appendNumber(static_cast<std::int64_t>(value));
  } else {
    appendByte(kRealTag);
    if (single) {
      appendFixed(std::bit_cast<std::uint32_t>(static_cast<float>(value)), 4);
    } else {
      appendFixed(std::bit_cast<std::uint64_t>(value), 8);
    }
  }
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
  labels_.push_back('*');
  walk_.passValue();
  return labels_.size() - 1;
}

void TypedStreamWriter::writeClass(const ClassDescription& cls) {
  dueOf("#");
  appendClass(&cls);
  walk_.passValue();
}

void TypedStreamWriter::writeBytes(std::span<const std::byte> bytes) {
  const TypeNode& type = dueOf("[");
  if (!type.isByteArray() || type.count != bytes.size()) {
    throw std::logic_error(describeTypes(type.text) + " is due, not " + std::to_string(bytes.size()) +
                           " bytes");
  }
  bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
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
  // The object is numbered before its class.
  const Label label = labels_.size();
  appendByte(kNewTag);
  labels_.push_back('@');
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
  if (label >= labels_.size() || labels_[label] != type.code) {
    throw std::logic_error("label " + std::to_string(label) + " is not " + describeTypes(type.text));
  }
  appendLabel(label);
  walk_.passValue();
}

// ---- Groups of one value

void TypedStreamWriter::putInt(std::int32_t value) {
  beginGroup("i");
  writeInteger(value);
}

void TypedStreamWriter::putFloat(float value) {
  beginGroup("f");
  writeReal(static_cast<double>(value));
}

void TypedStreamWriter::putDouble(double value) {
  beginGroup("d");
  writeReal(value);
}

void TypedStreamWriter::putString(std::string_view text) {
  beginGroup("+");
  writeString(text);
}

Label TypedStreamWriter::putObject(const ClassDescription& cls) {
  beginGroup("@");
  return beginObject(cls);
}

void TypedStreamWriter::putNil() {
  beginGroup("@");
  writeNil();
}

void TypedStreamWriter::putReference(Label label) {
  beginGroup("@");
  writeReference(label);
}

std::vector<std::byte> TypedStreamWriter::finish() && {
  walk_.requireBetweenGroups();
  if (walk_.insideObject()) throw std::logic_error("an object is still open");
  return std::move(bytes_);
}

}  // namespace nascor::archive
