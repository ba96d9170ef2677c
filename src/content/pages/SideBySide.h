// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QBoxLayout>
#include <QWidget>

// Two halves of a page: side by side where both fit, otherwise one above the other.
class SideBySide : public QWidget {
  Q_OBJECT

 public:
  SideBySide(QWidget *first, QWidget *second, QWidget *parent = nullptr);

  // Of the widths; the halves are equal otherwise.
  void SetStretch(int first, int second);

  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent *event) override;

 private:
  QWidget *left, *right;
  QBoxLayout *layout;
};
