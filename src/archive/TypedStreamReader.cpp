#include "archive/TypedStreamReader.h"

#include <bit>
#include <stdexcept>
#include <utility>

namespace nascor::archive {
namespace {

std::string_view asText(std::span<const std::byte> bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

std::string count(std::uint64_t number, std::string_view thing) {
  return std::to_string(number) + " " + std::string(thing) + (number == 1 ? "" : "s");
}

/// A head byte that begins no number, in words.
std::string describeTag(int head) {
  switch (head) {
    case kRealTag: return "a real";
    case kNewTag: return "the mark of something new";
    case kNilTag: return "nil";
    case kEndTag: return "the end of an object";
    default: {
      const std::byte byte{static_cast<unsigned char>(head)};
      return "the meaningless byte " + inQuotes(asText({&byte, 1}));
    }
  }
}

}  // namespace

TypedStreamReader::TypedStreamReader(std::span<const std::byte> bytes) : bytes_(bytes) { readHeader(); }

// ---- Bytes and numbers

void TypedStreamReader::refuse(std::size_t offset, std::string_view wanted, const std::string& instead) {
  throw FormatError(offset, "expected " + std::string(wanted) + ", but " + instead);
}

std::span<const std::byte> TypedStreamReader::take(std::uint64_t length, std::string_view wanted) {
  const std::size_t left = bytesLeft();
  if (length > left) {
    refuse(position_, wanted,
           left == 0 ? "the file ends here"
                     : "only " + std::to_string(left) + " of its " + count(length, "byte") + " are left");
  }
  const auto taken = bytes_.subspan(position_, static_cast<std::size_t>(length));
  position_ += taken.size();
  return taken;
}

int TypedStreamReader::peekHead(std::string_view wanted) const {
  if (bytesLeft() == 0) refuse(position_, wanted, "the file ends here");
  return std::to_integer<std::int8_t>(bytes_[position_]);
}

/// `width` bytes in the stream's order, as the low bits of a number.
std::uint64_t TypedStreamReader::takeFixed(std::size_t width, std::string_view wanted) {
  const auto raw = take(width, wanted);
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < width; ++i) {
    const auto byte = raw[byteOrder_ == ByteOrder::big ? i : width - 1 - i];
    bits = bits << 8U | std::to_integer<std::uint64_t>(byte);
  }
  return bits;
}

std::int64_t TypedStreamReader::takeNumber(std::string_view wanted) {
  const int head = peekHead(wanted);
  const std::size_t begin = position_++;
  switch (head) {
    case kInt16Tag: return static_cast<std::int16_t>(takeFixed(2, wanted));
    case kInt32Tag: return static_cast<std::int32_t>(takeFixed(4, wanted));
    case kInt64Tag: return static_cast<std::int64_t>(takeFixed(8, wanted));
    default: break;
  }
  if (head < kFirstNumber) refuse(begin, wanted, describeTag(head) + " stands here");
  return head;
}

std::optional<std::string_view> TypedStreamReader::takeUnshared(std::string_view wanted) {
  if (peekHead(wanted) == kNilTag) {
    ++position_;
    return std::nullopt;
  }
  const std::size_t begin = position_;
  const std::int64_t length = takeNumber(wanted);
  if (length < 0) refuse(begin, wanted, "its length is " + std::to_string(length));
  return asText(take(static_cast<std::uint64_t>(length), wanted));
}

std::size_t TypedStreamReader::takeNumberBelow(std::size_t limit, std::string_view thing,
                                               std::string_view wanted) {
  const std::size_t begin = position_;
  const std::int64_t stored = takeNumber(wanted);
  // Unsigned, so that it wraps where a signed number would overflow.
  const std::uint64_t number = static_cast<std::uint64_t>(stored) - static_cast<std::uint64_t>(kFirstNumber);
  if (number >= limit) {
    refuse(begin, wanted,
           std::string(thing) + " " +
               (stored < 0 ? std::to_string(static_cast<std::int64_t>(number)) : std::to_string(number)) +
               " is outside the " + std::to_string(limit) + " given so far");
  }
  return static_cast<std::size_t>(number);
}

std::optional<std::size_t> TypedStreamReader::takeShared(std::string_view wanted) {
  const std::size_t begin = position_;
  switch (peekHead(wanted)) {
    case kNilTag: ++position_; return std::nullopt;
    case kNewTag: {
      ++position_;
      const auto text = takeUnshared(wanted);
      if (!text) refuse(begin, wanted, "its text is nil");
      strings_.push_back({.text = *text, .types = {}, .parsed = false, .namesAClass = false});
      return strings_.size() - 1;
    }
    default: return takeNumberBelow(strings_.size(), "string", wanted);
  }
}

Label TypedStreamReader::takeLabel(LabelKind kind, std::string_view wanted) {
  const std::size_t begin = position_;
  const Label label = takeNumberBelow(labels_.size(), "label", wanted);
  if (labels_[label].kind != kind) refuse(begin, wanted, describeLabel(label) + " stands here");
  return label;
}

ClassValue TypedStreamReader::takeClass(std::string_view wanted) {
  ClassValue value{.offset = position_, .label = std::nullopt, .newRecords = 0};
  if (bytesLeft() > 0 && headAt(position_) >= kFirstNumber) {
    value.label = takeLabel(LabelKind::cls, wanted);
    return value;
  }
  while (peekHead(wanted) == kNewTag) {
    const std::size_t begin = position_++;
    const auto name = takeShared("a class name");
    if (!name) refuse(begin, "a class name", "nil stands here");
    const std::int64_t version = takeNumber("a class version");
    if (value.newRecords == kDepthLimit) {
      refuse(begin, wanted, "more than " + count(kDepthLimit, "class record") + " stand in a chain");
    }
    const Label label = labels_.size();
    labels_.push_back(
        {.kind = LabelKind::cls, .complete = true, .cls = std::nullopt, .string = *name, .version = version});
    // Only once for each text: a short file can name one long text very often, and looking it up takes its
    // length.
    if (!std::exchange(strings_[*name].namesAClass, true)) classes_.try_emplace(strings_[*name].text, label);
    if (value.newRecords == 0) {
      value.label = label;
    } else {
      labels_[label - 1].cls = label;
    }
    ++value.newRecords;
    wanted = "a superclass";
  }
  if (peekHead(wanted) == kNilTag) {
    ++position_;
    return value;
  }
  const Label seenBefore = takeLabel(LabelKind::cls, wanted);
  if (value.newRecords == 0) {
    value.label = seenBefore;
  } else {
    labels_.back().cls = seenBefore;
  }
  return value;
}

void TypedStreamReader::readHeader() {
  const std::int64_t version = takeNumber("a typed stream of version 4");
  if (version != kStreamerVersion) {
    refuse(0, "a typed stream of version 4", "the version is " + std::to_string(version));
  }
  const std::size_t begin = position_;
  const auto signature = takeUnshared("the signature of a typed stream");
  if (signature == kBigEndianSignature) {
    byteOrder_ = ByteOrder::big;
  } else if (signature != kLittleEndianSignature) {
    refuse(begin, "the signature of a typed stream",
           (signature ? inQuotes(*signature) : std::string("nil")) + " stands here");
  }
  systemVersion_ = takeNumber("the system version");
}

// ---- Groups

bool TypedStreamReader::groupFollows() {
  walk_.requireBetweenGroups();
  if (!walk_.insideObject()) return bytesLeft() > 0;
  return peekHead("a group of values, or the end of an object") != kEndTag;
}

/// Reads the types of the next group, where `wanted` types belong; returns their number.
std::size_t TypedStreamReader::takeGroupTypes(std::string_view wanted) {
  const auto inWords = [wanted] { return wanted.empty() ? "a group of values" : describeTypes(wanted); };
  walk_.requireBetweenGroups();
  const std::size_t begin = position_;
  if (bytesLeft() == 0) refuse(begin, inWords(), "the file ends here");
  if (walk_.insideObject() && peekHead(wanted) == kEndTag) {
    refuse(begin, inWords(), describeLabel(walk_.object()) + " ends here");
  }
  const auto number = takeShared("the types of a group");
  if (!number) refuse(begin, inWords(), "nil stands here");
  SharedString& types = strings_[*number];
  if (!wanted.empty() && types.text != wanted)
    refuse(begin, inWords(), describeTypes(types.text) + " stands here");
  if (!types.parsed) {
    try {
      types.types = parseTypeString(types.text);
    } catch (const TypeStringError& error) {
      throw FormatError(begin, "the type string " + inQuotes(types.text) + " " + error.reason);
    }
    types.parsed = true;
    if (types.text.size() == 1 && *number < plainTypes_.size()) plainTypes_[*number] = types.text.front();
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

// ---- Values

/// The type that is due, which must be one of `codes`.
const TypeNode& TypedStreamReader::dueOf(std::string_view codes, std::string_view wanted) const {
  const TypeNode* type = walk_.due();
  if (type == nullptr) throw std::logic_error("no value is due");
  if (codes.find(type->code) == std::string_view::npos) {
    refuse(position_, wanted, describeTypes(type->text) + " stands here");
  }
  return *type;
}

void TypedStreamReader::checkDepth() const {
  if (walk_.atDepthLimit()) {
    throw FormatError(
        position_, "objects, arrays and structures nest more than " + std::to_string(kDepthLimit) + " deep");
  }
}

std::int64_t TypedStreamReader::readInteger() {
  const TypeNode& type = dueOf("cCBsSiIlLqQ", "an integer");
  const std::size_t begin = position_;
  std::int64_t value = 0;
  if (type.isRawByte()) {
    const auto byte = takeFixed(1, "a byte");
    value = type.code == 'c' ? static_cast<std::int8_t>(byte) : static_cast<std::uint8_t>(byte);
  } else {
    value = takeNumber("an integer");
    const IntegerRange range = integerRangeOf(type.code);
    if (value < range.min || value > range.max) {
      refuse(begin, describeTypes(type.text), std::to_string(value) + " does not fit that");
    }
  }
  walk_.passValue();
  return value;
}

double TypedStreamReader::readReal() {
  const TypeNode& type = dueOf("fd", "a real");
  double value = 0;
  if (peekHead("a real") != kRealTag) {
    // A single-precision real is one in whichever form it is written.
    const std::int64_t whole = takeNumber("a real");
    value = type.code == 'f' ? static_cast<double>(static_cast<float>(whole)) : static_cast<double>(whole);
  } else if (++position_; type.code == 'f') {
    value = std::bit_cast<float>(static_cast<std::uint32_t>(takeFixed(4, "a real")));
  } else {
    value = std::bit_cast<double>(takeFixed(8, "a real"));
  }
  walk_.passValue();
  return value;
}

std::optional<std::string_view> TypedStreamReader::readString() {
  std::optional<std::string_view> value;
  if (dueOf("+:%", "a string").code == '+') {
    value = takeUnshared("a string");
  } else if (const auto number = takeShared("a string")) {
    value = strings_[*number].text;
  }
  walk_.passValue();
  return value;
}

CStringValue TypedStreamReader::readCString() {
  constexpr std::string_view kWanted = "a C string";
  dueOf("*", kWanted);
  CStringValue value{.offset = position_, .label = std::nullopt, .fresh = false, .text = {}};
  switch (peekHead(kWanted)) {
    case kNilTag: ++position_; break;
    case kNewTag: {
      ++position_;
      const auto number = takeShared(kWanted);
      if (!number) refuse(value.offset, kWanted, "its text is nil");
      value.label = labels_.size();
      value.fresh = true;
      labels_.push_back({.kind = LabelKind::cString,
                         .complete = true,
                         .cls = std::nullopt,
                         .string = *number,
                         .version = 0});
      break;
    }
    default: value.label = takeLabel(LabelKind::cString, kWanted);
  }
  if (value.label) value.text = strings_[labels_[*value.label].string].text;
  walk_.passValue();
  return value;
}

ClassValue TypedStreamReader::readClass() {
  dueOf("#", "a class");
  const ClassValue value = takeClass("a class");
  walk_.passValue();
  return value;
}

std::span<const std::byte> TypedStreamReader::readBytes() {
  const TypeNode& type = dueOf("[", "an array of bytes");
  if (!type.isByteArray()) refuse(position_, "an array of bytes", describeTypes(type.text) + " stands here");
  const auto value = take(type.count, "an array of bytes");
  walk_.passValue();
  return value;
}

std::uint64_t TypedStreamReader::beginArray() {
  const TypeNode& type = dueOf("[", "an array");
  checkDepth();
  if (type.minBytes > bytesLeft()) {
    refuse(position_, describeTypes(type.text),
           "it takes at least " + count(type.minBytes, "byte") + ", and " + std::to_string(bytesLeft()) +
               " are left");
  }
  walk_.enterArray();
  return type.count;
}

std::string_view TypedStreamReader::beginStructure() {
  const TypeNode& type = dueOf("{", "a structure");
  checkDepth();
  walk_.enterStructure();
  return type.structureName();
}

ObjectValue TypedStreamReader::beginObject() {
  dueOf("@", "an object");
  return objectThatIsDue(false);
}

/// `isOfItsGroup`: a group that the walk has not opened holds the object alone.
ObjectValue TypedStreamReader::objectThatIsDue(bool isOfItsGroup) {
  constexpr std::string_view kWanted = "an object";
  ObjectValue value{
      .offset = position_, .kind = ObjectValue::Kind::nil, .label = 0, .cls = {}, .complete = true};
  switch (peekHead(kWanted)) {
    case kNilTag:
      ++position_;
      if (!isOfItsGroup) walk_.passValue();
      return value;
    case kNewTag: {
      checkDepth();
      ++position_;
      value.kind = ObjectValue::Kind::fresh;
      value.label = labels_.size();
      value.complete = false;
      // The object is numbered before its class, and the class stands before anything can refer to the
      // object.
      labels_.push_back({.kind = LabelKind::object, .complete = false, .cls = {}, .string = 0, .version = 0});
      value.cls = takeClass("the class of an object");
      if (!value.cls.label) refuse(value.cls.offset, "the class of an object", "nil stands here");
      labels_[value.label].cls = value.cls.label;
      isOfItsGroup ? walk_.enterObjectOfItsGroup(value.label) : walk_.enterObject(value.label);
      return value;
    }
    default:
      value.kind = ObjectValue::Kind::reference;
      value.label = takeLabel(LabelKind::object, kWanted);
      value.complete = labels_[value.label].complete;
      value.cls = {.offset = value.offset, .label = labels_[value.label].cls, .newRecords = 0};
      if (!isOfItsGroup) walk_.passValue();
      return value;
  }
}

void TypedStreamReader::endObject() {
  const Label label = walk_.leaveObject();
  if (bytesLeft() > 0 && headAt(position_) == kEndTag) {
    ++position_;
    labels_[label].complete = true;
    return;
  }
  const auto wanted = [&] { return "the end of " + describeLabel(label); };
  if (bytesLeft() == 0) refuse(position_, wanted(), "the file ends here");
  refuse(position_, wanted(), "more values follow");
}

// ---- Groups of one value. Nearly all are of a type that was met before and hold a value in one of its short forms; these
// are read without the walk, which then stands as it stood. All else, and all that is wrong, goes the long way.

/// Whether a group of this type alone begins here, and its head byte says so.
inline bool TypedStreamReader::plainTypeFollows(char code) const {
  if (bytesLeft() == 0 || !walk_.betweenGroups()) return false;
  const int head = headAt(position_);
  return head >= kFirstNumber && plainTypes_[static_cast<std::size_t>(head - kFirstNumber)] == code;
}

template <class Bits>
inline Bits TypedStreamReader::fixedAt(std::size_t position) const {
  Bits bits = 0;
  for (std::size_t i = 0; i < sizeof bits; ++i) {
    const std::size_t place = byteOrder_ == ByteOrder::big ? sizeof bits - 1 - i : i;
    bits |= std::to_integer<Bits>(bytes_[position + place]) << (8 * i);
  }
  return bits;
}

std::int32_t TypedStreamReader::takeInt() {
  if (bytesLeft() >= 2 && plainTypeFollows('i') && headAt(position_ + 1) >= kFirstNumber) {
    position_ += 2;
    return headAt(position_ - 1);
  }
  expectGroup("i");
  return static_cast<std::int32_t>(readInteger());
}

double TypedStreamReader::takeFloat() {
  constexpr std::size_t kSize = 2 + sizeof(float);
  if (bytesLeft() >= kSize && plainTypeFollows('f') && headAt(position_ + 1) == kRealTag) {
    position_ += kSize;
    return std::bit_cast<float>(fixedAt<std::uint32_t>(position_ - sizeof(float)));
  }
  expectGroup("f");
  return readReal();
}

double TypedStreamReader::takeDouble() {
  constexpr std::size_t kSize = 2 + sizeof(double);
  if (bytesLeft() >= kSize && plainTypeFollows('d') && headAt(position_ + 1) == kRealTag) {
    position_ += kSize;
    return std::bit_cast<double>(fixedAt<std::uint64_t>(position_ - sizeof(double)));
  }
  expectGroup("d");
  return readReal();
}

std::optional<std::string_view> TypedStreamReader::takeString() {
  if (bytesLeft() >= 2 && plainTypeFollows('+') && headAt(position_ + 1) >= 0 &&
      bytesLeft() - 2 >= static_cast<std::size_t>(headAt(position_ + 1))) {
    const auto text = bytes_.subspan(position_ + 2, static_cast<std::size_t>(headAt(position_ + 1)));
    position_ += 2 + text.size();
    return asText(text);
  }
  expectGroup("+");
  return readString();
}

ObjectValue TypedStreamReader::takeObject() {
  if (plainTypeFollows('@')) {
    ++position_;
    return objectThatIsDue(true);
  }
  expectGroup("@");
  return objectThatIsDue(false);
}

// ---- What is known

std::optional<std::int64_t> TypedStreamReader::versionForClassName(std::string_view name) const {
  const auto found = classes_.find(name);
  if (found == classes_.end()) return std::nullopt;
  return labels_[found->second].version;
}

std::string TypedStreamReader::describe(const ObjectValue& object) const {
  if (object.isNil()) return "nil";
  return describeLabel(object.label);
}

std::string TypedStreamReader::describeLabel(Label label) const {
  const LabelEntry& entry = labels_[label];
  const std::string number = std::to_string(label);
  switch (entry.kind) {
    case LabelKind::cls: return "class " + number + " (" + printable(className(label)) + ")";
    case LabelKind::cString: return "C string " + number;
    default:
      return "object " + number + " (" + (entry.cls ? printable(className(*entry.cls)) : "of no class yet") +
             ")";
  }
}

}  // namespace nascor::archive
