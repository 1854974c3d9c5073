// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Shows documents: opens them, draws every page large and small, wraps what stands beneath, visits examinations and fetuses,
// and saves. Nothing of that may take long, draw endlessly, or change what is kept. The first byte says what follows: an
// even one the bytes of a document file, an odd one how often a text and an examination are repeated, and the text.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <vector>

#include "ValidText.h"
#include "app/NCDocument.h"
#include "archive/FormatError.h"
#include "foundation/UserDefaults.h"
#include "framework/Sheet.h"
#include "model/PatientFile.h"
#include "support/HeavyDocuments.h"
#include "support/RecordingCanvas.h"
#include "support/Spent.h"
#include "support/TestApplication.h"

namespace {

using namespace nascor;

constexpr std::size_t kMostBytesDrawn = 16'384;
constexpr std::size_t kMostEntries = 60'000;

void check(bool isKept) {
  if (!isKept) std::abort();
}

void check(const tests::RecordingCanvas& canvas) {
  check(canvas.entries().size() < kMostEntries);
  for (const auto& entry : canvas.entries()) check(entry.text.size() < kMostBytesDrawn);
}

void show(app::NCDocument& document) {
  for (std::int64_t index = 0; index < document.tabView().numberOfPages(); ++index) {
    framework::Page& page = document.tabView().page(index);
    for (const auto& [width, height] : {std::pair{800.0, 560.0}, std::pair{300.0, 150.0}}) {
      tests::RecordingSurface surface;
      page.layout(width, height);
      page.paint(surface);
      check(surface.page);
      for (const auto& view : surface.views) check(view.canvas);
    }
    static_cast<void>(page.toolTipAt({400.0, 280.0}));
    const tests::RecordingCanvas canvas;
    check(framework::wrappedFoot(document.footOfPage(index, 1, 2), canvas, framework::Page::kWidth).size() <
          100);
  }
}

std::vector<std::byte> repeatedDocument(std::span<const std::uint8_t> data,
                                        const foundation::Calendar& calendar) {
  const auto next = [&](unsigned most) {
    const unsigned value = data.empty() ? 0 : data.front() % (most + 1);
    data = data.subspan(data.empty() ? 0 : 1);
    return value;
  };
  // Up to 256 KiB of text, 16,384 examinations, and 16,384 records of fetuses.
  const std::size_t bytes = std::size_t{1} << next(18);
  const std::int64_t examinations = std::int64_t{1} << next(14);
  const std::int64_t fetuses = std::int64_t{1} << next(14);
  const std::int64_t counted = std::int64_t{1} << next(31);
  const std::string piece = validText({reinterpret_cast<const char*>(data.data()), data.size()});
  const std::string text = piece.empty() ? std::string() : tests::repeated(piece, bytes);
  return model::archivedPatient(
      *tests::heavyPatient({.identifier = text,
                            .note = text,
                            .examinations = examinations,
                            .countedFetuses = counted,
                            .fetuses = std::max<std::int64_t>(fetuses / examinations, 1)},
                           calendar));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  tests::TestApplication platform;
  platform.defaults.registerDefault(foundation::defaults_key::showAll, "YES");
  const std::span given(data + 1, size - 1);
  std::vector<std::byte> bytes;
  if (data[0] % 2 == 0) {
    const auto file = std::as_bytes(given);
    bytes.assign(file.begin(), file.end());
  } else {
    bytes = repeatedDocument(given, platform.calendar);
  }

  const tests::Spent spent;
  app::NCDocument document(platform.environment());
  try {
    document.loadDataRepresentation(bytes, "");
  } catch (const archive::FormatError&) {
    return 0;
  }
  if (!document.holdsContents()) return 0;
  document.windowControllerDidLoadNib();
  show(document);
  document.previousExamination();
  document.addFetus(nullptr);
  document.addExaminationAction();
  show(document);
  static_cast<void>(document.dataRepresentationOfType(""));
  check(spent.seconds() < tests::kMostSeconds);
  return 0;
}
