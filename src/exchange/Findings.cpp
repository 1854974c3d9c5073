// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/Findings.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "calc/FetalWeight.h"
#include "exchange/DecimalText.h"
#include "foundation/NumberText.h"

namespace nascor::exchange {

namespace {

using foundation::Sentence;
using foundation::shortestText;

/// What identifies the fetus of a section. Each part is inherited from the section around it.
struct FetusContext {
  std::string fetusID;
  std::string subjectID;
  std::string number;

  std::optional<std::string> id() const {
    for (const std::string* part : {&fetusID, &subjectID, &number}) {
      if (!part->empty()) return *part;
    }
    return std::nullopt;
  }
};

/// The sections around an item.
struct Place {
  FetusContext fetus;
  const Code* section = nullptr;  ///< null at the top
  bool inGroup = false;           ///< of one measure with what the machine worked out of it
};

/// A value that may be taken for a length.
struct Candidate {
  double mm = 0.0;
  double value = 0.0;
  std::string unit;
  Derivation derivation = Derivation::plain;
  bool flagged = false;
  bool isPrivate = false;
};

struct Weight {
  double grams = 0.0;
  bool flagged = false;
  std::optional<std::size_t> formula;  ///< by the equation that the report names
};

struct Fetus {
  std::optional<std::string> id;
  std::array<std::vector<Candidate>, kLengthTerms.size()> candidates;
  std::vector<Weight> weights;
};

constexpr std::string_view nameOf(Derivation derivation) {
  switch (derivation) {
    case Derivation::mean: return "mean";
    case Derivation::calculated: return "calculated";
    case Derivation::estimated: return "estimated";
    default: return "plain";
  }
}

bool isLast(Derivation derivation) {
  return derivation == Derivation::calculated || derivation == Derivation::estimated;
}

/// The place in the order of preference, 0 for the best.
int rankOf(const Candidate& candidate) {
  switch (candidate.derivation) {
    case Derivation::calculated: return candidate.flagged ? 3 : 4;
    case Derivation::estimated: return candidate.flagged ? 5 : 6;
    case Derivation::mean: return candidate.flagged ? 0 : 1;
    default: return candidate.flagged ? 0 : 2;
  }
}

std::string_view kindOf(const Candidate& candidate) {
  if (!isLast(candidate.derivation) && candidate.flagged) return "flagged";
  return nameOf(candidate.derivation);
}

std::string meaningOf(const Code& code) { return code.meaning.empty() ? code.value : code.meaning; }

bool isUcum(const Code& unit) { return unit.scheme.starts_with("UCUM"); }

const ContentItem* childNamed(const ContentItem& item, const Term& name) {
  const auto found =
      std::ranges::find_if(item.items, [&](const ContentItem& child) { return is(child.name, name); });
  return found == item.items.end() ? nullptr : &*found;
}

bool isContext(const ContentItem& item) { return item.relationship == "HAS OBS CONTEXT"; }

/// The length that this code names, wherever it stands.
std::optional<std::size_t> lengthOf(const Code& name) {
  const auto found =
      std::ranges::find_if(kLengthTerms, [&](const LengthTerm& length) { return is(name, length.term); });
  if (found == kLengthTerms.end()) return std::nullopt;
  return static_cast<std::size_t>(found - kLengthTerms.begin());
}

bool isPrivateFemur(const Code& name, const Place& place) {
  return name.value == term::kPrivateFemur && name.scheme.starts_with("99") && place.section != nullptr &&
         is(*place.section, term::fetalLongBones);
}

bool holdsLengths(const Place& place) {
  return place.section != nullptr &&
         (is(*place.section, term::fetalBiometry) || is(*place.section, term::fetalLongBones) ||
          is(*place.section, term::earlyGestation));
}

Sentence ofFetus(const std::optional<std::string>& id, const Sentence& what) {
  //: %1 is the ID of a fetus, %2 one of its lengths or a sentence about it.
  return id ? Sentence("Findings", "fetus %1: %2").with(*id, what) : what;
}

/// What `kindOf` and `nameOf` say, in a sentence.
Sentence wordFor(std::string_view kind) {
  //: This word and the next ones say of a value how it came about: "a flagged value is taken before a plain one", "fetus 1: BPD
  //: is calculated, not measured". A flagged one was chosen at the machine.
  if (kind == "flagged") return Sentence("Findings", "flagged");
  if (kind == "mean") return Sentence("Findings", "mean");
  if (kind == "calculated") return Sentence("Findings", "calculated");
  if (kind == "estimated") return Sentence("Findings", "estimated");
  return Sentence("Findings", "plain");
}

/// What `Collector::count` counts, in a sentence.
Sentence countFor(std::string_view key) {
  //: Stands in "the report gives several numbers for %1; the first is taken", as the next one.
  if (key == "gravida") return Sentence("Findings", "gravida");
  return Sentence("Findings", "numberOfFetuses");
}

class Collector {
 public:
  explicit Collector(const StructuredReport& report) {
    findings_.warnings = report.warnings;
    if (const std::string_view id = withoutBlanks(report.patientID); !id.empty()) findings_.patientID = id;
    const std::string_view studyDate = withoutBlanks(report.studyDate);
    const std::string_view date = studyDate.empty() ? withoutBlanks(report.contentDate) : studyDate;
    findings_.examDate = dayFromDigits(date);
    if (!findings_.examDate && !date.empty())
      warn(Sentence("Findings", "the date of the examination, \"%1\", is no day").with(date));

    Place top;
    identify(report.root, top, true);
    walk(report.root, top);
    collectDates();
    for (Fetus& fetus : fetuses_) finish(fetus);
    warnOfNumberOfFetuses(findings_);
  }

