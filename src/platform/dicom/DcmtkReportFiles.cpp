// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom/DcmtkReportFiles.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include <dcmtk/config/osconfig.h>
// The configuration stands first.
#include <dcmtk/dcmdata/dcdicent.h>
#include <dcmtk/dcmdata/dcdict.h>
#include <dcmtk/dcmdata/dcistrmb.h>
#include <dcmtk/dcmdata/dcostrmb.h>
#include <dcmtk/dcmdata/dcspchrs.h>
#include <dcmtk/dcmdata/dctk.h>
#include <dcmtk/oflog/oflog.h>

#include "dicom/FileStructure.h"

namespace nascor::dicom {

namespace {

using exchange::Code;
using exchange::ContentItem;
using exchange::StructuredReport;
using exchange::ValueType;
using foundation::Sentence;

/// An element of a report: its tag and how its value is represented.
struct Element {
  Uint16 group;
  Uint16 element;
  DcmEVR vr;

  DcmTagKey key() const { return {group, element}; }
  DcmTag tag() const { return {group, element, DcmVR(vr)}; }
};

// The header of the file.
constexpr Element kMetaLength{0x0002, 0x0000, EVR_UL};
constexpr Element kMetaVersion{0x0002, 0x0001, EVR_OB};
constexpr Element kMetaSopClass{0x0002, 0x0002, EVR_UI};
constexpr Element kMetaSopInstance{0x0002, 0x0003, EVR_UI};
constexpr Element kMetaSyntax{0x0002, 0x0010, EVR_UI};
constexpr Element kMetaImplementation{0x0002, 0x0012, EVR_UI};
constexpr Element kMetaImplementationName{0x0002, 0x0013, EVR_SH};
// The report.
constexpr Element kCharacterSet{0x0008, 0x0005, EVR_CS};
constexpr Element kSopClass{0x0008, 0x0016, EVR_UI};
constexpr Element kSopInstance{0x0008, 0x0018, EVR_UI};
constexpr Element kStudyDate{0x0008, 0x0020, EVR_DA};
constexpr Element kContentDate{0x0008, 0x0023, EVR_DA};
constexpr Element kStudyTime{0x0008, 0x0030, EVR_TM};
constexpr Element kContentTime{0x0008, 0x0033, EVR_TM};
constexpr Element kAccession{0x0008, 0x0050, EVR_SH};
constexpr Element kModality{0x0008, 0x0060, EVR_CS};
constexpr Element kManufacturer{0x0008, 0x0070, EVR_LO};
constexpr Element kReferringPhysician{0x0008, 0x0090, EVR_PN};
constexpr Element kPerformedStep{0x0008, 0x1111, EVR_SQ};
constexpr Element kPatientName{0x0010, 0x0010, EVR_PN};
constexpr Element kPatientID{0x0010, 0x0020, EVR_LO};
constexpr Element kBirthDate{0x0010, 0x0030, EVR_DA};
constexpr Element kSex{0x0010, 0x0040, EVR_CS};
constexpr Element kStudyUID{0x0020, 0x000D, EVR_UI};
constexpr Element kSeriesUID{0x0020, 0x000E, EVR_UI};
constexpr Element kStudyID{0x0020, 0x0010, EVR_SH};
constexpr Element kSeriesNumber{0x0020, 0x0011, EVR_IS};
constexpr Element kInstanceNumber{0x0020, 0x0013, EVR_IS};
// Its content.
constexpr Element kUnits{0x0040, 0x08EA, EVR_SQ};
constexpr Element kRelationship{0x0040, 0xA010, EVR_CS};
constexpr Element kValueType{0x0040, 0xA040, EVR_CS};
constexpr Element kConceptName{0x0040, 0xA043, EVR_SQ};
constexpr Element kContinuity{0x0040, 0xA050, EVR_CS};
constexpr Element kDateTime{0x0040, 0xA120, EVR_DT};
constexpr Element kDate{0x0040, 0xA121, EVR_DA};
constexpr Element kText{0x0040, 0xA160, EVR_UT};
constexpr Element kConceptCode{0x0040, 0xA168, EVR_SQ};
constexpr Element kMeasuredValue{0x0040, 0xA300, EVR_SQ};
constexpr Element kNumericValue{0x0040, 0xA30A, EVR_DS};
constexpr Element kPerformedCode{0x0040, 0xA372, EVR_SQ};
constexpr Element kCompletion{0x0040, 0xA491, EVR_CS};
constexpr Element kVerification{0x0040, 0xA493, EVR_CS};
constexpr Element kTemplate{0x0040, 0xA504, EVR_SQ};
constexpr Element kContent{0x0040, 0xA730, EVR_SQ};
constexpr Element kMappingResource{0x0008, 0x0105, EVR_CS};
constexpr Element kTemplateID{0x0040, 0xDB00, EVR_CS};
constexpr Element kCodeValue{0x0008, 0x0100, EVR_SH};
constexpr Element kCodeScheme{0x0008, 0x0102, EVR_SH};
constexpr Element kCodeMeaning{0x0008, 0x0104, EVR_LO};
constexpr Element kLongCodeValue{0x0008, 0x0119, EVR_UC};

constexpr std::array kElements{kMetaLength,
                               kMetaVersion,
                               kMetaSopClass,
                               kMetaSopInstance,
                               kMetaSyntax,
                               kMetaImplementation,
                               kMetaImplementationName,
                               kCharacterSet,
                               kSopClass,
                               kSopInstance,
                               kStudyDate,
                               kContentDate,
                               kStudyTime,
                               kContentTime,
                               kAccession,
                               kModality,
                               kManufacturer,
                               kReferringPhysician,
                               kPerformedStep,
                               kPatientName,
                               kPatientID,
                               kBirthDate,
                               kSex,
                               kStudyUID,
                               kSeriesUID,
                               kStudyID,
                               kSeriesNumber,
                               kInstanceNumber,
                               kUnits,
                               kRelationship,
                               kValueType,
                               kConceptName,
                               kContinuity,
                               kDateTime,
                               kDate,
                               kText,
                               kConceptCode,
                               kMeasuredValue,
                               kNumericValue,
                               kPerformedCode,
                               kCompletion,
                               kVerification,
                               kTemplate,
                               kContent,
                               kMappingResource,
                               kTemplateID,
                               kCodeValue,
                               kCodeScheme,
                               kCodeMeaning,
                               kLongCodeValue};

struct TypeName {
  const char* name;
  ValueType type;
};
constexpr std::array kTypeNames{TypeName{"CONTAINER", ValueType::container},
                                TypeName{"NUM", ValueType::number}, TypeName{"CODE", ValueType::code},
                                TypeName{"TEXT", ValueType::text}, TypeName{"DATE", ValueType::date}};

constexpr const char* kUtf8 = "ISO_IR 192";

constexpr bool isBlank(char character) {
  return character == ' ' || character == '\0' ||
         (character >= '\t' && character <= '\r' && character != '\v');
}

std::string_view withoutBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// The elements of an item, found in one walk along them. DCMTK looks for each from the first on, and takes longer for that
/// than for reading it.
class Elements {
 public:
  explicit Elements(DcmObject& item) {
    constexpr std::size_t kUsual = 8;
    elements_.reserve(kUsual);
    for (DcmObject* element = item.nextInContainer(nullptr); element != nullptr;
         element = item.nextInContainer(element))
      elements_.push_back(element);
  }

