#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

#include "app/NCDocument.h"
#include "foundation/Services.h"
#include "qt/DocumentWindow.h"

namespace nascor::qt {

/// Opens documents, each in a window of its own. The windows end with it at the latest.
class DocumentWindows {
 public:
  explicit DocumentWindows(const foundation::Services& services);
  DocumentWindows(const DocumentWindows&) = delete;
  DocumentWindows& operator=(const DocumentWindows&) = delete;
  ~DocumentWindows();

  /// A new patient.
  DocumentWindow* openUntitled();
  /// The documents of these files. Those that cannot be read are told of, together, after the others are open. Returns
  /// how many were opened.
  int open(const QStringList& paths, QWidget* parent = nullptr);

  /// Tells the user why something failed. A message box, unless replaced.
  std::function<void(QWidget* parent, const QString& text)> tell;

 private:
  DocumentWindow* show(std::unique_ptr<app::NCDocument> document, const QString& path);
  void askWhatToOpen(DocumentWindow* window);

  foundation::Services services_;
  std::vector<QPointer<DocumentWindow>> windows_;
};

}  // namespace nascor::qt