  Findings takeFindings() { return std::move(findings_); }

 private:
  void warn(Sentence sentence) { findings_.warnings.push_back(std::move(sentence)); }

  void passOver(const std::optional<std::string>& fetus, std::string what, std::optional<double> value,
                std::string unit, Sentence why) {
    findings_.notTaken.push_back({fetus, std::move(what), value, std::move(unit), std::move(why)});
  }
  void passOver(const ContentItem& item, const Place& place, std::string what, Sentence why) {
    passOver(place.fetus.id(), std::move(what), decimalMoved(item.text, 0), item.code.value, std::move(why));
  }

  /// Takes up what the item says of its subject. At the top a Subject ID is the mother's unless a fetus is said.
  static void identify(const ContentItem& item, Place& place, bool isTop) {
    const ContentItem* subjectClass = childNamed(item, term::subjectClass);
    const bool isFetus = subjectClass ? is(subjectClass->code, term::fetus) : !isTop;
    for (const ContentItem& child : item.items) {
      if (!isContext(child)) continue;
      const std::string text(withoutBlanks(child.text));
      if (is(child.name, term::fetusID)) place.fetus.fetusID = text;
      if (is(child.name, term::subjectID) && isFetus) place.fetus.subjectID = text;
      if (is(child.name, term::fetusNumber)) place.fetus.number = numberText(text);
    }
  }

  /// 2, 2.0 and 2e0 are one number.
  static std::string numberText(const std::string& text) {
    const auto number = decimalMoved(text, 0);
    return number ? shortestText(*number) : text;
  }

  Fetus& fetusAt(const Place& place) {
    const auto id = place.fetus.id();
    const auto [found, isNew] = fetusPlaces_.try_emplace(id, fetuses_.size());
    if (isNew) fetuses_.push_back({.id = id, .candidates = {}, .weights = {}});
    return fetuses_[found->second];
  }

  void walk(const ContentItem& container, const Place& place) {
    if (place.fetus.id()) fetusAt(place);
    for (const ContentItem& item : container.items) {
      if (isContext(item)) continue;
      switch (item.type) {
        case ValueType::container: enter(item, place); break;
        case ValueType::number: number(item, place); break;
        case ValueType::date: date(item); break;
        default: break;
      }
    }
  }

  void enter(const ContentItem& container, const Place& around) {
    Place place = around;
    identify(container, place, false);
    if (is(container.name, term::biometryGroup)) {
      place.inGroup = true;
    } else if (!around.section || container.name.scheme == "DCM") {
      place.section = &container.name;
    }
    walk(container, place);
  }

  void number(const ContentItem& item, const Place& place) {
    if (const auto length = lengthOf(item.name)) {
      if (holdsLengths(place)) {
        candidate(item, place, *length, false);
      } else {
        passOver(item, place, std::string(kLengthTerms[*length].key),
                 Sentence("Findings", "no length is taken from %1").with(sectionOf(place)));
      }
    } else if (isPrivateFemur(item.name, place)) {
      candidate(item, place, kFemur, true);
    } else if (is(item.name, term::efw)) {
      weight(item, place);
    } else if (is(item.name, term::efwCentile)) {
      passOver(item, place, meaningOf(item.name),
               Sentence("Findings", "a centile of the machine's weight is never taken"));
    } else if (is(item.name, term::gravida)) {
      count(item, place, "gravida", findings_.gravida);
    } else if (is(item.name, term::numberOfFetuses) || is(item.name, term::numberOfFetusesToo)) {
      count(item, place, "numberOfFetuses", findings_.numberOfFetuses);
    } else if (!place.inGroup || !isOfAMeasure(item.name)) {
      passOver(item, place, meaningOf(item.name),
               //: %1 is the section of the report that it stands in.
               Sentence("Findings", "no measure that a document stores (%1)").with(sectionOf(place)));
    }
  }