  /// Null when there is none.
  DcmObject* at(const Element& wanted) const {
    const auto found = std::ranges::find_if(elements_, [&](const DcmObject* element) {
      return element->getGTag() == wanted.group && element->getETag() == wanted.element;
    });
    return found == elements_.end() ? nullptr : *found;
  }

 private:
  std::vector<DcmObject*> elements_;
};

/// The bytes of a value; empty when there is none. They lie in the element, or else in `room`.
std::string_view bytesOf(const Elements& item, const Element& element, OFString& room) {
  DcmObject* object = item.at(element);
  // A sequence under the tag of a text has no text.
  if (object == nullptr || !object->isLeaf()) return {};
  // What an item holds is always an element, and asking costs more than reading.
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast)
  auto& found = static_cast<DcmElement&>(*object);
  char* text = nullptr;
  Uint32 length = 0;
  if (found.getString(text, length).good())
    return text == nullptr ? std::string_view() : std::string_view(text, length);
  // What is no text, DCMTK makes one of.
  if (found.getOFStringArray(room, OFFalse).bad()) return {};
  return {room.data(), room.size()};
}

/// A value that is plain ASCII wherever it is right.
std::string plain(const Elements& item, const Element& element) {
  OFString room;
  return std::string(withoutBlanks(bytesOf(item, element, room)));
}

/// The next item of a sequence, null behind the last one.
DcmObject* itemBehind(DcmObject& sequence, const DcmObject* item) {
  DcmObject* next = sequence.nextInContainer(item);
  return next != nullptr && next->ident() == EVR_item ? next : nullptr;
}

/// The first item of a sequence, null when there is none.
DcmObject* firstIn(const Elements& item, const Element& element) {
  DcmObject* sequence = item.at(element);
  return sequence == nullptr ? nullptr : itemBehind(*sequence, nullptr);
}

/// Texts of one character set as UTF-8.
class Texts {
 public:
  /// Puts its name among `unfit` for each text that is not in it.
  explicit Texts(std::string characterSet, std::vector<std::string>& unfit)
      : name_(std::move(characterSet)), unfit_(&unfit) {
    isKnown_ = converter_.selectCharacterSet(OFString(name_.data(), name_.size()), kUtf8).good();
  }

