// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Each panel by itself: what its fields say together.
#include "app/DatingPanels.h"

#include <gmock/gmock.h>

#include "app/NCDocument.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using calc::Measurement;
using testing::ElementsAre;
using testing::IsEmpty;

class APanel : public testing::Test {
 protected:
  static std::vector<std::string> names(const std::vector<const framework::TextField*>& fields) {
    std::vector<std::string> all;
    for (const framework::TextField* each : fields) all.push_back(each->name());
    return all;
  }
  static std::vector<std::string> namesOf(const DatingPanel& panel) {
    std::vector<std::string> all;
    for (const framework::TextField* each : panel.fields()) all.push_back(each->name());
    return all;
  }
  static std::string summary(const ProposedEDD& proposal) {
    std::string text = proposal.text;
    for (const std::string& name : names(proposal.obstacles)) text += " !" + name;
    return text;
  }
  void type(framework::TextField& field, const std::string& text) {
    ASSERT_TRUE(editor.begin(field));
    editor.replace(text);
  }
  foundation::Date day(const std::string& text) {
    framework::TextField field("a day");
    field.setText(text);
    return reader.date(field, Reading::held).value();
  }

  tests::TestApplication platform;
  framework::FieldEditor editor;
  FieldReader reader{platform.services(), editor};
};

TEST_F(APanel, ofTheCrownRumpLengthDatesByTheFormula) {
  CRLPanel panel(reader);
  EXPECT_THAT(namesOf(panel), ElementsAre("crlWindowDate", "crlWindowCRL", "crlStandardReference"));
  EXPECT_EQ(summary(panel.proposedEDD(0, Reading::held)), " !crlWindowDate !crlWindowCRL");
  panel.date.setText("8/20/26");
  panel.length.setDoubleValue(45.0);
  EXPECT_EQ(summary(panel.proposedEDD(0, Reading::held)), "3/8/27");
  EXPECT_EQ(summary(panel.proposedEDD(4, Reading::held)), " !crlStandardReference");
  panel.length.setDoubleValue(120.5);
  EXPECT_EQ(summary(panel.proposedEDD(0, Reading::held)), " !crlWindowCRL")
      << "longer than the formula dates";
  panel.length.setDoubleValue(45.0);
  panel.date.setText("12/31/9999");
  EXPECT_EQ(summary(panel.proposedEDD(0, Reading::held)), " !crlWindowDate") << "beyond the calendar";
}

TEST_F(APanel, ofTheCrownRumpLengthReadsWhatIsTypedOnRequest) {
  CRLPanel panel(reader);
  panel.date.setText("8/20/26");
  panel.length.setDoubleValue(45.0);
  type(panel.length, "");
  EXPECT_EQ(summary(panel.proposedEDD(0, Reading::typed)), " !crlWindowCRL");
  EXPECT_EQ(summary(panel.proposedEDD(0, Reading::held)), "3/8/27");
}

TEST_F(APanel, ofTheCrownRumpLengthOpensWithTodaysDate) {
  CRLPanel panel(reader);
  panel.open();
  EXPECT_TRUE(panel.panel().isShown());
  EXPECT_EQ(panel.date.text(), reader.shortDateText(platform.clock.now()));
  panel.date.setText("8/20/26");
  panel.open();
  EXPECT_EQ(panel.date.text(), "8/20/26");
}

TEST_F(APanel, ofTheLastPeriodAddsTheCycle) {
  LastPeriodPanel panel(reader);
  EXPECT_THAT(namesOf(panel), ElementsAre("lmpWindowLMP", "lmpWindowCycleField", "lmpWindowLutealField"));
  EXPECT_EQ(summary(panel.proposedEDD(Reading::held)), " !lmpWindowLMP");
  panel.lastPeriod.setText("7/1/26");
  EXPECT_EQ(summary(panel.proposedEDD(Reading::held)), "4/7/27") << "280 days after";
  panel.cycle.setIntegerValue(30);
  EXPECT_EQ(summary(panel.proposedEDD(Reading::held)), "4/9/27");
  type(panel.cycle, "31");
  EXPECT_EQ(summary(panel.proposedEDD(Reading::typed)), "4/10/27");
  EXPECT_EQ(summary(panel.proposedEDD(Reading::held)), "4/9/27");
  editor.replace("31x");
  EXPECT_EQ(summary(panel.proposedEDD(Reading::typed)), " !lmpWindowCycleField");
  panel.luteal.setIntegerValue(400);
  EXPECT_EQ(summary(panel.proposedEDD(Reading::held)), " !lmpWindowCycleField !lmpWindowLutealField");
  panel.open();
  EXPECT_TRUE(panel.panel().isShown());
}

