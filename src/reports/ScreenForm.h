// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "reports/FormItem.h"

class QWidget;

// A page of the screen as items for paper: its labels, charts, pictures, lines and formatted texts where they stand, the
// whole made smaller as far as it is larger than a sheet of A4. Colours of a dark screen turn dark on white.
FormPage ScreenForm(QWidget &page);
