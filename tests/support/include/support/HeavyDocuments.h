// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/Calendar.h"
#include "model/PatientRecord.h"

namespace nascor::tests {

/// `piece` again and again, whole each time, up to `bytes`.
inline std::string repeated(std::string_view piece, std::size_t bytes) {
  std::string text;
  text.reserve(bytes);
  while (text.size() + piece.size() <= bytes) text += piece;
  return text;
}

/// A text that a file may hold, and that is too long to be typed.
struct HeavyText {
  std::string name;
  std::string text;
};

/// One of each kind that layouts fear, `bytes` long.
inline std::vector<HeavyText> heavyTexts(std::size_t bytes) {
  return {
      {"oneWord", repeated("A", bytes)},
      {"words", repeated("word ", bytes)},
      {"blanks", repeated(" ", bytes)},
      {"lines", repeated("a\n", bytes)},
      {"emptyLines", repeated("\n", bytes)},
      {"accents", repeated("e\u0301", bytes)},
      {"oneLetterUnderAllAccents", std::string("a").append(repeated("\u0301\u0323", bytes - 1))},
      {"emoji", repeated("\U0001F469\u200D\U0001F469\u200D\U0001F467\U0001F3FD", bytes)},
      {"joinersAlone", repeated("\u200D", bytes)},
      {"flags", repeated("\U0001F1E6\U0001F1FA", bytes)},
      {"arabic", repeated("\u0633\u0644\u0627\u0645 ", bytes)},
      {"arabicInOneWord", repeated("\u0633\u0644\u0627", bytes)},
      {"hebrewAndLatin", repeated("\u05D0\u05D1 ab 12 ", bytes)},
      {"signsOfDirection", repeated("\u202E\u2066a\u2069\u202C", bytes)},
      {"embeddingsNeverClosed", repeated("\u202B", bytes)},
      {"controls", repeated("\x01\x1B[31m\t\r\x7F\u0085", bytes)},
      {"nuls", std::string(bytes, '\0')},
      {"han", repeated("\u6F22\u5B57", bytes)},
      {"thaiWithoutBlanks", repeated("\u0E01\u0E49\u0E33", bytes)},
      {"paragraphSeparators", repeated("\u2029", bytes)},
      {"tabs", repeated("\t", bytes)},
  };
}

/// How heavy a patient is to be made.
struct Weight {
  std::string identifier = "AB-123";
  std::string note = {};
  std::int64_t examinations = 1;
  std::int64_t countedFetuses = 1;  ///< what the patient says
  std::int64_t fetuses = 1;         ///< records at each examination
};

/// Due on 10 April 2027. The examinations lie evenly between 10 weeks and 36, each at the beginning of its day; the note is
/// the last one's.
inline std::unique_ptr<model::PatientRecord> heavyPatient(Weight weight,
                                                          const foundation::Calendar& calendar) {
  const foundation::Date edd = foundation::startOfDay({2027, 4, 10}, calendar);
  auto patient = std::make_unique<model::PatientRecord>();
  patient->setMaternalIDString(std::move(weight.identifier));
  patient->setGravida(2);
  patient->setNumberOfFetuses(weight.countedFetuses);
  patient->setExtrapolatedGestation(40.0);
  patient->setEDD(edd);
  constexpr double kWeek = 7.0 * foundation::kSecondsPerDay;
  for (std::int64_t exam = 0; exam < weight.examinations; ++exam) {
    const double share = static_cast<double>(exam + 1) / static_cast<double>(weight.examinations);
    auto record = std::make_unique<model::NCRecord>();
    record->setNote("");
    const foundation::Date moment{edd.secondsSince2001 - (40.0 - (10.0 + 26.0 * share)) * kWeek};
    if (const auto day = foundation::localDay(moment, calendar))
      record->setExamDate(foundation::startOfDay(*day, calendar));
    for (std::int64_t fetus = 0; fetus < weight.fetuses; ++fetus) {
      // Not one value twice at one place, or marks would cover each other by themselves.
      const double size = 1.0 + static_cast<double>((exam * 7919 + fetus * 104729) % 1000) / 10.0;
      record->measurements().push_back(
          model::MeasurementsRecord({.bpd = size, .hc = 3.0 * size, .ac = 3.0 * size, .fl = size}));
    }
    patient->ncRecordsArray().push_back(std::move(record));
  }
  if (!patient->ncRecordsArray().empty()) patient->ncRecordsArray().back()->setNote(std::move(weight.note));
  return patient;
}

/// A patient and what is heavy about the patient.
struct HeavyDocument {
  std::string name;
  Weight weight;
};

inline void PrintTo(const HeavyDocument& document, std::ostream* out) { *out << document.name; }

/// Everything of which a file may hold too much: `bytes` of text in reference ID and note, `examinations`, `fetuses`.
inline std::vector<HeavyDocument> heavyDocuments(std::size_t bytes, std::int64_t examinations,
                                                 std::int64_t fetuses) {
  std::vector<HeavyDocument> documents;
  for (HeavyText& heavy : heavyTexts(bytes)) {
    documents.push_back({.name = heavy.name, .weight = {.identifier = heavy.text, .note = heavy.text}});
  }
  documents.push_back({.name = "manyExaminations", .weight = {.examinations = examinations}});
  documents.push_back({.name = "manyExaminationsOfQuins",
                       .weight = {.examinations = examinations / 5, .countedFetuses = 5, .fetuses = 5}});
  documents.push_back(
      {.name = "manyFetuses", .weight = {.examinations = 10, .countedFetuses = fetuses, .fetuses = fetuses}});
  documents.push_back(
      {.name = "moreFetusesCountedThanThere", .weight = {.examinations = 10, .countedFetuses = 2147483647}});
  return documents;
}

}  // namespace nascor::tests
