// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QFont>
#include <QRectF>
#include <vector>

#include "analysis/ExactDayPage.h"
#include "content/pages/PaintInks.h"

class QPaintDevice;
class QPainter;

// The day as bars on one scale of time, for any painter. All distances are taken from the text's height on the device.
class DayTimelinePaint {
 public:
  DayTimelinePaint(const ExactDayPage &dayPage, const QFont &textFont, QPaintDevice *paintDevice);

  double Height() const;  // that the lanes need
  // The widest a row head is; the scale takes the rest.
  double MinimumWidth() const;
  void Paint(QPainter &painter, const QRectF &room, const PaintInks &inks) const;

  // The drawn hours within the room, and a bar's place on them.
  QRectF Scale(const QRectF &room) const;
  QRectF BarRect(const QRectF &scale, const QRectF &room, size_t lane, const ExactDayPage::Bar &bar) const;
  // The bar under a point of the room, or none.
  const ExactDayPage::Bar *BarAt(const QRectF &room, const QPointF &point) const;

 private:
  double LaneTop(size_t lane) const;  // from the room's top
  void PaintGround(QPainter &painter, const QRectF &scale, const PaintInks &inks) const;
  void PaintHours(QPainter &painter, const QRectF &scale, const PaintInks &inks) const;
  void PaintBar(QPainter &painter, const QRectF &at, const ExactDayPage::Bar &bar, const PaintInks &inks) const;
  void PaintCaption(QPainter &painter, const QRectF &at, double now, const ExactDayPage::Bar &bar, const PaintInks &inks) const;
  double NowAt(const QRectF &scale) const;
  void PaintNow(QPainter &painter, const QRectF &scale, const PaintInks &inks) const;

  const ExactDayPage &page;
  QFont font, bold, small;
  double text = 0;       // height of a line
  double headWidth = 0;  // column of the row heads
  QPaintDevice *device;
};
