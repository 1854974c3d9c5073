// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "compare/CellWriter.h"

#include <array>
#include <cmath>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "calc/PlaceText.h"
#include "foundation/NumberText.h"
#include "foundation/Sentence.h"

namespace nascor::compare {

using calc::Quantity;
using foundation::said;
using foundation::Sentence;

namespace {

Cell none() { return {.text = "-"}; }

}  // namespace

int decimalsOf(Quantity quantity) { return quantity == Quantity::efw ? kWeightDecimals : kLengthDecimals; }

Cell CellWriter::number(std::optional<double> value, int decimals) const {
  if (!value || !std::isfinite(*value)) return none();
  return {.text = foundation::fieldText(*value, decimals, localizer_.decimalSign()), .number = value};
}

Cell CellWriter::change(std::optional<double> value, int decimals) const {
  Cell cell = number(value, decimals);
  if (cell.number && *cell.number >= 0.0) cell.text.insert(cell.text.begin(), '+');
  return cell;
}

Cell CellWriter::z(std::optional<double> z) const {
  if (!z) return none();
  return {.text = calc::zText(*z, localizer_), .number = z};
}

Cell CellWriter::centile(const std::optional<calc::Centile>& centile) const {
  if (!centile) return none();
  return {.text = calc::centileText(*centile, localizer_), .number = centile->percent};
}

Cell CellWriter::age(std::optional<double> weeks) const {
  if (!weeks) return none();
  return {.text = calc::gestationText(*weeks, localizer_), .number = weeks};
}

std::string CellWriter::name(Quantity quantity) const {
  static constexpr std::array<std::string_view, calc::kQuantities.size()> kNames{
      foundation::translatable("Compare", "BPD"), foundation::translatable("Compare", "HC"),
      foundation::translatable("Compare", "AC"), foundation::translatable("Compare", "FL"),
      foundation::translatable("Compare", "EFW")};
  return text("Compare", kNames.at(static_cast<std::size_t>(quantity)));
}

std::string CellWriter::remark(const Placed& figure) const {
  std::string all;
  for (const Caution caution : figure.cautions) append(all, sentence(caution, *figure.reference));
  return all;
}

void CellWriter::append(std::string& all, const std::string& sentence) {
  if (all.find(sentence) != std::string::npos) return;
  if (!all.empty()) all += ' ';
  all += sentence;
}

namespace {

Sentence sentenceOf(Caution caution, const calc::Reference& reference) {
  switch (caution) {
    case Caution::ageUnknown: return Sentence("Compare", "The age is not known.");
    case Caution::outsideWeeks:
      return Sentence("Compare", "%1 has %2 to %3 weeks.")
          .with(reference.label, reference.firstWeek, reference.lastWeek);
    case Caution::otherFormula:
      return Sentence("Compare", "%1 fits weights by another formula alone: %2.")
          .with(reference.label, calc::weightFormula(reference.onlyFormula.value_or(0))->longLabel);
    case Caution::withoutPlace: break;
  }
  return Sentence("Compare", "%1 has no place for this value.").with(reference.label);
}

}  // namespace

std::string CellWriter::sentence(Caution caution, const calc::Reference& reference) const {
  return said(sentenceOf(caution, reference), localizer_);
}

}  // namespace nascor::compare
