#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "archive/TypedStreamReader.h"
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

  std::int64_t decodeInteger();
  double decodeFloat();
  std::optional<std::string> decodeString();
  std::optional<foundation::Date> decodeDate();
  PatientRecord::Examinations decodeExaminations();
  std::vector<MeasurementsRecord> decodeMeasurements();
  /// Reads the text that stands where versions before 7 keep the gravidity.
  std::optional<std::string> decodeGravidityText();

 private:
  using Measurements = std::span<const MeasurementsRecord>;
  /// Texts point into the file, the others into the patient that is being built.
  using Decoded =
      std::variant<std::string_view, foundation::Date, MeasurementsRecord, Measurements, const NCRecord*>;

  archive::ObjectValue takeObject(std::initializer_list<std::string_view> classNames,
                                  std::string_view wanted);
  template <class Value>
  const Value& decodedAt(const archive::ObjectValue& reference) const;
  void chargeForCopy(const archive::ObjectValue& reference, std::size_t bytes);
  std::int32_t takeCount();
  std::unique_ptr<NCRecord> decodeExamination();
  MeasurementsRecord decodeMeasurementsRecord();

  std::size_t size_;
  archive::TypedStreamReader reader_;
  std::unordered_map<archive::Label, Decoded> decoded_;
  std::size_t copiedBytes_ = 0;
  ArchiveFacts facts_;
};

}  // namespace nascor::model
