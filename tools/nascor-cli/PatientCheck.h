// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "foundation/Calendar.h"
#include "foundation/Sentence.h"
#include "model/PatientFile.h"

namespace nascor::cli {

/// Something in a document that the program accepts but would not have written, or that a reader should know.
struct Oddity {
  std::string_view kind;      ///< for programs; docs/json.md lists them
  foundation::Sentence text;  ///< for people: without a full stop, naming examination and fetus
  std::optional<std::size_t> examination{};  ///< from 1, where it concerns one
  std::optional<std::size_t> fetus{};        ///< from 1, where it concerns one
};

/// All oddities of a document: those of the file first, then the patient's, then by examination. `document` holds a
/// patient.
std::vector<Oddity> odditiesOf(const model::UnarchivedPatient& document,
                               const foundation::Calendar& calendar);

}  // namespace nascor::cli
