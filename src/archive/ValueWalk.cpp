// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "archive/ValueWalk.h"

#include <stdexcept>

namespace nascor::archive {

const TypeNode* ValueWalk::due() const {
  switch (innermost_.kind) {
    case Kind::array: return innermost_.count > 0 ? innermost_.next : nullptr;
    case Kind::object: return nullptr;
    default: return innermost_.next != innermost_.end ? innermost_.next : nullptr;
  }
}

void ValueWalk::refuse() { throw std::logic_error("values of the open group are left"); }

void ValueWalk::refuseToLeave() { throw std::logic_error("no object is open"); }

void ValueWalk::beginGroup(const std::vector<TypeNode>& types) {
  if (!types.empty()) open({Kind::group, types.data(), types.data() + types.size(), 0});
}

void ValueWalk::passValue() {
  if (innermost_.kind == Kind::array) {
    --innermost_.count;
    return;
  }
  innermost_.next += innermost_.next->size;
  if (innermost_.kind == Kind::group && innermost_.next == innermost_.end) close();
}

void ValueWalk::enterObject(Label label) {
  passValue();
  enterObjectOfItsGroup(label);
}

void ValueWalk::enterArray() {
  const TypeNode* array = due();
  passValue();
  open({Kind::array, array + 1, nullptr, array->count});
}

void ValueWalk::enterStructure() {
  const TypeNode* structure = due();
  passValue();
  open({Kind::structure, structure + 1, structure + structure->size, 0});
}

void ValueWalk::leave(Kind kind) {
  if (innermost_.kind != kind || due() != nullptr) {
    throw std::logic_error("what ends here is not what began");
  }
  close();
}

}  // namespace nascor::archive
