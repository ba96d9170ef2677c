// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/ScreenForm.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QFontInfo>
#include <QLabel>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <algorithm>
#include <cmath>

#include "chart/Kundali.h"

namespace {

constexpr double TwipsPerPixel = 15;  // a screen pixel is a 96th of an inch
constexpr double SheetLong = 16838, SheetShort = 11906, Margin = 720;
constexpr double BelowPageHead = 1700;  // a PDF heads running text with the person's name and the program's mark
constexpr int PictureScale = 3;
constexpr double FullSizeChart = 320;  // pixels

// Texts of any colour scheme as dark as they need to be on white.
unsigned OnPaper(const QColor &colour) {
  return (colour.lightness() > 140 ? QColor::fromHsl(colour.hslHue(), colour.hslSaturation(), 60) : colour).rgb() & 0xFFFFFF;
}

class Walk {
 public:
  Walk(QWidget &screenPage, FormPage &paperForm) : page(screenPage), form(paperForm) {
    QRect whole;
    Measure(page, whole);
    whole = whole.united(QRect(0, 0, 1, 1));
    // Running text flows down upright sheets, whatever the shape of the window; only what stands above it keeps its place.
    const QList<QTextEdit *> texts = page.findChildren<QTextEdit *>();
    const bool isText = std::any_of(texts.begin(), texts.end(), [this](QTextEdit *text) { return IsText(*text); });
    form.landscape = !isText && whole.width() > whole.height();
    const double across = isText ? RunningText::Width : (form.landscape ? SheetLong : SheetShort) - 2 * Margin;
    const double down = (form.landscape ? SheetShort : SheetLong) - 2 * Margin;
    twips = std::min(TwipsPerPixel, across / whole.width());
    if (!isText) twips = std::min(twips, down / whole.height());
    origin = whole.topLeft();
    left = (isText ? RunningText::Left : Margin) + (across - whole.width() * twips) / 2;
    top = isText ? BelowPageHead : Margin;
  }

  void Over(QWidget &widget) {
    for (QObject *child : widget.children()) {
      auto *part = qobject_cast<QWidget *>(child);
      if (!part || part->isWindow() || !part->isVisibleTo(&page)) continue;
      if (!Add(*part)) Over(*part);
    }
  }

 private:
  // The room that the page's own parts take up: more than the window where the page scrolls.
  void Measure(QWidget &widget, QRect &whole) const {
    for (QObject *child : widget.children()) {
      auto *part = qobject_cast<QWidget *>(child);
      if (!part || part->isWindow() || !part->isVisibleTo(&page)) continue;
      if (IsLeaf(*part)) whole = whole.united(QRect(part->mapTo(&page, QPoint()), part->size()));
      Measure(*part, whole);
    }
  }

  bool IsText(const QTextEdit &edit) const { return edit.isVisibleTo(&page) && !edit.document()->isEmpty(); }

  static bool IsControl(const QWidget &part) {
    return qobject_cast<const QAbstractButton *>(&part) || qobject_cast<const QAbstractSlider *>(&part) || part.inherits("QScrollBar") ||
           part.inherits("QComboBox") || part.inherits("QSizeGrip");
  }

  static bool IsLeaf(const QWidget &part) {
    return qobject_cast<const QLabel *>(&part) || qobject_cast<const Kundali *>(&part) || qobject_cast<const QTextEdit *>(&part) ||
           IsDrawing(part);
  }

  // A part that paints itself and has none of its own.
  static bool IsDrawing(const QWidget &part) {
    const QLatin1String type(part.metaObject()->className());
    return !IsControl(part) && !part.inherits("QAbstractScrollArea") && type != QLatin1String("QWidget") &&
           type != QLatin1String("QFrame") && part.findChildren<QWidget *>().isEmpty();
  }

  FormItem Item(const char *type, const QWidget &part) const {
    const QPointF at = QPointF(part.mapTo(&page, QPoint()) - origin) * twips;
    FormItem item;
    item.typeName = QLatin1String(type);
    item.Left = left + at.x();
    item.Top = top + at.y();
    item.Width = part.width() * twips;
    item.Height = part.height() * twips;
    return item;
  }

  PrintFont FontOf(const QFont &font) const {
    PrintFont made;
    const QString family = QFontInfo(font).family();
    made.name = family == QLatin1String("Liberation Sans") ? QStringLiteral("Arial") : family;
    made.size = QFontInfo(font).pixelSize() * twips / 20;
    made.bold = font.weight() >= QFont::DemiBold;
    made.italic = font.italic();
    made.underline = font.underline();
    made.strikeout = font.strikeOut();
    return made;
  }

  bool Add(QWidget &part) {
    if (IsControl(part)) return true;
    if (auto *label = qobject_cast<QLabel *>(&part)) {
      AddLabel(*label);
    } else if (auto *chart = qobject_cast<Kundali *>(&part)) {
      FormItem item = Item("Kundali", part);
      item.Chart = chart->Layout();
      item.Chart.lineColor = item.Chart.borderColor = item.Chart.textColor = item.Chart.numberColor = Qt::black;
      // On screen the texts grow with a large chart, more slowly than it; so they do here.
      const double grown = std::pow(std::max(1.0, std::min(part.width(), part.height()) / FullSizeChart), 0.7);
      item.Chart.planetFont.setPointSizeF(FontOf(chart->PlanetFont()).size * grown);
      item.Chart.houseFont.setPointSizeF(FontOf(chart->HouseFont()).size * grown);
      form.items.push_back(item);
    } else if (auto *text = qobject_cast<QTextEdit *>(&part)) {
      AddText(*text);
    } else if (auto *frame = qobject_cast<QFrame *>(&part);
               frame && (frame->frameShape() == QFrame::HLine || frame->frameShape() == QFrame::VLine)) {
      AddLine(*frame);
    } else if (IsDrawing(part)) {
      FormItem item = Item("Image", part);
      item.Picture = PictureOf(part);
      if (!item.Picture.isNull()) form.items.push_back(item);
    } else {
      return false;
    }
    return true;
  }

