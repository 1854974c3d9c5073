// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/FetusLabels.h"

#include <array>

#include "foundation/Localizer.h"

namespace nascor::model {

using foundation::translatable;

std::span<const std::string_view> fetusLabels(std::int64_t numberOfFetuses) {
  static constexpr std::array<std::string_view, 1> kSingleton{translatable("NCDocument", "Singleton")};
  static constexpr std::array<std::string_view, 2> kTwins{translatable("NCDocument", "Twin 1"),
                                                          translatable("NCDocument", "Twin 2")};
  static constexpr std::array<std::string_view, 3> kTriplets{translatable("NCDocument", "Triplet 1 of 3"),
                                                             translatable("NCDocument", "Triplet 2 of 3"),
                                                             translatable("NCDocument", "Triplet 3 of 3")};
  static constexpr std::array<std::string_view, 4> kQuads{
      translatable("NCDocument", "Quad 1 of 4"), translatable("NCDocument", "Quad 2 of 4"),
      translatable("NCDocument", "Quad 3 of 4"), translatable("NCDocument", "Quad 4 of 4")};
  static constexpr std::array<std::string_view, 5> kQuins{
      translatable("NCDocument", "Quin 1 of 5"), translatable("NCDocument", "Quin 2 of 5"),
      translatable("NCDocument", "Quin 3 of 5"), translatable("NCDocument", "Quin 4 of 5"),
      translatable("NCDocument", "Quin 5 of 5")};
  switch (numberOfFetuses) {
    case 1: return kSingleton;
    case 2: return kTwins;
    case 3: return kTriplets;
    case 4: return kQuads;
    case 5: return kQuins;
    default: return {};
  }
}

}  // namespace nascor::model
