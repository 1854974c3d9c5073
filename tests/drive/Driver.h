// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/NCAppController.h"
#include "app/NCDocument.h"
#include "app/Recovery.h"
#include "drive/Importing.h"
#include "drive/Ports.h"
#include "foundation/NotificationCenter.h"
#include "framework/DocumentController.h"
#include "posix/PosixCalendar.h"
#include "posix/RecoveryFolder.h"
#include "support/FixedClock.h"
#include "support/MemoryUserDefaults.h"
#include "support/RecordingOutput.h"
#include "support/ScriptedAlerts.h"
#include "support/TestServices.h"

namespace nascor::drive {

using Json = nlohmann::ordered_json;

/// Plays the user of the application, one line at a time: the real documents and controllers over ports that a story
/// controls. It works in a scratch folder, empty at the start and removed at the end, where relative paths lie.
class Driver {
 public:
  Driver();
  /// For stories, which are played at the same time and open the same samples: locks its own documents only.
  void sharesSamples() { files_.leaveOthersUnlocked(); }
  ~Driver();
  Driver(const Driver&) = delete;
  Driver& operator=(const Driver&) = delete;

  /// Does what one line says and answers it; a line that cannot be done is answered by `{"error": sentence}`.
  std::string answer(std::string_view line);

 private:
  Json perform(const std::string& key, const Json& argument);

  Json newDocument();
  Json openDocument(const Json& path);
  Json use(const Json& number);
  Json save(const Json& target);
  Json close(const Json& word);
  Json edit(const Json& fieldAndText);
  /// Begins to change a field and types into it, without leaving it.
  Json type(const Json& fieldAndText);
  Json visit(const Json& field);
  Json revert(const Json& field);
  Json answerQuestions(const Json& buttons);
  Json operation(const Json& call);
  Json applicationOperation(const Json& call);
  Json menu(const Json& choice);
  Json choose(const Json& index);
  Json check(const Json& boxAndState);
  Json cancel(const Json& window);
  Json step(const Json& days);
  Json tab(const Json& page);
  Json click(const Json& click);
  Json draw(const Json& drawn);
  Json marks(const Json& page);
  /// What the window says over a page that lacks something.
  Json advice(const Json& page);
  /// The marks and discs on the pages that were exported or printed since this was last asked.
  Json paper(const Json& word);
  /// What is drawn over the charts of a page.
  Json over(const Json& page);
  /// The same of the pages that were exported or printed since this was last asked.
  Json overPaper(const Json& word);
  /// What the user was told since this was last asked: each message with its information.
  Json told(const Json& word);
  /// What the status line of the current document tells.
  Json status(const Json& word);
  /// What stands beside the fields, by name.
  Json beside(const Json& word);
  /// The field whose text the document wanted selected last since this was last asked, which has the focus in a window.
  Json focus(const Json& word);
  /// The fields of the current document that show what belongs to nothing any more.
  Json stale(const Json& word);
  /// What stood beneath each question since the last `state`, besides its information.
  Json additions(const Json& word);
  /// Keeps unsaved changes, as the window layer does within two seconds of a change: the recovery files that there are then.
  Json keep(const Json& word);
  /// The program is killed, with all its windows, and started again.
  Json crash(const Json& word);
  /// What the program offers at its start, each offer answered by that button: what was said, and the documents that opened.
  Json recover(const Json& button);
  Json import(const Json& files);
  Json decide(const Json& decision);
  /// What another program does to the files.
  Json outside(const Json& call);
  Json advance(const Json& seconds);
  Json zone(const Json& name);
  Json locale(const Json& name);
  Json state();

  app::NCDocument* currentDocument();
  app::NCDocument& document();
  Json documentState(app::NCDocument& document);
  Json defaultsState() const;
  /// What went to files, the printer and other programs since this was last asked.
  void addOutput(Json& result);
  /// Null for a page of a document that is closed.
  Json pageIndex(const framework::Page* page);
  /// What a refusing field answers to an action that it holds back; nothing when the edits were committed.
  std::optional<Json> heldBack(app::NCDocument& document);
  void recordPosts();
  void startRecovery();

  std::filesystem::path startFolder_;
  std::filesystem::path scratchFolder_;
  std::optional<std::string> startZone_;

  tests::FixedClock clock_;
  std::unique_ptr<posix::PosixCalendar> calendar_;
  StoryLocalizer localizer_;
  tests::MemoryUserDefaults defaults_;
  StoryFileStore files_;
  tests::MemoryLog log_;
  foundation::NotificationCenter notifications_;
  tests::ScriptedAlerts alerts_;
  tests::ScriptedFilePanels panels_;
  foundation::Services services_;
  tests::RecordingPageWriter pageWriter_{files_};
  tests::RecordingPrinter printer_;
  tests::RecordingViewer viewer_;
  framework::DocumentController documents_;
  app::NCAppController application_;
  std::optional<posix::RecoveryFolder> recoveryFolder_;
  std::optional<app::Recovery> recovery_;

  Importing importing_;
  std::vector<foundation::Subscription> subscriptions_;
  Json posted_ = Json::array();
  Json paper_ = Json::array();
  Json overPaper_ = Json::array();
  Json effects_ = Json::array();
  std::string selected_;
  std::map<const framework::ZuDocument*, std::int64_t> numbers_;
  /// What happens to a document.
  struct Followed {
    std::int64_t displays = 0;  ///< how often it was to be drawn anew
    std::vector<foundation::Subscription> subscriptions{};
  };
  std::map<const framework::ZuDocument*, Followed> followed_;
  std::int64_t nextNumber_ = 0;
};

/// `json` as text: numbers with the shortest digits that read back, those that JSON lacks as the texts nan, inf, -inf.
std::string textOf(const Json& json);

}  // namespace nascor::drive
