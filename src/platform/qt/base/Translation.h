// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace nascor::qt {

/// Installs the first table of texts in `folder` that there is for one of `languages` ("de-AT", the preferred first), and
/// Qt's own of that language. English needs none, since the keys are its texts: behind it no other language is tried.
/// Whether one was installed.
bool installTranslation(const QStringList& languages, const QString& folder);

/// The language of the table in use, as its file has it ("fr"); empty where English is spoken.
QString spokenLanguage();

}  // namespace nascor::qt
