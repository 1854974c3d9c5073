// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "typeset/CairoTypesetter.h"

#include "typeset/Composer.h"

namespace nascor::typeset {

namespace {

/// Twice, since each page says how many there are.
void composeInto(Sheets& sheets, const summary::Summary& summary, const summary::Paper& paper) {
  const Fonts fonts(summary.language);
  NoSheets counted;
  const std::int64_t pages = Composer(counted, fonts, summary, paper, 1).compose();
  Composer(sheets, fonts, summary, paper, pages).compose();
}

}  // namespace

std::variant<std::vector<std::byte>, std::string> CairoTypesetter::pdf(const summary::Summary& summary,
                                                                       const summary::Paper& paper) {
  PdfSheets sheets(summary, paper);
  composeInto(sheets, summary, paper);
  return sheets.finish();
}

std::variant<std::vector<summary::Picture>, std::string> CairoTypesetter::pictures(
    const summary::Summary& summary, const summary::Paper& paper, double dotsPerInch) {
  PictureSheets sheets(paper, dotsPerInch);
  composeInto(sheets, summary, paper);
  return sheets.finish();
}

}  // namespace nascor::typeset
