// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientJsonReader.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include <nlohmann/json.hpp>

#include "calc/Biometry.h"
#include "foundation/ConvertInteger.h"
#include "foundation/IsoDate.h"
#include "foundation/JsonText.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "foundation/Utf8.h"

namespace nascor::model {

namespace {

using foundation::Date;
using foundation::Sentence;
using foundation::translatable;

/// What the reader stands in: the next value belongs to it.
enum class Place { top, patient, examinations, examination, measurements, fetus };

/// One function for each type of a variant.
template <typename... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <typename... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

enum class Kind { text, date, dateText, integer, number, list };

/// What may stand in an object.
struct Field {
  std::string name;
  Kind kind;
  std::string date{};                   ///< of a date's text: the field of the date that it stands beside
  const PatientValue* value = nullptr;  ///< of a patient; nothing for a list
  double calc::Biometry::*length = nullptr;  ///< of a fetus
};
using Fields = std::vector<Field>;

/// A date, and its text behind it, which counts where the date itself is missing.
void appendDate(Fields& fields, std::string_view name, const PatientValue* value) {
  const std::string date(name);
  fields.push_back({.name = date, .kind = Kind::date, .value = value});
  fields.push_back({.name = date + "ISO", .kind = Kind::dateText, .date = date, .value = value});
}

Fields fieldsOfPatient() {
  Fields fields;
  for (const PatientValue& value : kPatientValues) {
    const auto append = [&](Kind kind) {
      fields.push_back({.name = std::string(value.name), .kind = kind, .value = &value});
    };
    std::visit(Overloaded{[&](PatientValue::Text) { append(Kind::text); },
                          [&](PatientValue::Moment) { appendDate(fields, value.name, &value); },
                          [&](PatientValue::Integer) { append(Kind::integer); },
                          [&](PatientValue::Number) { append(Kind::number); }},
               value.member);
  }
  fields.push_back({.name = "examinations", .kind = Kind::list});
  return fields;
}

Fields fieldsOfExamination() {
  Fields fields{{.name = "note", .kind = Kind::text}};
  appendDate(fields, "examDate", nullptr);
  fields.push_back({.name = "measurements", .kind = Kind::list});
  return fields;
}

Fields fieldsOfFetus() {
  Fields fields;
  for (const calc::Measurement measurement : calc::kMeasurements) {
    fields.push_back({.name = std::string(calc::nameOf(measurement)),
                      .kind = Kind::number,
                      .length = calc::memberFor(measurement)});
  }
  return fields;
}

/// Of an object.
const Fields& fieldsOf(Place place) {
  static const Fields patient = fieldsOfPatient();
  static const Fields examination = fieldsOfExamination();
  static const Fields fetus = fieldsOfFetus();
  switch (place) {
    case Place::patient: return patient;
    case Place::examination: return examination;
    default: return fetus;
  }
}

Sentence expectedBy(Kind kind) {
  const auto key = [kind] {
    switch (kind) {
      case Kind::text: return translatable("Reading", "a text or null");
      case Kind::date:
        return translatable("Reading", "a date (seconds since 2001-01-01 UTC, an ISO text) or null");
      case Kind::dateText: return translatable("Reading", "an ISO date or null");
      case Kind::integer: return translatable("Reading", "a whole number");
      case Kind::number: return translatable("Reading", R"(a number, "nan", "inf" or "-inf")");
      default: return translatable("Reading", "a list");
    }
  };
  return Sentence("Reading", key());
}

/// In quotation marks, on one line, and not longer than a reader wants.
std::string inQuotes(std::string_view text) {
  constexpr std::size_t kLongest = 40;
  const std::size_t length = foundation::lengthWithin(text, kLongest);
  std::string result;
  foundation::JsonText(result).text(text.substr(0, length));
  if (length < text.size()) result.insert(result.size() - 1, "...");
  return result;
}

/// A number as it was written: JSON tells whole numbers from others, and -0 is a whole number that has lost its sign.
struct Number {
  double value = 0.0;
  std::optional<std::int64_t> integer;  ///< when it is whole and no longer than 64 bits
  std::string written;
};

using Scalar = std::variant<std::nullptr_t, bool, Number, std::string>;

Sentence describe(const Scalar& value) {
  if (std::holds_alternative<std::nullptr_t>(value)) return Sentence::verbatim("null");
  if (const auto* truth = std::get_if<bool>(&value)) return Sentence::verbatim(*truth ? "true" : "false");
  if (const auto* number = std::get_if<Number>(&value)) {
    const std::string text = inQuotes(number->written);
    return Sentence::verbatim(text.substr(1, text.size() - 2));
  }
  return Sentence("Reading", "the text %1").with(inQuotes(std::get<std::string>(value)));
}

/// Receives the parts of the JSON in their order. Each function answers whether to go on; after false there is an error.
class Receiver final : public nlohmann::json_sax<nlohmann::json> {
 public:
  /// Reads `source` behind its first `skipped` bytes.
  Receiver(std::string_view source, std::size_t skipped, const foundation::Calendar& calendar)
      : source_(source), skipped_(skipped), calendar_(calendar) {
    patient().setMaternalIDString("");
    patient().setNumberOfFetuses(1);
    patient().setExtrapolatedGestation(40.0);
  }

