// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "platform/Errors.h"

// Paper or PDF that cannot be made: a printer that is gone, a page that it refuses.
class ReportError : public Error {
 public:
  using Error::Error;
};

// The user stopped the report; nothing was left behind.
class ReportCancelled : public ReportError {
 public:
  using ReportError::ReportError;
};
