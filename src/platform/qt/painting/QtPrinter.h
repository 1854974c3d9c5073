// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPageLayout>
#include <QPrinter>
#include <QWidget>
#include <functional>

#include "foundation/FileStore.h"
#include "framework/Printer.h"

namespace nascor::qt {

/// Qt's printers and print panel. A printer that is a file becomes one PDF document, written through the file
/// store.
class QtPrinter final : public framework::Printer {
 public:
  explicit QtPrinter(foundation::FileStore& files);

  std::unique_ptr<framework::PrintJob> beginJob(const framework::PrintInfo& info,
                                                const framework::PrintSettings& settings) override;

  /// What `print` prints goes to `preview` instead, as one document.
  void paintInto(QPrinter* preview, const std::function<void()>& print);

  std::function<QWidget*()> frontWindow;  ///< set by the maker of windows; may return null
  /// Asks what `printer` is to do; false when the user cancels. Shows the print panel by default.
  std::function<bool(QPrinter&)> ask;

 private:
  foundation::FileStore& files_;
  QPrinter* preview_ = nullptr;
};

/// @name The document's paper in Qt's types
/// @{
QPageLayout layoutOf(const framework::PrintInfo& info);
framework::PrintInfo printInfoOf(const QPageLayout& layout);
/// @}

}  // namespace nascor::qt
