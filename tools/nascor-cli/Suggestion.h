#pragma once

#include <span>
#include <string>
#include <string_view>

namespace nascor::cli {

/// `; did you mean "NAME"?` for the one of `names` that `word` is most like, the first of equals; empty when it is like
/// none: a third of its letters and more are wrong, and no name begins with it.
std::string didYouMean(std::string_view word, std::span<const std::string> names);

}  // namespace nascor::cli
