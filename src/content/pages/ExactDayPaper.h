// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QRectF>

#include "analysis/ExactDayPage.h"

class QPainter;

// The exact day on one sheet of paper: the drawing, its facts and all times.
namespace ExactDayPaper {

// room: the sheet less its margins, in the painter's units. The text is set as large as the sheet allows.
void Paint(QPainter &painter, const QRectF &room, const ExactDayPage &page);

}  // namespace ExactDayPaper
