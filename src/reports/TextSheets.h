// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <vector>

#include "platform/PrinterService.h"
#include "reports/FormItem.h"

// A page as the sheets that show it whole: one, or as many upright ones as its running text needs. A printer is given no running text, so
// each line of it, wrapped by the printer's letters, becomes a label; what else the page holds stands on the first sheet.
std::vector<FormPage> TextSheets(const FormPage &page, PrinterService &printer);
