// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "drive/Driver.h"

#include <stdlib.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <set>
#include <stdexcept>

#include "app/PageTexts.h"
#include "calc/References.h"
#include "drive/Drawing.h"
#include "drive/Outside.h"
#include "drive/Script.h"
#include "foundation/ConvertInteger.h"
#include "foundation/IsoDate.h"
#include "foundation/JsonText.h"
#include "foundation/UserDefaults.h"
#include "model/PatientJson.h"
#include "model/PatientPage.h"
#include "support/ReadOnlyFields.h"

namespace nascor::drive {
namespace {

using app::NCDocument;
using foundation::NotificationName;

/// A line that cannot be done; the text says why.
struct CannotBeDone : std::runtime_error {
  using std::runtime_error::runtime_error;
};

[[noreturn]] void refuse(const std::string& sentence) { throw CannotBeDone(sentence); }

std::string textArgument(const Json& json, std::string_view wanted) {
  if (!json.is_string()) refuse("expected " + std::string(wanted));
  return json.get<std::string>();
}

std::int64_t integerArgument(const Json& json, std::string_view wanted) {
  if (!json.is_number_integer()) refuse("expected " + std::string(wanted));
  return json.get<std::int64_t>();
}

/// A page by its word on the command line, "report", or by its index.
std::int64_t pageArgument(const Json& json) {
  for (const model::PatientPageFacts& each : model::kPatientPages) {
    if (json == Json(each.word)) return model::indexOf(each.page);
  }
  return integerArgument(json, "the index or the word of a page");
}

double numberArgument(const Json& json, std::string_view wanted) {
  if (json.is_string()) {
    const auto text = json.get<std::string>();
    if (text == "nan") return std::nan("");
    if (text == "inf") return HUGE_VAL;
    if (text == "-inf") return -HUGE_VAL;
  }
  if (!json.is_number()) refuse("expected " + std::string(wanted));
  return json.get<double>();
}

bool boolArgument(const Json& json, std::string_view wanted) {
  if (!json.is_boolean()) refuse("expected " + std::string(wanted));
  return json.get<bool>();
}

std::filesystem::path makeScratchFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "nascor-drive-XXXXXX").string();
  if (!::mkdtemp(name.data())) throw std::runtime_error("no scratch folder can be made");
  return std::filesystem::canonical(name);
}

void setZone(const std::string& name) {
  ::setenv("TZ", name.c_str(), 1);
  ::tzset();
}

framework::TextField& fieldNamed(const NCDocument& document, const std::string& name) {
  framework::TextField* field = document.fieldNamed(name);
  if (field == nullptr) refuse("there is no field \"" + name + "\"");
  return *field;
}

framework::Panel& panelNamed(const NCDocument& document, const std::string& name) {
  framework::Panel* panel = document.panelNamed(name);
  if (panel == nullptr) refuse("there is no window \"" + name + "\"");
  return *panel;
}

std::vector<framework::CheckBox*> checkBoxes(NCDocument& document) {
  std::vector<framework::CheckBox*> boxes;
  for (const calc::Measurement measurement : calc::kMeasurements)
    boxes.push_back(&document.measurementsPanel().row(measurement).check);
  return boxes;
}

Json lengths(const model::MeasurementsRecord* record) {
  if (!record) return nullptr;
  return {{"bpd", record->bpd()}, {"hc", record->hc()}, {"ac", record->ac()}, {"fl", record->fl()}};
}

/// The arguments of an operation, taken one after the other.
class Arguments {
 public:
  explicit Arguments(const Json& call) : call_(call) {}
  std::int64_t integer() { return integerArgument(next(), "a whole number"); }
  std::uint64_t index() { return static_cast<std::uint64_t>(integer()); }
  double number() { return numberArgument(next(), "a number"); }
  bool truth() { return boolArgument(next(), "true or false"); }
  std::string text() { return textArgument(next(), "a text"); }
  bool truthOr(bool missing) { return at_ < call_.size() ? truth() : missing; }

 private:
  const Json& next() {
    if (at_ >= call_.size()) refuse("an argument is missing");
    return call_[at_++];
  }
  const Json& call_;
  std::size_t at_ = 1;
};

/// A page that was not exported is an error, unless a field holds it back, which is told by what is not done.
void tellFailure(NCDocument& document, const std::string& sentence) {
  if (!document.fieldEditor().field()) refuse(sentence);
}

/// The rows of that table as texts; null for a table that is not there.
Json comparisonJson(const NCDocument& document, const std::string& name) {
  for (const compare::Table& table : app::comparison(document)) {
    if (table.name != name) continue;
    Json rows = Json::array();
    for (const compare::Row& row : table.rows) {
      Json& cells = rows.emplace_back(Json::array());
      for (const compare::Cell& cell : row.cells) cells.push_back(cell.text);
    }
    return rows;
  }
  return nullptr;
}

/// Rows and notes of that table of the fetus on show in the summary; null for a table that is not there.
Json summaryJson(const NCDocument& document, const std::string& name) {
  const auto summary = document.patientSummary();
  if (!summary) return nullptr;
  const auto& fetus = summary->fetuses.at(static_cast<std::size_t>(document.currentFetus()));
  for (const summary::Table* table : {&fetus.measurements, &fetus.weights, &fetus.growth}) {
    if (table->name != name) continue;
    Json rows = Json::array();
    for (const summary::Row& row : table->rows) {
      Json& cells = rows.emplace_back(Json::array());
      for (const summary::Cell& cell : row.cells) cells.push_back(cell.text);
    }
    return {{"rows", rows}, {"notes", table->notes}};
  }
  return nullptr;
}

