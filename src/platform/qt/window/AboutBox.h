#pragma once

#include <QWidget>

namespace nascor::qt {

/// Shows version, disclaimer and licences until the user closes them.
void showAbout(QWidget& parent);

}  // namespace nascor::qt
