// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <string>

#include "foundation/Signal.h"
#include "framework/Viewer.h"

namespace nascor::qt {

/// The program that the desktop has for a URL. A local file gives way to the one of its name in the folder of the language
/// that is spoken, "fr" beside it; and where neither is there, since a build without a maker of PDF has its documents as
/// HTML alone, to the HTML of its name.
class QtViewer final : public framework::Viewer {
 public:
  bool open(const std::string& url) override;

  foundation::Signal<const QString&> onFailure;  ///< nothing is shown; the sentence says why
};

/// The folder of the application's resources: that of the build, or the one of the installed program, there or not.
std::string resourceFolder();

}  // namespace nascor::qt
