// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "archive/Encoding.h"
#include "archive/Pile.h"
#include "archive/TypeString.h"

namespace nascor::archive {

/// Which value is due next while a stream is read or written: the place in the open group, array, structure
/// and object. Reader and writer drive it alike, so what the one lets through the other can write.
///
/// Calls out of order are mistakes of the calling code, whatever the stream holds. Those that depend on the
/// order in which reader or writer are called throw std::logic_error; what they have looked at themselves
/// ("only when") is not looked at again.
class ValueWalk {
 public:
  /// The type of the value that is due; null between groups and at the end of an array or structure.
  const TypeNode* due() const;

  /// True where a group may begin: at the top, or in an object, with no value of the last group left.
  bool betweenGroups() const { return innermost_.kind == Kind::object; }
  /// Throws unless betweenGroups().
  void requireBetweenGroups() const {
    if (!betweenGroups()) refuse();
  }
  /// True when an object is open. Only betweenGroups().
  bool insideObject() const { return !around_.empty(); }
  /// The innermost open object. Only betweenGroups() and insideObject().
  Label object() const { return innermost_.count; }
  /// True when one more object, array or structure would pass kDepthLimit.
  bool atDepthLimit() const { return depth_ == kDepthLimit; }

  /// Opens a group of `types`, which must outlive it. Only betweenGroups(). A group ends by itself with its
  /// last value.
  void beginGroup(const std::vector<TypeNode>& types);

  void passValue();               ///< Goes over the value that is due. Only when one is.
  void enterObject(Label label);  ///< Goes into the object that is due; its groups follow. Only when one is.
  /// Goes into an object that is the whole of its group. Only betweenGroups().
  void enterObjectOfItsGroup(Label label) {
    around_.added() = innermost_;
    innermost_.kind = Kind::object;
    innermost_.count = label;
    ++depth_;
  }
  /// Leaves the innermost open object and returns its label.
  Label leaveObject() {
    requireBetweenGroups();
    if (!insideObject()) refuseToLeave();
    const Label label = object();
    close();
    return label;
  }
  void enterArray();      ///< Goes into the array that is due. Only when one is.
  void enterStructure();  ///< Goes into the structure that is due. Only when one is.
  void leaveArray() { leave(Kind::array); }
  void leaveStructure() { leave(Kind::structure); }

 private:
  enum class Kind : std::uint64_t { group, array, structure, object };
  struct Frame {
    Kind kind;
    const TypeNode* next;  // the next type; an array stays at its element
    const TypeNode* end;   // behind the last type of a group or structure
    std::uint64_t count;   // the elements of an array still to come; the label of an object
  };

  [[noreturn]] static void refuse();
  [[noreturn]] static void refuseToLeave();
  void open(const Frame& frame) {
    around_.added() = innermost_;
    innermost_ = frame;
    depth_ += frame.kind == Kind::group ? 0 : 1;
  }
  void close() {
    depth_ -= innermost_.kind == Kind::group ? 0 : 1;
    innermost_ = around_.pop();
  }
  void leave(Kind kind);

  Frame innermost_{Kind::object, nullptr, nullptr,
                   0};  // at first the stream itself, which holds groups as an object does
  Pile<Frame> around_;  // what holds it, the stream first
  std::size_t depth_ = 0;
};

}  // namespace nascor::archive
