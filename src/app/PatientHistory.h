// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/Date.h"
#include "model/PatientRecord.h"

namespace nascor::app {

/// What a step changed, by the most that it did: a step that adds an examination may bring dates to their days too.
enum class PatientChange {
  examinationAdded,
  examinationDeleted,
  fetusAdded,
  fetusRemoved,
  edd,
  growthStandard,
  weightFormula,
  crlFormula,
  identifier,
  gravidity,
  examinationDate,
  lengths,
  bpd,
  hc,
  ac,
  fl,
  note,
  plannedDelivery,
  reportsImported  ///< said by the one who does it, since it may change all of the others
};

/// All that a document holds of a patient at one moment. Examinations that two moments have in common are held once.
struct PatientState {
  using Examinations = std::vector<std::shared_ptr<const model::NCRecord>>;

  model::PatientRecord patient;  ///< without its examinations
  Examinations examinations;
  double plannedDays = 0.0;  ///< from the EDD to the planned delivery
  std::optional<double>
      gestationInFile;  ///< the planned gestation of the file, while nothing else was planned
  std::optional<foundation::Date> madeNow;
  bool isExamDateTyped = false;
  bool isBlank = false;
  bool isLookUpRequired = false;

  /// Takes over `record`; examinations that are those of `before` are shared with it.
  void take(const model::PatientRecord& record, const Examinations& before);
  /// The patient with copies of the examinations.
  std::unique_ptr<model::PatientRecord> record() const;
};

/// What happened between two states; nothing when a file of both would hold the same. A number that is none equals another
/// that is none.
std::optional<PatientChange> changeBetween(const PatientState& before, const PatientState& after);

/// Which examination and which fetus are on show.
struct Place {
  std::int64_t examination = 0;
  std::int64_t fetus = 0;

  friend bool operator==(const Place&, const Place&) = default;
};

/// What a choice for one patient has made the choice for new ones.
struct Preference {
  std::string key;
  std::optional<std::string> before;
  std::string after;
};

/// The steps by which a patient became what she is, to go back and forth in.
class PatientHistory {
 public:
  /// A state to be shown, and where.
  struct Shown {
    const PatientState& state;
    Place place;
    const std::optional<Preference>& preference;  ///< of the step
  };

  /// Forgets everything and begins with `state`, which is in the document's file if `isSaved`.
  void begin(PatientState state, Place place, bool isSaved);
  /// The user has moved about.
  void moveTo(Place place) { place_ = place; }
  /// An action has ended. True when it changed the patient: that is a step, and what was undone before it is forgotten.
  /// It is named after what it changed, unless it has a `name` of its own.
  bool note(PatientState state, Place place, std::optional<Preference> preference = std::nullopt,
            std::optional<PatientChange> name = std::nullopt);
  /// The same for what a script stored: writing the same value of the same fetus again goes on with the step that began it.
  bool noteScript(PatientState state, Place place);

  /// The state as it was last noted.
  const PatientState& present() const { return done_ == 0 ? start_ : steps_[done_ - 1].state; }
  void wasSaved() { saved_ = done_; }
  bool isSaved() const { return saved_ == done_; }

  /// What `undo` takes back, what `redo` does again; nothing for none.
  std::optional<PatientChange> undone() const;
  std::optional<PatientChange> redone() const;
  /// One step back or forth; there must be one. Valid until the next change of the history.
  Shown undo();
  Shown redo();

 private:
  struct Step {
    PatientState state;  ///< after it
    Place from;
    Place to;
    PatientChange change;
    std::optional<Preference> preference;
    bool isOfScript = false;
  };

  PatientState start_;
  std::vector<Step> steps_;
  std::size_t done_ = 0;  ///< how many of them are in force
  std::optional<std::size_t> saved_;
  Place place_;
};

}  // namespace nascor::app