  const std::string& name() const { return name_; }
  std::vector<std::string>* unfit() const { return unfit_; }

  /// Without blanks at its ends.
  std::string utf8(std::string_view bytes) {
    const bool isAscii = std::ranges::all_of(
        bytes, [](char byte) { return static_cast<unsigned char>(byte) < 0x80 && byte != '\x1b'; });
    if (isAscii) return std::string(withoutBlanks(bytes));
    return std::string(withoutBlanks(converted(bytes)));
  }

 private:
  std::string converted(std::string_view bytes) {
    if (auto text = converted(converter_, isKnown_, bytes)) return std::move(*text);
    if (auto text = withoutEscape(bytes)) return std::move(*text);
    unfit_->push_back(name_);
    return replaced(bytes);
  }

  static std::optional<std::string> converted(DcmSpecificCharacterSet& converter, bool isKnown,
                                              std::string_view bytes) {
    OFString text;
    if (!isKnown || converter.convertString(bytes.data(), bytes.size(), text, "").bad()) return std::nullopt;
    return std::string(text.data(), text.size());
  }

  /// Of two sets, ASCII and another, some writers leave out the sequence that switches to the other.
  std::optional<std::string> withoutEscape(std::string_view bytes) const {
    const std::size_t bar = name_.find('\\');
    const std::string_view first = withoutBlanks(std::string_view(name_).substr(0, bar));
    const bool isAsciiFirst = first.empty() || first == "ISO 2022 IR 6" || first == "ISO_IR 6";
    if (bar == std::string::npos || !isAsciiFirst || name_.find('\\', bar + 1) != std::string::npos ||
        bytes.find('\x1b') != std::string_view::npos)
      return std::nullopt;
    std::string other(withoutBlanks(std::string_view(name_).substr(bar + 1)));
    constexpr std::string_view kWithEscapes = "ISO 2022 IR ";
    if (other.starts_with(kWithEscapes)) other.replace(0, kWithEscapes.size(), "ISO_IR ");
    DcmSpecificCharacterSet converter;
    const bool isKnown = converter.selectCharacterSet(OFString(other.data(), other.size()), kUtf8).good();
    return converted(converter, isKnown, bytes);
  }

  static std::string replaced(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
      if (static_cast<unsigned char>(byte) < 0x80) {
        text += byte;
      } else {
        text += "\xEF\xBF\xBD";
      }
    }
    return text;
  }

  std::string name_;
  std::vector<std::string>* unfit_;
  DcmSpecificCharacterSet converter_;
  bool isKnown_ = false;
};

class Reader {
 public:
  explicit Reader(DcmItem& dataset) : dataset_(dataset) {}

  StructuredReport report() const {
    StructuredReport report;
    std::vector<std::string> unfit;
    Texts texts(plain(dataset_, kCharacterSet), unfit);
    report.sopClass = plain(dataset_, kSopClass);
    report.patientID = textOf(dataset_, kPatientID, texts);
    report.studyDate = plain(dataset_, kStudyDate);
    report.contentDate = plain(dataset_, kContentDate);
    report.hasContent = firstIn(dataset_, kContent) != nullptr;
    if (report.hasContent) report.root = item(dataset_, texts);
    // Once is enough.
    std::ranges::sort(unfit);
    unfit.erase(std::unique(unfit.begin(), unfit.end()), unfit.end());
    for (const std::string& set : unfit)
      report.warnings.push_back(
          Sentence("ReportFiles", "a text is not in the character set \"%1\" that the file states")
              .with(set));
    return report;
  }

 private:
  static std::string textOf(const Elements& item, const Element& element, Texts& texts) {
    OFString room;
    return texts.utf8(bytesOf(item, element, room));
  }