TEST_F(APanel, ofTheMeasurementsAveragesWhatIsChecked) {
  NCDocument document{
      {.services = platform.services(), .alerts = platform.alerts, .controller = platform.documents}};
  document.windowControllerDidLoadNib();
  const PatientPages pages(platform.services(), document);
  MeasurementsPanel panel(reader);
  EXPECT_THAT(namesOf(panel), ElementsAre("measurementsWindowBPDGestation", "measurementsWindowHCGestation",
                                          "measurementsWindowACGestation", "measurementsWindowFLGestation",
                                          "measurementsWindowAvGestation"));
  calc::ReferenceTable bpd;
  calc::ReferenceTable hc;
  calc::appendStandard(bpd, 0, Measurement::bpd);
  calc::appendStandard(hc, 0, Measurement::hc);
  const auto meanAt = [](const calc::ReferenceTable& table, double week) {
    return std::ranges::find(table, week, &calc::DatabaseRecord::observation)->mean();
  };
  for (const Measurement length : {Measurement::ac, Measurement::fl}) panel.row(length).check.setOn(false);
  panel.dateLengths({.bpd = meanAt(bpd, 20), .hc = meanAt(hc, 22), .ac = 0.0, .fl = 0.0}, pages);
  panel.showAverage();
  EXPECT_DOUBLE_EQ(panel.averageGestation(), 21.0);
  EXPECT_EQ(panel.row(Measurement::bpd).gestation.text(), "20w 0d");
  EXPECT_EQ(panel.row(Measurement::hc).gestation.text(), "22w 0d");
  EXPECT_EQ(panel.average.text(), "21w 0d");
  EXPECT_FALSE(panel.row(Measurement::bpd).gestation.isRed());
  EXPECT_TRUE(panel.row(Measurement::ac).gestation.isRed()) << "unchecked, and far from the mean";

  framework::TextField examDate("examDateField");
  EXPECT_EQ(summary(panel.proposedEDD(std::nullopt, examDate)), " !examDateField");
  EXPECT_EQ(summary(panel.proposedEDD(day("11/28/26"), examDate)), "4/11/27")
      << "19 weeks and the day that dating by measurements adds";

  panel.row(Measurement::bpd).check.setOn(false);
  panel.row(Measurement::hc).check.setOn(false);
  panel.dateLengths({}, pages);
  EXPECT_EQ(panel.averageGestation(), 0.0);
}

TEST_F(APanel, ofTheDeliveryPlansWithinWhatTheStandardPermits) {
  DeliveryPanel panel(reader);
  EXPECT_THAT(namesOf(panel), ElementsAre("adjustEDDField", "adjustDeliverOnField", "adjustDeliverAtField"));
  constexpr std::int64_t kCFEF = 3;
  panel.setPlannedDays(5.0, 0);
  EXPECT_EQ(panel.stepper.value(), 5.0);
  panel.show(day("4/10/27"));
  EXPECT_EQ(panel.edd.text(), "4/10/27");
  EXPECT_EQ(panel.deliverOn.text(), "4/15/27");
  EXPECT_EQ(panel.deliverAt.text(), "40w 5d");
  panel.limitFor(kCFEF);
  EXPECT_DOUBLE_EQ(panel.plannedGestation(), 40.0);
  panel.setPlannedDays(-287.0, 0);
  EXPECT_DOUBLE_EQ(panel.plannedGestation(), -1.0) << "a file may plan earlier than the pregnancy";
  panel.open();
  EXPECT_TRUE(panel.panel().isShown());
}

TEST_F(APanel, andItsFieldsAreFoundByTheirNames) {
  NCDocument document{
      {.services = platform.services(), .alerts = platform.alerts, .controller = platform.documents}};
  EXPECT_EQ(document.panelNamed("crlWindow"), &document.crlPanel().panel());
  EXPECT_EQ(document.fieldNamed("lmpWindowLMP"), &document.lastPeriodPanel().lastPeriod);
  EXPECT_EQ(document.fieldNamed("bpdField"), &document.bpdField());
  EXPECT_EQ(document.panelNamed("bpdField"), nullptr);
  EXPECT_EQ(document.fieldNamed(""), nullptr);
}

}  // namespace
}  // namespace nascor::app
