// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/FhirBundle.h"

#include <functional>
#include <utility>

#include "calc/FetalWeight.h"
#include "exchange/Codes.h"
#include "exchange/DecimalText.h"
#include "exchange/NameBasedUuid.h"
#include "foundation/JsonText.h"
#include "foundation/NumberText.h"

namespace nascor::exchange {

namespace {

using foundation::CivilDay;
using foundation::JsonText;

constexpr Term kReportTerm{"11525-3", "LN", "US Pelvis Fetus for pregnancy"};
constexpr double kDaysOfPregnancy = 280.0;

/// One resource, as others refer to it.
struct Reference {
  std::string type;
  std::string id;
};

class Writer {
 public:
  Writer(std::span<const OutgoingExamination> examinations, FhirForm form)
      : examinations_(examinations), form_(form), json_(out_) {
    for (const OutgoingExamination& examination : examinations) name_ += nameOf(examination) + "\n";
  }

  std::string write() {
    if (form_ == FhirForm::bundle) {
      json_.beginObject().key("resourceType").text("Bundle").key("id").text(idOf("bundle"));
      json_.key("type").text("collection").key("entry").beginArray();
    }
    document();
    if (form_ == FhirForm::bundle) {
      json_.endArray().endObject();
      out_ += '\n';
    }
    return std::move(out_);
  }

 private:
  std::string idOf(const std::string& role) const {
    return textOf(nameBasedUuid(kNascorNames, role + "\n" + name_));
  }
  Reference make(const std::string& type, const std::string& role) const {
    return {type, idOf(type + " " + role)};
  }

  void reference(const Reference& to) {
    const std::string text = form_ == FhirForm::bundle ? "urn:uuid:" + to.id : to.type + "/" + to.id;
    json_.beginObject().key("reference").text(text).endObject();
  }

  void resource(const Reference& self, const std::function<void()>& members) {
    if (form_ == FhirForm::bundle)
      json_.beginObject().key("fullUrl").text("urn:uuid:" + self.id).key("resource");
    json_.beginObject().key("resourceType").text(self.type).key("id").text(self.id);
    members();
    json_.endObject();
    if (form_ == FhirForm::bundle) {
      json_.endObject();
    } else {
      out_ += '\n';
    }
  }

  void coding(const char* system, std::string_view code, std::string_view display) {
    json_.beginObject()
        .key("system")
        .text(system)
        .key("code")
        .text(code)
        .key("display")
        .text(display)
        .endObject();
  }

  /// A concept of one coding, under a key.
  void concept_(std::string_view key, const Term& term) {
    const bool isLoinc = term.scheme == "LN";
    const bool isDicom = term.scheme == "DCM";
    json_.key(key).beginObject();
    if (isLoinc || isDicom) {
      json_.key("coding").beginArray();
      coding(isLoinc ? kLoinc : "http://dicom.nema.org/resources/ontology/DCM", term.value, term.meaning);
      json_.endArray();
    }
    json_.key("text").text(term.meaning).endObject();
  }

  /// The members that every observation begins with.
  void observed(const Term& term, const Reference& subject, const std::optional<CivilDay>& day) {
    json_.key("status").text("final").key("category").beginArray().beginObject().key("coding").beginArray();
    coding("http://terminology.hl7.org/CodeSystem/observation-category", "imaging", "Imaging");
    json_.endArray().endObject().endArray();
    concept_("code", term);
    json_.key("subject");
    reference(subject);
    if (day) json_.key("effectiveDateTime").text(isoText(*day));
  }

  void quantity(double value, const char* unit) {
    json_.key("valueQuantity").beginObject().key("value").number(value);
    json_.key("unit").text(unit).key("system").text(kUcum).key("code").text(unit).endObject();
  }

  void document() {
    const OutgoingExamination& first = examinations_.front();
    mother_ = make("Patient", "mother");
    std::size_t fetuses = 0;
    for (const OutgoingExamination& examination : examinations_)
      fetuses = std::max(fetuses, examination.fetuses.size());

    resource(mother_, [&] {
      if (!first.patientID.empty()) identifier(first.patientID);
      json_.key("gender").text("female");
      if (fetuses > 0) json_.key("link").beginArray();
      for (std::size_t i = 0; i < fetuses; ++i) {
        json_.beginObject().key("other");
        reference(make("RelatedPerson", letterOfFetus(i)));
        json_.key("type").text("seealso").endObject();
      }
      if (fetuses > 0) json_.endArray();
    });
    for (std::size_t i = 0; i < fetuses; ++i) fetus(letterOfFetus(i));
    aboutMother(first);
    for (std::size_t i = 0; i < examinations_.size(); ++i) examination(i);
  }

  void identifier(std::string_view value) {
    json_.key("identifier").beginArray().beginObject().key("value").text(value).endObject().endArray();
  }

  void fetus(const std::string& letter) {
    const Reference self = make("Patient", letter);
    fetuses_.push_back(self);
    resource(self, [&] {
      json_.key("extension").beginArray().beginObject();
      json_.key("url").text("http://hl7.org/fhir/StructureDefinition/patient-fetalStatus");
      json_.key("valueCode").text("unknown").endObject().endArray();
      identifier(letter);
    });
    resource(make("RelatedPerson", letter), [&] {
      json_.key("patient");
      reference(self);
      json_.key("relationship").beginArray().beginObject().key("coding").beginArray();
      coding("http://terminology.hl7.org/CodeSystem/v3-RoleCode", "MTH", "mother");
      json_.endArray().endObject().endArray();
    });
  }