  /// What a machine works out of a length and writes beside it.
  static bool isOfAMeasure(const Code& name) {
    return is(name, term::gestationalAge) || is(name, term::centileRank) || is(name, term::zScoreRank);
  }

  static Sentence sectionOf(const Place& place) {
    return place.section ? Sentence::verbatim(meaningOf(*place.section))
                         : Sentence("Findings", "the report itself");
  }

  void count(const ContentItem& item, const Place& place, std::string_view key, std::optional<int>& result) {
    const auto number = wholeNumber(item.text);
    if (!number || *number < 0) {
      passOver(item, place, std::string(key), Sentence("Findings", "\"%1\" is no count").with(item.text));
    } else if (result && *result != *number) {
      passOver(item, place, std::string(key),
               Sentence("Findings", "the report said %1 before").with(*result));
      warn(Sentence("Findings", "the report gives several numbers for %1; the first is taken")
               .with(countFor(key)));
    } else {
      result = number;
    }
  }

  /// The places by which the point moves to give millimetres, or grams.
  static std::optional<int> placesTo(const Term& unit, const Code& from) {
    if (!isUcum(from)) return std::nullopt;
    if (from.value == unit.value) return 0;
    if (unit.value == term::millimetre.value && from.value == "cm") return 1;
    if (unit.value == term::gram.value && from.value == "kg") return 3;
    return std::nullopt;
  }

  /// The positive number of an item in `unit`, or why it has none.
  static std::variant<double, Sentence> positiveIn(const Term& unit, const ContentItem& item) {
    if (item.text.empty()) return Sentence("Findings", "the report holds no value");
    const auto places = placesTo(unit, item.code);
    if (!places) {
      const bool isWeight = unit.value == term::gram.value;
      const auto why = isWeight ? Sentence("Findings", "the unit \"%1\" is neither g nor kg")
                                : Sentence("Findings", "the unit \"%1\" is neither mm nor cm");
      return why.with(item.code.value);
    }
    const auto value = decimalMoved(item.text, *places);
    if (!value) return Sentence("Findings", "\"%1\" is no finite number").with(item.text);
    if (!(*value > 0.0)) return Sentence("Findings", "it is not above 0");
    return *value;
  }

  static bool isFlagged(const ContentItem& item) {
    return std::ranges::any_of(item.items, [](const ContentItem& child) {
      return is(child.name, term::selectionStatus) && saysChosen(child.code);
    });
  }

  /// The derivation that counts against the value most, where there are several.
  static Derivation derivationIn(const ContentItem& item) {
    Derivation derivation = Derivation::plain;
    for (const ContentItem& child : item.items) {
      if (is(child.name, term::derivation)) derivation = std::max(derivation, derivationOf(child.code));
    }
    return derivation;
  }

  void candidate(const ContentItem& item, const Place& place, std::size_t length, bool isPrivate) {
    Fetus& fetus = fetusAt(place);
    const std::string key(kLengthTerms[length].key);
    const auto mm = positiveIn(term::millimetre, item);
    if (const auto* why = std::get_if<Sentence>(&mm)) return passOver(item, place, key, *why);
    const Derivation derivation = derivationIn(item);
    if (derivation == Derivation::never || derivation == Derivation::unknown) {
      const ContentItem* said = childNamed(item, term::derivation);
      return passOver(
          item, place, key,
          Sentence("Findings", "its derivation is \"%1\"").with(said ? meaningOf(said->code) : ""));
    }
    fetus.candidates.at(length).push_back({.mm = std::get<double>(mm),
                                           .value = decimalMoved(item.text, 0).value_or(0.0),
                                           .unit = item.code.value,
                                           .derivation = derivation,
                                           .flagged = isFlagged(item),
                                           .isPrivate = isPrivate});
  }

  void weight(const ContentItem& item, const Place& place) {
    Fetus& fetus = fetusAt(place);
    const auto grams = positiveIn(term::gram, item);
    if (const auto* why = std::get_if<Sentence>(&grams)) return passOver(item, place, "efw", *why);
    Weight weight{.grams = std::get<double>(grams), .flagged = isFlagged(item), .formula = {}};
    if (const ContentItem* equation = childNamed(item, term::equation)) {
      const auto found =
          std::ranges::find_if(kWeightEquations, [&](const Term& term) { return is(equation->code, term); });
      if (found != kWeightEquations.end())
        weight.formula = static_cast<std::size_t>(found - kWeightEquations.begin());
    }
    const bool isBetter = !fetus.weights.empty() && weight.flagged && !fetus.weights.front().flagged;
    if (isBetter) {
      fetus.weights.insert(fetus.weights.begin(), weight);
    } else {
      fetus.weights.push_back(weight);
    }
  }

