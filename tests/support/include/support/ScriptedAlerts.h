// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cctype>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "framework/Alerts.h"
#include "framework/FilePanels.h"

namespace nascor::tests {

/// Answers questions as a test says, and keeps them.
class ScriptedAlerts final : public framework::Alerts {
 public:
  framework::AlertReturn runModal(const framework::Alert& alert) override {
    asked.push_back(alert);
    std::string answer = "Cancel";
    if (!answers.empty()) {
      answer = answers.front();
      answers.pop_front();
    }
    return answer == alert.defaultButton ? framework::AlertReturn::defaultButton
                                         : framework::AlertReturn::alternate;
  }
  void beginSheet(const framework::Alert& alert,
                  std::function<void(framework::AlertReturn)> didEnd) override {
    didEnd(runModal(alert));
  }
  std::size_t chooseOne(const std::string& message, const std::string& information,
                        const std::vector<std::string>& buttons) override {
    choices.push_back(message);
    choiceInformation.push_back(information);
    const auto isChoice = [&](const std::string& button) {
      return std::ranges::equal(button, choice, [](unsigned char one, unsigned char other) {
        return std::tolower(one) == std::tolower(other);
      });
    };
    return static_cast<std::size_t>(std::ranges::find_if(buttons, isChoice) - buttons.begin());
  }
  void tell(const std::string& message, const std::string& information) override {
    told.push_back(message + " " + information);
  }
  void tellDetails(const std::string& message, const std::string& information,
                   const std::string& details) override {
    tell(message, information);
    toldDetails.push_back(details);
  }

  std::deque<std::string> answers;  ///< titles of the buttons to press, in order; "Cancel" when there is none
  std::string choice = "Cancel";    ///< the button that `chooseOne` presses, in any case of letters
  std::vector<framework::Alert> asked;         ///< the questions with two answers
  std::vector<std::string> choices;            ///< the messages of the questions with more
  std::vector<std::string> choiceInformation;  ///< what stood beneath each of them
  std::vector<std::string> told;               ///< what the user was told
  std::vector<std::string> toldDetails;        ///< the details of what had some
};

/// Opens and saves what a test says; without a word saves under the suggested name in `folder`.
class ScriptedFilePanels final : public framework::FilePanels {
 public:
  explicit ScriptedFilePanels(std::string saveFolder) : folder(std::move(saveFolder)) {}
  std::vector<std::string> chooseFilesToOpen() override { return filesToOpen; }
  std::optional<std::string> chooseFileToSave(const std::string& suggestedName) override {
    suggested.push_back(suggestedName);
    if (isCancelled) return std::nullopt;
    return fileToSave.value_or(folder + "/" + suggestedName);
  }

  std::optional<std::string> chooseFolder() override {
    ++timesFolderAsked;
    if (isCancelled) return std::nullopt;
    return folder;
  }

  std::string folder;
  std::optional<std::string> fileToSave;  ///< where to save, in place of the suggested name
  int timesFolderAsked = 0;
  std::vector<std::string> filesToOpen;
  std::vector<std::string> suggested;
  bool isCancelled = false;
};

}  // namespace nascor::tests
