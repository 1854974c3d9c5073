// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/FhirReader.h"

#include <map>
#include <optional>
#include <utility>

#include <nlohmann/json.hpp>

#include "exchange/Codes.h"
#include "exchange/FhirBundle.h"
#include "foundation/NumberText.h"

namespace nascor::exchange {

namespace {

using foundation::Sentence;
using Json = nlohmann::json;

/// A member of an object; null when there is none, or no object.
const Json& member(const Json& object, const char* key) {
  static const Json kNothing;
  if (!object.is_object()) return kNothing;
  const auto found = object.find(key);
  return found == object.end() ? kNothing : *found;
}

std::string textOf(const Json& value) { return value.is_string() ? value.get<std::string>() : std::string(); }
std::string textIn(const Json& object, const char* key) { return textOf(member(object, key)); }

/// The elements of a list; none of anything else.
std::vector<const Json*> elementsOf(const Json& list) {
  std::vector<const Json*> elements;
  if (!list.is_array()) return elements;
  for (const Json& element : list) elements.push_back(&element);
  return elements;
}

std::string numberText(const Json& value) {
  if (value.is_number_integer()) return value.dump();
  return value.is_number() ? foundation::shortestText(value.get<double>()) : textOf(value);
}

/// 2027-04-10 as 20270410; of a date with a time the day alone.
std::string digitsOf(const std::string& isoDay) {
  std::string digits;
  for (const char character : isoDay.substr(0, 10)) {
    if (character != '-') digits += character;
  }
  return digits;
}

/// The LOINC or DICOM code of a concept.
Code codeOf(const Json& concept_) {
  for (const Json* coding : elementsOf(member(concept_, "coding"))) {
    const std::string system = textIn(*coding, "system");
    const std::string scheme = system == kLoinc                              ? "LN"
                               : system.starts_with("http://dicom.nema.org") ? "DCM"
                                                                             : "";
    if (!scheme.empty()) return {textIn(*coding, "code"), scheme, textIn(*coding, "display")};
  }
  return {"", "", textIn(concept_, "text")};
}

ContentItem container(const Term& name) {
  return {.type = ValueType::container,
          .relationship = "CONTAINS",
          .name = name.code(),
          .text = {},
          .code = {},
          .items = {}};
}

class Bundle {
 public:
  explicit Bundle(const Json& bundle) {
    for (const Json* entry : elementsOf(member(bundle, "entry"))) {
      const Json& resource = member(*entry, "resource");
      resources_.push_back(&resource);
      if (const std::string url = textIn(*entry, "fullUrl"); !url.empty())
        byReference_.emplace(url, &resource);
      byReference_.emplace(textIn(resource, "resourceType") + "/" + textIn(resource, "id"), &resource);
    }
  }

  /// Whether two resources of fetuses bear one identifier: then nothing tells whose lengths are whose.
  bool hasNamesakes() const {
    std::map<std::string, const Json*> fetuses;
    for (const Json* resource : resources_) {
      if (textIn(*resource, "resourceType") != "Observation") continue;
      const Json& subject = referred(member(*resource, "subject"));
      const std::string identifier = identifierOf(subject);
      const auto [found, isNew] = fetuses.emplace(identifier, &subject);
      if (!identifier.empty() && found->second != &subject) return true;
    }
    return false;
  }

  std::vector<StructuredReport> reports() const {
    std::vector<StructuredReport> reports;
    for (const Json* resource : resources_) {
      if (textIn(*resource, "resourceType") == "DiagnosticReport") reports.push_back(report(*resource));
    }
    return reports;
  }

 private:
  /// What a reference names; null when the bundle does not hold it.
  const Json& referred(const Json& reference) const {
    static const Json kNothing;
    const auto found = byReference_.find(textIn(reference, "reference"));
    return found == byReference_.end() ? kNothing : *found->second;
  }

  std::string identifierOf(const Json& patient) const {
    for (const Json* identifier : elementsOf(member(patient, "identifier"))) {
      if (std::string value = textIn(*identifier, "value"); !value.empty()) return value;
    }
    return {};
  }

  /// The number that reports have in place of the letter of a fetus.
  std::string fetusOf(const Json& observation) const {
    const std::string letter = identifierOf(referred(member(observation, "subject")));
    const auto fetus = fetusOfLetter(letter);
    return fetus ? std::to_string(*fetus + 1) : letter;
  }

  StructuredReport report(const Json& diagnostic) const {
    StructuredReport report;
    report.sopClass = kComprehensiveSR;
    report.patientID = identifierOf(referred(member(diagnostic, "subject")));
    report.studyDate = digitsOf(textIn(diagnostic, "effectiveDateTime"));
    report.hasContent = true;
    report.root = container(term::report);
    ContentItem characteristics = container(term::patientCharacteristics);
    ContentItem summary = container(term::summary);
    for (const Json* reference : elementsOf(member(diagnostic, "result"))) {
      const Json& observation = referred(*reference);
      if (!holds(observation, report)) continue;
      const Code code = codeOf(member(observation, "code"));
      if (is(code, term::fetalBiometry)) {
        panel(observation, report);
      } else if (is(code, term::gravida)) {
        characteristics.items.push_back(valueOf(observation, code));
      } else if (!is(code, term::gestationalAge)) {
        summary.items.push_back(valueOf(observation, code));
      }
    }
    report.root.items.push_back(std::move(characteristics));
    report.root.items.push_back(std::move(summary));
    return report;
  }

