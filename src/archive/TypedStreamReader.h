// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "archive/ByteReader.h"
#include "archive/Encoding.h"
#include "archive/FormatError.h"
#include "archive/Pile.h"
#include "archive/TypeString.h"
#include "archive/ValueWalk.h"

namespace nascor::archive {

/// A class, where one stands: the value of a `#`, or the class of an object.
struct ClassValue {
  std::size_t offset = 0;      ///< Where it begins.
  std::optional<Label> label;  ///< The class; empty for nil.
  /// Class records that stand here in full, root last; they are labelled from `*label` upward. 0: seen
  /// before.
  std::size_t newRecords = 0;
};

/// An object, where one stands: the value of an `@`.
struct ObjectValue {
  enum class Kind {
    nil,
    reference,  ///< An object whose beginning stood earlier in the stream.
    fresh       ///< Its groups follow, to be read until endObject().
  };
  std::size_t offset = 0;  ///< Where it begins.
  Kind kind = Kind::nil;
  Label label = 0;  ///< Not for nil.
  ClassValue cls;   ///< Of a fresh object: its class as it stands here. Of a reference: the label alone.
  /// False for a reference to an object that is still being read: the object would contain itself.
  bool complete = false;

  bool isNil() const { return kind == Kind::nil; }
  bool isReference() const { return kind == Kind::reference; }
  bool isFresh() const { return kind == Kind::fresh; }
};

/// A C string, where one stands: the value of a `*`.
struct CStringValue {
  std::size_t offset = 0;
  std::optional<Label> label;  ///< Empty for nil.
  bool fresh = false;          ///< It stands here, not earlier in the stream.
  std::string_view text;
};

/// Reads a typed stream from its first byte to its last, one value at a time, as the caller asks for them.
///
/// A stream is a header and groups; a group is a type string and one value for each of its types; a value may
/// be a fresh object, which holds groups again. No tree is built: the reader keeps the numbered strings,
/// classes and objects that later values refer to, in memory proportional to the bytes read, never to a
/// number in them.
///
/// Every function that reads throws FormatError when the bytes are malformed or are not what was asked for;
/// it then says what was expected, in words, and where. Nothing past the end is read. Calls in an impossible
/// order (a value where no group is open) are mistakes of the caller and throw std::logic_error.
///
/// All texts handed out point into the bytes given to the constructor, which must outlive the reader.
class TypedStreamReader {
 public:
  /// Reads the header: version 4, one of the two signatures, and any system version.
  explicit TypedStreamReader(std::span<const std::byte> bytes);
  TypedStreamReader(const TypedStreamReader&) = delete;
  TypedStreamReader& operator=(const TypedStreamReader&) = delete;

  ByteOrder byteOrder() const { return bytes_.order(); }
  std::int64_t systemVersion() const { return systemVersion_; }

  /// Where reading stopped: the bytes before the next one.
  std::size_t offset() const { return bytes_.position(); }
  std::size_t bytesLeft() const { return bytes_.left(); }

  /// @name Groups
  /// @{

  /// True when another group follows: in an object until its end mark, at the top until the end of the file.
  bool groupFollows();
  /// Begins the next group, whatever it holds; returns its types. It ends by itself with its last value.
  std::string_view beginGroup();
  /// Begins the next group, which must be of exactly these types.
  void expectGroup(std::string_view types);
  /// The type of the value that is due: in the open group, array or structure. Null when there is none left.
  const TypeNode* due() const { return walk_.due(); }

  /// @}
  /// @name Values; each must be due and of a fitting type
  /// @{

  /// Types c C B s S i I l L q Q. The value must fit the type. It comes as it is stored: an unsigned one of
  /// the larger half may be a negative number.
  std::int64_t readInteger();
  double readReal();                             ///< Types f (widened) and d, stored in either form.
  std::optional<std::string_view> readString();  ///< Types + : %, without a look at the bytes; empty for nil.
  CStringValue readCString();                    ///< Type *
  ClassValue readClass();                        ///< Type #, with the records that stand in full here.
  std::span<const std::byte> readBytes();        ///< An array of c or C.
  std::uint64_t beginArray();                    ///< Any array; returns the number of elements.
  void endArray() { walk_.leaveArray(); }        ///< After the last element.
  std::string_view beginStructure();             ///< Returns the name.
  void endStructure() { walk_.leaveStructure(); }  ///< After the last member.
  /// Type @. Groups follow when it is fresh, until endObject().
  ObjectValue beginObject();
  /// Ends the innermost open object, which must have no groups left.
  void endObject() {
    const Label label = walk_.leaveObject();
    if (!bytes_.tookHead(kEndTag)) refuseEnd(label);
    labels_[label].complete = true;
  }

  /// @}
  /// @name One group with one value, the usual case in documents
  /// @{

