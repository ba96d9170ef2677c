// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QPoint>
#include <QRect>
#include <QString>

class QWidget;

// A widget that draws its content itself and tells it to assistive tools part by part: the houses of a chart, the days of
// a month. The widget's accessible name says what the whole is. To be a base of the widget beside QWidget.
class SpokenParts {
 public:
  SpokenParts();
  virtual ~SpokenParts() = default;

  // What the whole is; a list for parts that are chosen from.
  virtual QAccessible::Role SpokenRole() const { return QAccessible::Chart; }
  virtual int PartCount() const = 0;
  // part: 0 to PartCount() - 1, here and below.
  virtual QString PartWords(int part) const = 0;
  // In the widget, pixels.
  virtual QRect PartRoom(int part) const = 0;
  // The part at a point of the widget; -1 beside them.
  virtual int PartAt(const QPoint &point) const;
  // The part that the keys have marked; -1 for none.
  virtual int MarkedPart() const { return -1; }
  // What a click on the part does. Only parts of a list are pressed.
  virtual void PressPart(int) {}

 protected:
  // Says that the keys have marked another part.
  static void TellMarked(QWidget &widget, int part);
  // Says that the parts are others than before.
  static void TellParts(QWidget &widget);
};
