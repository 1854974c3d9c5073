// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom_net/PduGate.h"

#include <algorithm>

namespace nascor::dicom_net {

namespace {

constexpr std::uint8_t kAccept = 2;
constexpr std::uint8_t kReject = 3;
constexpr std::uint8_t kData = 4;
constexpr std::uint8_t kAbort = 7;
/// An answer to a few presentation contexts takes some hundred bytes.
constexpr std::uint32_t kLongestAccept = 65536;
constexpr std::uint32_t kLongestData = 131072;
/// A command takes some hundred bytes: nothing in it can be nested deep.
constexpr std::size_t kLongestCommand = 4096;

std::uint32_t bigEndian(std::span<const std::uint8_t, 4> bytes) {
  std::uint32_t value = 0;
  for (const std::uint8_t byte : bytes) value = value << 8U | byte;
  return value;
}

}  // namespace

bool PduGate::take(std::span<const std::byte> bytes) {
  sawAny_ = sawAny_ || !bytes.empty();
  while (!bytes.empty() && !isBroken_) {
    if (bodyLeft_ > 0) {
      const std::size_t passed = std::min<std::size_t>(bodyLeft_, bytes.size());
      bodyLeft_ -= static_cast<std::uint32_t>(passed);
      bytes = bytes.subspan(passed);
      continue;
    }
    head_.at(headSize_++) = std::to_integer<std::uint8_t>(bytes.front());
    bytes = bytes.subspan(1);
    if (headSize_ < head_.size()) continue;
    headSize_ = 0;
    isBroken_ = !takeHead();
  }
  return !isBroken_;
}

bool PduGate::takeHead() {
  const std::span<const std::uint8_t, 6> head(head_);
  return itemsLeft_ > 0 ? takeItemHead(bigEndian(head.first<4>())) : takeUnitHead(bigEndian(head.last<4>()));
}

bool PduGate::takeUnitHead(std::uint32_t length) {
  const std::uint8_t type = head_[0];
  if (type == kData) {
    itemsLeft_ = length;
    return length >= head_.size() && length <= kLongestData;
  }
  bodyLeft_ = length;
  if (type == kAccept) return length <= kLongestAccept;
  return type >= kReject && type <= kAbort && length == 4;
}

bool PduGate::takeItemHead(std::uint32_t length) {
  constexpr std::uint32_t kLengthBytes = 4;
  constexpr std::uint32_t kContextAndFlags = 2;
  if (length < kContextAndFlags || length > itemsLeft_ - kLengthBytes) return false;
  itemsLeft_ -= kLengthBytes + length;
  bodyLeft_ = length - kContextAndFlags;
  const std::uint8_t flags = head_[5];
  const bool isCommand = (flags & 1U) != 0;
  const bool isLast = (flags & 2U) != 0;
  if (isCommand) commandBytes_ += bodyLeft_;
  if (commandBytes_ > kLongestCommand) return false;
  if (isCommand && isLast) commandBytes_ = 0;
  // What is too short to be an item is no end of a unit.
  return itemsLeft_ == 0 || itemsLeft_ >= head_.size();
}

}  // namespace nascor::dicom_net