  std::int32_t takeInt();  ///< A group of type i.
  double takeFloat() {     ///< A group of type f, widened.
    if (!plainGroupFollows('f', 1 + sizeof(float))) return takeOtherFloat();
    const int head = bytes_.headAhead(1);
    if (head == kRealTag) {
      bytes_.pass(2 + sizeof(float));
      return std::bit_cast<float>(bytes_.fixedBehind<std::uint32_t>());
    }
    if (!isNumber(head)) return takeOtherFloat();
    bytes_.pass(2);
    return head;
  }
  /// As many groups of type f, one after the other.
  template <std::size_t count>
  std::array<double, count> takeFloats() {
    std::array<double, count> values{};
    std::size_t i = 0;
    // One look at what is the same for all of them, and a reader at hand.
    if (walk_.betweenGroups() && bytesLeft() >= count * (2 + sizeof(float))) {
      ByteReader ahead = bytes_;
      const int group = plainHeads_['f'];
      for (; i < count && ahead.headAhead(0) == group; ++i) {
        const int head = ahead.headAhead(1);
        if (head == kRealTag) {
          ahead.pass(2 + sizeof(float));
          values[i] = std::bit_cast<float>(ahead.fixedBehind<std::uint32_t>());
        } else if (isNumber(head)) {
          ahead.pass(2);
          values[i] = head;
        } else {
          break;
        }
      }
      bytes_ = ahead;
    }
    for (; i < count; ++i) values[i] = takeFloat();
    return values;
  }
  double takeDouble();                           ///< A group of type d.
  std::optional<std::string_view> takeString();  ///< A group of type +, empty for nil.
  /// A group of type @; groups follow when it is fresh.
  ObjectValue takeObject() {
    // Nearly every object is new, and of a class seen before.
    if (!plainGroupFollows('@', 2) || bytes_.headAhead(1) != kNewTag || walk_.atDepthLimit()) {
      return takeOtherObject();
    }
    const Label cls = labelOf(bytes_.headAhead(2), LabelKind::cls);
    if (cls == kNoLabel) return takeOtherObject();
    bytes_.pass(3);
    const Label label = newLabel(LabelKind::object, cls);
    walk_.enterObjectOfItsGroup(label);
    return {.offset = offset() - 2,
            .kind = ObjectValue::Kind::fresh,
            .label = label,
            .cls = {.offset = offset() - 1, .label = cls, .newRecords = 0},
            .complete = false};
  }

  /// @}
  /// @name What is known so far; labels come from values read
  /// @{

  std::string_view className(Label cls) const { return strings_[recordOf(cls).name].text; }
  std::int64_t classVersion(Label cls) const { return recordOf(cls).version; }
  std::optional<Label> superclass(Label cls) const { return recordOf(cls).superclass; }
  /// The class of an object.
  Label classOf(Label object) const { return labels_[object].about; }
  /// The class name of an object that is not nil.
  std::string_view classNameOf(const ObjectValue& object) const { return className(*object.cls.label); }
  /// The version in the class record of that name; empty when no such record has been read.
  std::optional<std::int64_t> versionForClassName(std::string_view name) const;

  /// "nil", "a new NSString", "object 3 (NSString)": for messages.
  std::string describe(const ObjectValue& object) const;
  /// The same, not yet said.
  Sentence inWords(const ObjectValue& object) const;

  /// @}

 private:
  static constexpr Label kNoLabel = std::numeric_limits<Label>::max();
  enum class LabelKind : std::uint8_t { object, cls, cString };
  /// Small, since there may be one for every two bytes of a stream.
  struct LabelEntry {
    LabelKind kind;
    bool complete;  // objects
    // The class of an object, kNoLabel while that is being read; the number of a class among classRecords_; the text of a
    // C string, as a number of strings_.
    std::size_t about;
  };
  struct ClassRecord {
    std::size_t name;  // as a number of strings_
    std::int64_t version;
    std::optional<Label> superclass;
  };
  struct SharedString {
    std::string_view text;
    std::vector<TypeNode> types;
    bool parsed;               // types are those of the text
    std::optional<Label> cls;  // the first class of that name
  };

  // `wanted` is what the caller expected, in words ("an object"), for the message.
  void readHeader();
  std::size_t takeGroupTypes(std::string_view wanted);
  std::optional<std::size_t> takeShared(std::string_view wanted);
  Label takeLabel(LabelKind kind, std::string_view wanted);
  ClassValue takeClass(std::string_view wanted);
  ObjectValue objectThatIsDue(bool isOfItsGroup);
  /// Whether a group of this type alone begins here, with at least `size` bytes behind its head.
  bool plainGroupFollows(char code, std::size_t size) const {
    return bytesLeft() > size && walk_.betweenGroups() &&
           bytes_.headAhead(0) == plainHeads_[static_cast<unsigned char>(code)];
  }
  double takeOtherFloat();
  double realOfType(char code);
  ObjectValue takeOtherObject();
  Label newLabel(LabelKind kind, std::size_t about) {
    const Label label = labels_.size();
    labels_.added() = {.kind = kind, .complete = kind != LabelKind::object, .about = about};
    return label;
  }
  /// The label of that kind whose number is `head`; kNoLabel where there is none.
  Label labelOf(int head, LabelKind kind) const {
    // A head that is no number wraps to a label that nothing has.
    const auto label = static_cast<Label>(head) - static_cast<Label>(kFirstNumber);
    return label < labels_.size() && labels_[label].kind == kind ? label : kNoLabel;
  }
  const ClassRecord& recordOf(Label cls) const { return classRecords_[labels_[cls].about]; }

  const TypeNode& dueOf(std::string_view codes, std::string_view wanted) const;
  [[noreturn]] void refuseEnd(Label label) const;
  void checkDepth() const {
    if (walk_.atDepthLimit()) refuseDepth();
  }
  [[noreturn]] void refuseDepth() const;
  Sentence describeLabel(Label label) const;

  ByteReader bytes_;
  std::int64_t systemVersion_ = 0;
  ValueWalk walk_;
  std::deque<SharedString> strings_;  // a deque, since the walk points into it while it grows
  // By the code of a type: the head that stands for it, once it has been the whole of a group's types.
  static constexpr std::int16_t kNoHead = std::numeric_limits<std::int16_t>::max();
  std::array<std::int16_t, 128> plainHeads_;
  Pile<LabelEntry> labels_;
  std::deque<ClassRecord> classRecords_;  // a deque, since a vector that grows takes three times its size
};

}  // namespace nascor::archive
