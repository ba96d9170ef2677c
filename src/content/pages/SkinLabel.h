// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QWidget>

// A small picture of the skin beside a caption, as tall as the caption's text. Nothing where the picture is missing.
class SkinLabel : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  // name: of the skin's picture, such as "planet04".
  void SetPicture(const QString &name);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QIcon picture;
};
