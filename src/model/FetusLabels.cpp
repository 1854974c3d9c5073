#include "model/FetusLabels.h"

#include <array>

namespace nascor::model {

std::span<const std::string_view> fetusLabels(std::int64_t numberOfFetuses) {
  static constexpr std::array<std::string_view, 1> kSingleton{"Singleton"};
  static constexpr std::array<std::string_view, 2> kTwins{"Twin 1", "Twin 2"};
  static constexpr std::array<std::string_view, 3> kTriplets{"Triplet 1 of 3", "Triplet 2 of 3",
                                                             "Triplet 3 of 3"};
  static constexpr std::array<std::string_view, 4> kQuads{"Quad 1 of 4", "Quad 2 of 4", "Quad 3 of 4",
                                                          "Quad 4 of 4"};
  static constexpr std::array<std::string_view, 5> kQuins{"Quin 1 of 5", "Quin 2 of 5", "Quin 3 of 5",
                                                          "Quin 4 of 5", "Quin 5 of 5"};
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
