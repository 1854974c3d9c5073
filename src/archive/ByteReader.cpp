// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "archive/ByteReader.h"

#include <string>

#include "archive/TypeString.h"

namespace nascor::archive {
namespace {

/// A head that begins no number, in words.
Sentence describeTag(int head) {
  switch (head) {
    case kRealTag: return Sentence("Reading", "a real");
    case kNewTag: return Sentence("Reading", "the mark of something new");
    case kNilTag: return Sentence::verbatim("nil");
    case kEndTag: return Sentence("Reading", "the end of an object");
    default:
      return Sentence("Reading", "the meaningless byte %1")
          .with(inQuotes(std::string(1, static_cast<char>(head))));
  }
}

}  // namespace

void ByteReader::refuseShort(std::uint64_t length, std::string_view wanted) const {
  if (left() == 0) refuse(position(), wanted, fileEndsHere());
  //: %2 is a count, such as "8 bytes".
  refuse(position(), wanted,
         Sentence("Reading", "only %1 of its %2 are left").with(left(), countedBytes(length)));
}

std::span<const std::byte> ByteReader::takeBytes(std::uint64_t length, std::string_view wanted) {
  if (length > left()) refuseShort(length, wanted);
  pass(static_cast<std::size_t>(length));
  return {at_ - length, at_};
}

std::int64_t ByteReader::takeNumber(std::string_view wanted) {
  const int tag = head(wanted);
  const std::size_t begin = position();
  pass(1);
  switch (tag) {
    case kInt16Tag: return static_cast<std::int16_t>(takeFixed<std::uint16_t>(wanted));
    case kInt32Tag: return static_cast<std::int32_t>(takeFixed<std::uint32_t>(wanted));
    case kInt64Tag: return static_cast<std::int64_t>(takeFixed<std::uint64_t>(wanted));
    default: break;
  }
  if (!isNumber(tag)) refuseFound(begin, wanted, describeTag(tag));
  return tag;
}

std::size_t ByteReader::takeNumberOf(Thing thing, std::size_t known, std::string_view wanted) {
  const std::size_t begin = position();
  const std::int64_t stored = takeNumber(wanted);
  // Unsigned, so that it wraps where a signed number would overflow.
  const std::uint64_t number = static_cast<std::uint64_t>(stored) - static_cast<std::uint64_t>(kFirstNumber);
  if (number >= known) {
    const std::string shown =
        stored < 0 ? std::to_string(static_cast<std::int64_t>(number)) : std::to_string(number);
    const Sentence sentence = thing == Thing::label
                                  ? Sentence("Reading", "label %1 is outside the %2 given so far")
                                  : Sentence("Reading", "string %1 is outside the %2 given so far");
    refuse(begin, wanted, sentence.with(shown, known));
  }
  return static_cast<std::size_t>(number);
}

std::optional<std::string_view> ByteReader::takeText(std::string_view wanted) {
  if (head(wanted) == kNilTag) {
    pass(1);
    return std::nullopt;
  }
  const std::size_t begin = position();
  const std::int64_t length = takeNumber(wanted);
  if (length < 0) refuse(begin, wanted, Sentence("Reading", "its length is %1").with(length));
  const auto text = takeBytes(static_cast<std::uint64_t>(length), wanted);
  return std::string_view(reinterpret_cast<const char*>(text.data()), text.size());
}

}  // namespace nascor::archive