Json summaryFactsJson(const NCDocument& document) {
  const auto summary = document.patientSummary();
  if (!summary) return nullptr;
  Json facts = Json::object();
  for (const summary::Fact& fact :
       summary->fetuses.at(static_cast<std::size_t>(document.currentFetus())).facts)
    facts[fact.label] = fact.value;
  return facts;
}

/// Stories have no paper.
std::variant<summary::Typesetter*, foundation::Sentence> noTypesetter() {
  return foundation::Sentence::verbatim("nothing is put on paper here");
}

Json optionalJson(const std::optional<std::string>& text) { return text ? Json(*text) : Json(); }

using Operation = std::function<Json(NCDocument&, Arguments&)>;

template <class Action>
Operation act(Action action) {
  return [action](NCDocument& document, Arguments& arguments) -> Json {
    action(document, arguments);
    return nullptr;
  };
}

const std::map<std::string, Operation, std::less<>>& operations() {
  static const std::map<std::string, Operation, std::less<>> table{
      // Records
      {"lastExam", [](NCDocument& d, Arguments&) { return Json(d.lastExam()); }},
      {"currentExam", [](NCDocument& d, Arguments&) { return Json(d.currentExam()); }},
      {"currentFetus", [](NCDocument& d, Arguments&) { return Json(d.currentFetus()); }},
      {"numberOfExaminations", [](NCDocument& d, Arguments&) { return Json(d.numberOfExaminations()); }},
      {"measurementsForFetus",
       [](NCDocument& d, Arguments& a) {
         const auto fetus = a.integer();
         return lengths(d.measurementsForFetus(fetus, a.integer()));
       }},
      {"measurementsForCurrentFetus",
       [](NCDocument& d, Arguments& a) { return lengths(d.measurementsForCurrentFetus(a.integer())); }},
      {"lastMeasurementsRecordForCurrentFetus",
       [](NCDocument& d, Arguments&) { return lengths(d.lastMeasurementsRecordForCurrentFetus()); }},
      {"extrapolatedMeasurements",
       [](NCDocument& d, Arguments&) { return lengths(&d.extrapolatedMeasurements()); }},
      // Dating
      {"menstrualAgeForRecord",
       [](NCDocument& d, Arguments& a) { return Json(d.menstrualAgeForRecord(a.index())); }},
      {"menstrualAgeStringForRecord",
       [](NCDocument& d, Arguments& a) { return Json(d.menstrualAgeStringForRecord(a.index())); }},
      {"menstrualAgeStringForGestation",
       [](NCDocument& d, Arguments& a) { return Json(d.menstrualAgeStringForGestation(a.number())); }},
      {"menstrualAgeFromCRLHadlock",
       [](NCDocument& d, Arguments& a) { return Json(d.menstrualAgeFromCRLHadlock(a.number())); }},
      {"menstrualAgeFromCRLNelson",
       [](NCDocument& d, Arguments& a) { return Json(d.menstrualAgeFromCRLNelson(a.number())); }},
      {"menstrualAgeFromCRLRobinson",
       [](NCDocument& d, Arguments& a) { return Json(d.menstrualAgeFromCRLRobinson(a.number())); }},
      {"menstrualAgeFromCRLWesterway",
       [](NCDocument& d, Arguments& a) { return Json(d.menstrualAgeFromCRLWesterway(a.number())); }},
      {"adjustDeliveryDate", act([](NCDocument& d, Arguments&) { d.adjustDeliveryDate(&d); })},
      {"updateAdjustDeliveryStepperForNewStandard",
       act([](NCDocument& d, Arguments&) { d.updateAdjustDeliveryStepperForNewStandard(); })},
      {"canAdjustDelivery", [](NCDocument& d, Arguments&) { return Json(d.canAdjustDelivery()); }},
      {"doAdjustDeliveryDate", act([](NCDocument& d, Arguments&) { d.doAdjustDeliveryDate(&d); })},
      {"doSetEDDfromCRL", act([](NCDocument& d, Arguments&) { d.doSetEDDfromCRL(&d); })},
      {"okSetEDDfromCRL", act([](NCDocument& d, Arguments&) { d.okSetEDDfromCRL(&d); })},
      {"doSetEDDfromLMP", act([](NCDocument& d, Arguments&) { d.doSetEDDfromLMP(&d); })},
      {"okSetEDDfromLMP", act([](NCDocument& d, Arguments&) { d.okSetEDDfromLMP(&d); })},
      {"doSetEDDfromMeasurements", act([](NCDocument& d, Arguments&) { d.doSetEDDfromMeasurements(&d); })},
      {"updateEDDfromMeasurements", act([](NCDocument& d, Arguments&) { d.updateEDDfromMeasurements(&d); })},
      {"okSetEDDfromMeasurements", act([](NCDocument& d, Arguments&) { d.okSetEDDfromMeasurements(&d); })},
      {"avGestation", [](NCDocument& d, Arguments&) { return Json(d.avGestation()); }},
      {"checkOverwriteEDD",
       act([](NCDocument& d, Arguments& a) { d.checkOverwriteEDD(panelNamed(d, a.text())); })},
      {"checkOverwriteEDDAlertDidEnd", act([](NCDocument& d, Arguments& a) {
         const auto returnCode = static_cast<framework::AlertReturn>(a.integer());
         d.checkOverwriteEDDAlertDidEnd(returnCode, panelNamed(d, a.text()));
       })},
      // Projection
      {"extrapolatedBPDForCurrentFetus",
       [](NCDocument& d, Arguments&) { return Json(d.extrapolatedBPDForCurrentFetus()); }},
      {"extrapolatedHCForCurrentFetus",
       [](NCDocument& d, Arguments&) { return Json(d.extrapolatedHCForCurrentFetus()); }},
      {"extrapolatedACForCurrentFetus",
       [](NCDocument& d, Arguments&) { return Json(d.extrapolatedACForCurrentFetus()); }},
      {"extrapolatedFLForCurrentFetus",
       [](NCDocument& d, Arguments&) { return Json(d.extrapolatedFLForCurrentFetus()); }},
      // The window
      {"windowControllerDidLoadNib", act([](NCDocument& d, Arguments&) { d.windowControllerDidLoadNib(); })},
      {"windowWillClose", act([](NCDocument& d, Arguments&) { d.windowWillClose(); })},
      {"synchronizeFromData", act([](NCDocument& d, Arguments&) { d.synchronizeFromData(); })},
      {"synchronizeToData", act([](NCDocument& d, Arguments&) { d.synchronizeToData(); })},
      {"updateDisplay", act([](NCDocument& d, Arguments&) { d.updateDisplay(); })},
      {"directUpdateDisplayAndSetDirty",
       act([](NCDocument& d, Arguments& a) { d.directUpdateDisplayAndSetDirty(a.truthOr(true)); })},
      {"switchToGraph", act([](NCDocument& d, Arguments& a) { d.switchToGraph(a.integer()); })},
      {"spokenPage", [](NCDocument& d, Arguments& a) { return Json(app::spokenPage(d, a.integer())); }},
      {"comparison", [](NCDocument& d, Arguments& a) { return comparisonJson(d, a.text()); }},
      {"comparisonHeading", [](NCDocument& d, Arguments&) { return Json(app::comparisonHeading(d)); }},
      {"isBlank", [](NCDocument& d, Arguments&) { return Json(d.isBlank()); }},
      {"lookUp", act([](NCDocument& d, Arguments& a) {
         const std::string name = a.text();
         d.lookUp(name, a.truthOr(true));
       })},
      {"preferredFileName", [](NCDocument& d, Arguments& a) { return Json(d.preferredFileName(a.truth())); }},
      // Examinations and fetuses
      {"addExamination", act([](NCDocument& d, Arguments&) { d.addExamination(); })},
      {"deleteCurrentExamination", act([](NCDocument& d, Arguments&) { d.deleteCurrentExamination(); })},
      {"setCurrentRecordFromClick",
       act([](NCDocument& d, Arguments& a) { d.setCurrentRecordFromClick(a.number()); })},
      {"updateArrayOrder", act([](NCDocument& d, Arguments&) { d.updateArrayOrder(); })},
      {"chooseFetus", act([](NCDocument& d, Arguments&) { d.chooseFetus(d.multiplePopUp()); })},
      {"addFetus", act([](NCDocument& d, Arguments&) { d.addFetus(&d); })},
      {"deleteFetusAlertDidEnd", act([](NCDocument& d, Arguments& a) {
         d.deleteFetusAlertDidEnd(static_cast<framework::AlertReturn>(a.integer()));
       })},
      {"deleteFetus", act([](NCDocument& d, Arguments&) { d.deleteFetus(&d); })},
      {"updateMultiplePopUp", act([](NCDocument& d, Arguments&) { d.updateMultiplePopUp(); })},
      {"undo", act([](NCDocument& d, Arguments&) { d.undo(); })},
      {"redo", act([](NCDocument& d, Arguments&) { d.redo(); })},
      {"undoName", [](NCDocument& d, Arguments&) { return optionalJson(d.undoName()); }},
      {"redoName", [](NCDocument& d, Arguments&) { return optionalJson(d.redoName()); }},
      {"updateShowAll", act([](NCDocument& d, Arguments&) { d.updateShowAll(); })},
      {"addExaminationAction", act([](NCDocument& d, Arguments&) { d.addExaminationAction(); })},
      {"deleteExaminationAction", act([](NCDocument& d, Arguments&) { d.deleteExaminationAction(); })},
      {"nextExamination", act([](NCDocument& d, Arguments&) { d.nextExamination(); })},
      {"previousExamination", act([](NCDocument& d, Arguments&) { d.previousExamination(); })},
      // Files and the printer
      {"doExport", act([](NCDocument& d, Arguments&) {
         if (const auto sentence = d.doExport(nullptr)) tellFailure(d, *sentence);
       })},
      {"autoExport", act([](NCDocument& d, Arguments&) {
         const auto sentences = d.autoExport();
         if (!sentences.empty()) tellFailure(d, sentences.front());
       })},
      {"exportSummary", act([](NCDocument& d, Arguments& a) {
         if (const auto sentence = d.exportSummary(a.text(), noTypesetter)) tellFailure(d, *sentence);
       })},
      {"exportData", act([](NCDocument& d, Arguments& a) {
         if (const auto sentence = d.exportData(a.text())) tellFailure(d, *sentence);
       })},
      {"dataAsCsv", [](NCDocument& d, Arguments&) { return Json(d.dataAsCsv()); }},
      {"dataAsJson", [](NCDocument& d, Arguments&) { return Json(d.dataAsJson()); }},
      {"dataFileName", [](NCDocument& d, Arguments& a) { return Json(d.dataFileName(a.text())); }},
      {"summary", [](NCDocument& d, Arguments& a) { return summaryJson(d, a.text()); }},
      {"summaryFacts", [](NCDocument& d, Arguments&) { return summaryFactsJson(d); }},
      {"summaryFileName", [](NCDocument& d, Arguments& a) { return Json(d.summaryFileName(a.text())); }},
      {"printDocumentWithSettings",
       act([](NCDocument& d, Arguments& a) { d.printDocumentWithSettings({}, a.truth(), {}); })},
      // Standards
      {"standard", [](NCDocument& d, Arguments&) { return Json(d.standard()); }},
      {"fetalWeightStandard", [](NCDocument& d, Arguments&) { return Json(d.fetalWeightStandard()); }},
      {"doSetStandard", act([](NCDocument& d, Arguments& a) { d.doSetStandard(a.integer()); })},
      {"doSetEFWStandard", act([](NCDocument& d, Arguments& a) { d.doSetEFWStandard(a.integer()); })},
      {"doSetCRLStandard", act([](NCDocument& d, Arguments& a) { d.doSetCRLStandard(a.integer()); })},
      // What is drawn over the charts: the name of a reference, or none; whether marks are joined
      {"setOverlay", act([](NCDocument& d, Arguments& a) {
         const std::string name = a.text();
         const calc::Reference* reference = calc::referenceNamed(name);
         if (reference == nullptr && !name.empty()) refuse("there is no reference \"" + name + "\"");
         d.setOverlay({.centiles = reference, .joinsMarks = a.truth()});
       })},
  };
  return table;
}

