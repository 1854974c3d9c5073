// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "scripting/NascorScriptCommand.h"

#include <gmock/gmock.h>

#include "app/NCDocument.h"
#include "foundation/Assertion.h"
#include "support/TestApplication.h"

namespace nascor::scripting {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ACommand : public testing::Test {
 protected:
  void SetUp() override {
    platform.documents.setFactory(
        [this] { return std::make_unique<app::NCDocument>(platform.environment()); });
  }
  ScriptValue perform(std::optional<ScriptCommandDescription> description) {
    NascorScriptCommand command(std::move(description), platform.documents, platform.log);
    ScriptCommand& asTheApplicationHoldsIt = command;
    return asTheApplicationHoldsIt.performDefaultImplementation();
  }
  ScriptValue perform(const char* name) { return perform(ScriptCommandDescription{name}); }
  /// The line that the failed assertion names, of the source that it must name; 0 when none fails.
  unsigned failingLine(std::optional<ScriptCommandDescription> description) {
    try {
      perform(std::move(description));
    } catch (const foundation::AssertionFailure& failure) {
      EXPECT_STREQ(failure.where().file_name(), "NascorScriptCommand");
      EXPECT_THAT(failure.what(), testing::StartsWith("Value==nil"));
      return failure.where().line();
    }
    return 0;
  }
  tests::TestApplication platform;
};

TEST_F(ACommand, toMakeANewDocumentOpensExactlyOne) {
  EXPECT_EQ(perform("make new document"), ScriptValue());
  ASSERT_EQ(platform.documents.documents().size(), 1U);
  EXPECT_TRUE(platform.documents.currentDocument()->isBlank());
  EXPECT_THAT(platform.log.lines, ElementsAre("make new document"));
}

TEST_F(ACommand, ofAnotherNameDoesNothing) {
  for (const char* name : {"", "Make New Document", "make new document ", "quit"}) {
    EXPECT_EQ(perform(name), ScriptValue()) << name;
  }
  EXPECT_THAT(platform.documents.documents(), IsEmpty());
  EXPECT_THAT(platform.log.lines, IsEmpty());
}

TEST_F(ACommand, withoutDescriptionOrNameIsAnError) {
  EXPECT_EQ(failingLine(std::nullopt), 10U);
  EXPECT_EQ(failingLine(ScriptCommandDescription{std::nullopt}), 11U);
  EXPECT_THAT(platform.log.lines, IsEmpty());
}

TEST_F(ACommand, toExportNeedsADocument) {
  EXPECT_EQ(failingLine(ScriptCommandDescription{"export to file"}), 22U);
  EXPECT_THAT(platform.log.lines, ElementsAre("export to file"));
}

TEST_F(ACommand, toExportWritesThePageOnShowOfTheDocumentInFront) {
  perform("make new document");
  perform("make new document");
  auto& front = dynamic_cast<app::NCDocument&>(*platform.documents.currentDocument());
  front.switchToGraph(2);
  NascorScriptCommand command(ScriptCommandDescription{"export to file"}, platform.documents, platform.log);
  EXPECT_EQ(command.performDefaultImplementation(), ScriptValue());
  EXPECT_EQ(command.failure(), std::nullopt);
  ASSERT_EQ(platform.pageWriter.written.size(), 1U);
  EXPECT_THAT(platform.pageWriter.written[0].path, testing::EndsWith("/Untitled - HC.pdf"));
  EXPECT_THAT(platform.log.lines, ElementsAre("make new document", "make new document", "export to file"));
}

TEST_F(ACommand, toExportSaysWhyItWasNotDoneAndAsksNobody) {
  perform("make new document");
  auto& front = dynamic_cast<app::NCDocument&>(*platform.documents.currentDocument());
  front.fieldEditor().begin(front.bpdField());
  front.fieldEditor().replace("900");
  NascorScriptCommand command(ScriptCommandDescription{"export to file"}, platform.documents, platform.log);
  EXPECT_EQ(command.performDefaultImplementation(), ScriptValue());
  EXPECT_THAT(command.failure().value_or(""), testing::HasSubstr("not permitted"));
  EXPECT_THAT(platform.alerts.told, IsEmpty());
  EXPECT_THAT(platform.pageWriter.written, IsEmpty());
}

}  // namespace
}  // namespace nascor::scripting
