// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// As the library does by itself: with a version of each class, which a document has too.

#include <boost/archive/binary_iarchive.hpp>
#include <boost/archive/binary_oarchive.hpp>
#include <boost/iostreams/device/array.hpp>
#include <boost/iostreams/device/back_inserter.hpp>
#include <boost/iostreams/stream.hpp>
#include <boost/serialization/string.hpp>
#include <boost/serialization/vector.hpp>

#include "PlainPatient.h"

namespace nascor::bench {
namespace {

template <class Archive, class Value>
void pass(Archive& archive, std::optional<Value>& value) {
  bool isThere = value.has_value();
  archive& isThere;
  if (!isThere) return value.reset();
  if (!value) value.emplace();
  archive&* value;
}

/// A number in the width in which the other formats keep it.
template <class Stored, class Archive, class Value>
void passAs(Archive& archive, Value& value) {
  auto stored = static_cast<Stored>(value);
  archive& stored;
  if constexpr (Archive::is_loading::value) value = stored;
}

}  // namespace

template <class Archive>
void serialize(Archive& archive, PlainMeasurements& lengths, unsigned) {
  passAs<float>(archive, lengths.bpd);
  passAs<float>(archive, lengths.hc);
  passAs<float>(archive, lengths.ac);
  passAs<float>(archive, lengths.fl);
}

template <class Archive>
void serialize(Archive& archive, PlainExamination& examination, unsigned) {
  pass(archive, examination.note);
  pass(archive, examination.examDate);
  archive& examination.measurements;
}

template <class Archive>
void serialize(Archive& archive, PlainPatient& patient, unsigned) {
  pass(archive, patient.maternalID);
  pass(archive, patient.edd);
  archive& patient.examinations;
  passAs<std::int32_t>(archive, patient.standard);
  passAs<std::int32_t>(archive, patient.fetalWeightStandard);
  passAs<std::int32_t>(archive, patient.numberOfFetuses);
  passAs<float>(archive, patient.extrapolatedGestation);
  passAs<std::int32_t>(archive, patient.crlStandard);
  passAs<std::int32_t>(archive, patient.gravida);
}

std::string encodedByBoost(const PlainPatient& patient) {
  std::string bytes;
  {
    boost::iostreams::stream<boost::iostreams::back_insert_device<std::string>> stream(bytes);
    boost::archive::binary_oarchive archive(stream);
    archive << patient;
  }
  return bytes;
}

PlainPatient decodedByBoost(const std::string& bytes) {
  boost::iostreams::stream<boost::iostreams::array_source> stream(bytes.data(), bytes.size());
  boost::archive::binary_iarchive archive(stream);
  PlainPatient patient;
  archive >> patient;
  return patient;
}

}  // namespace nascor::bench