void write(foundation::JsonText& out, const Json& json) {
  switch (json.type()) {
    case Json::value_t::object:
      out.beginObject();
      for (const auto& [key, value] : json.items()) {
        out.key(key);
        write(out, value);
      }
      out.endObject();
      break;
    case Json::value_t::array:
      out.beginArray();
      for (const Json& element : json) write(out, element);
      out.endArray();
      break;
    case Json::value_t::string: out.text(json.get_ref<const std::string&>()); break;
    case Json::value_t::boolean: out.boolean(json.get<bool>()); break;
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned: out.integer(json.get<std::int64_t>()); break;
    case Json::value_t::number_float: out.number(json.get<double>()); break;
    default: out.null(); break;
  }
}

}  // namespace

std::string textOf(const Json& json) {
  std::string text;
  foundation::JsonText out(text);
  write(out, json);
  return text;
}

Driver::Driver()
    : startFolder_(std::filesystem::current_path()),
      scratchFolder_(makeScratchFolder()),
      startZone_(::getenv("TZ") ? std::optional<std::string>(::getenv("TZ")) : std::nullopt),
      clock_({816948000.0}),  // 2026-11-21 10:00 UTC
      calendar_((setZone("UTC"), std::make_unique<posix::PosixCalendar>())),
      files_(scratchFolder_.string(), clock_),
      panels_(scratchFolder_.string()),
      services_{.clock = clock_,
                .calendar = *calendar_,
                .localizer = localizer_,
                .defaults = defaults_,
                .files = files_,
                .log = log_,
                .notifications = notifications_},
      documents_(services_, alerts_, panels_),
      application_(services_, documents_, {.resourcePath = "/usr/share/nascor", .viewer = &viewer_}) {
  std::filesystem::current_path(scratchFolder_);
  recordPosts();
  documents_.setFactory([this] {
    auto document = std::make_unique<NCDocument>(framework::DocumentEnvironment{.services = services_,
                                                                                .alerts = alerts_,
                                                                                .controller = documents_,
                                                                                .panels = &panels_,
                                                                                .pageWriter = &pageWriter_,
                                                                                .printer = &printer_});
    Followed& followed = followed_[document.get()] = {};
    followed.subscriptions.push_back(
        document->multiplePopUp().onAnimationEffect.subscribe([this](int effect, framework::Point at) {
          effects_.push_back({effect, at.x, at.y});
        }));
    for (framework::TextField* field : document->textFields())
      followed.subscriptions.push_back(
          field->onSelectText.subscribe([this, field] { selected_ = field->name(); }));
    document->takePreferredOverlay();
    followed.subscriptions.push_back(
        document->tabView().onNeedsDisplay.subscribe([&followed] { ++followed.displays; }));
    return document;
  });
  subscriptions_.push_back(documents_.onDocumentAdded.subscribe(
      [this](framework::ZuDocument& added) { numbers_.emplace(&added, nextNumber_++); }));
  subscriptions_.push_back(documents_.onDocumentRemoved.subscribe([this](framework::ZuDocument& removed) {
    numbers_.erase(&removed);
    importing_.forget(removed);
    followed_.erase(&removed);
    if (recovery_) recovery_->forget(removed);
  }));
  startRecovery();
  application_.awakeFromNib();
  pageWriter_.onSheet = printer_.onSheet = [this](const framework::Sheet& sheet) {
    paper_.push_back(marksOf(sheet.page));
    overPaper_.push_back(overlayOf(sheet.page));
  };
}

