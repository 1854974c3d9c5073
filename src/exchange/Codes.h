// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "exchange/StructuredReport.h"
#include "foundation/Sentence.h"

namespace nascor::exchange {

// The codes of an obstetric ultrasound report (DICOM PS3.16, TID 5000) that are read and written. docs/exchange.md lists
// them.

/// A code as a constant.
struct Term {
  std::string_view value;
  std::string_view scheme;
  std::string_view meaning;

  Code code() const { return {std::string(value), std::string(scheme), std::string(meaning)}; }
};

constexpr bool is(const Code& code, const Term& term) {
  return code.value == term.value && code.scheme == term.scheme;
}

inline constexpr std::string_view kComprehensiveSR = "1.2.840.10008.5.1.4.1.1.88.33";
inline constexpr std::string_view kEnhancedSR = "1.2.840.10008.5.1.4.1.1.88.22";

namespace term {

inline constexpr Term report{"125000", "DCM", "OB-GYN Ultrasound Procedure Report"};
inline constexpr Term patientCharacteristics{"121118", "DCM", "Patient Characteristics"};
inline constexpr Term summary{"121111", "DCM", "Summary"};
inline constexpr Term fetusSummary{"125008", "DCM", "Fetus Summary"};
inline constexpr Term fetalBiometry{"125002", "DCM", "Fetal Biometry"};
inline constexpr Term fetalLongBones{"125003", "DCM", "Fetal Long Bones"};
inline constexpr Term earlyGestation{"125009", "DCM", "Early Gestation"};
inline constexpr Term biometryGroup{"125005", "DCM", "Biometry Group"};

inline constexpr Term fetusID{"11951-1", "LN", "Fetus ID"};
inline constexpr Term subjectID{"121030", "DCM", "Subject ID"};
inline constexpr Term fetusNumber{"121037", "DCM", "Fetus Number"};
inline constexpr Term subjectClass{"121024", "DCM", "Subject Class"};
inline constexpr Term fetus{"121026", "DCM", "Fetus"};

inline constexpr Term bpd{"11820-8", "LN", "Biparietal Diameter"};
inline constexpr Term hc{"11984-2", "LN", "Head Circumference"};
inline constexpr Term ac{"11979-2", "LN", "Abdominal Circumference"};
inline constexpr Term fl{"11963-6", "LN", "Femur Length"};
inline constexpr Term crl{"11957-8", "LN", "Crown Rump Length"};
/// Of one maker's private scheme, in the section of the long bones.
inline constexpr std::string_view kPrivateFemur = "99000-11";

inline constexpr Term efw{"11727-5", "LN", "Estimated Weight"};
inline constexpr Term efwCentile{"11767-1", "LN", "EFW percentile rank"};
inline constexpr Term gestationalAge{"18185-9", "LN", "Gestational Age"};
inline constexpr Term centileRank{"125012", "DCM", "Growth Percentile rank"};
inline constexpr Term zScoreRank{"125013", "DCM", "Growth Z-score"};

inline constexpr Term gravida{"11996-6", "LN", "Gravida"};
inline constexpr Term numberOfFetuses{"11878-6", "LN", "Number of Fetuses"};
inline constexpr Term numberOfFetusesToo{"55281-0", "LN", "Number of Fetuses"};
inline constexpr Term edd{"11778-8", "LN", "EDD"};
inline constexpr Term eddByLMP{"11779-6", "LN", "EDD from LMP"};
inline constexpr Term eddByAge{"11781-2", "LN", "EDD from average ultrasound age"};
inline constexpr Term lmp{"8665-2", "LN", "LMP"};
inline constexpr Term lmpOlder{"11955-2", "LN", "LMP"};

inline constexpr Term derivation{"121401", "DCM", "Derivation"};
inline constexpr Term selectionStatus{"121404", "DCM", "Selection Status"};
inline constexpr Term equation{"121420", "DCM", "Equation"};

inline constexpr Term millimetre{"mm", "UCUM", "mm"};
inline constexpr Term gram{"g", "UCUM", "g"};
inline constexpr Term noUnit{"1", "UCUM", "no units"};

}  // namespace term

/// What one length of a fetus is called.
struct LengthTerm {
  std::string_view key;    ///< in JSON
  std::string_view label;  ///< in sentences
  Term term;
};

/// The four lengths that a document stores, in their order, and the crown-rump length, which it never does.
inline constexpr std::array kLengthTerms{
    LengthTerm{"bpd", "BPD", term::bpd}, LengthTerm{"hc", "HC", term::hc}, LengthTerm{"ac", "AC", term::ac},
    LengthTerm{"fl", "FL", term::fl}, LengthTerm{"crl", "CRL", term::crl}};
inline constexpr std::size_t kFemur = 3;
/// The label of that length in the user's language.
foundation::Sentence labelOf(std::size_t length);
inline constexpr std::size_t kStoredLengths = 4;

/// The term of a weight formula, by its identifier (calc/FetalWeight.h). Combs and Ott have no standard code, and get one
/// of this program's own scheme.
inline constexpr std::array kWeightEquations{Term{"11746-5", "LN", "EFW by HC, AC, FL, Hadlock 1985"},
                                             Term{"11751-5", "LN", "EFW by AC, FL, Hadlock 1985"},
                                             Term{"11735-8", "LN", "EFW by BPD, AC, FL, Hadlock 1985"},
                                             Term{"11732-5", "LN", "EFW by BPD, HC, AC, FL, Hadlock 1985"},
                                             Term{"11756-4", "LN", "EFW by AC, Campbell 1975"},
                                             Term{"combs", "99NASCOR", "EFW by HC, AC, FL, Combs 1993"},
                                             Term{"ott", "99NASCOR", "EFW by HC, AC, FL, Ott 1986"},
                                             Term{"11739-0", "LN", "EFW by BPD, AC, Shepard 1982"}};

/// How a value came about, by its derivation. Minimum, maximum and standard deviation are no value of the fetus.
enum class Derivation { plain, mean, calculated, estimated, never, unknown };

/// Each in the old coding scheme and in the new one.
Derivation derivationOf(const Code& code);

/// Whether a selection status says that this value was chosen: by the user, as the most recent, as the mean.
bool saysChosen(const Code& status);

}  // namespace nascor::exchange
