// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QWidget>

#include "chart/ChartPalette.h"
#include "chart/KundaliModel.h"
#include "chart/SpokenParts.h"

// The chart on screen. Filled by Clear, SetChartStyle, SetHouseNumber and PlanetPlace, in this order.
// Positions in its mouse events are in the chart's own square of 1000 by 1000 units.
class Kundali : public QWidget, public SpokenParts {
  Q_OBJECT
  Q_PROPERTY(int ChartStyle READ ChartStyle WRITE SetChartStyle NOTIFY ChartChanged)
  Q_PROPERTY(int HouseNumber READ HouseNumber WRITE SetHouseNumber NOTIFY ChartChanged)
  Q_PROPERTY(int LineWidth READ LineWidth WRITE SetLineWidth NOTIFY ChartChanged)
  Q_PROPERTY(int BorderWidth READ BorderWidth WRITE SetBorderWidth NOTIFY ChartChanged)
  Q_PROPERTY(QFont HouseFont READ HouseFont WRITE SetHouseFont NOTIFY ChartChanged)
  Q_PROPERTY(QFont PlanetFont READ PlanetFont WRITE SetPlanetFont NOTIFY ChartChanged)

 public:
  explicit Kundali(QWidget *parent = nullptr);

  // The chart as data: its parts for the printer and the PDF.
  const ChartLayout &Layout() const { return model.Layout(); }

  void Clear() { model.Clear(); }
  void PlanetPlace(int sign, const QString &text) { model.PlanetPlace(sign, text); }
  QString HouseText(int house) const { return model.HouseText(house); }
  int LagnaNo() const { return model.LagnaNo(); }
  void MakeHouseInvisible() { model.MakeHouseInvisible(); }
  void DrawKundli() { model.DrawKundli(); }
  void Refresh() { update(); }
  static int Expunger12(int value) { return KundaliModel::Expunger12(value); }

  int ChartStyle() const { return model.ChartStyle(); }
  void SetChartStyle(int style) { model.SetChartStyle(style); }
  int HouseNumber() const { return model.HouseNumber(); }
  void SetHouseNumber(int sign) { model.SetHouseNumber(sign); }
  int LineWidth() const { return model.LineWidth(); }
  void SetLineWidth(int pixels) { model.SetLineWidth(pixels); }
  int BorderWidth() const { return model.BorderWidth(); }
  void SetBorderWidth(int pixels) { model.SetBorderWidth(pixels); }
  QColor BackColor() const { return model.BackColor(); }
  void SetBackColor(const QColor &colour) { model.SetBackColor(colour); }
  QColor ForeColor() const { return model.ForeColor(); }
  void SetForeColor(const QColor &colour) { model.SetForeColor(colour); }
  QColor LineColor() const { return model.LineColor(); }
  void SetLineColor(const QColor &colour) { model.SetLineColor(colour); }
  QColor BorderColor() const { return model.BorderColor(); }
  void SetBorderColor(const QColor &colour) { model.SetBorderColor(colour); }
  QColor TextColor() const { return model.TextColor(); }
  void SetTextColor(const QColor &colour) { model.SetTextColor(colour); }
  QColor NumberColor() const { return model.NumberColor(); }
  void SetNumberColor(const QColor &colour) { model.SetNumberColor(colour); }
  QFont HouseFont() const { return model.HouseFont().value_or(font()); }
  void SetHouseFont(const QFont &font) { model.SetHouseFont(font); }
  QFont PlanetFont() const { return model.PlanetFont().value_or(font()); }
  void SetPlanetFont(const QFont &font) { model.SetPlanetFont(font); }
  QImage CentrePic() const { return model.CentrePic(); }
  void SetCentrePic(const QImage &picture) { model.SetCentrePic(picture); }
  bool Enabled() const { return isEnabled(); }
  void SetEnabled(bool enabled) { model.SetEnabled(enabled); }

  // The ascendant's name as it is placed; it is set apart in the accent colour.
  void SetAscendantName(const QString &name) { model.SetAccentText(name); }

  KundaliModel::State WriteState() const { return model.WriteState(); }
  void ReadState(const KundaliModel::State &state) { model.ReadState(state); }

  void SetSpokenNames(KundaliModel::SpokenNames names) { model.SetSpokenNames(std::move(names)); }
  int PartCount() const override { return ChartLayout::Cells; }
  QString PartWords(int cell) const override { return model.CellWords(cell); }
  QRect PartRoom(int cell) const override;
  int PartAt(const QPoint &point) const override;

  QSize sizeHint() const override { return {320, 320}; }
  QSize minimumSizeHint() const override { return {200, 200}; }

 signals:
  // The drawing's own events. Buttons: 1 left, 2 right, 4 middle; shift: 1 Shift, 2 Ctrl, 4 Alt.
  void Click();  // also by Space, Enter and assistive tools
  void DblClick();
  void KeyDown(int keyCode, int shift);
  void KeyPress(int keyAscii);
  void KeyUp(int keyCode, int shift);
  void MouseDown(int button, int shift, float x, float y);
  void MouseMove(int button, int shift, float x, float y);
  void MouseUp(int button, int shift, float x, float y);

  void PropertyChanged(const QString &name);
  void ChartChanged();

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void changeEvent(QEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void keyReleaseEvent(QKeyEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;

 private:
  QRectF ChartRect() const;
  QPointF ToChart(const QPointF &position) const;
  bool IsOverPart(const QPointF &position) const;
  void OnChange(const QString &property);

  KundaliModel model;
  bool focusShown = false;
  bool pressedInside = false;
};
