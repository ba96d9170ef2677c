// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/RichTextView.h"

#include <QKeyEvent>
#include <QTextCursor>
#include <QTextEdit>
#include <QTextFrame>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>

#include "content/SetFonts.h"
#include "content/Theme.h"

namespace {

constexpr int HeadPoints = 12, BodyPoints = 10;
constexpr int Measure = 75;  // characters a line
constexpr int LeastZoom = -3, MostZoom = 14;

}  // namespace

RichTextView::RichTextView(QWidget *parent) : PageView(parent), area(new QTextEdit) {
  setObjectName(QStringLiteral("pageRtf"));
  area->setObjectName(QStringLiteral("rtf"));
  area->setAccessibleName(tr("Text of the page"));
  area->setReadOnly(true);
  area->setUndoRedoEnabled(false);  // a page that is only read needs no memory of its fillings
  area->setTextInteractionFlags(Qt::TextSelectableByMouse);
  area->setFocusPolicy(Qt::StrongFocus);
  area->setTabChangesFocus(true);
  const ChartPalette &colours = Theme::Current().chart;
  area->setStyleSheet(QStringLiteral("QTextEdit { background: %1; border: 2px solid transparent; border-radius: %2px; padding: 4px 7px; }"
                                     "QTextEdit:focus { border-color: %3; }")
                          .arg(colours.card.name(), QString::number(Grid::CardRadius), colours.saffron.name()));
  area->installEventFilter(this);
  area->viewport()->installEventFilter(this);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(area);
  setFocusProxy(area);
}

void RichTextView::AppendHead(const QString &text) {
  pieces.push_back({text, true});
  Write(pieces.back());
}

void RichTextView::AppendBody(const QString &text) {
  pieces.push_back({text, false});
  Write(pieces.back());
}

void RichTextView::Clear() {
  pieces.clear();
  area->clear();
  FitMeasure();
}

void RichTextView::SetZoom(int steps) {
  zoom = std::clamp(steps, LeastZoom, MostZoom);
  area->clear();
  for (const Piece &piece : pieces) Write(piece);
  FitMeasure();
}

void RichTextView::Write(const Piece &piece) {
  const Theme &theme = Theme::Current();
  const int points = (piece.head ? HeadPoints : BodyPoints) + zoom;
  QTextCharFormat letters;
  letters.setFont(SetFonts::Face(points, piece.head));
  letters.setForeground(piece.head ? theme.chart.maroon : theme.chart.ink);
  QTextBlockFormat block;
  block.setLineHeight(140, QTextBlockFormat::ProportionalHeight);
  const bool first = area->document()->isEmpty();
  block.setTopMargin(piece.head && !first ? points : 0);
  block.setBottomMargin(points * 0.6);
  QTextCursor cursor(area->document());
  cursor.movePosition(QTextCursor::End);
  if (first)
    cursor.setBlockFormat(block);
  else
    cursor.insertBlock(block);
  cursor.insertText(piece.text, letters);
  if (first) FitMeasure();
}

void RichTextView::FitMeasure() {
  const int measure = QFontMetrics(SetFonts::Face(BodyPoints + zoom, false)).averageCharWidth() * Measure;
  QTextFrame *page = area->document()->rootFrame();
  QTextFrameFormat format = page->frameFormat();
  format.setTopMargin(Grid::Gap);
  format.setBottomMargin(Grid::Margin);
  format.setLeftMargin(std::max(Grid::Margin, (width() - measure) / 2));
  format.setRightMargin(format.leftMargin());
  page->setFrameFormat(format);
}

void RichTextView::resizeEvent(QResizeEvent *event) {
  PageView::resizeEvent(event);
  FitMeasure();
}

bool RichTextView::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::KeyPress) {
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->modifiers() & Qt::ControlModifier) {
      switch (key->key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal: SetZoom(zoom + 1); return true;
        case Qt::Key_Minus: SetZoom(zoom - 1); return true;
        case Qt::Key_0: SetZoom(0); return true;
        default: break;
      }
    }
  } else if (event->type() == QEvent::Wheel) {
    const auto *wheel = static_cast<QWheelEvent *>(event);
    if (wheel->modifiers() & Qt::ControlModifier) {
      SetZoom(zoom + (wheel->angleDelta().y() > 0 ? 1 : -1));
      return true;
    }
  }
  return PageView::eventFilter(watched, event);
}
