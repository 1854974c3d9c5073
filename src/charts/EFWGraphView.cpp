// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "charts/EFWGraphView.h"

#include <algorithm>

namespace nascor::charts {

void EFWGraphView::initWithFrame(const framework::Rect& frame) {
  TitledGraphView::initWithFrame(frame);
  stopObservingStandards();
  subscription_ = services().notifications.subscribe(
      foundation::NotificationName::updateStandardsForEFW,
      [this](const foundation::Notification& notification) { initEFWStandards(notification); });
}

void EFWGraphView::dealloc() {
  subscription_.reset();
  TitledGraphView::dealloc();
}

double EFWGraphView::valueForFetus(std::uint64_t fetus, std::uint64_t exam) const {
  const model::MeasurementsRecord* measured = measurementsForFetus(fetus, exam);
  return measured ? measured->estimatedFetalWeight(owningDocument()->fetalWeightStandard()) : 0.0;
}

void EFWGraphView::resetUpdatingGraphArray() {
  const ChartDocument* document = owningDocument();
  if (!document) return;
  for (const NascorGraphView* graph :
       {document->BPDGraph(), document->HCGraph(), document->ACGraph(), document->FLGraph()}) {
    if (graph) updatingGraphArray_.push_back(graph);
  }
}

void EFWGraphView::initEFWStandards(const foundation::Notification& notification) {
  const auto* graph = dynamic_cast<const NascorGraphView*>(notification.sender);
  if (!graph || graph->owningDocument() != owningDocument()) return;
  if (updatingGraphArray_.empty()) resetUpdatingGraphArray();
  const auto awaited = std::ranges::find(updatingGraphArray_, graph);
  if (awaited == updatingGraphArray_.end()) return;
  updatingGraphArray_.erase(awaited);
  if (!updatingGraphArray_.empty()) return;

  resetUpdatingGraphArray();
  const ChartDocument& document = *owningDocument();
  const auto rowsOf = [](const NascorGraphView* chart) {
    return chart ? chart->standardData() : calc::ReferenceTable();
  };
  table() = calc::fetalWeightTable(rowsOf(document.BPDGraph()), rowsOf(document.HCGraph()),
                                   rowsOf(document.ACGraph()), rowsOf(document.FLGraph()),
                                   document.fetalWeightStandard());
  setNeedsDisplay();
}

}  // namespace nascor::charts
