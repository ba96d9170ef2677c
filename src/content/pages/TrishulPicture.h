// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QLabel>
#include <QWidget>
#include <array>

#include "platform/AppPaths.h"

// The drawing of the tridents with its 28 numbers, which keep their places at every size.
class TrishulPicture : public QWidget {
  Q_OBJECT

 public:
  static constexpr int Count = 28;

  enum class Mark { None, Today, Birth, Both };

  // Reads the numbers' places from the data folder; without them the numbers stand in a ring.
  explicit TrishulPicture(const AppPaths &paths, QWidget *parent = nullptr);

  QLabel &Number(int label) const { return *labels[static_cast<size_t>(label)]; }
  bool IsPoint(int label) const { return places[static_cast<size_t>(label)].point; }
  void SetMark(int label, Mark mark);
  void LayOut();  // after the numbers' fonts have changed

  QSize sizeHint() const override { return {440, 440}; }
  QSize minimumSizeHint() const override { return {300, 300}; }

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  struct Place {
    QPointF centre;  // in the drawing's square, 0 to 1000
    bool point = false;
  };

  void ReadPlaces(const QString &path);
  QRectF Square() const;

  QIcon drawing;
  std::array<Place, Count> places;
  std::array<QLabel *, Count> labels{};
  std::array<Mark, Count> marks{};
};
