// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QLocale>
#include <QString>
#include <functional>
#include <map>
#include <memory>

namespace nascor::user_guide {

/// Before the application begins: the same pictures on every machine, with no display, no preferences but those in the folder
/// `home`, and no place on earth.
void leaveThisMachine(const QString& home);

/// Pictures of the application's own windows, two pixels to the unit: "window", "window-twins",
/// "page-NAME" and "dialog-NAME".
class WindowPictures {
 public:
  /// The patients on show are those of the folder `samples`, dates and numbers as `locale` has them.
  WindowPictures(const QString& samples, const QLocale& locale);
  ~WindowPictures();

  /// Throws std::runtime_error when there is no such picture.
  QImage picture(const QString& name);

 private:
  struct Application;
  std::unique_ptr<Application> application_;
};

}  // namespace nascor::user_guide