  static Code codeIn(const Elements& holder, const Element& sequence, Texts& texts) {
    DcmObject* found = firstIn(holder, sequence);
    if (found == nullptr) return {};
    const Elements item(*found);
    Code code{.value = textOf(item, kCodeValue, texts),
              .scheme = textOf(item, kCodeScheme, texts),
              .meaning = textOf(item, kCodeMeaning, texts)};
    if (code.value.empty()) code.value = textOf(item, kLongCodeValue, texts);
    return code;
  }

  static ValueType typeOf(const Elements& item) {
    const std::string name = plain(item, kValueType);
    const auto found =
        std::ranges::find_if(kTypeNames, [&](const TypeName& type) { return name == type.name; });
    if (found != kTypeNames.end()) return found->type;
    return name == "DATETIME" ? ValueType::date : ValueType::other;
  }

  static void readValue(const Elements& from, Texts& texts, ContentItem& item) {
    switch (item.type) {
      case ValueType::number:
        if (DcmObject* found = firstIn(from, kMeasuredValue)) {
          const Elements value(*found);
          item.text = plain(value, kNumericValue);
          item.code = codeIn(value, kUnits, texts);
        }
        break;
      case ValueType::code: item.code = codeIn(from, kConceptCode, texts); break;
      case ValueType::text: item.text = textOf(from, kText, texts); break;
      case ValueType::date:
        item.text = plain(from, kDate);
        if (item.text.empty()) item.text = plain(from, kDateTime);
        break;
      default: break;
    }
  }

  /// The item with all below it. The file was looked at for its depth before.
  static ContentItem item(const Elements& from, Texts& around) {
    // An item may state a character set of its own.
    std::optional<Texts> own;
    const std::string name = plain(from, kCharacterSet);
    if (!name.empty() && name != around.name()) own.emplace(name, *around.unfit());
    Texts& texts = own ? *own : around;
    ContentItem item{.type = typeOf(from),
                     .relationship = plain(from, kRelationship),
                     .name = codeIn(from, kConceptName, texts),
                     .text = {},
                     .code = {},
                     .items = {}};
    readValue(from, texts, item);
    if (DcmObject* content = from.at(kContent); content != nullptr && !content->isLeaf()) {
      item.items.reserve(content->getNumberOfValues());
      for (DcmObject* child = itemBehind(*content, nullptr); child != nullptr;
           child = itemBehind(*content, child))
        item.items.push_back(Reader::item(Elements(*child), texts));
    }
    return item;
  }

  Elements dataset_;
};

/// Writes a report into a dataset. The first thing that DCMTK refuses is kept.
class Writer {
 public:
  explicit Writer(DcmItem& dataset) : dataset_(dataset) {}

  OFCondition write(const StructuredReport& report) {
    put(dataset_, kCharacterSet, kUtf8);
    put(dataset_, kSopClass, report.sopClass);
    put(dataset_, kSopInstance, report.instanceUID);
    put(dataset_, kStudyDate, report.studyDate);
    put(dataset_, kContentDate, report.contentDate);
    put(dataset_, kStudyTime, "");
    put(dataset_, kContentTime, "000000");
    put(dataset_, kAccession, "");
    put(dataset_, kModality, "SR");
    put(dataset_, kManufacturer, "Nascor");
    put(dataset_, kReferringPhysician, "");
    keep(dataset_.insertEmptyElement(kPerformedStep.tag()));
    put(dataset_, kPatientName, "");
    put(dataset_, kPatientID, report.patientID);
    put(dataset_, kBirthDate, "");
    put(dataset_, kSex, "");
    put(dataset_, kStudyUID, report.studyUID);
    put(dataset_, kSeriesUID, report.seriesUID);
    put(dataset_, kStudyID, "");
    put(dataset_, kSeriesNumber, "1");
    put(dataset_, kInstanceNumber, "1");
    keep(dataset_.insertEmptyElement(kPerformedCode.tag()));
    put(dataset_, kCompletion, "COMPLETE");
    put(dataset_, kVerification, "UNVERIFIED");
    if (DcmItem* root = append(dataset_, kTemplate)) {
      put(*root, kMappingResource, "DCMR");
      put(*root, kTemplateID, "5000");
    }
    item(dataset_, report.root);
    return status_;
  }

 private:
  void keep(const OFCondition& status) {
    if (status_.good()) status_ = status;
  }

  void put(DcmItem& item, const Element& element, const std::string& value) {
    keep(item.putAndInsertOFStringArray(element.tag(), OFString(value.data(), value.size())));
  }

  DcmItem* append(DcmItem& item, const Element& sequence) {
    constexpr long kAtEnd = -2;
    DcmItem* added = nullptr;
    keep(item.findOrCreateSequenceItem(sequence.tag(), added, kAtEnd));
    return added;
  }

