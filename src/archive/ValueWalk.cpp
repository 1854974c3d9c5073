#include "archive/ValueWalk.h"

#include <stdexcept>

namespace nascor::archive {

const TypeNode* ValueWalk::due() const {
  if (frames_.empty()) return nullptr;
  const Frame& top = frames_.back();
  switch (top.kind) {
    case Kind::array: return top.remaining > 0 ? top.next : nullptr;
    case Kind::object: return nullptr;
    default: return top.next != top.end ? top.next : nullptr;
  }
}

void ValueWalk::refuse() { throw std::logic_error("values of the open group are left"); }

void ValueWalk::refuseToLeave() { throw std::logic_error("no object is open"); }

void ValueWalk::beginGroup(const std::vector<TypeNode>& types) {
  if (!frames_.empty() && frames_.back().kind == Kind::group) frames_.pop_back();
  frames_.push_back({Kind::group, types.data(), types.data() + types.size(), 0});
}

void ValueWalk::passValue() {
  Frame& top = frames_.back();
  if (top.kind == Kind::array) {
    --top.remaining;
  } else {
    top.next += top.next->size;
  }
}

void ValueWalk::enterObject(Label label) {
  enter(Kind::object, nullptr, nullptr, 0);
  objects_.push_back(label);
}

void ValueWalk::enterArray() {
  const TypeNode* array = due();
  enter(Kind::array, array + 1, nullptr, array->count);
}

void ValueWalk::enterStructure() {
  const TypeNode* structure = due();
  enter(Kind::structure, structure + 1, structure + structure->size, 0);
}

void ValueWalk::enter(Kind kind, const TypeNode* first, const TypeNode* end, std::uint64_t count) {
  passValue();
  frames_.push_back({kind, first, end, count});
  ++depth_;
}

void ValueWalk::leave(Kind kind) {
  if (frames_.empty() || frames_.back().kind != kind || due() != nullptr) {
    throw std::logic_error("what ends here is not what began");
  }
  frames_.pop_back();
  --depth_;
}

}  // namespace nascor::archive