Driver::~Driver() {
  std::error_code ignored;
  std::filesystem::current_path(startFolder_, ignored);
  std::filesystem::remove_all(scratchFolder_, ignored);
  if (startZone_) {
    setZone(*startZone_);
  } else {
    ::unsetenv("TZ");
    ::tzset();
  }
}

void Driver::recordPosts() {
  // The first observer of each name, so that a post stands here before anybody acts on it.
  for (const NotificationName name :
       {NotificationName::updateStandards, NotificationName::updateStandardsForEFW,
        NotificationName::updateShowAll}) {
    subscriptions_.push_back(
        notifications_.subscribe(name, [this](const foundation::Notification& notification) {
          posted_.push_back(
              {std::string(notification.name.text()),
               notification.sender ? Json(std::string(notification.sender->className())) : Json()});
        }));
  }
}

std::string Driver::answer(std::string_view line) {
  Json result;
  try {
    const Json request = Json::parse(line);
    if (!request.is_object() || request.size() != 1) refuse("expected one JSON object with one key");
    const auto member = request.begin();
    result = perform(member.key(), member.value());
  } catch (const Json::exception& error) {
    result = {{"error", error.what()}};
  } catch (const std::exception& error) {
    result = {{"error", error.what()}};
  }
  documents_.releaseClosedDocuments();
  return textOf(result);
}

