// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/Codes.h"

#include <algorithm>

#include "calc/FetalWeight.h"
#include "foundation/Localizer.h"

namespace nascor::exchange {

static_assert(kWeightEquations.size() == calc::kWeightFormulaCount);

namespace {

using foundation::translatable;

constexpr std::array kLabels{translatable("Findings", "BPD"), translatable("Findings", "HC"),
                             translatable("Findings", "AC"), translatable("Findings", "FL"),
                             translatable("Findings", "CRL")};
static_assert(kLabels.size() == kLengthTerms.size());

struct DerivationTerm {
  std::string_view older;  ///< SRT; SNM3 is its name in old files
  std::string_view newer;  ///< SCT
  Derivation derivation;
};

constexpr std::array kDerivations{
    DerivationTerm{"R-00317", "373098007", Derivation::mean},
    DerivationTerm{"R-41D2D", "258090004", Derivation::calculated},
    DerivationTerm{"R-10260", "414135002", Derivation::estimated},
    DerivationTerm{"R-41D41", "258104002", Derivation::plain},  // "Measured"
    DerivationTerm{"R-404FB", "255605001", Derivation::never},  // minimum
    DerivationTerm{"G-A437", "56851009", Derivation::never},    // maximum
    DerivationTerm{"R-10047", "386136009", Derivation::never},  // standard deviation
};

}  // namespace

foundation::Sentence labelOf(std::size_t length) { return {"Findings", kLabels.at(length)}; }

Derivation derivationOf(const Code& code) {
  const bool isOlder = code.scheme == "SRT" || code.scheme == "SNM3";
  const auto found = std::ranges::find_if(kDerivations, [&](const DerivationTerm& term) {
    return (isOlder && code.value == term.older) || (code.scheme == "SCT" && code.value == term.newer);
  });
  return found == kDerivations.end() ? Derivation::unknown : found->derivation;
}

bool saysChosen(const Code& status) {
  return status.scheme == "DCM" &&
         (status.value == "121410" || status.value == "121411" || status.value == "121412");
}

}  // namespace nascor::exchange
