// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <vector>

// What became of each fault, gathered while the tests run. Where the variable ORVANI_FAULT_TABLE names a file, the table is written there
// when the program ends.
class FaultTable {
 public:
  static FaultTable &Only();
  ~FaultTable();

  // One case of a fault; the outcomes of its cases are counted.
  void Add(const std::string &fault, const std::string &window, const std::string &daily);

 private:
  struct Row {
    std::string fault;
    int cases = 0;
    std::map<std::string, int> window, daily;
  };
  std::vector<Row> rows;
};
