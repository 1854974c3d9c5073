// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "framework/CorvelDocument.h"
#include "support/TestApplication.h"

namespace nascor::framework {

inline std::vector<std::byte> bytesOf(std::string_view text) {
  std::vector<std::byte> bytes(text.size());
  std::ranges::transform(text, bytes.begin(), [](char each) { return static_cast<std::byte>(each); });
  return bytes;
}

/// A document whose model is one text, and whose examinations are texts. A file that begins with "bad" is malformed and one
/// that says "nil" holds nothing. It keeps the calls of its framework.
class TextDocument final : public CorvelDocument {
 public:
  explicit TextDocument(const DocumentEnvironment& environment) : CorvelDocument(environment) {}

  std::vector<std::byte> dataRepresentationOfType(std::string_view) const override { return bytesOf(model); }
  bool loadDataRepresentation(std::span<const std::byte> data, std::string_view) override {
    std::string text;
    for (const std::byte each : data) text += static_cast<char>(each);
    if (text.starts_with("bad")) throw std::runtime_error("this is no document");
    holdsText = text != "nil";
    model = holdsText ? text : "";
    return true;
  }
  bool holdsContents() const override { return holdsText; }
  void windowControllerDidLoadNib() override {
    calls.emplace_back("window loaded");
    if (!holdsText) holdsText = true;
  }
  void windowWillClose() override { calls.emplace_back("window closes"); }
  std::string suggestedFileName() const override { return name; }

  void synchronizeFromData() override { calls.emplace_back("from data"); }
  void synchronizeToData() override {
    calls.emplace_back("to data");
    notesField().forgetEdits();
  }
  void updateDisplay() override {
    calls.emplace_back("display");
    CorvelDocument::updateDisplay();
  }
  void addExamination() override {
    calls.emplace_back("add");
    examinations.emplace_back();
    setCurrentExam(numberOfExaminations() - 1);
  }
  void deleteCurrentExamination() override {
    calls.push_back("delete " + std::to_string(currentExam()));
    examinations.erase(examinations.begin() + currentExam());
  }
  void updateArrayOrder() override { calls.emplace_back("order"); }
  std::int64_t numberOfExaminations() const override {
    return static_cast<std::int64_t>(examinations.size());
  }
  void setCurrentRecordFromClick(double) override {}

  std::vector<std::string> takeCalls() { return std::exchange(calls, {}); }

  std::string model;
  std::string name;
  std::string fileNameOfID = "ID";
  bool holdsText = false;
  bool holdsMore = false;
  std::vector<std::string> examinations{""};
  std::vector<std::string> calls;
  std::function<void()> afterEnd;

 private:
  bool controlTextShouldEndEditing(TextField&, std::string_view text) override { return text != "refused"; }
  void controlTextDidEndEditing(TextField&) override {
    if (afterEnd) afterEnd();
  }
  bool currentExaminationHoldsData() const override {
    return !examinations[static_cast<std::size_t>(currentExam())].empty();
  }
  bool holdsMoreThanIdentity() const override { return holdsMore; }
  std::string referenceIDForFileName() const override { return fileNameOfID; }
};

/// An application of such documents.
struct TextApplication : tests::TestApplication {
  TextApplication() {
    documents.setFactory([this] { return std::make_unique<TextDocument>(environment()); });
  }
  TextDocument& newDocument() { return dynamic_cast<TextDocument&>(documents.newDocument()); }
  TextDocument* open(const std::string& path) {
    error = {};
    return dynamic_cast<TextDocument*>(documents.openDocument(path, error));
  }
  TextDocument* front() { return dynamic_cast<TextDocument*>(documents.currentDocument()); }
  std::string textOf(const std::string& path) const {
    std::string text;
    for (const std::byte each : files.files.at(path)) text += static_cast<char>(each);
    return text;
  }
  void put(const std::string& path, std::string_view text) { files.files[path] = bytesOf(text); }

  foundation::FileError error;
};

}  // namespace nascor::framework
