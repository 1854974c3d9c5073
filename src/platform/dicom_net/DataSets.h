// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <dcmtk/config/osconfig.h>
// The configuration stands first.
#include <dcmtk/dcmdata/dctk.h>

#include "dicom/FileStructure.h"
#include "foundation/Sentence.h"

namespace nascor::dicom_net {

/// The elements, whose structure was looked at first; or what is wrong with it, in a sentence without its subject.
std::variant<std::unique_ptr<DcmDataset>, foundation::Sentence> parsed(const dicom::DataSet& elements);

/// A value that is plain ASCII wherever it is right, without blanks at its ends; empty for none.
std::string plainIn(DcmItem& item, const DcmTagKey& tag);

/// The patient's ID as UTF-8; what is not in the character set that the data set states becomes U+FFFD.
std::string patientIDIn(DcmItem& item);

/// Elements that a server sent, as a file of PS3.10. The UIDs are what `isUid` says.
std::vector<std::byte> fileOf(const dicom::DataSet& elements, const std::string& sopClass,
                              const std::string& instance);

}  // namespace nascor::dicom_net
