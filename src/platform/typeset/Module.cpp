// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "typeset/CairoTypesetter.h"

/// What a program finds in this module by its name: the typesetter, which lives as long as the program.
extern "C" __attribute__((visibility("default"))) nascor::summary::Typesetter* nascorTypesetter() {
  static nascor::typeset::CairoTypesetter typesetter;
  return &typesetter;
}
