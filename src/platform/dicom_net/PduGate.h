// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace nascor::dicom_net {

/// Looks at what a server sends before DCMTK does: that it is made of the protocol data units that a server may send
/// (PS3.8, 9.3), that none is longer than any is, and that a command is short. DCMTK takes memory by the length that a unit
/// states, and reads a command by recursion.
class PduGate {
 public:
  /// Whether all is well up to the end of these bytes, which follow those of the calls before.
  bool take(std::span<const std::byte> bytes);

  bool isBroken() const { return isBroken_; }
  bool sawAny() const { return sawAny_; }

 private:
  bool takeHead();
  bool takeUnitHead(std::uint32_t length);
  bool takeItemHead(std::uint32_t length);

  /// Type, a byte, length; of an item of data: length, presentation context, flags.
  std::array<std::uint8_t, 6> head_{};
  std::size_t headSize_ = 0;     ///< of the head that is being read
  std::uint32_t bodyLeft_ = 0;   ///< bytes behind a head that are still to come
  std::uint32_t itemsLeft_ = 0;  ///< bytes of further items of the unit
  std::size_t commandBytes_ = 0;
  bool isBroken_ = false;
  bool sawAny_ = false;
};

}  // namespace nascor::dicom_net