Json Driver::perform(const std::string& key, const Json& argument) {
  static const std::map<std::string, Json (Driver::*)(const Json&), std::less<>> lines{
      {"open", &Driver::openDocument},   {"use", &Driver::use},
      {"save", &Driver::save},           {"close", &Driver::close},
      {"edit", &Driver::edit},           {"visit", &Driver::visit},
      {"revert", &Driver::revert},       {"answer", &Driver::answerQuestions},
      {"check", &Driver::check},         {"cancel", &Driver::cancel},
      {"do", &Driver::operation},        {"app", &Driver::applicationOperation},
      {"menu", &Driver::menu},           {"choose", &Driver::choose},
      {"step", &Driver::step},           {"tab", &Driver::tab},
      {"click", &Driver::click},         {"draw", &Driver::draw},
      {"advance", &Driver::advance},     {"zone", &Driver::zone},
      {"locale", &Driver::locale},       {"paper", &Driver::paper},
      {"marks", &Driver::marks},         {"outside", &Driver::outside},
      {"told", &Driver::told},           {"status", &Driver::status},
      {"type", &Driver::type},           {"beside", &Driver::beside},
      {"focus", &Driver::focus},         {"stale", &Driver::stale},
      {"additions", &Driver::additions}, {"advice", &Driver::advice},
      {"keep", &Driver::keep},           {"crash", &Driver::crash},
      {"recover", &Driver::recover},     {"over", &Driver::over},
      {"overPaper", &Driver::overPaper}, {"import", &Driver::import},
      {"decide", &Driver::decide},
  };
  if (key == "new" || key == "state") {
    if (argument != Json(true)) refuse("expected true");
    return key == "new" ? newDocument() : state();
  }
  if (key == "script") return script(argument, documents_, services_);
  const auto line = lines.find(key);
  if (line == lines.end()) refuse("there is no line \"" + key + "\"");
  return (this->*line->second)(argument);
}

Json Driver::newDocument() { return {{"number", numbers_.at(&documents_.newDocument())}}; }

Json Driver::openDocument(const Json& path) {
  foundation::FileError error;
  const std::string wanted = textArgument(path, "a path");
  // The next answer is for this question, should it be asked.
  const std::size_t asked = alerts_.choices.size();
  alerts_.choice = alerts_.answers.empty() ? "Cancel" : alerts_.answers.front();
  const framework::ZuDocument* opened = documents_.openDocument(wanted, error);
  if (alerts_.choices.size() > asked && !alerts_.answers.empty()) alerts_.answers.pop_front();
  if (!opened) refuse(error.details.empty() ? error.reason : error.details);
  return {{"number", numbers_.at(opened)}};
}

Json Driver::use(const Json& number) {
  const std::int64_t wanted = integerArgument(number, "the number of a document");
  for (framework::ZuDocument* open : documents_.documents()) {
    if (numbers_.at(open) != wanted) continue;
    documents_.setCurrentDocument(*open);
    documents_.lookAtFile(*open);
    return Json::object();
  }
  refuse("there is no document " + std::to_string(wanted));
}

Json Driver::save(const Json& target) {
  NCDocument& saved = document();
  if (!target.is_string() && target != Json(true)) refuse("expected a path or true");
  if (auto refusal = heldBack(saved)) return *refusal;
  if (!target.is_string() && !saved.filePath()) refuse("the document has no file yet");
  const std::size_t toldBefore = alerts_.told.size();
  bool isSaved = false;
  if (target.is_string()) {
    panels_.fileToSave = std::filesystem::absolute(target.get<std::string>()).string();
    isSaved = documents_.saveDocumentAs(saved);
    panels_.fileToSave.reset();
  } else {
    isSaved = documents_.saveDocument(saved);
  }
  if (!isSaved && alerts_.told.size() > toldBefore) refuse(alerts_.told.back());
  return {{"saved", isSaved}};
}

Json Driver::import(const Json& files) { return importing_.begin(files, document()); }

Json Driver::decide(const Json& decision) { return importing_.decide(decision); }

Json Driver::close(const Json& word) {
  const std::string choice = textArgument(word, "\"save\", \"discard\" or \"cancel\"");
  if (choice != "save" && choice != "discard" && choice != "cancel")
    refuse("expected save, discard or cancel");
  alerts_.choice = choice;
  return {{"closed", documents_.closeDocument(document())}};
}

Json Driver::edit(const Json& fieldAndText) {
  NCDocument& edited = document();
  if (fieldAndText.is_array() && !fieldAndText.empty() && fieldAndText[0] == edited.notesField().name()) {
    if (fieldAndText.size() != 2) refuse("expected a field and a text");
    const std::string text = textArgument(fieldAndText[1], "a text");
    const bool began = edited.fieldEditor().end() && edited.notesField().isEditable();
    if (began) edited.notesField().takeEditedText(text);
    return {{"began", began}, {"ended", began}};
  }
  const bool began = type(fieldAndText)["began"].get<bool>();
  return {{"began", began}, {"ended", began && edited.fieldEditor().end()}};
}

Json Driver::type(const Json& fieldAndText) {
  if (!fieldAndText.is_array() || fieldAndText.size() != 2) refuse("expected a field and a text");
  const std::string name = textArgument(fieldAndText[0], "the name of a field");
  const std::string text = textArgument(fieldAndText[1], "a text");
  framework::TextField& field = fieldNamed(document(), name);
  if (tests::isReadOnlyField(name)) refuse("nobody can type into \"" + name + "\"");
  framework::FieldEditor& editor = document().fieldEditor();
  const bool began = editor.begin(field);
  if (began) editor.replace(text);
  return {{"began", began}};
}

