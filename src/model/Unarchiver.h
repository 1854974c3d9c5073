// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "archive/TypedStreamReader.h"
#include "foundation/Localizer.h"
#include "model/ClassNames.h"
#include "model/PatientRecord.h"

namespace nascor::model {

/// What a file says of itself beside the patient: nothing of it is wrong, some of it is worth a look.
struct ArchiveFacts {
  archive::ByteOrder byteOrder = archive::ByteOrder::little;
  std::optional<std::int64_t>
      patientVersion;  ///< class versions; nothing for a class that is not in the file
  std::optional<std::int64_t> ncRecordVersion;
  std::optional<std::int64_t> measurementsVersion;
  std::optional<std::string> gravidityText;  ///< the place that held the gravidity before version 7
  std::size_t missingArrays = 0;             ///< arrays that are nil; read as empty
  std::size_t sharedRecords =
      0;  ///< places that share an examination, its measurements or one of them with another
  std::size_t trailingBytes = 0;  ///< bytes after the patient; ignored
};

/// Decodes the records of a document file, value by value in the order of the file.
///
/// Every function throws archive::FormatError when the file does not hold what is asked for. An object that stands
/// in several places of the file is decoded once and copied; the copies may not outgrow the file by far.
class Unarchiver {
 public:
  /// Reads the header. `bytes` must outlive the unarchiver.
  explicit Unarchiver(std::span<const std::byte> bytes);

  /// The patient at the root; null for a root that is nil.
  std::unique_ptr<PatientRecord> decodeRoot();
  const ArchiveFacts& facts() const { return facts_; }

  /// The version that the file records for a class; 0 for a class that it does not name.
  std::int64_t versionForClassName(std::string_view name) const;
  /// That of NCRecord, of which one has been begun.
  std::int64_t ncRecordVersion();

  std::int64_t decodeInteger();
  double decodeFloat() { return reader_.takeFloat(); }
  std::array<double, 4> decodeFourFloats() { return reader_.takeFloats<4>(); }
  std::optional<std::string> decodeString();
  std::optional<foundation::Date> decodeDate();
  PatientRecord::Examinations decodeExaminations();
  std::vector<MeasurementsRecord> decodeMeasurements();
  /// Reads the text that stands where versions before 7 keep the gravidity.
  std::optional<std::string> decodeGravidityText();

 private:
  /// What the objects of one kind were decoded to, by label. None of a kind stands in another of it, so they are complete
  /// in the order of their labels.
  template <class Value>
  class Decoded {
   public:
    explicit Decoded(std::size_t expected) : values_(expected) {}
    void keep(const archive::ObjectValue& object, const Value& value) {
      values_.added() = {object.label, value};
    }
    /// Only of an object that was kept.
    const Value& at(const archive::ObjectValue& reference) const {
      return std::ranges::lower_bound(values_, reference.label, {}, &Labelled::label)->value;
    }

   private:
    struct Labelled {
      archive::Label label;
      Value value;
    };
    archive::Pile<Labelled> values_;
  };

  /// What may stand where an object is decoded.
  struct Expected {
    std::array<std::string_view, 2> classNames;  ///< twice the same where there is one
    std::string_view wanted;                     ///< a key of the table "Reading"
    /// The class that fitted last, so that its name is compared once; at first none.
    archive::Label fitting = std::numeric_limits<archive::Label>::max();
  };

  archive::ObjectValue takeObject(Expected& expected);
  void check(const archive::ObjectValue& object, Expected& expected) const;
  [[noreturn]] void refuse(const archive::ObjectValue& object, const Expected& expected,
                           const foundation::Sentence& reason) const;
  void chargeForCopy(const archive::ObjectValue& reference, std::size_t bytes);
  std::int32_t takeCount();
  std::unique_ptr<NCRecord> decodeExamination();
  MeasurementsRecord decodeMeasurementsRecord();

  std::size_t size_;
  archive::TypedStreamReader reader_;
  // Texts point into the file, the last two into the patient that is being built. Room for as many as a file of this length
  // usually has; what it has more of, it gets in time.
  static constexpr std::size_t kBytesPerExamination = 128;
  static constexpr std::size_t kBytesPerRecord = 28;
  Decoded<std::string_view> texts_{size_ / kBytesPerExamination};
  Decoded<foundation::Date> dates_{size_ / kBytesPerExamination};
  Decoded<MeasurementsRecord> records_{size_ / kBytesPerRecord};
  Decoded<std::span<const MeasurementsRecord>> arrays_{size_ / kBytesPerExamination};
  Decoded<const NCRecord*> keptExaminations_{size_ / kBytesPerExamination};
  Expected patient_{{class_name::patientRecord, class_name::patientRecord},
                    foundation::translatable("Reading", "a PatientRecord")};
  Expected string_{{class_name::string, class_name::mutableString},
                   foundation::translatable("Reading", "a string or nil")};
  Expected date_{{class_name::date, class_name::date}, foundation::translatable("Reading", "a date or nil")};
  Expected examinations_{{class_name::array, class_name::mutableArray},
                         foundation::translatable("Reading", "an array of examinations or nil")};
  Expected examination_{{class_name::ncRecord, class_name::ncRecord},
                        foundation::translatable("Reading", "an NCRecord")};
  Expected measurements_{{class_name::array, class_name::mutableArray},
                         foundation::translatable("Reading", "an array of measurements or nil")};
  Expected measurementsRecord_{{class_name::measurementsRecord, class_name::measurementsRecord},
                               foundation::translatable("Reading", "a MeasurementsRecord")};
  std::optional<std::int64_t> ncRecordVersion_;  // that of the first class record, whatever follows
  std::size_t copiedBytes_ = 0;
  ArchiveFacts facts_;
};

}  // namespace nascor::model