  void putCode(DcmItem& holder, const Element& sequence, const Code& code) {
    DcmItem* item = append(holder, sequence);
    if (item == nullptr) return;
    put(*item, kCodeValue, code.value);
    put(*item, kCodeScheme, code.scheme);
    put(*item, kCodeMeaning, code.meaning);
  }

  void item(DcmItem& to, const ContentItem& item) {
    const auto name = std::ranges::find(kTypeNames, item.type, &TypeName::type);
    if (!item.relationship.empty()) put(to, kRelationship, item.relationship);
    put(to, kValueType, name == kTypeNames.end() ? "" : name->name);
    putCode(to, kConceptName, item.name);
    switch (item.type) {
      case ValueType::container: put(to, kContinuity, "SEPARATE"); break;
      case ValueType::number:
        if (DcmItem* value = append(to, kMeasuredValue)) {
          putCode(*value, kUnits, item.code);
          put(*value, kNumericValue, item.text);
        }
        break;
      case ValueType::code: putCode(to, kConceptCode, item.code); break;
      case ValueType::text: put(to, kText, item.text); break;
      case ValueType::date: put(to, kDate, item.text); break;
      default: break;
    }
    for (const ContentItem& child : item.items) {
      if (DcmItem* added = append(to, kContent)) this->item(*added, child);
    }
  }

  DcmItem& dataset_;
  OFCondition status_ = EC_Normal;
};

}  // namespace

DcmtkReportFiles::DcmtkReportFiles() {
  OFLog::configure(OFLogger::OFF_LOG_LEVEL);
  // The dictionary is a file that may be missing, or another one; without it, DCMTK does not know which elements are
  // sequences where a file does not say so itself.
  DcmDataDictionary& dictionary = dcmDataDict.wrlock();
  for (const Element& element : kElements) {
    dictionary.addEntry(new DcmDictEntry(element.group, element.element, DcmVR(element.vr), "Report", 1,
                                         DcmVariableVM, nullptr, OFTrue, nullptr));
  }
  dcmDataDict.wrunlock();
}

std::variant<StructuredReport, Sentence> DcmtkReportFiles::read(std::span<const std::byte> bytes) {
  auto found = dataSetIn(bytes);
  if (auto* fault = std::get_if<Sentence>(&found)) return std::move(*fault);
  const auto& [elements, encoding] = std::get<DataSet>(found);
  // From a header in which it misses something DCMTK would guess the encoding, and then lengths.
  const E_TransferSyntax syntax = encoding.isBigEndian  ? EXS_BigEndianExplicit
                                  : encoding.isExplicit ? EXS_LittleEndianExplicit
                                                        : EXS_LittleEndianImplicit;
  DcmInputBufferStream stream;
  stream.setBuffer(elements.data(), static_cast<offile_off_t>(elements.size()));
  stream.setEos();
  DcmDataset dataset;
  dataset.transferInit();
  // Without transferEnd(): it walks along all elements, to make them ready for what is never done with them.
  const OFCondition status = dataset.read(stream, syntax);
  //: %1 is what a library says, in English, as in all sentences about DICOM that end with a colon.
  if (status.bad()) return Sentence("ReportFiles", "is damaged: %1").with(status.text());
  return Reader(dataset).report();
}

std::variant<std::vector<std::byte>, Sentence> DcmtkReportFiles::write(const StructuredReport& report) {
  DcmFileFormat file;
  if (const OFCondition status = Writer(*file.getDataset()).write(report); status.bad())
    return Sentence("ReportFiles", "cannot be written: %1").with(status.text());

  std::vector<std::byte> bytes;
  std::array<std::byte, 65536> buffer{};
  DcmOutputBufferStream stream(buffer.data(), buffer.size());
  const auto takeOver = [&] {
    void* start = nullptr;
    offile_off_t length = 0;
    stream.flushBuffer(start, length);
    const auto* from = static_cast<const std::byte*>(start);
    bytes.insert(bytes.end(), from, from + length);
  };
  file.transferInit();
  OFCondition status = EC_StreamNotifyClient;
  while (status == EC_StreamNotifyClient) {
    status = file.write(stream, EXS_LittleEndianExplicit, EET_ExplicitLength, nullptr);
    takeOver();
  }
  stream.flush();
  takeOver();
  file.transferEnd();
  if (status.bad()) return Sentence("ReportFiles", "cannot be written: %1").with(status.text());
  return bytes;
}

}  // namespace nascor::dicom