  /// Whether an observation is there and counts.
  static bool holds(const Json& observation, StructuredReport& report) {
    if (textIn(observation, "resourceType") != "Observation") {
      const Sentence missing = Sentence("Findings", "a result of the examination is not in the bundle");
      report.warnings.push_back(missing);
      return false;
    }
    const std::string status = textIn(observation, "status");
    if (status == "final" || status == "amended" || status == "corrected") return true;
    report.warnings.push_back(
        Sentence("Findings", "an observation of status \"%1\" is passed over").with(status));
    return false;
  }

  void panel(const Json& observation, StructuredReport& report) const {
    const std::string fetus = fetusOf(observation);
    ContentItem id{.type = ValueType::text,
                   .relationship = "HAS OBS CONTEXT",
                   .name = term::fetusID.code(),
                   .text = fetus,
                   .code = {},
                   .items = {}};
    ContentItem biometry = container(term::fetalBiometry);
    biometry.items.push_back(std::move(id));
    for (const Json* reference : elementsOf(member(observation, "hasMember"))) {
      const Json& measure = referred(*reference);
      if (!holds(measure, report)) continue;
      if (fetusOf(measure) != fetus) {
        report.warnings.push_back(
            Sentence("Findings", "an observation of another fetus stands in the panel of fetus %1")
                .with(fetus));
        continue;
      }
      biometry.items.push_back(valueOf(measure, codeOf(member(measure, "code"))));
    }
    report.root.items.push_back(std::move(biometry));
  }

  static ContentItem valueOf(const Json& observation, Code code) {
    ContentItem item{.type = ValueType::number,
                     .relationship = "CONTAINS",
                     .name = std::move(code),
                     .text = {},
                     .code = {},
                     .items = {}};
    const Json& quantity = member(observation, "valueQuantity");
    const Json& integer = member(observation, "valueInteger");
    const std::string dateTime = textIn(observation, "valueDateTime");
    if (!quantity.is_null()) {
      item.text = numberText(member(quantity, "value"));
      item.code = {textIn(quantity, "code"), textIn(quantity, "system") == kUcum ? "UCUM" : "", ""};
      readEquation(observation, item);
    } else if (!integer.is_null()) {
      item.text = numberText(integer);
    } else if (!dateTime.empty()) {
      item.type = ValueType::date;
      item.text = digitsOf(dateTime);
    }
    return item;
  }

  static void readEquation(const Json& observation, ContentItem& item) {
    const Json& method = member(observation, "method");
    if (method.is_null()) return;
    ContentItem equation{.type = ValueType::code,
                         .relationship = "INFERRED FROM",
                         .name = term::equation.code(),
                         .text = {},
                         .code = codeOf(method),
                         .items = {}};
    for (const Term& own : kWeightEquations) {
      if (equation.code.scheme.empty() && equation.code.meaning == own.meaning) equation.code = own.code();
    }
    item.items.push_back(std::move(equation));
  }

  std::vector<const Json*> resources_;
  std::map<std::string, const Json*> byReference_;
};

/// Deeper than any bundle.
constexpr int kDeepest = 128;

/// Lines and tabs between the values as blanks; nothing where values are nested too deep. Of a mebibyte of them that ends in
/// no value the library would spell out each in a message, which takes longer than anything else here.
std::optional<std::string> withBlanksBetween(std::string_view json) {
  std::string plain(json);
  bool isInText = false;
  int depth = 0;
  for (std::size_t i = 0; i < plain.size(); ++i) {
    char& character = plain[i];
    if (character == '"') {
      isInText = !isInText;
    } else if (isInText) {
      if (character == '\\') ++i;  // what is escaped ends no text
    } else if (character == '\t' || character == '\n' || character == '\r') {
      character = ' ';
    } else if (character == '{' || character == '[') {
      if (++depth > kDeepest) return std::nullopt;
    } else if (character == '}' || character == ']') {
      --depth;
    }
  }
  return plain;
}

}  // namespace

std::variant<std::vector<StructuredReport>, Sentence> reportsInBundle(std::string_view json) {
  // As much as an archive of one patient never is, and its tree would fill the memory.
  constexpr std::size_t kLongest = std::size_t{16} << 20U;
  if (json.size() > kLongest)
    return Sentence("Findings", "is longer than any FHIR bundle that is read (16 MiB)");
  const auto plain = withBlanksBetween(json);
  if (!plain) return Sentence("Findings", "is nested deeper than any FHIR bundle");
  const Json parsed = Json::parse(plain->begin(), plain->end(), nullptr, false);
  if (parsed.is_discarded()) return Sentence("Findings", "is no JSON that can be read");
  if (textIn(parsed, "resourceType") != "Bundle") return Sentence("Findings", "is no FHIR bundle");
  const Bundle bundle(parsed);
  if (bundle.hasNamesakes())
    return Sentence("Findings", "is a FHIR bundle in which two patients have one identifier");
  auto reports = bundle.reports();
  if (reports.empty()) return Sentence("Findings", "is a FHIR bundle without an examination");
  return reports;
}

}  // namespace nascor::exchange
