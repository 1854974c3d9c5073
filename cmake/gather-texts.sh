#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# gather-texts.sh LUPDATE TABLE: brings a table of texts (.ts) up to date with the sources. A text is found where it stands
# as a literal behind its table's name, in a call of `text`, `localized`, `said`, `translate`, `translatable` or `Sentence`.
cd "$(dirname "$0")/.." || exit 1
exec "$1" -silent -locations none -no-obsolete -source-language en \
  -tr-function-alias translate+=text,translate+=localized,translate+=said,QT_TRANSLATE_NOOP+=translatable,QT_TRANSLATE_NOOP+=Sentence \
  src tools resources/ui -ts "$2"
