// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "Bytes.h"
#include "archive/TreeDump.h"
#include "archive/TypedStreamReader.h"
#include "archive/TypedStreamWriter.h"

namespace nascor::archive {
namespace {

RC_GTEST_PROP(WhatIsWritten, comesBackAsTheSameIntegers, (const std::vector<std::int64_t>& values)) {
  TypedStreamWriter writer;
  for (const std::int64_t value : values) {
    writer.beginGroup("q");
    // Shifting reaches all magnitudes; the generator alone prefers small numbers or enormous ones.
    writer.writeInteger(value >> (static_cast<std::uint64_t>(value) % 64));
  }
  const Bytes stream = std::move(writer).finish();
  TypedStreamReader reader(stream);
  for (const std::int64_t value : values) {
    reader.expectGroup("q");
    RC_ASSERT(reader.readInteger() == value >> (static_cast<std::uint64_t>(value) % 64));
  }
  RC_ASSERT(reader.bytesLeft() == 0U);
}

/// The bits of what must come back: a negative zero is written as 0.
std::uint64_t bitsOf(double value) { return std::bit_cast<std::uint64_t>(value == 0.0 ? 0.0 : value); }

RC_GTEST_PROP(WhatIsWritten, comesBackAsTheSameDoublesBitForBit,
              (const std::vector<std::uint64_t>& patterns)) {
  TypedStreamWriter writer;
  for (const std::uint64_t pattern : patterns) writer.putDouble(std::bit_cast<double>(pattern));
  const Bytes stream = std::move(writer).finish();
  TypedStreamReader reader(stream);
  for (const std::uint64_t pattern : patterns) {
    RC_ASSERT(bitsOf(reader.takeDouble()) == bitsOf(std::bit_cast<double>(pattern)));
  }
}

RC_GTEST_PROP(WhatIsWritten, comesBackAsTheSameSmallReals, (const std::vector<std::int32_t>& tenths)) {
  TypedStreamWriter writer;
  for (const std::int32_t tenth : tenths) {
    writer.putDouble(tenth / 10.0);
    writer.putFloat(static_cast<float>(tenth) / 10.0F);
  }
  const Bytes stream = std::move(writer).finish();
  TypedStreamReader reader(stream);
  for (const std::int32_t tenth : tenths) {
    RC_ASSERT(bitsOf(reader.takeDouble()) == bitsOf(tenth / 10.0));
    RC_ASSERT(bitsOf(reader.takeFloat()) == bitsOf(static_cast<double>(static_cast<float>(tenth) / 10.0F)));
  }
}

RC_GTEST_PROP(WhatIsWritten, comesBackAsTheSameFloatsBitForBit,
              (const std::vector<std::uint32_t>& patterns)) {
  TypedStreamWriter writer;
  for (const std::uint32_t pattern : patterns) writer.putFloat(std::bit_cast<float>(pattern));
  const Bytes stream = std::move(writer).finish();
  TypedStreamReader reader(stream);
  for (const std::uint32_t pattern : patterns) {
    const auto expected = static_cast<double>(std::bit_cast<float>(pattern));
    const double actual = reader.takeFloat();
    // Widening may set the quiet bit of a NaN.
    RC_ASSERT((std::isnan(expected) ? std::isnan(actual) : bitsOf(actual) == bitsOf(expected)));
  }
}

RC_GTEST_PROP(WhatIsWritten, comesBackAsTheSameStrings, (const std::vector<std::string>& texts)) {
  TypedStreamWriter writer;
  for (const std::string& text : texts) {
    writer.beginGroup("+:*");
    writer.writeString(text);
    writer.writeString(text);
    writer.writeCString(text);
  }
  const Bytes stream = std::move(writer).finish();
  TypedStreamReader reader(stream);
  for (const std::string& text : texts) {
    reader.expectGroup("+:*");
    RC_ASSERT(reader.readString() == text);
    RC_ASSERT(reader.readString() == text);
    RC_ASSERT(reader.readCString().text == text);
  }
}

/// A shared text is put down in full once, however often it is used: so much is certain of the length of a
/// stream.
RC_GTEST_PROP(WhatIsWritten, holdsEverySharedTextOnce, (const std::vector<bool>& choices)) {
  const std::string texts[] = {"aaaaaaaaaaaaaaaa", "bbbbbbbbbbbbbbbb"};
  TypedStreamWriter writer;
  for (const bool choice : choices) {
    writer.beginGroup("%");
    writer.writeString(texts[choice ? 1 : 0]);
  }
  const Bytes stream = std::move(writer).finish();
  std::size_t expected = bytes(kLittle).size();
  std::map<bool, bool> seen;
  for (const bool choice : choices) expected += std::exchange(seen[choice], true) ? 2 : 1 + 18;
  if (!choices.empty()) expected += 2;  // the type string in full the first time
  RC_ASSERT(stream.size() == expected);
}

/// Objects in each other, as the brackets of a random path, with references to earlier ones.
RC_GTEST_PROP(WhatIsWritten, comesBackAsTheSameObjects, (const std::vector<std::uint8_t>& path)) {
  const ClassDescription classes[] = {{"A", 1}, {"B", 2, &classes[0]}, {"C", 3, &classes[1]}};
  enum class Step { open, close, refer, nil };
  struct Event {
    Step step;
    Label label = 0;
    std::string_view cls = {};
  };
  std::vector<Event> events;
  std::vector<Label> objects;
  TypedStreamWriter writer;
  std::size_t depth = 0;
  for (const std::uint8_t step : path) {
    if (step % 4 == 0 && depth < kDepthLimit) {
      const ClassDescription& cls = classes[step / 4 % 3];
      objects.push_back(writer.putObject(cls));
      events.push_back({Step::open, objects.back(), cls.name});
      ++depth;
    } else if (step % 4 == 1 && depth > 0) {
      writer.endObject();
      events.push_back({Step::close});
      --depth;
    } else if (step % 4 == 2 && !objects.empty()) {
      const Label label = objects[step / 4 % objects.size()];
      writer.putReference(label);
      events.push_back({Step::refer, label});
    } else {
      writer.putNil();
      events.push_back({Step::nil});
    }
  }
  for (; depth > 0; --depth) {
    writer.endObject();
    events.push_back({Step::close});
  }
  const Bytes stream = std::move(writer).finish();

  TypedStreamReader reader(stream);
  for (const Event& event : events) {
    if (event.step == Step::close) {
      RC_ASSERT(!reader.groupFollows());
      reader.endObject();
      continue;
    }
    const ObjectValue value = reader.takeObject();
    RC_ASSERT(value.isNil() == (event.step == Step::nil));
    RC_ASSERT(value.isReference() == (event.step == Step::refer));
    if (!value.isNil()) RC_ASSERT(value.label == event.label);
    if (value.isFresh()) RC_ASSERT(reader.classNameOf(value) == event.cls);
  }
  RC_ASSERT(reader.bytesLeft() == 0U);
}

/// Whatever is done to a good stream, it is read or refused; nothing else escapes.
RC_GTEST_PROP(ADamagedStream, isReadOrRefused,
              (const std::vector<std::pair<std::uint8_t, std::uint8_t>>& changes)) {
  Bytes stream = freshPatient();
  for (const auto& [place, value] : changes) stream[place % stream.size()] = static_cast<std::byte>(value);
  try {
    RC_ASSERT(!dumpAsJson(stream).empty());
  } catch (const FormatError& error) {
    RC_ASSERT(error.offset() <= stream.size());
  }
}

}  // namespace
}  // namespace nascor::archive
