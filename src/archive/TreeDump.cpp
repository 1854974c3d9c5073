// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "archive/TreeDump.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "archive/TypedStreamReader.h"
#include "foundation/JsonText.h"
#include "foundation/NumberText.h"
#include "foundation/Utf8.h"

namespace nascor::archive {
namespace {

/// Known streams give up to 25 bytes of text a byte, the deepest indentation gives some 120.
constexpr std::size_t kTextPerByte = 250;
constexpr std::size_t kTextAllowed = 65'536;
/// What is handed on at once.
constexpr std::size_t kPiece = 65'536;

std::string hexDigits(std::span<const std::byte> bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string digits;
  digits.reserve(2 * bytes.size());
  for (const std::byte byte : bytes) {
    digits += kDigits[std::to_integer<std::size_t>(byte >> 4U)];
    digits += kDigits[std::to_integer<std::size_t>(byte & std::byte{15})];
  }
  return digits;
}

std::string hexDigits(std::string_view text) { return hexDigits(std::as_bytes(std::span(text))); }

std::int64_t number(Label label) { return static_cast<std::int64_t>(label); }

/// The value of a type that knows no sign. In the stream the upper half of its range stands as negative numbers.
std::uint64_t unsignedValue(char code, std::int64_t value) {
  const auto bits = static_cast<std::uint64_t>(value);
  if (code == 'S') return bits & 0xFFFFU;
  if (code == 'I') return bits & 0xFFFFFFFFU;
  return bits;
}

bool isUnsigned(const TypeNode& type) {
  return std::string_view("CBSILQ").find(type.code) != std::string_view::npos;
}

/// The two forms of a dump: each event appends to `out`.
class Form {
 public:
  explicit Form(const TypedStreamReader& reader) : reader_(reader) {}
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  virtual void beginStream() = 0;
  virtual void endStream() = 0;
  virtual void beginGroup(std::size_t offset, std::string_view types) = 0;
  virtual void endGroup() = 0;

  virtual void integer(std::size_t offset, const TypeNode& type, std::int64_t value) = 0;
  virtual void real(std::size_t offset, const TypeNode& type, double value) = 0;
  virtual void string(std::size_t offset, const TypeNode& type, std::optional<std::string_view> value) = 0;
  virtual void cString(const CStringValue& value) = 0;
  virtual void cls(const ClassValue& value) = 0;
  virtual void bytes(std::size_t offset, const TypeNode& type, std::span<const std::byte> value) = 0;
  virtual void beginList(std::size_t offset, const TypeNode& type) = 0;
  virtual void endList() = 0;
  virtual void beginObject(const ObjectValue& value) = 0;  ///< endObject() follows for fresh objects only.
  virtual void endObject() = 0;

  std::string out;

 protected:
  const TypedStreamReader& reader_;
};

class JsonForm final : public Form {
 public:
  using Form::Form;

  void beginStream() override {
    json_.beginObject();
    json_.key("byte_order").text(reader_.byteOrder() == ByteOrder::big ? "big" : "little");
    json_.key("system_version").integer(reader_.systemVersion());
    json_.key("groups").beginArray();
  }
  void endStream() override { json_.endArray().endObject(); }

  void beginGroup(std::size_t, std::string_view types) override {
    json_.beginObject().key("types").text(types).key("values").beginArray();
  }
  void endGroup() override { json_.endArray().endObject(); }

  void integer(std::size_t, const TypeNode& type, std::int64_t value) override {
    if (isUnsigned(type)) {
      json_.unsignedInteger(unsignedValue(type.code, value));
    } else {
      json_.integer(value);
    }
  }
  void real(std::size_t, const TypeNode&, double value) override { json_.number(value); }

  void string(std::size_t, const TypeNode&, std::optional<std::string_view> value) override {
    if (!value) {
      json_.null();
      return;
    }
    json_.beginObject();
    text(*value);
    json_.endObject();
  }

  void cString(const CStringValue& value) override {
    if (!value.label) {
      json_.null();
    } else if (!value.fresh) {
      reference(*value.label);
    } else {
      json_.beginObject().key("cstr").integer(number(*value.label));
      text(value.text);
      json_.endObject();
    }
  }

  void cls(const ClassValue& value) override {
    std::optional<Label> label = value.label;
    for (std::size_t i = 0; i < value.newRecords; ++i) {
      json_.beginObject().key("cls").integer(number(*label));
      json_.key("name").text(reader_.className(*label));
      json_.key("version").integer(reader_.classVersion(*label));
      json_.key("super");
      label = reader_.superclass(*label);
    }
    if (label) {
      reference(*label);
    } else {
      json_.null();
    }
    for (std::size_t i = 0; i < value.newRecords; ++i) json_.endObject();
  }

