// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QWidget>
#include <memory>

#include "analysis/MonthPage.h"
#include "chart/SpokenParts.h"
#include "content/pages/MonthPaint.h"

// The month on the screen: arrow keys and clicks choose a day, Enter or a double click asks to open it.
class MonthGrid : public QWidget, public SpokenParts {
  Q_OBJECT

 public:
  explicit MonthGrid(QWidget *parent = nullptr);

  void SetPage(const MonthPage &monthPage);
  QDate Chosen() const;  // not valid before a day is chosen

  QAccessible::Role SpokenRole() const override { return QAccessible::List; }
  int PartCount() const override { return static_cast<int>(page.cells.size()); }
  QString PartWords(int day) const override { return page.cells[static_cast<size_t>(day)].spoken; }
  QRect PartRoom(int day) const override;
  int MarkedPart() const override { return chosen; }
  void PressPart(int day) override;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void DayChosen(const QDate &date);  // to be opened
  void MonthWanted(int step);         // the arrow keys left the month, or Page Up and Page Down

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void changeEvent(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;

 private:
  void Choose(int index);
  void Open();
  int NeededHeight() const;
  // Wrapping the words of a month takes longer than painting them, so their heights are kept for a width and a font.
  const MonthPaint &Drawing() const;

  MonthPage page;
  mutable std::unique_ptr<MonthPaint> drawing;
  mutable int drawingWidth = 0;
  mutable double drawingScale = 0;
  int chosen = -1;
};
