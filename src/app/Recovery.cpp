// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/Recovery.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <variant>

#include "calc/Biometry.h"
#include "foundation/Calendar.h"
#include "foundation/HolderText.h"
#include "foundation/Localizer.h"
#include "foundation/Sentence.h"
#include "foundation/Utf8.h"
#include "model/PatientFile.h"

namespace nascor::app {
namespace {

using foundation::RecoveryFile;
using foundation::RecoveryOrigin;
using foundation::said;
using foundation::Sentence;
using foundation::translatable;
using framework::ZuDocument;
using model::PatientDifference;
using model::PatientRecord;

constexpr std::size_t kMostDifferences = 1000;
constexpr std::size_t kMostLines = 8;

/// Whether a patient who was never saved holds anything that a person entered.
bool holdsAnything(const PatientRecord& patient) {
  if (!patient.maternalIDString().value_or("").empty() || patient.edd() || patient.gravida() != 0)
    return true;
  return std::ranges::any_of(patient.ncRecordsArray(), [](const auto& exam) {
    return !exam->note().value_or("").empty() ||
           std::ranges::any_of(exam->measurements(),
                               [](const auto& record) { return calc::isAnyMeasured(record.biometry()); });
  });
}

struct Label {
  std::string_view key;
  std::string_view text;
};
constexpr std::array kLabels{
    Label{"maternalIDString", translatable("Recovery", "Reference ID")},
    Label{"edd", translatable("Recovery", "EDD")},
    Label{"standard", translatable("Recovery", "Growth standard")},
    Label{"fetalWeightStandard", translatable("Recovery", "Weight formula")},
    Label{"numberOfFetuses", translatable("Recovery", "Number of fetuses")},
    Label{"extrapolatedGestation", translatable("Recovery", "Planned delivery")},
    Label{"crlStandard", translatable("Recovery", "Formula for the crown-rump length")},
    Label{"gravida", translatable("Recovery", "Gravidity")}};
static_assert(std::ranges::equal(model::kPatientValues, kLabels, {}, &model::PatientValue::name,
                                 &Label::key));

/// The length and 64 bits (FNV-1a), which tell two states of a file apart.
std::string digestOf(std::span<const std::byte> bytes) {
  std::uint64_t hash = 0xcbf29ce484222325U;
  for (const std::byte byte : bytes) hash = (hash ^ std::to_integer<std::uint64_t>(byte)) * 0x100000001b3U;
  return std::to_string(bytes.size()) + " " + std::to_string(hash);
}

std::string_view labelOf(std::string_view key) {
  const auto found = std::ranges::find(kLabels, key, &Label::key);
  return found == kLabels.end() ? key : found->text;
}

}  // namespace

void Recovery::keepChanges() {
  for (ZuDocument* document : documents_.documents()) {
    if (document->isDocumentEdited()) {
      keep(*document);
    } else {
      forget(*document);
    }
  }
}

bool Recovery::hasWork() const {
  return std::ranges::any_of(documents_.documents(), [this](const ZuDocument* document) {
    return document->isDocumentEdited() || kept_.contains(document);
  });
}

bool Recovery::keep(ZuDocument& document) {
  std::vector<std::byte> contents = document.contentsAsTyped();
  RecoveryOrigin origin = originOf(document);
  Kept& kept = kept_[&document];
  if (kept.isWritten && kept.contents == contents && kept.origin == origin) return true;
  if (kept.number == 0) kept.number = ++lastNumber_;
  const auto error = store_.keep(kept.number, origin, contents);
  kept.isWritten = !error;
  if (error) {
    const Sentence sentence =
        Sentence("Recovery", "Unsaved changes cannot be kept against a crash. Please save: %1");
    document.remark(said(sentence.with(error->reason), services_.localizer));
    return false;
  }
  kept.contents = std::move(contents);
  kept.origin = std::move(origin);
  return true;
}

void Recovery::forget(const ZuDocument& document) {
  const auto kept = kept_.find(&document);
  if (kept == kept_.end()) return;
  store_.forget(kept->second.number);
  kept_.erase(kept);
}

std::size_t Recovery::offer() {
  std::size_t opened = 0;
  for (const RecoveryFile& file : store_.takeAbandoned()) opened += offer(file) ? 1 : 0;
  return opened;
}

RecoveryOrigin Recovery::originOf(const ZuDocument& document) const {
  if (!document.filePath()) return {};
  // The next program may run in another folder.
  RecoveryOrigin origin{.document = services_.files.resolvedPath(*document.filePath())};
  if (document.fileContents()) origin.basis = digestOf(*document.fileContents());
  return origin;
}

bool Recovery::isFileNewer(const RecoveryFile& file) const {
  if (file.origin.document.empty() || file.origin.basis.empty()) return false;
  const auto contents = services_.files.contents(file.origin.document);
  const auto* bytes = std::get_if<std::vector<std::byte>>(&contents);
  return bytes != nullptr && digestOf(*bytes) != file.origin.basis;
}

bool Recovery::offer(const RecoveryFile& file) {
  const auto contents = services_.files.contents(file.path);
  const auto* bytes = std::get_if<std::vector<std::byte>>(&contents);
  if (!bytes) {
    tellDamaged(file, std::get<foundation::FileError>(contents).reason);
    return false;
  }
  std::unique_ptr<PatientRecord> patient;
  try {
    patient = model::unarchivedPatient(*bytes).patient;
  } catch (const std::runtime_error& error) {
    tellDamaged(file, error.what());
    return false;
  }

  const PatientRecord none;
  const std::unique_ptr<PatientRecord> saved = savedPatient(file.origin.document);
  const auto differences = patient
                               ? model::patientDifferences(saved ? *saved : none, *patient, kMostDifferences)
                               : std::vector<PatientDifference>();
  if (differences.empty() || (file.origin.document.empty() && !holdsAnything(*patient))) {
    store_.remove(file);
    return false;
  }

  const std::size_t answer = alerts_.chooseOne(
      services_.localizer.text("Recovery",
                               "Nascor ended before the changes of this document were saved. Do you want to "
                               "recover them?"),
      informationOf(file, *patient, differences),
      {services_.localizer.text("Recovery", "Recover"), services_.localizer.text("Recovery", "Discard"),
       services_.localizer.text("Recovery", "Not Now")});
  enum : std::size_t { kRecover = 0, kDiscard = 1 };
  if (answer == kDiscard) store_.remove(file);
  if (answer != kRecover) return false;
  ZuDocument& document = documents_.recoverDocument(*bytes, file.origin.document, isFileNewer(file));
  // Not before it is kept again: it may be the only copy.
  if (keep(document)) store_.remove(file);
  return true;
}

std::unique_ptr<PatientRecord> Recovery::savedPatient(const std::string& path) const {
  if (path.empty()) return nullptr;
  const auto contents = services_.files.contents(path);
  const auto* bytes = std::get_if<std::vector<std::byte>>(&contents);
  if (!bytes) return nullptr;
  try {
    return model::unarchivedPatient(*bytes).patient;
  } catch (const std::runtime_error&) {
    return nullptr;  // opening the file tells why
  }
}

void Recovery::tellDamaged(const RecoveryFile& file, const std::string& reason) {
  const auto answer = alerts_.runModal(
      {.message = services_.localizer.text(
           "Recovery", "Unsaved changes were kept when Nascor ended, but they cannot be read."),
       .information = file.path + ": " + reason,
       .defaultButton = services_.localizer.text("Recovery", "Remove the File"),
       .alternateButton = services_.localizer.text("Recovery", "Keep the File"),
       .isCancelledByReturn = true});
  if (answer == framework::AlertReturn::defaultButton) store_.remove(file);
}

std::string Recovery::informationOf(const RecoveryFile& file, const PatientRecord& patient,
                                    const std::vector<PatientDifference>& differences) const {
  const auto& localizer = services_.localizer;
  const std::string identifier = foundation::shownLine(patient.maternalIDString().value_or(""));
  std::string information = localizer.text("Recovery", "Patient:");
  information.append(" ").append(identifier.empty() ? "-" : identifier);
  information.append("\n").append(localizer.text("Recovery", "Document:")).append(" ");
  information +=
      file.origin.document.empty() ? localizer.text("Recovery", "never saved") : file.origin.document;
  information.append("\n")
      .append(localizer.text("Recovery", "Last kept:"))
      .append(" ")
      .append(foundation::momentText(file.saved, services_.calendar, localizer));

  if (isFileNewer(file)) {
    information.append("\n\n").append(localizer.text(
        "Recovery", "The document was saved again since. What was saved then is not in these changes."));
  }

  std::vector<std::string> lines;
  const auto add = [&](std::string line) {
    if (lines.empty() || lines.back() != line) lines.push_back(std::move(line));
  };
  for (const PatientDifference& difference : differences) {
    const auto& examinations = patient.ncRecordsArray();
    if (!difference.examination) {
      add(localizer.text("Recovery", labelOf(difference.key)));
    } else if (difference.isMissingAfter) {
      add(localizer.text("Recovery", "An examination that was removed"));
    } else {
      const auto& date = examinations.at(*difference.examination)->examDate();
      const auto day = date ? foundation::localDay(*date, services_.calendar) : std::nullopt;
      const Sentence examination = Sentence("Recovery", "Examination of %1");
      add(day ? said(examination.with(localizer.longDateText(*day)), localizer)
              : localizer.text("Recovery", "An examination without a date"));
    }
  }
  information.append("\n\n").append(
      file.origin.document.empty() ? localizer.text("Recovery", "What it holds:")
                                   : localizer.text("Recovery", "What differs from the saved document:"));
  for (std::size_t i = 0; i < std::min(lines.size(), kMostLines); ++i)
    information.append("\n").append(lines[i]);
  if (lines.size() > kMostLines) information += "\n\u2026";
  return information;
}

}  // namespace nascor::app
