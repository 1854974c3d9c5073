// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/Mnemonics.h"

#include <QAction>
#include <QKeySequence>
#include <QLabel>

namespace nascor::qt {

QString withMnemonic(const QString& title, QStringView taken) {
  QString text = title;
  text.replace(u'&', QStringLiteral("&&"));
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (!text[i].isLetterOrNumber() || taken.contains(text[i], Qt::CaseInsensitive)) continue;
    return text.insert(i, u'&');
  }
  return text;
}

QString mnemonicOf(const QString& text) {
  const QKeySequence keys = QKeySequence::mnemonic(text);
  if (keys.isEmpty()) return {};
  return QString(QChar(static_cast<char16_t>(keys[0].key()))).toLower();
}

QString mnemonicsOf(const QMenuBar& bar, const QWidget& panel) {
  QString all;
  for (const QAction* menu : bar.actions()) all += mnemonicOf(menu->text());
  for (const QLabel* label : panel.findChildren<QLabel*>()) {
    if (label->buddy()) all += mnemonicOf(label->text());
  }
  return all;
}

}  // namespace nascor::qt
