// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "StreamBuilder.h"
#include "model/ClassNames.h"

namespace nascor::tests {

/// Puts what belongs in one place of a document.
using Put = std::function<void(StreamBuilder&)>;

inline Put text(std::string_view characters) {
  return [characters = std::string(characters)](StreamBuilder& file) { file.string(characters); };
}
inline Put date(double seconds) {
  return [=](StreamBuilder& file) { file.date(seconds); };
}
inline Put nil() {
  return [](StreamBuilder& file) { file.nil(); };
}
inline Put integer(std::int64_t value) {
  return [=](StreamBuilder& file) { file.integer(value); };
}
inline Put single(double value) {
  return [=](StreamBuilder& file) { file.single(value); };
}
inline Put group(std::string_view types, std::string_view dump) {
  return [types = std::string(types), dump = std::string(dump)](StreamBuilder& file) {
    file.group(types, dump);
  };
}

/// One examination of one fetus.
struct ExaminationParts {
  Put note = text("20 week scan");
  Put examDate = date(220000000.25);
  Put measurements = [](StreamBuilder& file) {
    file.beginArray(1);
    file.measurements(48.5, 175.0, 150.25, 33.5);
    file.end();
  };

  StreamBuilder::Label putInto(StreamBuilder& file) const {
    const StreamBuilder::Label label = file.begin("NCRecord");
    note(file);
    examDate(file);
    measurements(file);
    file.end();
    return label;
  }
};

/// A document of any class version, with whatever stands in its places. Those that its version does not have are left out.
struct PatientParts {
  StreamBuilder::Order order = StreamBuilder::Order::little;
  std::int64_t version = model::class_version::patientRecord;
  std::int64_t ncRecordVersion = 1;
  Put maternalIDString = text("A-1024");
  Put gravidityText = text("Deprecated");
  Put edd = date(239000000.0);
  Put ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(1);
    ExaminationParts{}.putInto(file);
    file.end();
  };
  Put standard = integer(2);
  Put fetalWeightStandard = integer(6);
  Put numberOfFetuses = integer(1);
  Put extrapolatedGestation = single(38.5);
  Put crlStandard = integer(3);
  Put gravida = integer(4);
  Put rest = [](StreamBuilder& file) { file.end(); };  ///< what stands after the last place

  Bytes bytes() const {
    StreamBuilder file(order);
    file.setVersion("PatientRecord", version);
    file.setVersion("NCRecord", ncRecordVersion);
    file.begin("PatientRecord");
    putPlacesOf(version, file);
    return file.bytes();
  }
  /// The places of that version, whatever version the file states.
  void putPlacesOf(std::int64_t places, StreamBuilder& file) const {
    maternalIDString(file);
    gravidityText(file);
    edd(file);
    ncRecordsArray(file);
    if (places >= 2) standard(file);
    if (places >= 3) fetalWeightStandard(file);
    if (places >= 4) numberOfFetuses(file);
    if (places >= 5) extrapolatedGestation(file);
    if (places >= 6) crlStandard(file);
    if (places >= 7) gravida(file);
    rest(file);
  }
  /// Puts the same into the place of every whole number.
  void setIntegers(const Put& value) {
    standard = fetalWeightStandard = numberOfFetuses = crlStandard = gravida = value;
  }
};

/// The array of examinations that holds this one alone.
inline Put onlyExamination(const ExaminationParts& parts) {
  return [parts](StreamBuilder& file) {
    file.beginArray(1);
    parts.putInto(file);
    file.end();
  };
}

/// The four lengths as class version 0 of an examination has them, in place of the array.
inline Put inlineLengths(double bpd, double hc, double ac, double fl) {
  return [=](StreamBuilder& file) {
    for (const double length : {bpd, hc, ac, fl}) file.single(length);
  };
}

/// What a new patient's document holds when the examination was begun at 221234567.890625 s.
inline constexpr std::string_view kFreshPatientDump = R"(
    04 0b "streamtyped" 81 e8 03
    84 01 "@"
    84                                                        // object 0
      84 84 0d "PatientRecord" 07 84 84 08 "NSObject" 00 85   // classes 1 and 2
      92 84 84 84 08 "NSString" 01 94 84 01 "+" 00 86         // object 3, class 4: the identifier, empty
      92 84 96 96 0a "Deprecated" 86                          // object 5
      92 85                                                   // no date of delivery
      92 84                                                   // object 6: the examinations
         84 84 0e "NSMutableArray" 00 84 84 07 "NSArray" 00 94
         84 01 "i" 01
         92 84 84 84 08 "NCRecord" 01 94                      // object 9, class 10
            92 95                                             // the note is object 3 again
            92 84 84 84 06 "NSDate" 00 94 84 01 "d" 83 00 00 c8 0f 8b 5f aa 41 86
            92 84 99 99 01                                    // object 13: the measurements
               92 84 84 84 12 "MeasurementsRecord" 00 94 84 01 "f" 00 9e 00 9e 00 9e 00 86
            86
         86
      86
      99 00 99 00 99 01                                       // standard, weight standard, fetuses
      9e 28                                                   // 40 weeks
      99 00 99 00                                             // CRL standard, gravida
    86)";

/// A document of twins in which every place but the second twin's lengths holds something of its own.
inline constexpr std::string_view kTwinsDump = R"(
    04 0b "streamtyped" 81 e8 03
    84 01 "@"
    84 84 84 0d "PatientRecord" 07 84 84 08 "NSObject" 00 85
      92 84 84 84 08 "NSString" 01 94 84 01 "+" 06 "AB-123" 86
      92 84 96 96 0a "Deprecated" 86
      92 84 84 84 06 "NSDate" 00 94 84 01 "d" 82 c0 d9 3e 0e 86        // 239000000
      92 84 84 84 0e "NSMutableArray" 00 84 84 07 "NSArray" 00 94 84 01 "i" 01
         92 84 84 84 08 "NCRecord" 01 94
            92 84 96 96 02 "ok" 86
            92 84 99 98 83 00 00 80 00 de 39 aa 41 86                  // 220000000.25
            92 84 9b 9b 02
               92 84 84 84 12 "MeasurementsRecord" 00 94
                  84 01 "f" 83 00 00 42 42 9e 81 af 00                 // 48.5, 175
                  9e 83 00 40 16 43 9e 83 00 00 06 42 86               // 150.25, 33.5
               92 84 a3 9e 00 9e 00 9e 00 9e 00 86
            86
         86
      86
      9b 02 9b 06 9b 02                                                // standards 2 and 6, two fetuses
      9e 83 00 00 1a 42                                                // 38.5 weeks
      9b 01 9b 81 2c 01                                                // CRL standard 1, gravida 300
    86)";

}  // namespace nascor::tests
