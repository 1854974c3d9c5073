// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/FindingsJson.h"

#include "exchange/DecimalText.h"

namespace nascor::exchange {

namespace {

using foundation::JsonText;

void writeText(JsonText& json, std::string_view key, const std::optional<std::string>& text) {
  json.key(key);
  if (text) {
    json.text(*text);
  } else {
    json.null();
  }
}

void writeNumber(JsonText& json, std::string_view key, const std::optional<double>& number) {
  json.key(key);
  if (number) {
    json.number(*number);
  } else {
    json.null();
  }
}

void writeCount(JsonText& json, std::string_view key, const std::optional<int>& count) {
  json.key(key);
  if (count) {
    json.integer(*count);
  } else {
    json.null();
  }
}

void writeDay(JsonText& json, std::string_view key, const std::optional<foundation::CivilDay>& day) {
  writeText(json, key, day ? std::optional(isoText(*day)) : std::nullopt);
}

void writeFetus(JsonText& json, const FetusFindings& fetus) {
  json.beginObject();
  writeText(json, "id", fetus.id);
  for (std::size_t i = 0; i < kLengthTerms.size(); ++i) {
    const auto& length = fetus.lengths.at(i);
    writeNumber(json, kLengthTerms.at(i).key, length ? std::optional(length->mm) : std::nullopt);
  }
  writeNumber(json, "efw", fetus.efw);
  json.key("chosen").beginObject();
  for (std::size_t i = 0; i < kLengthTerms.size(); ++i) {
    if (const auto& length = fetus.lengths.at(i)) json.key(kLengthTerms.at(i).key).text(length->chosen);
  }
  json.endObject().endObject();
}

void writeNotTaken(JsonText& json, const NotTaken& value) {
  json.beginObject();
  writeText(json, "fetus", value.fetus);
  json.key("what").text(value.what);
  writeNumber(json, "value", value.value);
  writeText(json, "unit", value.unit.empty() ? std::nullopt : std::optional(value.unit));
  json.key("why").text(english(value.why));
  json.endObject();
}

}  // namespace

void writeFindingsJson(JsonText& json, std::string_view file, const Findings& findings) {
  json.beginObject().key("file").text(file);
  writeText(json, "patientID", findings.patientID);
  writeDay(json, "examDate", findings.examDate);
  writeDay(json, "edd", findings.edd);
  writeText(json, "eddFrom", findings.edd ? std::optional(std::string(findings.eddFrom)) : std::nullopt);
  writeCount(json, "gravida", findings.gravida);
  writeCount(json, "numberOfFetuses", findings.numberOfFetuses);
  json.key("fetuses").beginArray();
  for (const FetusFindings& fetus : findings.fetuses) writeFetus(json, fetus);
  json.endArray().key("notTaken").beginArray();
  for (const NotTaken& value : findings.notTaken) writeNotTaken(json, value);
  json.endArray().key("warnings").beginArray();
  for (const foundation::Sentence& warning : findings.warnings) json.text(english(warning));
  json.endArray().endObject();
}

}  // namespace nascor::exchange
