// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/Translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace nascor::qt {
namespace {

/// The name of the one translator with the application's own texts.
const QString kOwnTexts = QStringLiteral("nascor");

}  // namespace

bool installTranslation(const QStringList& languages, const QString& folder) {
  for (const QString& language : languages) {
    const QLocale locale(language);
    if (locale.language() == QLocale::English || locale.language() == QLocale::C) return false;
    // An installed translator stays as long as the application.
    auto* texts = new QTranslator(qApp);
    if (!texts->load(locale, kOwnTexts, QStringLiteral("_"), folder)) {
      delete texts;
      continue;
    }
    texts->setObjectName(kOwnTexts);
    auto* qtsOwn = new QTranslator(qApp);
    if (qtsOwn->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
      QCoreApplication::installTranslator(qtsOwn);
    }
    return QCoreApplication::installTranslator(texts);
  }
  return false;
}

QString spokenLanguage() {
  const auto* texts = qApp->findChild<QTranslator*>(kOwnTexts);
  return texts ? texts->language() : QString();
}

}  // namespace nascor::qt
