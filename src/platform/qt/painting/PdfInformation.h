// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace nascor::qt {

/// `pdf`, a document as Qt writes it, with author and subject beside its title. Unchanged where it is of another form.
QByteArray withPdfInformation(const QByteArray& pdf, const QString& author, const QString& subject);

}  // namespace nascor::qt
