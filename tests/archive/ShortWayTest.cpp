// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Groups of one value are read without the walk where they are of a type that was met before. Whatever the bytes are, that way
// gives the values, the places and the refusals of the long one.

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "Bytes.h"
#include "archive/TypedStreamReader.h"

namespace nascor::archive {
namespace {

/// What a walk over a document met, in words; the last of them is the refusal where there was one.
class Walk {
 public:
  Walk(const Bytes& stream, bool isShort) : isShort_(isShort) {
    try {
      TypedStreamReader reader(stream);
      patient(reader);
      note(reader, "rest " + std::to_string(reader.bytesLeft()));
    } catch (const FormatError& error) {
      said_.emplace_back(error.what());
    }
  }
  const std::vector<std::string>& said() const { return said_; }

 private:
  void patient(TypedStreamReader& reader) {
    if (!object(reader)) return;
    text(reader);
    text(reader);
    date(reader);
    if (object(reader)) {
      for (std::int32_t left = integer(reader); left > 0; --left) examination(reader);
      reader.endObject();
    }
    for (int i = 0; i < 3; ++i) integer(reader);
    single(reader);
    for (int i = 0; i < 2; ++i) integer(reader);
    reader.endObject();
  }
  void examination(TypedStreamReader& reader) {
    if (!object(reader)) return;
    text(reader);
    date(reader);
    if (object(reader)) {
      for (std::int32_t left = integer(reader); left > 0; --left) {
        if (!object(reader)) continue;
        lengths(reader);
        reader.endObject();
      }
      reader.endObject();
    }
    reader.endObject();
  }
  void text(TypedStreamReader& reader) {
    if (!object(reader)) return;
    if (!isShort_) reader.expectGroup("+");
    const auto value = isShort_ ? reader.takeString() : reader.readString();
    note(reader, value ? std::string(*value) : "nil");
    reader.endObject();
  }
  void date(TypedStreamReader& reader) {
    if (!object(reader)) return;
    if (!isShort_) reader.expectGroup("d");
    note(reader, std::to_string(isShort_ ? reader.takeDouble() : reader.readReal()));
    reader.endObject();
  }
  /// Whether its groups follow.
  bool object(TypedStreamReader& reader) {
    if (!isShort_) reader.expectGroup("@");
    const ObjectValue value = isShort_ ? reader.takeObject() : reader.beginObject();
    note(reader, reader.describe(value) + (value.isFresh() ? " new " : " known ") +
                     std::to_string(value.offset) + " " + std::to_string(value.cls.offset) + " " +
                     std::to_string(value.cls.newRecords) + (value.complete ? " complete" : ""));
    return value.isFresh();
  }
  std::int32_t integer(TypedStreamReader& reader) {
    if (!isShort_) reader.expectGroup("i");
    const auto value = isShort_ ? reader.takeInt() : static_cast<std::int32_t>(reader.readInteger());
    note(reader, std::to_string(value));
    return value;
  }
  void single(TypedStreamReader& reader) {
    if (!isShort_) reader.expectGroup("f");
    note(reader, std::to_string(isShort_ ? reader.takeFloat() : reader.readReal()));
  }
  void lengths(TypedStreamReader& reader) {
    std::array<double, 4> values{};
    if (isShort_) {
      values = reader.takeFloats<4>();
    } else {
      for (double& value : values) {
        reader.expectGroup("f");
        value = reader.readReal();
      }
    }
    for (const double value : values) note(reader, std::to_string(value));
  }
  void note(const TypedStreamReader& reader, const std::string& what) {
    said_.push_back(std::to_string(reader.offset()) + ": " + what);
  }

  bool isShort_;
  std::vector<std::string> said_;
};

/// Three examinations of two fetuses, with reals of every form.
Bytes document(bool isBig) {
  const std::string fetus = "92 84 9f 9e 83 66 66 ca 41 9e 00 9e 81 2c 01 9e 83 00 00 80 3f 86";
  const std::string later =
      "92 84 9a  92 84 94 97 03 'two' 86  92 84 9c 9d 83 00 00 c8 0f 8b 5f aa 41 86  92 84 99 99 02" + fetus +
      fetus + "86 86";
  const std::string head =
      "84 01 '@' 84 84 84 0d 'PatientRecord' 07 84 84 08 'NSObject' 00 85"
      "  92 84 84 84 08 'NSString' 01 94 84 01 '+' 00 86"
      "  92 84 96 96 0a 'Deprecated' 86  92 85"
      "  92 84 84 84 0e 'NSMutableArray' 00 84 84 07 'NSArray' 00 94 84 01 'i' 03"
      "     92 84 84 84 08 'NCRecord' 01 94  92 95"
      "     92 84 84 84 06 'NSDate' 00 94 84 01 'd' 83 00 00 c8 0f 8b 5f aa 41 86"
      "     92 84 97 99 01 92 84 84 84 12 'MeasurementsRecord' 00 94 84 01 'f' 00 9e 00 9e 00 9e 00 86 86 86";
  const std::string tail = "86  99 00 99 00 99 01  9e 28  99 00 99 00 86";
  const std::string body = head + later + later + tail;
  return isBig ? big(body) : little(body);
}

void expectTheSame(const Bytes& stream, const std::string& what) {
  // Of exactly that size, so that a read past the end is seen.
  const Bytes exact(stream.begin(), stream.end());
  EXPECT_EQ(Walk(exact, true).said(), Walk(exact, false).said()) << what;
}

TEST(TheShortWay, meetsWhatTheLongOneMeets) {
  for (const Bytes& stream : {freshPatient(), document(false), document(true)}) {
    expectTheSame(stream, "whole");
    for (std::size_t length = 0; length < stream.size(); ++length) {
      expectTheSame({stream.begin(), stream.begin() + static_cast<std::ptrdiff_t>(length)},
                    "cut to " + std::to_string(length));
    }
  }
  EXPECT_GT(Walk(freshPatient(), true).said().size(), 20U);
}

TEST(TheShortWay, meetsWhatTheLongOneMeetsInDamagedStreams) {
  // Every head that is no number, and numbers that are labels and types of the document, known and unknown.
  constexpr std::array kValues{0x00, 0x01, 0x7f, 0x80, 0x81, 0x82, 0x83, 0x84,
                               0x85, 0x86, 0x87, 0x92, 0x94, 0x9a, 0x9e, 0xa9};
  for (const Bytes& stream : {document(false), document(true)}) {
    for (std::size_t at = 0; at < stream.size(); ++at) {
      for (const int value : kValues) {
        Bytes changed = stream;
        changed[at] = static_cast<std::byte>(value);
        expectTheSame(changed, std::to_string(value) + " in place of byte " + std::to_string(at));
      }
      Bytes shorter = stream;
      shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(at));
      expectTheSame(shorter, "without byte " + std::to_string(at));
    }
  }
}

}  // namespace
}  // namespace nascor::archive
