// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QAbstractButton>

class SetFonts;

// A tile that leads to a page.
class PageTile : public QAbstractButton {
  Q_OBJECT

 public:
  static constexpr int LeastWidth = 232;

  // picture: name in the skin.
  explicit PageTile(const QString &picture, QWidget *parent = nullptr);

  void SetHelp(const QString &line);
  void ApplyFonts(const SetFonts &fonts);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  bool event(QEvent *event) override;

 private:
  QString pictureName;
  QString help;
  QFont titleFont;
};
