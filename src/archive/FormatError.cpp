#include "archive/FormatError.h"

namespace nascor::archive {

void refuse(std::size_t offset, std::string_view wanted, const std::string& instead) {
  throw FormatError(offset, "expected " + std::string(wanted) + ", but " + instead);
}

std::string counted(std::uint64_t number, std::string_view thing) {
  return std::to_string(number) + " " + std::string(thing) + (number == 1 ? "" : "s");
}

}  // namespace nascor::archive