Json Driver::visit(const Json& field) {
  const std::string name = textArgument(field, "the name of a field");
  NCDocument& visited = document();
  const framework::TextField* entered =
      name == visited.notesField().name() ? nullptr : &fieldNamed(visited, name);
  // Entering a field leaves the one before, and the note; a visit itself changes nothing. A field that refuses is in edit already.
  const bool isInEdit = entered && visited.fieldEditor().field() == entered;
  const bool ended = visited.fieldEditor().end();
  if (entered) visited.noteWasLeft();
  return {{"began", isInEdit || ended}, {"ended", ended}};
}

Json Driver::revert(const Json& field) {
  NCDocument& reverted = document();
  if (field == Json(true)) {
    if (auto refusal = heldBack(reverted)) return *refusal;
    return {{"reverted", documents_.revertDocument(reverted)}};
  }
  const std::string name = textArgument(field, "the name of a field, or true for the whole document");
  // What is typed into the note is there at once.
  if (name == reverted.notesField().name()) return Json::object();
  const framework::TextField& named = fieldNamed(reverted, name);
  if (reverted.fieldEditor().field() == &named) reverted.fieldEditor().revert();
  return Json::object();
}

Json Driver::answerQuestions(const Json& buttons) {
  if (!buttons.is_array()) refuse("expected the titles of buttons");
  for (const Json& button : buttons) alerts_.answers.push_back(textArgument(button, "the title of a button"));
  return Json::object();
}

Json Driver::operation(const Json& call) {
  if (!call.is_array() || call.empty()) refuse("expected an operation and its arguments");
  const std::string name = textArgument(call[0], "the name of an operation");
  const auto found = operations().find(name);
  if (found == operations().end()) refuse("there is no operation \"" + name + "\"");
  // What a click in the window does waits for the field in edit; the other operations go straight to the document.
  static const std::set<std::string, std::less<>> guarded{"addExaminationAction", "deleteExaminationAction",
                                                          "nextExamination", "previousExamination"};
  if (guarded.contains(name)) {
    if (auto refusal = heldBack(document())) return *refusal;
  }
  Arguments arguments(call);
  return {{"result", found->second(document(), arguments)}};
}

Json Driver::applicationOperation(const Json& call) {
  if (!call.is_array() || call.empty()) refuse("expected an operation and its arguments");
  const std::string name = textArgument(call[0], "the name of an operation");
  if (NCDocument* front = currentDocument()) {
    if (auto refusal = heldBack(*front)) return *refusal;
  }
  Arguments arguments(call);
  const auto tagged = [&] {
    framework::MenuItem item;
    item.tag = arguments.integer();
    return item;
  };
  if (name == "toggleShowAll") {
    application_.toggleShowAll(application_.showAllMenuItem());
  } else if (name == "doHelp") {
    application_.doHelp();
  } else if (name == "doAdjustDeliveryDate") {
    application_.doAdjustDeliveryDate(&application_);
  } else if (name == "doSetStandard") {
    application_.doSetStandard(tagged());
  } else if (name == "doSetEFWStandard") {
    application_.doSetEFWStandard(tagged());
  } else if (name == "doSetCRLStandard") {
    application_.doSetCRLStandard(tagged());
  } else {
    refuse("there is no operation \"" + name + "\" of the application");
  }
  return {{"result", nullptr}};
}

Json Driver::menu(const Json& choice) {
  if (!choice.is_array() || choice.size() != 2) refuse("expected a menu and an item");
  const std::string menuTitle = textArgument(choice[0], "the title of a menu");
  std::vector<framework::MenuItem> items = application_.standardsMenuItems();
  items.push_back(application_.showAllMenuItem());
  const auto item = std::ranges::find_if(items, [&](const framework::MenuItem& candidate) {
    if (candidate.menuTitle != menuTitle) return false;
    return choice[1].is_string() ? choice[1] == Json(candidate.title) : choice[1] == Json(candidate.tag);
  });
  if (item == items.end()) refuse("there is no such item");
  if (NCDocument* front = currentDocument()) {
    if (auto refusal = heldBack(*front)) return *refusal;
  }
  const bool enabled = application_.validateMenuItem(*item);
  const std::int64_t state = item->state;
  if (enabled && !application_.chooseStandard(*item))
    application_.toggleShowAll(application_.showAllMenuItem());
  return {{"enabled", enabled}, {"state", state}};
}

Json Driver::choose(const Json& index) {
  NCDocument& chosen = document();
  const std::int64_t wanted = integerArgument(index, "the index of an item");
  if (auto refusal = heldBack(chosen)) return *refusal;
  chosen.multiplePopUp().selectItemAtIndex(wanted);
  chosen.chooseFetus(chosen.multiplePopUp());
  return Json::object();
}

Json Driver::check(const Json& boxAndState) {
  if (!boxAndState.is_array() || boxAndState.size() != 2) refuse("expected a check box and true or false");
  const std::string name = textArgument(boxAndState[0], "the name of a check box");
  const bool isOn = boolArgument(boxAndState[1], "true or false");
  NCDocument& changed = document();
  const auto boxes = checkBoxes(changed);
  const auto box = std::ranges::find(boxes, name, &framework::CheckBox::name);
  if (box == boxes.end()) refuse("there is no check box \"" + name + "\"");
  if (auto refusal = heldBack(changed)) return *refusal;
  (*box)->setOn(isOn);
  changed.updateEDDfromMeasurements(nullptr);
  return Json::object();
}