  void date(const ContentItem& item) {
    const auto day = dayFromDigits(std::string_view(item.text).substr(0, dayLength(item.text)));
    const auto refuse = [&](const char* what) {
      passOver(std::nullopt, what, std::nullopt, "",
               //: %1 is what a date of the report is called there, %2 what stands in its place.
               Sentence("Findings", "%1: \"%2\" is no day").with(meaningOf(item.name), item.text));
    };
    if (is(item.name, term::edd)) {
      if (!day) return refuse("edd");
      edds_.push_back(*day);
    } else if (is(item.name, term::eddByLMP)) {
      if (!day) return refuse("edd");
      eddsByLMP_.push_back(*day);
    } else if (is(item.name, term::eddByAge)) {
      if (!day) return refuse("edd");
      passOver(std::nullopt, "edd", std::nullopt, "",
               Sentence("Findings", "%1, by the average ultrasound age, is never taken").with(isoText(*day)));
    } else if (is(item.name, term::lmp) || is(item.name, term::lmpOlder)) {
      if (!day) return refuse("lmp");
      passOver(std::nullopt, "lmp", std::nullopt, "",
               Sentence("Findings", "the last period, %1, makes no EDD by itself").with(isoText(*day)));
    }
  }

  /// Of a date with a time behind it the day alone.
  static std::size_t dayLength(std::string_view text) {
    return text.size() > 8 && text.find('.') != 4 ? std::size_t{8} : text.size();
  }

  void collectDates() {
    const bool byLMP = edds_.empty();
    const auto& days = byLMP ? eddsByLMP_ : edds_;
    if (days.empty()) return;
    findings_.edd = days.front();
    findings_.eddFrom = byLMP ? "lmp" : "edd";
    const auto passOverOthers = [&](const std::vector<foundation::CivilDay>& others, const Sentence& why) {
      for (const auto& day : others) {
        if (day == *findings_.edd) continue;
        passOver(std::nullopt, "edd", std::nullopt, "", why.with(isoText(day)));
        warn(Sentence("Findings", "the report holds two EDDs, %1 and %2; the first is taken")
                 .with(isoText(*findings_.edd), isoText(day)));
      }
    };
    passOverOthers(edds_, Sentence("Findings", "%1 is another day than the EDD that is taken"));
    passOverOthers(eddsByLMP_,
                   Sentence("Findings", "%1, by the last period, is another day than the EDD that is taken"));
  }

  void finish(Fetus& fetus) {
    FetusFindings& found = findings_.fetuses.emplace_back();
    found.id = fetus.id;
    for (std::size_t length = 0; length < kLengthTerms.size(); ++length)
      found.lengths.at(length) = choose(fetus, length);
    if (fetus.weights.empty()) return;
    found.efw = fetus.weights.front().grams;
    for (auto other = fetus.weights.begin() + 1; other != fetus.weights.end(); ++other)
      passOver(fetus.id, "efw", other->grams, "g", Sentence("Findings", "another weight is compared"));
    compareWeight(found, fetus.weights.front());
  }

  std::optional<FoundLength> choose(Fetus& fetus, std::size_t length) {
    const LengthTerm& term = kLengthTerms.at(length);
    std::vector<Candidate>& candidates = fetus.candidates.at(length);
    const Sentence subject = ofFetus(fetus.id, labelOf(length));
    const auto leave = [&](const Candidate& candidate, Sentence why) {
      passOver(fetus.id, std::string(term.key), candidate.value, candidate.unit, std::move(why));
    };

    if (!std::ranges::all_of(candidates, &Candidate::isPrivate)) {
      for (const Candidate& candidate : candidates) {
        if (candidate.isPrivate)
          leave(candidate, Sentence("Findings", "it has a private code, and another value the standard one"));
      }
      std::erase_if(candidates, [](const Candidate& candidate) { return candidate.isPrivate; });
    } else if (!candidates.empty()) {
      warn(Sentence("Findings", "%1 stands under a private code of the machine's maker").with(subject));
    }
    if (candidates.empty()) return std::nullopt;

    const Candidate best = *std::ranges::min_element(candidates, {}, rankOf);
    std::vector<double> values;
    for (const Candidate& candidate : candidates) {
      if (rankOf(candidate) == rankOf(best)) {
        values.push_back(candidate.mm);
      } else {
        leave(candidate, Sentence("Findings", "a %1 value is taken before a %2 one")
                             .with(wordFor(kindOf(best)), wordFor(kindOf(candidate))));
        if (candidate.flagged && isLast(candidate.derivation))
          warn(Sentence("Findings", "%1: the value that the report flags is %2, and is not taken")
                   .with(subject, wordFor(nameOf(candidate.derivation))));
      }
    }
    if (isLast(best.derivation)) {
      const auto warning = best.flagged
                               ? Sentence("Findings", "%1 is %2, not measured, though the report flags it")
                               : Sentence("Findings", "%1 is %2, not measured");
      warn(warning.with(subject, wordFor(nameOf(best.derivation))));
    }
    return meanOf(std::move(values), kindOf(best), subject);
  }