  /// What holds for every examination: EDD, gravidity, number of fetuses.
  void aboutMother(const OutgoingExamination& first) {
    const auto about = [&](const Term& term, const std::function<void()>& value) {
      const Reference self = make("Observation", std::string(term.value));
      motherResults_.push_back(self);
      resource(self, [&] {
        observed(term, mother_, std::nullopt);
        value();
      });
    };
    if (first.edd) about(term::edd, [&] { json_.key("valueDateTime").text(isoText(*first.edd)); });
    if (first.gravida) about(term::gravida, [&] { json_.key("valueInteger").integer(*first.gravida); });
    if (first.numberOfFetuses)
      about(term::numberOfFetuses, [&] { json_.key("valueInteger").integer(*first.numberOfFetuses); });
  }

  void examination(std::size_t place) {
    const OutgoingExamination& examination = examinations_[place];
    const std::string role = std::to_string(place);
    std::vector<Reference> results = motherResults_;
    if (examination.day && examination.edd) {
      const auto toEDD =
          foundation::daysSince2001(*examination.edd) - foundation::daysSince2001(*examination.day);
      const Reference age = make("Observation", role + " age");
      results.push_back(age);
      resource(age, [&] {
        observed(term::gestationalAge, mother_, examination.day);
        quantity(kDaysOfPregnancy - static_cast<double>(toEDD), "d");
      });
    }
    for (std::size_t i = 0; i < examination.fetuses.size(); ++i)
      results.push_back(panel(examination, examination.fetuses[i], i, role + " " + letterOfFetus(i)));
    resource(make("DiagnosticReport", role), [&] {
      json_.key("status").text("final");
      concept_("code", kReportTerm);
      json_.key("subject");
      reference(mother_);
      if (examination.day) json_.key("effectiveDateTime").text(isoText(*examination.day));
      references("result", results);
    });
  }

  void references(std::string_view key, const std::vector<Reference>& to) {
    if (to.empty()) return;
    json_.key(key).beginArray();
    for (const Reference& one : to) reference(one);
    json_.endArray();
  }

  Reference panel(const OutgoingExamination& examination, const OutgoingFetus& fetus, std::size_t place,
                  const std::string& role) {
    const Reference& subject = fetuses_.at(place);
    std::vector<Reference> members;
    for (const OutgoingLength& length : fetus.lengths) {
      const LengthTerm& term = kLengthTerms.at(length.term);
      const Reference self = make("Observation", role + " " + std::string(term.key));
      members.push_back(self);
      resource(self, [&] {
        observed(term.term, subject, examination.day);
        quantity(decimalMoved(length.mm, 0).value_or(0.0), "mm");
      });
    }
    if (fetus.efw) {
      const Reference self = make("Observation", role + " efw");
      resource(self, [&] {
        observed(term::efw, subject, examination.day);
        quantity(decimalMoved(foundation::fixedText(*fetus.efw, 1), 0).value_or(0.0), "g");
        if (examination.formula) concept_("method", kWeightEquations.at(*examination.formula));
        references("derivedFrom", usedBy(fetus, examination.formula, members));
      });
      members.push_back(self);
    }
    Reference self = make("Observation", role);
    resource(self, [&] {
      observed(term::fetalBiometry, subject, examination.day);
      references("hasMember", members);
      // An observation says something, or why it does not.
      if (members.empty()) {
        json_.key("dataAbsentReason").beginObject().key("coding").beginArray();
        coding("http://terminology.hl7.org/CodeSystem/data-absent-reason", "not-performed", "Not Performed");
        json_.endArray().endObject();
      }
    });
    return self;
  }

  /// The lengths without which the formula gives no weight.
  static std::vector<Reference> usedBy(const OutgoingFetus& fetus, const std::optional<std::size_t>& formula,
                                       const std::vector<Reference>& members) {
    std::vector<Reference> used;
    for (std::size_t i = 0; formula && i < fetus.lengths.size(); ++i) {
      calc::Biometry without{.bpd = 1, .hc = 1, .ac = 1, .fl = 1};
      without.*calc::memberFor(calc::kMeasurements.at(fetus.lengths[i].term)) = 0.0;
      if (calc::weightFormulas()[*formula].weight(without) == 0.0) used.push_back(members[i]);
    }
    return used;
  }

  std::span<const OutgoingExamination> examinations_;
  FhirForm form_;
  std::string out_;
  JsonText json_;
  std::string name_;  ///< of all that is written
  Reference mother_;
  std::vector<Reference> fetuses_;
  std::vector<Reference> motherResults_;
};

}  // namespace

namespace {
constexpr std::size_t kLetters = 26;
}

std::optional<std::size_t> fetusOfLetter(std::string_view letter) {
  if (letter.empty() || letter.size() > 2) return std::nullopt;
  std::size_t number = 0;
  for (const char character : letter) {
    if (character < 'A' || character > 'Z') return std::nullopt;
    number = number * kLetters + static_cast<std::size_t>(character - 'A') + 1;
  }
  return number - 1;
}

std::string letterOfFetus(std::size_t fetus) {
  std::string letter(1, static_cast<char>('A' + fetus % kLetters));
  return fetus < kLetters ? letter : letterOfFetus(fetus / kLetters - 1) + letter;
}

std::string writeFhir(std::span<const OutgoingExamination> examinations, FhirForm form) {
  return Writer(examinations, form).write();
}

}  // namespace nascor::exchange