  void bytes(std::size_t, const TypeNode&, std::span<const std::byte> value) override {
    json_.beginObject().key("hex").text(hexDigits(value)).endObject();
  }

  void beginList(std::size_t, const TypeNode&) override { json_.beginArray(); }
  void endList() override { json_.endArray(); }

  void beginObject(const ObjectValue& value) override {
    if (value.isNil()) {
      json_.null();
    } else if (value.isReference()) {
      reference(value.label);
    } else {
      json_.beginObject().key("obj").integer(number(value.label)).key("class");
      cls(value.cls);
      json_.key("groups").beginArray();
    }
  }
  void endObject() override { json_.endArray().endObject(); }

 private:
  void reference(Label label) { json_.beginObject().key("ref").integer(number(label)).endObject(); }

  void text(std::string_view value) {
    if (foundation::isValidUtf8(value)) {
      json_.key("s").text(value);
    } else {
      json_.key("hex").text(hexDigits(value));
    }
  }

  foundation::JsonText json_{out};
};

class TextForm final : public Form {
 public:
  using Form::Form;

  void beginStream() override {
    out += "typed stream, ";
    out += reader_.byteOrder() == ByteOrder::big ? "big-endian" : "little-endian";
    out += ", system version " + std::to_string(reader_.systemVersion()) + "\n";
  }
  void endStream() override {}

  // A group of one value is that value's line; the type stands there. Several values get a line for their
  // types.
  void beginGroup(std::size_t offset, std::string_view types) override {
    const TypeNode* first = reader_.due();
    const bool single = first != nullptr && first->text.size() == types.size();
    if (!single) line(offset, "group " + literal(types));
    levels_.push_back(single ? 0 : 1);
    depth_ += levels_.back();
  }
  void endGroup() override {
    depth_ -= levels_.back();
    levels_.pop_back();
  }

  void integer(std::size_t offset, const TypeNode& type, std::int64_t value) override {
    line(offset, type,
         isUnsigned(type) ? std::to_string(unsignedValue(type.code, value)) : std::to_string(value));
  }
  void real(std::size_t offset, const TypeNode& type, double value) override {
    line(offset, type, foundation::shortestText(value));
  }
  void string(std::size_t offset, const TypeNode& type, std::optional<std::string_view> value) override {
    line(offset, type, value ? literal(*value) : "nil");
  }

  void cString(const CStringValue& value) override {
    if (!value.label) {
      line(value.offset, "* nil");
    } else {
      line(value.offset, (value.fresh ? "* C string " : "* -> C string ") + std::to_string(*value.label) +
                             " " + literal(value.text));
    }
  }

  void cls(const ClassValue& value) override { line(value.offset, "# " + classChain(value)); }

  void bytes(std::size_t offset, const TypeNode& type, std::span<const std::byte> value) override {
    line(offset, type, hexDigits(value));
  }

  void beginList(std::size_t offset, const TypeNode& type) override {
    line(offset, type, "");
    ++depth_;
  }
  void endList() override { --depth_; }

  void beginObject(const ObjectValue& value) override {
    if (value.isNil()) {
      line(value.offset, "@ nil");
    } else if (value.isReference()) {
      line(value.offset, "@ -> " + reader_.describe(value));
    } else {
      line(value.offset, "@ object " + std::to_string(value.label) + ": " + classChain(value.cls));
      ++depth_;
    }
  }
  void endObject() override { --depth_; }

 private:
  /// "NSString (class 4, version 1) < NSObject (class 2, version 0)"; a class seen before without its
  /// superclass.
  std::string classChain(const ClassValue& value) const {
    if (!value.label) return "nil";
    std::string chain;
    std::optional<Label> label = value.label;
    for (std::size_t i = 0; i < value.newRecords; ++i) {
      chain += reader_.className(*label);
      chain += " (class " + std::to_string(*label) + ", version " +
               std::to_string(reader_.classVersion(*label)) + ")";
      label = reader_.superclass(*label);
      if (label) chain += " < ";
    }
    if (label) {
      chain += reader_.className(*label);
      chain += " (class " + std::to_string(*label) + ")";
    }
    return chain;
  }

  static std::string literal(std::string_view text) {
    if (!foundation::isValidUtf8(text)) return "not UTF-8: " + hexDigits(text);
    std::string quotedText;
    foundation::JsonText(quotedText).text(text);
    return quotedText;
  }

