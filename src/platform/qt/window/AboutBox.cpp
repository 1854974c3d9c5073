#include "window/AboutBox.h"

#include <QMessageBox>

#include "base/Introduction.h"
#include "base/Text.h"

namespace nascor::qt {

void showAbout(QWidget& parent) {
  QMessageBox box(&parent);
  box.setWindowTitle(said("MyDocument", "About Nascor"));
  box.setTextFormat(Qt::PlainText);
  box.setText(said("MyDocument", "Nascor %1").arg(programVersion()));
  box.setInformativeText(
      QStringLiteral("%1\n\n%2\n\n%3")
          .arg(
              disclaimer(), said("MyDocument", "Copyright (c) 2026 The Nascor developers. MIT License."),
              said("MyDocument",
                   "Linked with Qt %1 (GNU LGPL 3), the D-Bus library (AFL 2.1 or GNU GPL 2) and the GNU C++ "
                   "library (GNU GPL 3 with the GCC Runtime Library Exception).")
                  .arg(QLatin1String(qVersion()))));
  box.exec();
}

}  // namespace nascor::qt
