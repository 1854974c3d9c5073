// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "app/NCDocument.h"
#include "exchange/Findings.h"
#include "exchange/Storing.h"
#include "foundation/Sentence.h"
#include "model/PatientRecord.h"

namespace nascor::app {

/// Reports of ultrasound machines that are about to be stored in a document, beside what the patient has, and what a person
/// decides about them. The document stays as it is until `store`, which does exactly what the rows say.
class ReportImport {
 public:
  /// A fetus of the reports; one of the same ID in several reports is the same fetus.
  struct Fetus {
    std::string id;  ///< empty for one without an ID
    std::string name;
    std::optional<std::int64_t>
        place;  ///< which fetus of the document it is, from 0; nothing until it is known or chosen
    bool isLeftOut = false;
  };

  /// A value of a report.
  struct Row {
    /// Which value it is.
    struct Key {
      std::size_t report = 0;
      std::size_t value = 0;  ///< its place among what that report holds

      friend bool operator<(const Key& one, const Key& other) {
        return std::tie(one.report, one.value) < std::tie(other.report, other.value);
      }
    };
    std::string examination{};  ///< the day
    std::string fetus{};        ///< empty for a value of the mother
    std::string what{};
    std::string reported{};
    std::string standing{};  ///< what the patient has; empty for nothing
    std::string outcome{};   ///< what becomes of it
    bool canBeChosen = false;
    bool isChosen = false;
    bool isWarning = false;  ///< it wants to be looked at
    Key key{};
  };

  /// The text in edit has reached the records of `document`, which outlives this.
  ReportImport(NCDocument& document, std::vector<exchange::Findings> reports);

  /// The reference ID in the reports, and the one in the document; empty where there is none.
  const std::string& reportedID() const { return reportedID_; }
  const std::string& documentID() const { return documentID_; }
  /// Why the reports may be of another patient; empty where they are of this one.
  const std::string& patientDoubt() const { return patientDoubt_; }
  bool isPatientConfirmed() const { return isPatientConfirmed_; }
  void confirmPatient(bool isConfirmed);

  const std::vector<Fetus>& fetuses() const { return fetuses_; }
  /// What the fetuses of the document are called.
  std::vector<std::string> placeNames() const;
  void setPlace(std::size_t fetus, std::optional<std::int64_t> place);
  void leaveOut(std::size_t fetus);

  const std::vector<Row>& rows() const { return rows_; }
  /// Nothing happens to a row that cannot be chosen.
  void choose(std::size_t row, bool isChosen);

  /// What is yet to be decided, or why nothing can be stored; empty where all is well.
  const std::string& obstacle() const { return obstacle_; }
  /// Stores what is chosen, as one step that can be undone, and shows it. Asks before an established EDD is replaced. False,
  /// and nothing has happened, where there is an obstacle or the user keeps the EDD.
  bool store();

 private:
  using Key = Row::Key;
  /// What of a report is to be stored.
  struct Wanted {
    exchange::Findings findings;
    std::vector<std::size_t> fetuses;  ///< the places in the report of those in `findings`
  };

  void findPatient();
  void findFetuses();
  /// Stores in a copy of the patient, and says in rows what came of it.
  void foresee();
  std::string findObstacle() const;
  std::string findObstacleOfFetuses(const exchange::Findings& report) const;
  /// The patient that the reports are stored in.
  std::unique_ptr<model::PatientRecord> patientBefore() const;
  Wanted wantedOf(std::size_t report) const;

  Row& addRow(std::size_t report, std::size_t value, const std::string& fetus, const std::string& what);
  void addRemark(std::size_t report, const std::string& fetus, const foundation::Sentence& sentence);
  void addRows(std::size_t report, const Wanted& wanted, const exchange::Stored* stored);
  void addEDD(std::size_t report, const exchange::Stored* stored);
  void addGravida(std::size_t report, const exchange::Stored* stored);
  void addLength(std::size_t report, const Wanted& wanted, const exchange::Stored* stored, std::size_t fetus,
                 std::size_t term);
  void addNotTaken(std::size_t report, const exchange::NotTaken& notTaken);
  void tellFate(Row& row, exchange::Fate fate);
  void tellUnwanted(Row& row);
  /// Makes a choice of a row that is not made unless a person makes it.
  void offer(Row& row);

  /// The place of that fetus in `fetuses_`.
  std::size_t fetusOf(const exchange::FetusFindings& found) const;
  std::string dayText(const std::optional<foundation::CivilDay>& day) const;
  /// What a value of that name in findings is called.
  std::string labelOf(const std::string& what) const;
  /// A number without a locale as the user writes numbers.
  std::string numberText(std::string number) const;
  std::string inWords(std::string_view key) const;

  NCDocument& document_;
  std::vector<exchange::Findings> reports_;
  std::string reportedID_;
  std::string documentID_;
  bool isNew_ = false;
  bool areOfSeveralPatients_ = false;
  std::int64_t count_ = 1;  ///< of fetuses in the document
  std::string patientDoubt_;
  bool isPatientConfirmed_ = false;
  std::vector<Fetus> fetuses_;
  std::set<Key> unwanted_;  ///< values that would be stored
  std::set<Key> wanted_;    ///< values that would not, an EDD in place of an established one
  std::set<Key> offers_;    ///< the rows that `wanted_` is about

  std::vector<Row> rows_;
  std::unique_ptr<model::PatientRecord> foreseen_;  ///< the patient as she will be
  NCDocument::Imported imported_;
  bool storesAnything_ = false;
  std::string obstacle_;
};

}  // namespace nascor::app