  /// After a function that answered false.
  Sentence error() const { return error_.value_or(Sentence()); }
  PatientFromJson takeResult() { return std::move(result_); }

  bool null() override { return scalar(nullptr); }
  bool boolean(bool value) override { return scalar(value); }
  bool number_integer(number_integer_t value) override {
    // Whole numbers without a minus sign come as unsigned ones: a zero here was -0.
    const double asDouble = value == 0 ? -0.0 : static_cast<double>(value);
    return scalar(Number{.value = asDouble, .integer = value, .written = std::to_string(value)});
  }
  bool number_unsigned(number_unsigned_t value) override {
    Number number{.value = static_cast<double>(value), .integer = {}, .written = std::to_string(value)};
    if (std::in_range<std::int64_t>(value)) number.integer = static_cast<std::int64_t>(value);
    return scalar(number);
  }
  bool number_float(number_float_t value, const string_t& written) override {
    constexpr double kTwoTo63 = 9223372036854775808.0;
    Number number{.value = value, .integer = {}, .written = written};
    // Digits alone come here when they are too many for 64 bits.
    const bool digitsAlone = written.find_first_of(".eE") == string_t::npos;
    if (!digitsAlone && value == std::trunc(value) && value >= -kTwoTo63 && value < kTwoTo63) {
      number.integer = static_cast<std::int64_t>(value);
    }
    return scalar(number);
  }
  bool string(string_t& value) override { return scalar(std::move(value)); }
  bool binary(binary_t&) override { return unexpected(Sentence("Reading", "binary data")); }

  bool start_object(std::size_t) override {
    switch (place_) {
      case Place::top: place_ = Place::patient; break;
      case Place::examinations:
        place_ = Place::examination;
        patient().ncRecordsArray().push_back(std::make_unique<NCRecord>());
        examination().setNote("");
        break;
      case Place::measurements:
        place_ = Place::fetus;
        examination().measurements().emplace_back();
        break;
      default: return unexpected(Sentence("Reading", "an object"));
    }
    level() = {};
    field_ = nullptr;
    return true;
  }

  bool key(string_t& name) override {
    const Fields& fields = fieldsOf(place_);
    const auto found = std::ranges::find(fields, name, &Field::name);
    field_ = nullptr;
    if (found == fields.end()) {
      std::string names;
      for (const Field& field : fields) names.append(names.empty() ? "" : ", ").append(field.name);
      return refuse(Sentence("Reading", "one of the keys %1").with(names),
                    Sentence::verbatim(inQuotes(name)));
    }
    field_ = &*found;
    if (!level().seen.insert(field_->name).second)
      return refuseAt(pointer(), Sentence("Reading", "each key once"),
                      Sentence("Reading", "this one stands twice"));
    return true;
  }

  bool end_object() override {
    field_ = nullptr;
    switch (place_) {
      case Place::patient:
        if (!takeDateTexts()) return false;
        place_ = Place::top;
        break;
      case Place::examination:
        if (!takeDateTexts()) return false;
        place_ = Place::examinations;
        break;
      default: place_ = Place::measurements;
    }
    return true;
  }

  bool start_array(std::size_t) override {
    if (!field_ || field_->kind != Kind::list) return unexpected(Sentence("Reading", "a list"));
    place_ = place_ == Place::patient ? Place::examinations : Place::measurements;
    field_ = nullptr;
    return true;
  }

  bool end_array() override {
    place_ = place_ == Place::examinations ? Place::patient : Place::examination;
    return true;
  }

  bool parse_error(std::size_t position, const std::string&,
                   const nlohmann::json::exception& reason) override {
    error_ = placedInText(source_, skipped_ + position,
                          Sentence("Reading", "expected JSON, but %1").with(inPlainWords(reason.what())));
    return false;
  }

