// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "archive/TypedStreamReader.h"

#include <stdexcept>
#include <utility>

#include "foundation/Localizer.h"

namespace nascor::archive {

using foundation::translatable;

namespace {

/// In documents. What a stream has more labels, it makes room for in time.
constexpr std::size_t kBytesPerLabel = 16;

Sentence nilInWords() { return Sentence::verbatim("nil"); }

}  // namespace

TypedStreamReader::TypedStreamReader(std::span<const std::byte> bytes)
    : bytes_(bytes), labels_(bytes.size() / kBytesPerLabel) {
  plainHeads_.fill(kNoHead);
  readHeader();
}

// ---- The header

void TypedStreamReader::readHeader() {
  constexpr std::string_view kStream = translatable("Reading", "a typed stream of version 4");
  constexpr std::string_view kSignature = translatable("Reading", "the signature of a typed stream");
  const std::int64_t version = bytes_.takeNumber(kStream);
  if (version != kStreamerVersion) {
    refuse(0, kStream, Sentence("Reading", "the version is %1").with(version));
  }
  const std::size_t begin = offset();
  const auto signature = bytes_.takeText(kSignature);
  if (signature == kBigEndianSignature) {
    bytes_.setOrder(ByteOrder::big);
  } else if (signature != kLittleEndianSignature) {
    refuseFound(begin, kSignature, Sentence::verbatim(signature ? inQuotes(*signature) : "nil"));
  }
  systemVersion_ = bytes_.takeNumber(translatable("Reading", "the system version"));
}

// ---- Groups

bool TypedStreamReader::groupFollows() {
  walk_.requireBetweenGroups();
  if (!walk_.insideObject()) return bytesLeft() > 0;
  return bytes_.head(translatable("Reading", "a group of values, or the end of an object")) != kEndTag;
}

/// Reads the types of the next group, where `wanted` types belong; returns their number.
std::size_t TypedStreamReader::takeGroupTypes(std::string_view wanted) {
  const auto inWords = [wanted] {
    return wanted.empty() ? Sentence("Reading", "a group of values") : describeTypes(wanted);
  };
  walk_.requireBetweenGroups();
  const std::size_t begin = offset();
  if (bytesLeft() == 0) refuse(begin, inWords(), fileEndsHere());
  if (walk_.insideObject() && bytes_.head(wanted) == kEndTag) {
    //: An object.
    refuse(begin, inWords(), Sentence("Reading", "%1 ends here").with(describeLabel(walk_.object())));
  }
  const auto number = takeShared(translatable("Reading", "the types of a group"));
  if (!number) refuse(begin, inWords(), standsHere(nilInWords()));
  SharedString& types = strings_[*number];
  if (!wanted.empty() && types.text != wanted)
    refuse(begin, inWords(), standsHere(describeTypes(types.text)));
  if (!types.parsed) {
    try {
      types.types = parseTypeString(types.text);
    } catch (const TypeStringError& error) {
      //: %2 is what is wrong with it, such as "ends inside an array".
      const auto sentence = Sentence("Reading", "the type string %1 %2");
      throw FormatError(begin, sentence.with(inQuotes(types.text), error.reason));
    }
    types.parsed = true;
    const std::int64_t head = static_cast<std::int64_t>(*number) + kFirstNumber;
    if (types.text.size() == 1 && head <= std::numeric_limits<std::int8_t>::max()) {
      plainHeads_.at(static_cast<unsigned char>(types.text.front())) = static_cast<std::int16_t>(head);
    }
  }
  return *number;
}

std::string_view TypedStreamReader::beginGroup() {
  const SharedString& types = strings_[takeGroupTypes({})];
  walk_.beginGroup(types.types);
  return types.text;
}

void TypedStreamReader::expectGroup(std::string_view types) {
  walk_.beginGroup(strings_[takeGroupTypes(types)].types);
}

// ---- Strings, labels and classes, in full where they stand for the first time, by number after that

std::optional<std::size_t> TypedStreamReader::takeShared(std::string_view wanted) {
  const std::size_t begin = offset();
  switch (bytes_.head(wanted)) {
    case kNilTag: bytes_.pass(1); return std::nullopt;
    case kNewTag: {
      bytes_.pass(1);
      const auto text = bytes_.takeText(wanted);
      if (!text) refuse(begin, wanted, Sentence("Reading", "its text is nil"));
      strings_.push_back({.text = *text, .types = {}, .parsed = false, .cls = std::nullopt});
      return strings_.size() - 1;
    }
    default: return bytes_.takeNumberOf(ByteReader::Thing::string, strings_.size(), wanted);
  }
}

Label TypedStreamReader::takeLabel(LabelKind kind, std::string_view wanted) {
  const std::size_t begin = offset();
  const Label label = bytes_.takeNumberOf(ByteReader::Thing::label, labels_.size(), wanted);
  if (labels_[label].kind != kind) refuseFound(begin, wanted, describeLabel(label));
  return label;
}

ClassValue TypedStreamReader::takeClass(std::string_view wanted) {
  ClassValue value{.offset = offset(), .label = std::nullopt, .newRecords = 0};
  if (bytesLeft() > 0 && isNumber(bytes_.headAhead(0))) {
    value.label = takeLabel(LabelKind::cls, wanted);
    return value;
  }
  while (bytes_.head(wanted) == kNewTag) {
    const std::size_t begin = offset();
    bytes_.pass(1);
    constexpr std::string_view kName = translatable("Reading", "a class name");
    const auto name = takeShared(kName);
    if (!name) refuseFound(begin, kName, nilInWords());
    const std::int64_t version = bytes_.takeNumber(translatable("Reading", "a class version"));
    if (value.newRecords == kDepthLimit) {
      refuse(begin, wanted,
             Sentence("Reading", "more than %1 class records stand in a chain").with(kDepthLimit));
    }
    const Label label = newLabel(LabelKind::cls, classRecords_.size());
    classRecords_.push_back({.name = *name, .version = version, .superclass = std::nullopt});
    if (!strings_[*name].cls) strings_[*name].cls = label;
    if (value.newRecords == 0) {
      value.label = label;
    } else {
      classRecords_[classRecords_.size() - 2].superclass = label;
    }
    ++value.newRecords;
    wanted = translatable("Reading", "a superclass");
  }
  if (bytes_.tookHead(kNilTag)) return value;
  const Label seenBefore = takeLabel(LabelKind::cls, wanted);
  if (value.newRecords == 0) {
    value.label = seenBefore;
  } else {
    classRecords_.back().superclass = seenBefore;
  }
  return value;
}

// ---- Values

/// The type that is due, which must be one of `codes`.
const TypeNode& TypedStreamReader::dueOf(std::string_view codes, std::string_view wanted) const {
  const TypeNode* type = walk_.due();
  if (type == nullptr) throw std::logic_error("no value is due");
  if (codes.find(type->code) == std::string_view::npos) {
    refuseFound(offset(), wanted, describeTypes(type->text));
  }
  return *type;
}

void TypedStreamReader::refuseDepth() const {
  throw FormatError(
      offset(),
      Sentence("Reading", "objects, arrays and structures nest more than %1 deep").with(kDepthLimit));
}

std::int64_t TypedStreamReader::readInteger() {
  const TypeNode& type = dueOf("cCBsSiIlLqQ", translatable("Reading", "an integer"));
  const std::size_t begin = offset();
  std::int64_t value = 0;
  if (type.isRawByte()) {
    const auto byte = bytes_.takeFixed<std::uint8_t>(translatable("Reading", "a byte"));
    value = type.code == 'c' ? static_cast<std::int8_t>(byte) : static_cast<std::uint8_t>(byte);
  } else {
    value = bytes_.takeNumber(translatable("Reading", "an integer"));
    const IntegerRange range = integerRangeOf(type.code);
    if (value < range.min || value > range.max) {
      refuse(begin, describeTypes(type.text), Sentence("Reading", "%1 does not fit that").with(value));
    }
  }
  walk_.passValue();
  return value;
}

inline double TypedStreamReader::realOfType(char code) {
  const bool isSingle = code == 'f';
  if (!bytes_.tookHead(kRealTag)) {
    // A single-precision real is one in whichever form it is written.
    const std::int64_t whole = bytes_.takeNumber(translatable("Reading", "a real"));
    return isSingle ? static_cast<double>(static_cast<float>(whole)) : static_cast<double>(whole);
  }
  if (isSingle)
    return std::bit_cast<float>(bytes_.takeFixed<std::uint32_t>(translatable("Reading", "a real")));
  return std::bit_cast<double>(bytes_.takeFixed<std::uint64_t>(translatable("Reading", "a real")));
}

double TypedStreamReader::readReal() {
  const double value = realOfType(dueOf("fd", translatable("Reading", "a real")).code);
  walk_.passValue();
  return value;
}

std::optional<std::string_view> TypedStreamReader::readString() {
  std::optional<std::string_view> value;
  if (dueOf("+:%", translatable("Reading", "a string")).code == '+') {
    value = bytes_.takeText(translatable("Reading", "a string"));
  } else if (const auto number = takeShared(translatable("Reading", "a string"))) {
    value = strings_[*number].text;
  }
  walk_.passValue();
  return value;
}

CStringValue TypedStreamReader::readCString() {
  constexpr std::string_view kWanted = translatable("Reading", "a C string");
  dueOf("*", kWanted);
  CStringValue value{.offset = offset(), .label = std::nullopt, .fresh = false, .text = {}};
  switch (bytes_.head(kWanted)) {
    case kNilTag: bytes_.pass(1); break;
    case kNewTag: {
      bytes_.pass(1);
      const auto number = takeShared(kWanted);
      if (!number) refuse(value.offset, kWanted, Sentence("Reading", "its text is nil"));
      value.label = newLabel(LabelKind::cString, *number);
      value.fresh = true;
      break;
    }
    default: value.label = takeLabel(LabelKind::cString, kWanted);
  }
  if (value.label) value.text = strings_[labels_[*value.label].about].text;
  walk_.passValue();
  return value;
}

ClassValue TypedStreamReader::readClass() {
  dueOf("#", translatable("Reading", "a class"));
  const ClassValue value = takeClass(translatable("Reading", "a class"));
  walk_.passValue();
  return value;
}

std::span<const std::byte> TypedStreamReader::readBytes() {
  constexpr std::string_view kWanted = translatable("Reading", "an array of bytes");
  const TypeNode& type = dueOf("[", kWanted);
  if (!type.isByteArray()) refuseFound(offset(), kWanted, describeTypes(type.text));
  const auto value = bytes_.takeBytes(type.count, kWanted);
  walk_.passValue();
  return value;
}

std::uint64_t TypedStreamReader::beginArray() {
  const TypeNode& type = dueOf("[", translatable("Reading", "an array"));
  checkDepth();
  if (type.minBytes > bytesLeft()) {
    refuse(offset(), describeTypes(type.text),
           //: %1 is a count, such as "8 bytes".
           Sentence("Reading", "it takes at least %1, and %2 are left")
               .with(countedBytes(type.minBytes), bytesLeft()));
  }
  walk_.enterArray();
  return type.count;
}

std::string_view TypedStreamReader::beginStructure() {
  const TypeNode& type = dueOf("{", translatable("Reading", "a structure"));
  checkDepth();
  walk_.enterStructure();
  return type.structureName();
}

ObjectValue TypedStreamReader::beginObject() {
  dueOf("@", translatable("Reading", "an object"));
  return objectThatIsDue(false);
}

/// `isOfItsGroup`: a group that the walk has not opened holds the object alone.
ObjectValue TypedStreamReader::objectThatIsDue(bool isOfItsGroup) {
  constexpr std::string_view kWanted = translatable("Reading", "an object");
  ObjectValue value{
      .offset = offset(), .kind = ObjectValue::Kind::nil, .label = 0, .cls = {}, .complete = true};
  switch (bytes_.head(kWanted)) {
    case kNilTag:
      bytes_.pass(1);
      if (!isOfItsGroup) walk_.passValue();
      return value;
    case kNewTag: {
      checkDepth();
      bytes_.pass(1);
      value.kind = ObjectValue::Kind::fresh;
      value.complete = false;
      // The object is numbered before its class, and the class stands before anything can refer to the
      // object.
      value.label = newLabel(LabelKind::object, kNoLabel);
      constexpr std::string_view kClass = translatable("Reading", "the class of an object");
      value.cls = takeClass(kClass);
      if (!value.cls.label) refuseFound(value.cls.offset, kClass, nilInWords());
      labels_[value.label].about = *value.cls.label;
      isOfItsGroup ? walk_.enterObjectOfItsGroup(value.label) : walk_.enterObject(value.label);
      return value;
    }
    default:
      value.kind = ObjectValue::Kind::reference;
      value.label = takeLabel(LabelKind::object, kWanted);
      value.complete = labels_[value.label].complete;
      value.cls = {.offset = value.offset, .label = classOf(value.label), .newRecords = 0};
      if (!isOfItsGroup) walk_.passValue();
      return value;
  }
}

void TypedStreamReader::refuseEnd(Label label) const {
  //: %1 is an object.
  const Sentence wanted = Sentence("Reading", "the end of %1").with(describeLabel(label));
  if (bytesLeft() == 0) refuse(offset(), wanted, fileEndsHere());
  refuse(offset(), wanted, Sentence("Reading", "more values follow"));
}

// ---- Groups of one value. Nearly all are of a type that was met before and hold a value in one of its short forms; these
// are read without the walk, which then stands as it stood. All else, and all that is wrong, goes the long way.

std::int32_t TypedStreamReader::takeInt() {
  if (plainGroupFollows('i', 1) && isNumber(bytes_.headAhead(1))) {
    const int value = bytes_.headAhead(1);
    bytes_.pass(2);
    return value;
  }
  expectGroup("i");
  return static_cast<std::int32_t>(readInteger());
}

double TypedStreamReader::takeOtherFloat() {
  if (plainGroupFollows('f', 0)) {
    bytes_.pass(1);
    return realOfType('f');
  }
  expectGroup("f");
  return readReal();
}

double TypedStreamReader::takeDouble() {
  if (plainGroupFollows('d', 0)) {
    bytes_.pass(1);
    return realOfType('d');
  }
  expectGroup("d");
  return readReal();
}

std::optional<std::string_view> TypedStreamReader::takeString() {
  if (plainGroupFollows('+', 1) && bytes_.headAhead(1) >= 0) {
    const auto length = static_cast<std::size_t>(bytes_.headAhead(1));
    if (bytesLeft() - 2 >= length) {
      bytes_.pass(2);
      return bytes_.takeText(length);
    }
  }
  expectGroup("+");
  return readString();
}

ObjectValue TypedStreamReader::takeOtherObject() {
  if (plainGroupFollows('@', 0)) {
    bytes_.pass(1);
    return objectThatIsDue(true);
  }
  expectGroup("@");
  return objectThatIsDue(false);
}

// ---- What is known

std::optional<std::int64_t> TypedStreamReader::versionForClassName(std::string_view name) const {
  for (const SharedString& string : strings_) {
    if (string.cls && string.text == name) return classVersion(*string.cls);
  }
  return std::nullopt;
}

std::string TypedStreamReader::describe(const ObjectValue& object) const { return english(inWords(object)); }

Sentence TypedStreamReader::inWords(const ObjectValue& object) const {
  return object.isNil() ? nilInWords() : describeLabel(object.label);
}

Sentence TypedStreamReader::describeLabel(Label label) const {
  const LabelEntry& entry = labels_[label];
  switch (entry.kind) {
    case LabelKind::cls: return Sentence("Reading", "class %1 (%2)").with(label, printable(className(label)));
    case LabelKind::cString: return Sentence("Reading", "C string %1").with(label);
    default:
      if (entry.about == kNoLabel) return Sentence("Reading", "object %1 (of no class yet)").with(label);
      return Sentence("Reading", "object %1 (%2)").with(label, printable(className(entry.about)));
  }
}

}  // namespace nascor::archive