  FoundLength meanOf(std::vector<double> distinct, std::string_view kind, const Sentence& subject) {
    std::ranges::sort(distinct);
    distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
    if (distinct.size() == 1) return {.mm = distinct.front(), .chosen = kind};

    double sum = 0.0;
    std::string list;
    for (const double value : distinct) {
      sum += value;
      list += (list.empty() ? "" : ", ") + shortestText(value);
    }
    const double mean = sum / static_cast<double>(distinct.size());
    if (!std::isfinite(mean)) return {.mm = distinct.front(), .chosen = kind};
    warn(Sentence("Findings", "%1: several %2 values, %3 mm; their mean is taken")
             .with(subject, wordFor(kind), list));
    return {.mm = mean, .chosen = "mean of several"};
  }

  /// Says when the machine's weight is not that of its lengths: by the equation that the report names, else by any.
  void compareWeight(const FetusFindings& found, const Weight& weight) {
    const auto mm = [&](std::size_t length) {
      const auto& value = found.lengths.at(length);
      return value ? value->mm : 0.0;
    };
    const calc::Biometry lengths{.bpd = mm(0), .hc = mm(1), .ac = mm(2), .fl = mm(3)};
    const auto formulas = calc::weightFormulas();
    std::optional<std::size_t> nearest;
    double ours = 0.0;
    for (std::size_t i = 0; i < formulas.size(); ++i) {
      if (weight.formula && *weight.formula != i) continue;
      const double grams = formulas[i].weight(lengths);
      if (!std::isfinite(grams) || !(grams > 0.0)) continue;
      if (nearest && std::fabs(grams - weight.grams) >= std::fabs(ours - weight.grams)) continue;
      nearest = i;
      ours = grams;
    }
    constexpr double kTolerance = 0.01;
    if (!nearest || std::fabs(weight.grams - ours) <= kTolerance * ours) return;
    const auto warning =
        Sentence("Findings", "the report's weight, %1 g, is not that of its lengths, which is %2 g by %3");
    warn(ofFetus(found.id, warning.with(foundation::fixedText(weight.grams, 0),
                                        foundation::fixedText(ours, 0), formulas[*nearest].longLabel)));
  }

  Findings findings_;
  std::vector<Fetus> fetuses_;
  std::map<std::optional<std::string>, std::size_t> fetusPlaces_;
  std::vector<foundation::CivilDay> edds_;
  std::vector<foundation::CivilDay> eddsByLMP_;
};

}  // namespace

std::variant<Findings, Sentence> findingsIn(const StructuredReport& report) {
  if (report.sopClass != kComprehensiveSR && report.sopClass != kEnhancedSR) {
    constexpr std::string_view kReports = "1.2.840.10008.5.1.4.1.1.88.";
    return report.sopClass.starts_with(kReports)
               ? Sentence("Findings",
                          "is a structured report of a kind that is not read (neither Comprehensive nor "
                          "Enhanced)")
               : Sentence("Findings", "is no structured report");
  }
  if (!report.hasContent) return Sentence("Findings", "is a report whose content is missing");
  if (!is(report.root.name, term::report) || report.root.type != ValueType::container)
    return Sentence("Findings", "is no obstetric ultrasound report (its title is \"%1\")")
        .with(meaningOf(report.root.name));
  return Collector(report).takeFindings();
}

void warnOfNumberOfFetuses(Findings& findings) {
  const auto found = findings.fetuses.size();
  if (!findings.numberOfFetuses || std::cmp_equal(*findings.numberOfFetuses, found)) return;
  findings.warnings.push_back(Sentence("Findings", "the report says that there are %1 fetuses, and holds %2")
                                  .with(*findings.numberOfFetuses, found));
}

}  // namespace nascor::exchange
