// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <type_traits>
#include <utility>

namespace nascor::archive {

/// Plain values one upon the other, in room that doubles. Like a vector, but growing stands out of line: to add one costs a
/// comparison and a copy, the functions that do it keep their registers, and room is not cleared before it is used.
template <class Value>
class Pile {
  static_assert(std::is_trivially_copyable_v<Value> && std::is_trivially_destructible_v<Value>);
  static_assert(alignof(Value) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);

 public:
  Pile() = default;
  /// With room for as many.
  explicit Pile(std::size_t expected) { makeRoom(expected); }

  bool empty() const { return next_ == begin_; }
  std::size_t size() const { return static_cast<std::size_t>(next_ - begin_); }
  /// Only of places below size().
  Value& operator[](std::size_t place) { return begin_[place]; }
  const Value& operator[](std::size_t place) const { return begin_[place]; }
  const Value* begin() const { return begin_; }
  const Value* end() const { return next_; }

  /// One more value, to be assigned at once.
  Value& added() {
    if (next_ == end_) grow();
    return *next_++;
  }
  /// Takes the last one off. Only when not empty(); good until the next is added.
  const Value& pop() { return *--next_; }

 private:
  [[gnu::noinline, gnu::cold]] void grow() {
    constexpr std::size_t kLeast = 8;
    makeRoom(std::max(kLeast, 2 * size()));
  }
  void makeRoom(std::size_t room) {
    const std::size_t used = size();
    // NOLINTNEXTLINE(*-avoid-c-arrays): room that is not cleared before it is used
    auto larger = std::make_unique_for_overwrite<std::byte[]>(room * sizeof(Value));
    if (used > 0) std::memcpy(larger.get(), begin_, used * sizeof(Value));
    room_ = std::move(larger);
    begin_ = reinterpret_cast<Value*>(room_.get());
    next_ = begin_ + used;
    end_ = begin_ + room;
  }

  std::unique_ptr<std::byte[]> room_;  // NOLINT(*-avoid-c-arrays): as above
  Value* begin_ = nullptr;
  Value* next_ = nullptr;
  Value* end_ = nullptr;
};

}  // namespace nascor::archive
