// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "chart/SpokenParts.h"

// A stretch of time as a bar: its parts in their true lengths, good and bad by colour and name, and the moment of the
// analysis as a line. Places are numbers on one axis, such as minutes of the day.
class SpanStrip : public QWidget, public SpokenParts {
  Q_OBJECT

 public:
  enum class Tone { Plain, Good, Bad };

  struct Part {
    double begin = 0, end = 0;
    QString name;
    Tone tone = Tone::Plain;
    QString brief = {};   // where the name has no room; empty for none
    QString detail = {};  // below the name on a tall strip, where it has room
  };
  struct Tick {
    double at = 0;
    QString caption;
  };
  struct Span {
    double from = 0, to = 0;
    Tone ground = Tone::Plain;  // where no part lies; Plain for none
    std::vector<Part> parts;
    std::vector<Tick> ticks;  // the outer two are always written, the others where there is room
    double moment = 0;        // not shown where it lies outside
    QString momentWord;
    bool namesAbove = false;  // names too long for their part stand above it; otherwise they are left out
  };

  explicit SpanStrip(QWidget *parent = nullptr);

  void SetSpan(Span span);
  // The bar takes the height that there is, up to four times its own.
  void SetTall(bool tall);
  const Span &Shown() const { return shown; }

  int PartCount() const override { return static_cast<int>(shown.parts.size()); }
  // The part's name, whether it is good or bad, and whether it runs.
  QString PartWords(int part) const override;
  QRect PartRoom(int part) const override;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

  // Minutes of the day as a tick's caption, such as "6:45"; days beyond the first come back by 1440.
  static QString ClockCaption(int minutes);
  // A tick at both ends and at each full hour between.
  static std::vector<Tick> HourTicks(int fromMinutes, int toMinutes);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  void PaintParts(QPainter &painter, double top) const;
  void PaintTicks(QPainter &painter, double y) const;
  double At(double place) const;
  double BarTop() const;
  QRectF Write(QPainter &painter, double centre, double y, const QString &words) const;

  double BarPixels() const;

  Span shown;
  bool isTall = false;
};