  /// `at line 3, column 14: SENTENCE`, from the number of bytes read so far; the last of them is the offending one.
  static Sentence placedInText(std::string_view source, std::size_t bytesRead, const Sentence& sentence) {
    const std::string_view before = source.substr(0, std::max<std::size_t>(bytesRead, 1) - 1);
    const auto lines = std::ranges::count(before, '\n');
    const std::string_view line = before.substr(before.rfind('\n') + 1);  // npos + 1 is 0
    return Sentence("Reading", "at line %1, column %2: %3")
        .with(lines + 1, foundation::codePoints(line) + 1, sentence);
  }

 private:
  /// What was met within one object.
  struct Level {
    std::set<std::string_view> seen;
    std::vector<std::pair<const Field*, std::string>> dateTexts;
  };

  PatientRecord& patient() const { return *result_.patient; }
  NCRecord& examination() const { return *patient().ncRecordsArray().back(); }
  MeasurementsRecord& fetus() const { return examination().measurements().back(); }

  Level& level() {
    switch (place_) {
      case Place::examination: return examinationLevel_;
      case Place::fetus: return fetusLevel_;
      default: return patientLevel_;
    }
  }

  /// The JSON pointer of what is being read; empty at the top.
  std::string pointer() const {
    std::string path;
    if (place_ >= Place::examinations) {
      const std::size_t count = patient().ncRecordsArray().size();
      path += "/examinations/" + std::to_string(place_ == Place::examinations ? count : count - 1);
    }
    if (place_ >= Place::measurements) {
      const std::size_t count = examination().measurements().size();
      path += "/measurements/" + std::to_string(place_ == Place::measurements ? count : count - 1);
    }
    if (field_) path.append("/").append(field_->name);
    return path;
  }

  static Sentence placed(const std::string& path, const Sentence& sentence) {
    if (path.empty()) return Sentence("Reading", "at the top: %1").with(sentence);
    //: %1 is a place in a JSON text, such as /examinations/2/note.
    return Sentence("Reading", "at %1: %2").with(path, sentence);
  }
  bool refuseAt(const std::string& path, const Sentence& expected, const Sentence& found) {
    error_ = placed(path, Sentence("Reading", "expected %1, but %2").with(expected, found));
    return false;
  }
  bool refuse(const Sentence& expected, const Sentence& found) {
    return refuseAt(pointer(), expected, Sentence("Reading", "%1 stands here").with(found));
  }
  bool unexpected(const Sentence& found) {
    return refuse(field_ ? expectedBy(field_->kind) : Sentence("Reading", "an object"), found);
  }

  void warn(const Sentence& sentence) { result_.warnings.push_back(placed(pointer(), sentence)); }

  bool scalar(const Scalar& value) {
    const bool fits = field_ != nullptr && store(value);
    if (!fits && !error_) unexpected(describe(value));
    return fits;
  }

  /// False when the value is not of the kind that the field holds.
  bool store(const Scalar& value) {
    switch (field_->kind) {
      case Kind::text: return storeText(value);
      case Kind::date: return storeDate(value);
      case Kind::dateText: {
        if (const auto* text = std::get_if<std::string>(&value))
          level().dateTexts.emplace_back(field_, *text);
        return std::holds_alternative<std::string>(value) || isNull(value);
      }
      case Kind::integer: return storeInteger(value);
      case Kind::number: return storeNumber(value);
      default: return false;
    }
  }

  bool storeText(const Scalar& value) {
    std::optional<std::string> text;
    if (const auto* given = std::get_if<std::string>(&value)) {
      text = *given;
    } else if (!isNull(value)) {
      return false;
    }
    if (field_->value) {
      setValue(*field_->value, std::move(text));
    } else {
      examination().setNote(std::move(text));
    }
    return true;
  }

  bool storeDate(const Scalar& value) {
    std::optional<Date> date;
    if (const auto seconds = numberIn(value)) {
      date = Date{*seconds};
    } else if (const auto* text = std::get_if<std::string>(&value)) {
      date = foundation::dateFromIsoText(*text, calendar_);
      if (!date) return false;
    } else if (!isNull(value)) {
      return false;
    }
    setDate(*field_, date);
    return true;
  }

  void setDate(const Field& field, std::optional<Date> date) {
    if (field.value) {
      setValue(*field.value, date);
    } else {
      examination().setExamDate(date);
    }
  }

