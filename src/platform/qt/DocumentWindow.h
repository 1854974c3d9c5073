#pragma once

#include <QMainWindow>
#include <QString>
#include <functional>
#include <memory>

#include "app/NCDocument.h"
#include "foundation/NotificationCenter.h"
#include "foundation/Services.h"

namespace Ui {
class MyDocument;
}

namespace nascor::qt {

class PageView;

/// The window of one patient: the fields on the left, the pages on the right. Owns its document, and deletes itself when
/// it is closed.
class DocumentWindow final : public QMainWindow {
 public:
  /// `path` is the document's file, empty for a new document.
  DocumentWindow(std::unique_ptr<app::NCDocument> document, const QString& path,
                 const foundation::Services& services);
  ~DocumentWindow() override;

  app::NCDocument& document() { return *document_; }

  /// The user wants to open documents; set by whoever opens windows.
  std::function<void()> onOpen;

 private:
  void bindFields();
  void bindActions();
  void addPage(framework::Page& page);
  /// Shows what no field shows by itself: which examination of how many, and the pages.
  void refresh();
  void showAbout();

  foundation::Services services_;
  std::unique_ptr<app::NCDocument> document_;
  std::unique_ptr<Ui::MyDocument> ui_;
  std::vector<PageView*> pageViews_;
  std::vector<foundation::NotificationCenter::Subscription> subscriptions_;
};

}  // namespace nascor::qt
