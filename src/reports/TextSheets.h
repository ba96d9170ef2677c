// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <vector>

#include "platform/PrinterService.h"
#include "reports/FormItem.h"

// A page with running text as the upright sheets that show it whole. A printer is given no running text, so each line of it, wrapped by
// the printer's letters, becomes a label; what else the page holds stands on the first sheet.
std::vector<FormPage> TextSheets(const FormPage &page, PrinterService &printer);