  template <typename Type>
  void setValue(const PatientValue& value, Type contents) {
    patient().values().*std::get<Type PatientValues::*>(value.member) = std::move(contents);
  }

  /// The text beside a date counts where the date itself is missing.
  bool takeDateTexts() {
    for (const auto& [field, text] : level().dateTexts) {
      if (level().seen.contains(field->date)) continue;
      const auto date = foundation::dateFromIsoText(text, calendar_);
      if (!date) {
        return refuseAt(pointer().append("/").append(field->name), expectedBy(Kind::dateText),
                        Sentence("Reading", "%1 stands here").with(describe(text)));
      }
      setDate(*field, date);
    }
    return true;
  }

  bool storeInteger(const Scalar& value) {
    const auto* number = std::get_if<Number>(&value);
    if (!number) return false;
    if (!number->integer) {
      const bool isWhole = number->value == std::trunc(number->value);
      return refuse(isWhole ? Sentence("Reading", "a whole number of at most 64 bits")
                            : Sentence("Reading", "a whole number"),
                    describe(value));
    }
    const std::int64_t integer = *number->integer;
    if (const std::int32_t low = foundation::low32Bits(integer); low != integer) {
      warn(Sentence("Reading", "%1 is longer than 32 bits; the file holds the low 32, which are %2")
               .with(integer, low));
    }
    setValue(*field_->value, integer);
    return true;
  }

  bool storeNumber(const Scalar& value) {
    const auto number = numberIn(value);
    if (!number) return false;
    if (std::isfinite(*number) && !std::isfinite(foundation::narrowedToFloat(*number))) {
      warn(Sentence("Reading", "%1 is beyond single precision; the file holds %2")
               .with(foundation::shortestText(*number),
                     foundation::shortestText(foundation::narrowedToFloat(*number))));
    }
    if (field_->value) {
      setValue(*field_->value, *number);
    } else {
      fetus().biometry().*field_->length = *number;
    }
    return true;
  }

  static bool isNull(const Scalar& value) { return std::holds_alternative<std::nullptr_t>(value); }

  /// A number, or one of the three texts for those that JSON lacks.
  static std::optional<double> numberIn(const Scalar& value) {
    if (const auto* number = std::get_if<Number>(&value)) return number->value;
    const auto* text = std::get_if<std::string>(&value);
    if (!text) return std::nullopt;
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const double special : {std::numeric_limits<double>::quiet_NaN(), kInfinity, -kInfinity}) {
      if (*text == foundation::shortestText(special)) return special;
    }
    return std::nullopt;
  }

  /// The library's reason without its own account of the place, and without what it read last and what follows that:
  /// the text may be long, and may look like the rest of the reason.
  static Sentence inPlainWords(std::string_view reason) {
    reason = reason.substr(0, reason.find("; last read: "));
    if (reason.find("number overflow") != std::string_view::npos)
      return Sentence("Reading", "this number is beyond 64 bits");
    constexpr std::string_view kDash = " - ";  // behind "syntax error while parsing value" and the like
    return Sentence::verbatim(std::string(reason.substr(reason.find(kDash) + kDash.size())));
  }

  std::string_view source_;
  std::size_t skipped_;
  const foundation::Calendar& calendar_;
  PatientFromJson result_{.patient = std::make_unique<PatientRecord>(), .warnings = {}};
  std::optional<Sentence> error_;
  Place place_ = Place::top;
  const Field* field_ = nullptr;  ///< of the object at hand, once its key is read
  Level patientLevel_;
  Level examinationLevel_;
  Level fetusLevel_;
};

}  // namespace

PatientFromJson patientFromJson(std::string_view text, const foundation::Calendar& calendar) {
  // The library takes a zero byte for the end, whatever follows.
  if (const auto zero = text.find('\0'); zero != std::string_view::npos) {
    throw JsonDocumentError(Receiver::placedInText(
        text, zero + 1, Sentence("Reading", "expected JSON, but a zero byte stands here")));
  }
  // The library writes the blanks before a token into its message one by one, which takes long for a mebibyte of them. A
  // byte order mark may stand at the very beginning alone.
  std::size_t blanks = std::min(text.find_first_not_of(" \t\r\n"), text.size());
  if (blanks < text.size() && text[blanks] == '\xEF') blanks = 0;
  Receiver receiver(text, blanks, calendar);
  const std::string_view json = text.substr(blanks);
  if (!nlohmann::json::sax_parse(json.begin(), json.end(), &receiver))
    throw JsonDocumentError(receiver.error());
  return receiver.takeResult();
}

}  // namespace nascor::model