Json Driver::cancel(const Json& window) {
  NCDocument& shown = document();
  shown.cancelDialog(panelNamed(shown, textArgument(window, "the name of a window")));
  return Json::object();
}

Json Driver::step(const Json& days) {
  NCDocument& stepped = document();
  const double wanted = numberArgument(days, "a number of days");
  if (auto refusal = heldBack(stepped)) return *refusal;
  stepped.adjustDeliveryStepper().setValue(wanted);
  stepped.adjustDeliveryDate(nullptr);
  return {{"value", stepped.adjustDeliveryStepper().value()}};
}

Json Driver::tab(const Json& page) {
  NCDocument& shown = document();
  const std::int64_t wanted = pageArgument(page);
  if (auto refusal = heldBack(shown)) return *refusal;
  shown.switchToGraph(wanted);
  return Json::object();
}

Json Driver::click(const Json& click) {
  if (!click.is_array() || click.size() != 4) refuse("expected [page, x, y, count]");
  NCDocument& clicked = document();
  const std::int64_t shown = pageArgument(click[0]);
  const framework::Point place{.x = numberArgument(click[1], "a number"),
                               .y = numberArgument(click[2], "a number")};
  const std::int64_t count = integerArgument(click[3], "a number of clicks");
  framework::Page& page = clicked.tabView().page(shown);
  if (auto refusal = heldBack(clicked)) return *refusal;
  clicked.switchToGraph(shown);
  layOutAndPaint(page);
  page.click(place, static_cast<int>(count));
  return Json::object();
}

Json Driver::draw(const Json& drawn) {
  const bool hasSize = drawn.is_array();
  if (hasSize && drawn.size() != 3) refuse("expected [page, width, height]");
  framework::Page& page = document().tabView().page(pageArgument(hasSize ? drawn[0] : drawn));
  const double width = hasSize ? numberArgument(drawn[1], "a number") : framework::Page::kWidth;
  const double height = hasSize ? numberArgument(drawn[2], "a number") : framework::Page::kHeight;
  return {{"draw", drawingOf(page, width, height)}};
}

Json Driver::marks(const Json& page) {
  return {{"marks", marksOf(document().tabView().page(pageArgument(page)))}};
}

Json Driver::advice(const Json& page) {
  return {{"advice", app::adviceOnPage(document(), pageArgument(page))}};
}

Json Driver::paper(const Json& word) {
  if (word != Json(true)) refuse("expected true");
  return {{"paper", std::exchange(paper_, Json::array())}};
}

Json Driver::over(const Json& page) {
  return {{"over", overlayOf(document().tabView().page(pageArgument(page)))}};
}

Json Driver::overPaper(const Json& word) {
  if (word != Json(true)) refuse("expected true");
  return {{"overPaper", std::exchange(overPaper_, Json::array())}};
}

void Driver::startRecovery() {
  recoveryFolder_.emplace((scratchFolder_ / ".state" / "recovery").string());
  recovery_.emplace(services_, documents_, alerts_, *recoveryFolder_);
}

Json Driver::keep(const Json& word) {
  if (word != Json(true)) refuse("expected true");
  recovery_->keepChanges();
  return {{"kept", recoveryFolder_->files().size()}};
}

Json Driver::crash(const Json& word) {
  if (word != Json(true)) refuse("expected true");
  recovery_.reset();
  recoveryFolder_.reset();
  alerts_.choice = "discard";
  while (documents_.currentDocument()) documents_.closeDocument(*documents_.currentDocument());
  startRecovery();
  return Json::object();
}

Json Driver::recover(const Json& button) {
  alerts_.choice = textArgument(button, "a button");
  alerts_.choiceInformation.clear();
  const std::int64_t before = nextNumber_;
  recovery_->offer();
  Json opened = Json::array();
  for (std::int64_t number = before; number < nextNumber_; ++number) opened.push_back(number);
  return {{"offered", std::exchange(alerts_.choiceInformation, {})}, {"opened", std::move(opened)}};
}

Json Driver::told(const Json& word) {
  if (word != Json(true)) refuse("expected true");
  return {{"told", std::exchange(alerts_.told, {})}};
}

Json Driver::status(const Json& word) {
  if (word != Json(true)) refuse("expected true");
  return {{"status", document().statusLine().message()}};
}

Json Driver::beside(const Json& word) {
  if (word != Json(true)) refuse("expected true");
  Json texts = Json::object();
  for (const framework::TextField* text : document().assessment().texts()) texts[text->name()] = text->text();
  return {{"beside", texts}};
}

Json Driver::focus(const Json& word) {
  if (word != Json(true)) refuse("expected true");
  return {{"focus", std::exchange(selected_, {})}};
}

Json Driver::stale(const Json& word) {
  if (word != Json(true)) refuse("expected true");
  Json names = Json::array();
  for (const framework::TextField* field : document().textFields()) {
    if (field->isStale()) names.push_back(field->name());
  }
  return {{"stale", names}};
}

Json Driver::additions(const Json& word) {
  if (word != Json(true)) refuse("expected true");
  Json texts = Json::array();
  for (const framework::Alert& alert : alerts_.asked) texts.push_back(alert.addition);
  return {{"additions", texts}};
}

Json Driver::outside(const Json& call) {
  if (!call.is_array() || call.empty()) refuse("expected what is done and to which files");
  std::vector<std::string> words;
  for (const Json& word : call) words.push_back(textArgument(word, "a text"));
  if (const auto why = doOutside(words)) refuse(*why);
  return Json::object();
}

