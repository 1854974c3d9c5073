// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/PanelDialog.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QLayout>
#include <QPushButton>
#include <utility>

#include "base/Text.h"
#include "foundation/Assertion.h"

namespace nascor::qt {

PanelDialog::PanelDialog(app::NCDocument& document, Perform perform, QWidget* parent)
    : QDialog(parent), document_(&document), perform_(std::move(perform)) {}

void PanelDialog::bindPanel() {
  title_ = windowTitle();
  panel_ = foundation::required(document_->panelNamed(toUtf8(objectName())));
  // With the focus it would become the button that Return presses, this time and the next.
  for (QDialogButtonBox* box : findChildren<QDialogButtonBox*>()) {
    if (QPushButton* cancel = box->button(QDialogButtonBox::Cancel)) cancel->setAutoDefault(false);
  }
}

void PanelDialog::center() {
  adjustSize();
  if (const QWidget* window = parentWidget())
    move(window->geometry().center() - QRect(QPoint(), size()).center());
}

bool PanelDialog::event(QEvent* event) {
  const bool wasHandled = QDialog::event(event);
  const bool isAboutRoom = event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
  if (isAboutRoom && layout() && layout()->hasHeightForWidth())
    setMinimumHeight(layout()->totalHeightForWidth(width()));
  return wasHandled;
}

void PanelDialog::release() {
  if (!document_) return;
  subscriptions_.clear();
  panel_ = nullptr;
  document_ = nullptr;
  hide();
}

void PanelDialog::done(int result) {
  QDialog::done(result);
  if (isPanelShown()) document_->cancelDialog(*panel_);
}

framework::TextField& PanelDialog::fieldFor(const QWidget& widget) const {
  return *foundation::required(document_->fieldNamed(toUtf8(widget.objectName())));
}

void PanelDialog::followPanel() {
  if (!panel_->isShown()) {
    hide();
    return;
  }
  // Where several patients are open, a dialog of the wrong one must not be taken for the right one's.
  const QString patient = fromUtf8(document_->shownTitle(false));
  setWindowTitle(patient.isEmpty() ? title_ : title_ + QStringLiteral(" \u2013 ") + patient);
  refresh();
  show();
  raise();
  activateWindow();
  focusFirst();
}

}  // namespace nascor::qt