  void line(std::size_t offset, const TypeNode& type, const std::string& value) {
    std::string text(type.text);
    if (!value.empty()) text += " " + value;
    line(offset, text);
  }

  void line(std::size_t offset, const std::string& text) {
    constexpr std::size_t kOffsetWidth = 8;
    constexpr std::size_t kDeepestIndentation = 50;
    const std::string place = std::to_string(offset);
    out.append(kOffsetWidth - std::min(kOffsetWidth, place.size()), ' ');
    out += place;
    out.append(2 + 2 * std::min(depth_, kDeepestIndentation), ' ');
    // Names of classes and types come from outside.
    out += foundation::oneLine(text);
    out += '\n';
  }

  std::size_t depth_ = 0;
  std::vector<std::size_t> levels_;  // lines that each open group has moved its values to the right
};

/// Reads a stream to its end and tells a form of all that it meets.
class Dump {
 public:
  Dump(TypedStreamReader& reader, Form& form, std::size_t size, const TakeText& take)
      : reader_(reader), form_(form), longest_(kTextAllowed + kTextPerByte * size), take_(take) {}

  void run() {
    form_.beginStream();
    groups();
    form_.endStream();
    handOn();
  }

 private:
  // The recursion is as deep as the reader lets values nest.
  void groups() {
    while (reader_.groupFollows()) {
      const std::size_t begin = reader_.offset();
      form_.beginGroup(begin, reader_.beginGroup());
      values();
      form_.endGroup();
    }
  }

  void values() {
    while (const TypeNode* type = reader_.due()) {
      value(*type);
      if (handedOn_ + form_.out.size() > longest_) {
        throw FormatError(
            reader_.offset(),
            Sentence("Reading", "the text of this stream is more than %1 times as long as the stream itself")
                .with(kTextPerByte));
      }
      if (form_.out.size() >= kPiece) handOn();
    }
  }

  void value(const TypeNode& type) {
    const std::size_t begin = reader_.offset();
    switch (type.code) {
      case '@': return object();
      case '#': return form_.cls(reader_.readClass());
      case '*': return form_.cString(reader_.readCString());
      case '+':
      case ':':
      case '%': return form_.string(begin, type, reader_.readString());
      case 'f':
      case 'd': return form_.real(begin, type, reader_.readReal());
      case '[':
        if (type.isByteArray()) return form_.bytes(begin, type, reader_.readBytes());
        reader_.beginArray();
        form_.beginList(begin, type);
        values();
        form_.endList();
        return reader_.endArray();
      case '{':
        reader_.beginStructure();
        form_.beginList(begin, type);
        values();
        form_.endList();
        return reader_.endStructure();
      default: return form_.integer(begin, type, reader_.readInteger());
    }
  }

  void object() {
    const ObjectValue head = reader_.beginObject();
    form_.beginObject(head);
    if (!head.isFresh()) return;
    groups();
    reader_.endObject();
    form_.endObject();
  }

  void handOn() {
    handedOn_ += form_.out.size();
    if (take_) take_(form_.out);
    form_.out.clear();
  }

  TypedStreamReader& reader_;
  Form& form_;
  std::size_t longest_;
  const TakeText& take_;
  std::size_t handedOn_ = 0;
};

template <class AForm>
void dump(std::span<const std::byte> bytes, const TakeText& take) {
  TypedStreamReader reader(bytes);
  AForm form(reader);
  Dump(reader, form, bytes.size(), take).run();
}

/// Nothing is handed on before the whole stream is known to be well-formed: it is read twice rather than kept as text.
template <class AForm>
void checkedDump(std::span<const std::byte> bytes, const TakeText& take) {
  dump<AForm>(bytes, nullptr);
  dump<AForm>(bytes, take);
}

template <class AForm>
std::string wholeDump(std::span<const std::byte> bytes) {
  std::string text;
  dump<AForm>(bytes, [&](std::string_view piece) { text += piece; });
  return text;
}

}  // namespace

void dumpAsJsonInPieces(std::span<const std::byte> bytes, const TakeText& take) {
  checkedDump<JsonForm>(bytes, take);
}

void dumpAsTextInPieces(std::span<const std::byte> bytes, const TakeText& take) {
  checkedDump<TextForm>(bytes, take);
}

std::string dumpAsJson(std::span<const std::byte> bytes) { return wholeDump<JsonForm>(bytes); }

std::string dumpAsText(std::span<const std::byte> bytes) { return wholeDump<TextForm>(bytes); }

}  // namespace nascor::archive
