// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "posix/Descriptor.h"

namespace nascor::posix {

/// A file that gets its name only when it is whole. Until then it has none, where the system can do that, so that nothing is
/// left of it when the program is killed; elsewhere, and for the moment in which it takes the place of another, it bears a
/// name by which `removeLeftovers` knows it. It is its owner's alone, and gone at the end without a name.
class NewFile {
 public:
  /// In `folder`, which ends with a slash or is empty for the working folder. With `hasName` under a name at once.
  NewFile(std::string folder, bool hasName);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  /// False, with `errno` set, where it could not be made.
  bool isOpen() const { return descriptor_.isOpen(); }
  int number() const { return descriptor_.number(); }
  bool hasName() const { return !path_.empty(); }

  /// Gives it the name `target`, which no file has. False, with `errno` set: EEXIST where one has it.
  bool becomeNew(const std::string& target);
  /// Gives it the name `target` in place of the file that has it. `canHaveName` says whether the file could be given the name
  /// that it needs for a moment; where it could not, one with a name from the beginning can do it.
  bool replace(const std::string& target, bool& canHaveName);

 private:
  bool open(bool hasName);
  bool giveName();

  std::string folder_;
  std::string path_;  ///< of its own; empty while it has none
  Descriptor descriptor_;
};

/// Removes what programs of this machine that were killed have left in `folder`.
void removeLeftovers(const std::string& folder);

}  // namespace nascor::posix
