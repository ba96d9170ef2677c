// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "faults/FaultTable.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace {

std::string Text(const std::map<std::string, int> &outcomes) {
  std::string text;
  for (const auto &[outcome, count] : outcomes)
    text += (text.empty() ? "" : "; ") + (outcomes.size() > 1 ? std::to_string(count) + " " : std::string()) + outcome;
  return text;
}

}  // namespace

FaultTable &FaultTable::Only() {
  static FaultTable table;
  return table;
}

void FaultTable::Add(const std::string &fault, const std::string &window, const std::string &daily) {
  auto row = std::find_if(rows.begin(), rows.end(), [&](const Row &one) { return one.fault == fault; });
  if (row == rows.end()) row = rows.insert(rows.end(), Row{fault, 0, {}, {}});
  ++row->cases;
  ++row->window[window];
  ++row->daily[daily];
}

FaultTable::~FaultTable() {
  const char *file = std::getenv("ORVANI_FAULT_TABLE");
  if (!file) return;
  std::ofstream out(file);
  out << "| Fault | Cases | The window | `orvani-daily` |\n|---|---|---|---|\n";
  for (const Row &row : rows)
    out << "| " << row.fault << " | " << row.cases << " | " << Text(row.window) << " | " << Text(row.daily) << " |\n";
}
