// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What a dating dialog says of the EDD that it would set.
#include "app/ProposalText.h"

#include <gtest/gtest.h>

#include "foundation/Calendar.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

class AProposal : public testing::Test {
 protected:
  std::string text() { return proposalText(proposal, &patient, platform.services()); }
  foundation::Date midnight(int year, int month, int day) {
    return foundation::startOfDay({year, month, day}, platform.services().calendar);
  }

  tests::TestApplication platform;
  model::PatientRecord patient{platform.services().clock, platform.services().defaults};
  ProposedEDD proposal;
};

TEST_F(AProposal, thatIsNoneSaysEachReasonOnce) {
  const framework::TextField cycle("cycle");
  const framework::TextField luteal("luteal");
  proposal.refuse(cycle, "There is no such cycle.");
  proposal.refuse(luteal, "There is no such cycle.");
  EXPECT_EQ(text(), "There is no such cycle.");
  EXPECT_EQ(proposal.obstacles.size(), 2U);
}

TEST_F(AProposal, tellsTheDifferenceFromTheEDDThatStands) {
  proposal.text = "4/10/27";
  EXPECT_EQ(text().find("the current EDD"), std::string::npos) << text();
  patient.setEDD(midnight(2027, 4, 9));
  EXPECT_NE(text().find("One day later than the current EDD."), std::string::npos) << text();
  patient.setEDD(midnight(2027, 4, 20));
  EXPECT_NE(text().find("10 days earlier than the current EDD."), std::string::npos) << text();
}

TEST_F(AProposal, namesAnExaminationThatItWouldMakeImprobable) {
  proposal.text = "4/10/27";
  patient.ncRecordsArray().front()->setExamDate(midnight(2026, 7, 4));
  EXPECT_EQ(text().find("examination"), std::string::npos) << text();
  patient.ncRecordsArray().front()->setExamDate(midnight(2026, 7, 3));
  EXPECT_NE(text().find("An examination would be before the last period."), std::string::npos) << text();
}

TEST_F(AProposal, endsWithItsRemark) {
  proposal.text = "4/10/27";
  proposal.remark = "An empty number of days counts as 0.";
  EXPECT_TRUE(text().ends_with("\n" + proposal.remark)) << text();
}

}  // namespace
}  // namespace nascor::app
