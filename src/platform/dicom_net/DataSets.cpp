// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom_net/DataSets.h"

#include <algorithm>
#include <cstdint>

#include <dcmtk/dcmdata/dcistrmb.h>
#include <dcmtk/dcmdata/dcspchrs.h>

namespace nascor::dicom_net {

namespace {

std::string bytesIn(DcmItem& item, const DcmTagKey& tag) {
  DcmElement* found = nullptr;
  OFString value;
  // A sequence under the tag of a text has no text.
  if (item.findAndGetElement(tag, found).bad() || found == nullptr || !found->isLeaf() ||
      found->getOFStringArray(value, OFFalse).bad())
    return {};
  const std::string bytes(value.data(), value.size());
  return bytes.substr(0, bytes.find('\0'));
}

std::string littleEndian(std::uint32_t value, std::size_t size) {
  constexpr std::uint32_t kByte = 0xFF;
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8U * i) & kByte);
  return bytes;
}

/// An element of the header: of group 2, little endian, with its representation.
std::string headerElement(std::uint32_t element, std::string_view vr, std::string value) {
  if (value.size() % 2 != 0) value += '\0';
  const auto length = static_cast<std::uint32_t>(value.size());
  const bool isLong = vr == "OB";
  return littleEndian(2, 2) + littleEndian(element, 2) + std::string(vr) +
         (isLong ? littleEndian(0, 2) + littleEndian(length, 4) : littleEndian(length, 2)) + value;
}

}  // namespace

std::variant<std::unique_ptr<DcmDataset>, foundation::Sentence> parsed(const dicom::DataSet& elements) {
  if (auto fault = dicom::faultIn(elements)) return *fault;
  const auto& encoding = elements.encoding;
  DcmInputBufferStream stream;
  stream.setBuffer(elements.bytes.data(), static_cast<offile_off_t>(elements.bytes.size()));
  stream.setEos();
  auto dataset = std::make_unique<DcmDataset>();
  dataset->transferInit();
  const OFCondition status = dataset->read(stream, encoding.isBigEndian  ? EXS_BigEndianExplicit
                                                   : encoding.isExplicit ? EXS_LittleEndianExplicit
                                                                         : EXS_LittleEndianImplicit);
  dataset->transferEnd();
  if (status.bad()) return foundation::Sentence("ReportFiles", "is damaged: %1").with(status.text());
  return dataset;
}

std::string plainIn(DcmItem& item, const DcmTagKey& tag) {
  const std::string bytes = bytesIn(item, tag);
  const std::size_t first = bytes.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return bytes.substr(first, bytes.find_last_not_of(' ') - first + 1);
}

std::string patientIDIn(DcmItem& item) {
  std::string bytes = plainIn(item, DCM_PatientID);
  const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80 && c != '\x1b'; };
  if (std::ranges::all_of(bytes, isAscii)) return bytes;
  const std::string set = plainIn(item, DCM_SpecificCharacterSet);
  DcmSpecificCharacterSet converter;
  OFString text;
  if (converter.selectCharacterSet(OFString(set.data(), set.size()), "ISO_IR 192").good() &&
      converter.convertString(bytes.data(), bytes.size(), text, "").good())
    return {text.data(), text.size()};
  std::string replaced;
  for (const char c : bytes) {
    if (isAscii(c)) {
      replaced += c;
    } else {
      replaced += "\xEF\xBF\xBD";
    }
  }
  return replaced;
}

std::vector<std::byte> fileOf(const dicom::DataSet& elements, const std::string& sopClass,
                              const std::string& instance) {
  constexpr std::size_t kPreamble = 128;
  const std::string version("\0\1", 2);
  const std::string header =
      headerElement(0x01, "OB", version) + headerElement(0x02, "UI", sopClass) +
      headerElement(0x03, "UI", instance) +
      headerElement(0x10, "UI",
                    elements.encoding.isExplicit ? UID_LittleEndianExplicitTransferSyntax
                                                 : UID_LittleEndianImplicitTransferSyntax) +
      headerElement(0x12, "UI", OFFIS_IMPLEMENTATION_CLASS_UID);
  const std::string start =
      std::string(kPreamble, '\0') + "DICM" +
      headerElement(0, "UL", littleEndian(static_cast<std::uint32_t>(header.size()), 4)) + header;
  const auto bytes = std::as_bytes(std::span(start));
  std::vector<std::byte> file(bytes.begin(), bytes.end());
  file.insert(file.end(), elements.bytes.begin(), elements.bytes.end());
  return file;
}

}  // namespace nascor::dicom_net
