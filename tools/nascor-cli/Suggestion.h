// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>
#include <string_view>

#include "foundation/Sentence.h"

namespace nascor::cli {

/// `SENTENCE; did you mean "NAME"?` for the one of `names` that `word` is most like, the first of equals; `sentence` alone when it is like
/// none: a third of its letters and more are wrong, and no name begins with it.
foundation::Sentence didYouMean(const foundation::Sentence& sentence, std::string_view word,
                                std::span<const std::string> names);

}  // namespace nascor::cli
