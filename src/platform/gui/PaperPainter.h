// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <functional>

#include "platform/PrintFont.h"

class QPagedPaintDevice;

// Draws in twips on the pages of a printer or a PDF. On paper too small for an upright A4 page everything is made smaller and
// set in the middle. Throws ReportError when the device refuses a page.
class PaperPainter {
  Q_DECLARE_TR_FUNCTIONS(PaperPainter)

 public:
  // `paintDevice` must outlive this object; `hasFailed` is asked with each page.
  explicit PaperPainter(QPagedPaintDevice &paintDevice, std::function<bool()> hasFailed = {});
  ~PaperPainter();
  PaperPainter(const PaperPainter &) = delete;
  PaperPainter &operator=(const PaperPainter &) = delete;

  // What the pages are made for, in twips; at first either of the two usual papers, upright.
  void SetDesign(const QSizeF &twips) { design = twips; }

  // A whole A4 page.
  static constexpr QSizeF UprightA4{11880, 16820};
  static constexpr QSizeF LandscapeA4{16820, 11880};

  void SetFont(const PrintFont &chosen);
  double Width(const QString &text) const;
  double LineHeight() const;

  void Text(const QPointF &topLeft, const QString &text, unsigned rgb);
  void TextIn(const QRectF &box, const QString &text, Qt::Alignment across, bool wrap, unsigned rgb);
  void Line(const QPointF &from, const QPointF &to, double penTwips, unsigned rgb);
  void Outline(const QRectF &box, double penTwips, unsigned rgb);
  void Fill(const QRectF &box, unsigned rgb);
  void Ellipse(const QRectF &box, double penTwips, unsigned rgb);
  void Picture(const QImage &picture, const QRectF &box);

  int Page() const { return page; }
  bool PageBegun() const { return painter.isActive() && !pageDue; }
  void NewPage();
  void End();

  // Begins the page if nothing was drawn on it yet.
  void EnsurePage();

 private:
  void SetPen(double penTwips, unsigned rgb);
  [[noreturn]] static void ThrowFailed();

  QPagedPaintDevice &device;
  std::function<bool()> deviceFailed;
  QPainter painter;
  QSizeF design;
  PrintFont font;
  QFont shown;
  QFontMetricsF metrics;
  int page = 1;
  bool pageDue = false;
};
