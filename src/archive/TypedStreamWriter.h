// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "archive/Encoding.h"
#include "archive/TypeString.h"
#include "archive/ValueWalk.h"
#include "archive/WrittenNumber.h"

namespace nascor::archive {

/// A class as a stream records it. Usually a constant; what it points to must outlive its use.
struct ClassDescription {
  std::string_view name;
  std::int64_t version = 0;
  const ClassDescription* superclass = nullptr;  ///< Null above the root class.
};

/// A class of which many objects follow. The writer keeps here where it stands in the stream, so that it need not look the
/// name up for each object. Of one writer only.
struct WrittenClass {
  const ClassDescription* description;
  std::optional<Label> label{};  ///< the writer's
};

/// Writes a typed stream, little-endian, byte for byte as the platform's own archiver does: shortest
/// integers, whole reals as integers, every text, class and label by number from its second appearance on.
///
/// Groups, values and objects are written in the order in which TypedStreamReader reads them. A call that
/// does not fit the type that is due, a number that does not fit its type, or a label that is none, is a
/// mistake of the caller and throws std::logic_error; the writer is then of no further use.
class TypedStreamWriter {
 public:
  /// Writes the header.
  explicit TypedStreamWriter(std::int64_t systemVersion = kSystemVersion);
  TypedStreamWriter(const TypedStreamWriter&) = delete;
  TypedStreamWriter& operator=(const TypedStreamWriter&) = delete;

  /// Begins a group of these types; it ends by itself with its last value.
  void beginGroup(std::string_view types);

  /// @name Values; each must be due and of a fitting type
  /// @{

  /// Types c C B s S i I l L q Q; the value must fit the type. Of unsigned types, negative values are taken
  /// as well.
  void writeInteger(std::int64_t value);
  /// Types f and d; for f the value must be a float's. A negative zero loses its sign, as the encoding has
  /// it.
  void writeReal(double value);
  void writeString(std::string_view text);            ///< Types + : %
  Label writeCString(std::string_view text);          ///< Type *
  void writeClass(const ClassDescription& cls);       ///< Type #
  void writeBytes(std::span<const std::byte> bytes);  ///< An array of c or C, whole.
  void beginArray();                                  ///< Any array; its elements follow.
  void endArray() { walk_.leaveArray(); }
  void beginStructure();  ///< Its members follow.
  void endStructure() { walk_.leaveStructure(); }
  /// Type @: a new object, whose groups follow until endObject(). Returns the label for later references. A
  /// class is known by its name: where the name was written before, the rest of the description does not
  /// count.
  Label beginObject(const ClassDescription& cls);
  void endObject();
  void writeNil();                   ///< Types @ # * + : %
  void writeReference(Label label);  ///< Types @ and *: what was written before under that label.

  /// @}
  /// @name One group with one value, the usual case in documents
  /// @{

  void putInt(std::int32_t value);  ///< A group of type i.
  void putFloat(float value);       ///< A group of type f.
  /// A group of type f for each.
  template <std::same_as<float>... Floats>
  void putFloats(Floats... values) {
    const int head = plainHeads_['f'];
    if (head == kNilTag || !walk_.betweenGroups()) {
      (putFloat(values), ...);
      return;
    }
    std::byte* to = roomFor(sizeof...(values) * (1 + kLongestNumber));
    ((to = writtenReal(writtenByte(to, head), values)), ...);
    at_ = to;
  }
  void putDouble(double value);                  ///< A group of type d.
  void putString(std::string_view text);         ///< A group of type +.
  Label putObject(const ClassDescription& cls);  ///< A group of type @; groups follow until endObject().
  Label putObject(WrittenClass& cls) {
    if (!cls.label) return putFirstObject(cls);
    return putObjectOf(*cls.label);
  }
  void putNil();                   ///< A group of type @ with nil.
  void putReference(Label label);  ///< A group of type @.

  /// @}

  /// The whole stream. Every object and group must be complete.
  std::vector<std::byte> finish() &&;

 private:
  struct SharedString {
    std::string text;
    std::size_t number;
    bool isWritten = false;
    std::vector<TypeNode> types{};  // empty until first used as a type string
    std::optional<Label> cls{};     // of the class of that name
  };

  /// What follows a type that stands alone: the mark of something new and a number, or a number.
  static constexpr std::size_t kLongestPlainValue = 1 + kLongestNumber;

  const TypeNode& dueOf(std::string_view codes) const;
  std::byte* beginPlainGroup(char type);
  [[gnu::cold]] std::byte* beginOtherPlainGroup(char type);
  std::byte* roomFor(std::size_t size) {
    if (static_cast<std::size_t>(end_ - at_) < size) grow(size);
    return at_;
  }
  [[gnu::cold]] void grow(std::size_t size);
  void appendByte(int value);
  void appendBytes(std::span<const std::byte> bytes);
  void appendNumber(std::int64_t value);
  void appendLabel(std::size_t number) { appendNumber(static_cast<std::int64_t>(number) + kFirstNumber); }
  void appendUnshared(std::string_view text);
  SharedString& sharedString(std::string_view text);
  void appendShared(SharedString& string);
  SharedString& appendShared(std::string_view text);
  std::optional<Label> appendClass(const ClassDescription* cls);
  char kindOf(Label label) const;
  Label putFirstObject(WrittenClass& cls);
  Label putObjectOf(Label cls);

  // NOLINTNEXTLINE(*-avoid-c-arrays): room that is not cleared before it is written
  std::unique_ptr<std::byte[]> bytes_;  // written up to at_
  std::byte* at_ = nullptr;
  std::byte* end_ = nullptr;
  ValueWalk walk_;
  std::deque<SharedString> strings_;   // a deque, since the walk points into it while it grows
  std::vector<SharedString*> byText_;  // the same, sorted
  // By the code of a type: the head that stands for it, once it has been the whole of a group's types; kNilTag before.
  std::array<std::int16_t, 128> plainHeads_;
  Label nextLabel_ = 0;
  std::vector<std::pair<Label, char>>
      notObjects_;  // the labels of classes '#' and C strings '*', in their order
};

}  // namespace nascor::archive
