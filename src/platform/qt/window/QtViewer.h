#pragma once

#include <QString>
#include <string>

#include "foundation/Signal.h"
#include "framework/Viewer.h"

namespace nascor::qt {

/// The program that the desktop has for a URL. A build without a maker of PDF has its documents as HTML alone: a local file
/// that is missing gives way to the HTML beside it of the same name.
class QtViewer final : public framework::Viewer {
 public:
  bool open(const std::string& url) override;

  foundation::Signal<const QString&> onFailure;  ///< nothing is shown; the sentence says why
};

/// The folder of the application's resources: that of the build, or the one of the installed program, there or not.
std::string resourceFolder();

}  // namespace nascor::qt