Json Driver::advance(const Json& seconds) {
  clock_.advance(numberArgument(seconds, "a number of seconds"));
  return Json::object();
}

Json Driver::zone(const Json& name) {
  const std::string wanted = textArgument(name, "the name of a zone");
  if (wanted != "UTC" && (wanted.find("..") != std::string::npos ||
                          !std::filesystem::is_regular_file("/usr/share/zoneinfo/" + wanted))) {
    refuse("there is no zone \"" + wanted + "\"");
  }
  setZone(wanted);
  *calendar_ = posix::PosixCalendar();
  return Json::object();
}

Json Driver::locale(const Json& name) {
  const std::string wanted = textArgument(name, "the name of a locale");
  if (!localizer_.choose(wanted)) refuse("there is no locale \"" + wanted + "\"");
  return Json::object();
}

Json Driver::state() {
  Json result = currentDocument() ? documentState(*currentDocument()) : Json::object();
  result["defaults"] = defaultsState();
  result["posted"] = std::exchange(posted_, Json::array());
  Json asked = Json::array();
  for (const framework::Alert& alert : std::exchange(alerts_.asked, {})) {
    asked.push_back({alert.message, alert.information, alert.defaultButton, alert.alternateButton});
  }
  result["alerts"] = std::move(asked);
  result["log"] = std::exchange(log_.lines, {});
  addOutput(result);
  result["effects"] = std::exchange(effects_, Json::array());
  return result;
}

void Driver::addOutput(Json& result) {
  Json exports = Json::array();
  for (const auto& page : std::exchange(pageWriter_.written, {}))
    exports.push_back(std::filesystem::path(page.path).filename().string());
  Json prints = Json::array();
  for (const auto& page : std::exchange(printer_.printed, {}))
    prints.push_back({pageIndex(page.page), page.showsPanel});
  result["exports"] = std::move(exports);
  result["prints"] = std::move(prints);
  result["opened"] = std::exchange(viewer_.opened, {});
}

Json Driver::pageIndex(const framework::Page* page) {
  for (framework::ZuDocument* open : documents_.documents()) {
    framework::TabView& tabs = dynamic_cast<NCDocument&>(*open).tabView();
    for (std::int64_t index = 0; index < tabs.numberOfPages(); ++index) {
      if (&tabs.page(index) == page) return index;
    }
  }
  return nullptr;
}

Json Driver::documentState(NCDocument& shown) {
  Json fields = Json::object();
  Json marked = Json::object();
  for (const framework::TextField* field : shown.textFields()) {
    fields[field->name()] = field->text();
    if (field->isRed()) marked[field->name()] = "red";
  }
  fields[shown.notesField().name()] = shown.notesField().text();

  Json titles = Json::array();
  Json keys = Json::array();
  for (const auto& item : shown.multiplePopUp().items()) {
    titles.push_back(item.title);
    keys.push_back(item.keyEquivalent);
  }
  Json windows = Json::object();
  for (const framework::Panel* panel : shown.panels()) windows[panel->name()] = panel->isShown();
  Json checks = Json::object();
  for (const framework::CheckBox* box : checkBoxes(shown)) checks[box->name()] = box->isOn();
  const framework::Stepper& stepper = shown.adjustDeliveryStepper();

  std::string patient;
  if (shown.patientRecord()) {
    foundation::JsonText text(patient);
    model::writePatientJson(text, *shown.patientRecord(), *calendar_, model::JsonNumbers::inMemory);
  }
  return {{"number", numbers_.at(&shown)},
          {"fields", fields},
          {"popup",
           {{"titles", titles}, {"keys", keys}, {"selected", shown.multiplePopUp().indexOfSelectedItem()}}},
          {"tab", shown.tabView().indexOfSelectedPage()},
          {"currentExam", shown.currentExam()},
          {"currentFetus", shown.currentFetus()},
          {"edited", shown.isDocumentEdited()},
          {"blank", shown.isBlank()},
          {"lookUpRequired", shown.lookUpRequired()},
          {"windows", windows},
          {"checks", checks},
          {"stepper",
           {{"value", stepper.value()},
            {"minimum", stepper.minimum()},
            {"maximum", stepper.maximum()},
            {"increment", stepper.increment()}}},
          {"marked", marked},
          {"displays", followed_.at(&shown).displays},
          {"document", patient.empty() ? Json() : Json::parse(patient)}};
}

Json Driver::defaultsState() const {
  namespace key = foundation::defaults_key;
  Json result = Json::object();
  result[key::dataFileExtension] = defaults_.value(key::dataFileExtension).value_or("");
  // Registered as a text, written as a truth value.
  if (defaults_.written().contains(key::showAll)) {
    result[key::showAll] = foundation::boolForKey(defaults_, key::showAll);
  } else {
    result[key::showAll] = defaults_.value(key::showAll).value_or("");
  }
  for (const std::string_view name : {key::standard, key::estimatedFetalWeightStandard, key::crlStandard}) {
    result[name] = foundation::integerForKey(defaults_, name);
  }
  for (const auto& [name, value] : defaults_.written()) {
    if (!result.contains(name)) result[name] = value;
  }
  return result;
}

NCDocument* Driver::currentDocument() { return dynamic_cast<NCDocument*>(documents_.currentDocument()); }

NCDocument& Driver::document() {
  NCDocument* current = currentDocument();
  if (!current) refuse("there is no document");
  return *current;
}

std::optional<Json> Driver::heldBack(NCDocument& held) {
  if (held.commitEditing()) return std::nullopt;
  return Json{{"refused", held.fieldEditor().field()->name()}};
}

}  // namespace nascor::drive
