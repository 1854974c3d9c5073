// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <ostream>
#include <string>

namespace nascor::drive {

/// Plays the story in the file `path` with a driver of its own, and writes every answer that is not as expected to `out`.
/// True when all were.
///
/// A story is a text: lines that begin with `{` are given to the driver, and under each may stand what it answers:
///
///     => {"began":true,"ended":false}     exactly this
///     =~ {"fields":{"bpdField":"62.1"}}   at least this: other members of the objects may be there, "..." in a text
///                                         stands for any text, and as the last element of an array for any more; a
///                                         member "<none>" must not be there
///
/// `$DATA` in such lines is the folder "data" beside the story's folder, `$REPORTS` the one that the environment variable
/// NASCOR_REPORTS names, of machines' reports. A line without an expectation must not be answered
/// by an error, and a story without any expectation fails. All other lines are for the reader.
bool playStory(const std::string& path, std::ostream& out);

}  // namespace nascor::drive
