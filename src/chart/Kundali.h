// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QWidget>

#include "chart/ChartPalette.h"
#include "chart/KundaliModel.h"
#include "chart/SpokenParts.h"

/// The chart on screen. Filled by Clear, SetChartStyle, SetHouseNumber and PlanetPlace, in this order.
/// Positions in its mouse events are in the chart's own square of 1000 by 1000 units.
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

  /// The chart as data: its parts for the printer and the PDF.
  const ChartLayout &Layout() const { return model_.Layout(); }

  void Clear() { model_.Clear(); }
  void PlanetPlace(int sign, const QString &text) { model_.PlanetPlace(sign, text); }
  QString HouseText(int house) const { return model_.HouseText(house); }
  int LagnaNo() const { return model_.LagnaNo(); }
  void MakeHouseInvisible() { model_.MakeHouseInvisible(); }
  void DrawKundli() { model_.DrawKundli(); }
  void Refresh() { update(); }
  static int Expunger12(int value) { return KundaliModel::Expunger12(value); }

  int ChartStyle() const { return model_.ChartStyle(); }
  void SetChartStyle(int style) { model_.SetChartStyle(style); }
  int HouseNumber() const { return model_.HouseNumber(); }
  void SetHouseNumber(int sign) { model_.SetHouseNumber(sign); }
  int LineWidth() const { return model_.LineWidth(); }
  void SetLineWidth(int pixels) { model_.SetLineWidth(pixels); }
  int BorderWidth() const { return model_.BorderWidth(); }
  void SetBorderWidth(int pixels) { model_.SetBorderWidth(pixels); }
  QColor BackColor() const { return model_.BackColor(); }
  void SetBackColor(const QColor &colour) { model_.SetBackColor(colour); }
  QColor ForeColor() const { return model_.ForeColor(); }
  void SetForeColor(const QColor &colour) { model_.SetForeColor(colour); }
  QColor LineColor() const { return model_.LineColor(); }
  void SetLineColor(const QColor &colour) { model_.SetLineColor(colour); }
  QColor BorderColor() const { return model_.BorderColor(); }
  void SetBorderColor(const QColor &colour) { model_.SetBorderColor(colour); }
  QColor TextColor() const { return model_.TextColor(); }
  void SetTextColor(const QColor &colour) { model_.SetTextColor(colour); }
  QColor NumberColor() const { return model_.NumberColor(); }
  void SetNumberColor(const QColor &colour) { model_.SetNumberColor(colour); }
  QFont HouseFont() const { return model_.HouseFont().value_or(font()); }
  void SetHouseFont(const QFont &font) { model_.SetHouseFont(font); }
  QFont PlanetFont() const { return model_.PlanetFont().value_or(font()); }
  void SetPlanetFont(const QFont &font) { model_.SetPlanetFont(font); }
  QImage CentrePic() const { return model_.CentrePic(); }
  void SetCentrePic(const QImage &picture) { model_.SetCentrePic(picture); }
  bool Enabled() const { return isEnabled(); }
  void SetEnabled(bool enabled) { model_.SetEnabled(enabled); }

  /// The ascendant's name as it is placed; it is set apart in the accent colour.
  void SetAscendantName(const QString &name) { model_.SetAccentText(name); }

  KundaliModel::State WriteState() const { return model_.WriteState(); }
  void ReadState(const KundaliModel::State &state) { model_.ReadState(state); }

  void SetSpokenNames(KundaliModel::SpokenNames names) { model_.SetSpokenNames(std::move(names)); }
  int PartCount() const override { return ChartLayout::Cells; }
  QString PartWords(int cell) const override { return model_.CellWords(cell); }
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

  KundaliModel model_;
  bool focusShown_ = false;
  bool pressedInside_ = false;
};
