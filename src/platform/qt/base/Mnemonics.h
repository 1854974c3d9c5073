// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenuBar>
#include <QString>
#include <QWidget>

namespace nascor::qt {

/// `title` as the text of a menu or an item, with the first letter as its mnemonic that is not in `taken`.
QString withMnemonic(const QString& title, QStringView taken);
/// The letter of `text` that is its mnemonic, in lower case; empty when it has none.
QString mnemonicOf(const QString& text);
/// The mnemonics of the menus of `bar` and of the labels in `panel`.
QString mnemonicsOf(const QMenuBar& bar, const QWidget& panel);

}  // namespace nascor::qt
