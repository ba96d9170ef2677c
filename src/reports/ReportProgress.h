// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

// Told how far a report is.
class ReportProgress {
 public:
  ReportProgress() = default;
  ReportProgress(const ReportProgress &) = delete;
  ReportProgress &operator=(const ReportProgress &) = delete;
  virtual ~ReportProgress() = default;

  // `done` parts of `total` are made. False stops the report.
  virtual bool Step(int done, int total) = 0;
};
