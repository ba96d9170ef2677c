// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QAbstractButton>

// A period of the dasha as a flat button: its caption, its state in words, and how much of it is over as a thin bar.
class DashaRow : public QAbstractButton {
  Q_OBJECT

 public:
  enum class State { Past, Running, Coming };

  explicit DashaRow(QWidget *parent = nullptr);

  // share: of the period that is over, 0 to 1; word: beside the caption, such as "now, 43 % over".
  void SetPeriod(State periodState, double share, const QString &word);
  void SetTinted(bool on) { tinted = on; }
  State PeriodState() const { return state; }
  double Elapsed() const { return elapsed; }
  const QString &Word() const { return note; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  bool event(QEvent *event) override;

 private:
  void FitHeight();

  State state = State::Coming;
  double elapsed = 0;
  QString note;
  bool tinted = false;
};