  void AddLabel(const QLabel &label) {
    if (const QPixmap pixmap = label.pixmap(Qt::ReturnByValue); !pixmap.isNull()) {
      FormItem item = Item("Image", label);
      QSizeF size = pixmap.deviceIndependentSize() * twips;
      if (size.width() > item.Width || size.height() > item.Height) size.scale(item.Width, item.Height, Qt::KeepAspectRatio);
      item.Left += (item.Width - size.width()) / 2;
      item.Top += (item.Height - size.height()) / 2;
      item.Width = size.width();
      item.Height = size.height();
      item.Picture = pixmap.toImage();
      form.items.push_back(item);
      return;
    }
    FormItem item = Item("Label", label);
    item.Caption = label.text();
    if (label.textFormat() == Qt::RichText || (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(item.Caption))) {
      QTextDocument document;
      document.setHtml(item.Caption);
      item.Caption = document.toPlainText();
    }
    if (item.Caption.trimmed().isEmpty()) return;
    item.Font = FontOf(label.font());
    item.ForeColor = OnPaper(label.palette().color(label.foregroundRole()));
    item.Alignment = label.alignment() & Qt::AlignHCenter ? FormItem::AlignCenter
                     : label.alignment() & Qt::AlignRight ? FormItem::AlignRight
                                                          : FormItem::AlignLeft;
    const QRect inside = label.contentsRect().adjusted(label.margin(), label.margin(), -label.margin(), -label.margin());
    item.Left += inside.left() * twips;
    item.Top += inside.top() * twips;
    item.Width = inside.width() * twips;
    item.Height = inside.height() * twips;
    const QRect needed = label.fontMetrics().boundingRect(QRect(0, 0, std::max(1, inside.width()), 10000),
                                                          label.wordWrap() ? Qt::TextWordWrap : 0, item.Caption);
    const double rest = item.Height - needed.height() * twips;
    if (rest > 0 && label.alignment() & Qt::AlignVCenter) item.Top += rest / 2;
    if (rest > 0 && label.alignment() & Qt::AlignBottom) item.Top += rest;
    // What stands on one line on screen does so on paper, where the letters are a little wider.
    if (!label.wordWrap()) {
      const double wider = std::max(0.0, needed.width() * twips * 1.06 - item.Width);
      item.Width += wider;
      if (item.Alignment != FormItem::AlignLeft) item.Left -= item.Alignment == FormItem::AlignCenter ? wider / 2 : wider;
    }
    form.items.push_back(item);
  }

  void AddLine(const QFrame &frame) {
    FormItem item = Item("Line", frame);
    const bool level = frame.frameShape() == QFrame::HLine;
    item.X1 = item.Left + (level ? 0 : item.Width / 2);
    item.X2 = level ? item.Left + item.Width : item.X1;
    item.Y1 = item.Top + (level ? item.Height / 2 : 0);
    item.Y2 = level ? item.Y1 : item.Top + item.Height;
    form.items.push_back(item);
  }

  void AddText(const QTextEdit &edit) {
    const QTextDocument *document = edit.document();
    if (!IsText(edit)) return;
    FormItem item = Item("TXTextControl", edit);
    struct Line {
      int start;
      FormText::Format format;
    };
    std::vector<Line> lines;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
      QTextCharFormat format = block.charFormat();
      if (block.begin() != block.end()) format = block.begin().fragment().charFormat();
      QFont font = format.font().resolve(document->defaultFont());
      PrintFont made;
      made.size = font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * 0.75;
      made.bold = font.bold();
      made.italic = font.italic();
      made.underline = font.underline();
      const unsigned colour = format.foreground().style() == Qt::NoBrush ? 0 : OnPaper(format.foreground().color());
      lines.push_back({static_cast<int>(item.RichText.Text.size()), {made, colour}});
      item.RichText.Text += block.text() + QLatin1Char('\n');
    }
    item.RichText.FormatAt = [lines](int start) {
      FormText::Format format;
      for (const Line &line : lines)
        if (line.start <= start) format = line.format;
      return format;
    };
    form.items.push_back(item);
  }

  static QImage PictureOf(QWidget &part) {
    QImage image(part.size() * PictureScale, QImage::Format_RGB32);
    if (image.isNull()) return image;
    image.setDevicePixelRatio(PictureScale);
    image.fill(Qt::white);
    part.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
  }

  QWidget &page;
  FormPage &form;
  double twips = TwipsPerPixel;
  double left = Margin, top = Margin;
  QPoint origin;
};

}  // namespace

FormPage ScreenForm(QWidget &page) {
  FormPage form;
  Walk(page, form).Over(page);
  return form;
}
