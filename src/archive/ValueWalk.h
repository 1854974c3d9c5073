#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "archive/Encoding.h"
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
  bool betweenGroups() const {
    if (frames_.empty()) return true;
    const Frame& top = frames_.back();
    return top.kind == Kind::object || (top.kind == Kind::group && top.next == top.end);
  }
  /// Throws unless betweenGroups().
  void requireBetweenGroups() const {
    if (!betweenGroups()) refuse();
  }
  /// True when an object is open, however deep inside it the walk stands.
  bool insideObject() const { return !objects_.empty(); }
  /// The innermost open object. Only when insideObject().
  Label object() const { return objects_.back(); }
  /// True when one more object, array or structure would pass kDepthLimit.
  bool atDepthLimit() const { return depth_ == kDepthLimit; }

  /// Opens a group of `types`, which must outlive it. Only betweenGroups(). A group ends by itself with its
  /// last value.
  void beginGroup(const std::vector<TypeNode>& types);

  void passValue();               ///< Goes over the value that is due. Only when one is.
  void enterObject(Label label);  ///< Goes into the object that is due; its groups follow. Only when one is.
  /// Opens a group of one object and goes into that. Only betweenGroups().
  void enterObjectOfItsGroup(Label label) {
    if (!frames_.empty() && frames_.back().kind == Kind::group) frames_.pop_back();
    frames_.push_back({Kind::object, nullptr, nullptr, 0});
    objects_.push_back(label);
    ++depth_;
  }
  /// Leaves the innermost open object and returns its label.
  Label leaveObject() {
    if (!insideObject()) refuseToLeave();
    requireBetweenGroups();
    if (frames_.back().kind == Kind::group) frames_.pop_back();
    frames_.pop_back();
    --depth_;
    const Label label = objects_.back();
    objects_.pop_back();
    return label;
  }
  void enterArray();      ///< Goes into the array that is due. Only when one is.
  void enterStructure();  ///< Goes into the structure that is due. Only when one is.
  void leaveArray() { leave(Kind::array); }
  void leaveStructure() { leave(Kind::structure); }

 private:
  enum class Kind { group, array, structure, object };
  struct Frame {
    Kind kind;
    const TypeNode* next;     // the next type; an array stays at its element
    const TypeNode* end;      // behind the last type of a group or structure
    std::uint64_t remaining;  // elements of an array still to come
  };

  [[noreturn]] static void refuse();
  [[noreturn]] static void refuseToLeave();
  void enter(Kind kind, const TypeNode* first, const TypeNode* end, std::uint64_t count);
  void leave(Kind kind);

  std::vector<Frame> frames_;
  std::vector<Label> objects_;
  std::size_t depth_ = 0;
};

}  // namespace nascor::archive
