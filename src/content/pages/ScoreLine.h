// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDate>
#include <QWidget>
#include <vector>

#include "chart/SpokenParts.h"

// A score from 0 to 100 over a row of days as a line. The day under the pointer, or the one that the arrow keys have
// reached, is told in a tool tip; a click or Enter chooses it.
class ScoreLine : public QWidget, public SpokenParts {
  Q_OBJECT

 public:
  explicit ScoreLine(QWidget *parent = nullptr);

  // dates: whether the days' dates are written under the line.
  void SetCourse(const QString &name, const QDate &firstDay, std::vector<double> scores, bool dates);

  const std::vector<double> &Scores() const { return values; }
  int Marked() const { return marked; }  // day from 0; -1 for none
  QString TellDay(int day) const;        // "Sunday, 22 November 2026: 75"
  int DayAt(double x) const;             // the nearest day of a place, pixels
  QPointF PointOf(int day) const;

  QAccessible::Role SpokenRole() const override { return QAccessible::List; }
  int PartCount() const override { return static_cast<int>(values.size()); }
  QString PartWords(int day) const override { return TellDay(day); }
  QRect PartRoom(int day) const override;
  int MarkedPart() const override { return marked; }
  void PressPart(int day) override { Choose(day); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void DayChosen(const QDate &day);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void leaveEvent(QEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

 private:
  QRectF Plot() const;
  void Mark(int day);
  void Choose(int day);
  int LastDay() const { return static_cast<int>(values.size()) - 1; }

  QString title;
  QDate first;
  std::vector<double> values;
  bool datesWritten = false;
  int marked = -1;
};
