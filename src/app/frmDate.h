// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <functional>

#include "content/DropDown.h"

class QCalendarWidget;
class QLabel;
class QLineEdit;

// Chooses the analysis moment. A click on a day, Enter and the close button take what is shown; Esc and a click outside do not.
class frmDate : public DropDown {
  Q_OBJECT

 public:
  using Clock = std::function<QDateTime()>;

  // now: the present moment, for the button "Now".
  explicit frmDate(Clock now, QWidget *parent = nullptr);

  void SetMoment(const QDateTime &moment);
  QDateTime Moment() const;

  // The day plus the hours and minutes of a time such as "06:45". A place still blank ("_") counts as 0, and "24:00" is the
  // next day's first moment. Throws ConversionError for what is no number.
  static QDateTime MomentOf(const QDate &day, const QString &time);

 signals:
  void Chosen(const QDateTime &moment);

 protected:
  void keyPressEvent(QKeyEvent *event) override;
  void showEvent(QShowEvent *event) override;

 private:
  void MakeCalendar();
  void MoveDay(int days);
  void ShowMoment();
  void Take();

  Clock clock;
  QCalendarWidget *mntToday;
  QLineEdit *txtDTime;
  QLabel *lblMoment;
};
