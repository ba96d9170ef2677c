// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/ElidedLabel.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>

void ElidedLabel::SetShortFont(const QFont &font) {
  shortFont = font;
  updateGeometry();
  update();
}

int ElidedLabel::LineCount(const QFont &font, int width) const {
  QTextLayout layout(text().simplified(), font);
  int lines = 0;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    ++lines;
  }
  layout.endLayout();
  return std::max(1, lines);
}

QFont ElidedLabel::FontFor(int width) const { return shortFont && LineCount(font(), width) > maxLines ? *shortFont : font(); }

int ElidedLabel::heightForWidth(int width) const {
  const QFont chosen = FontFor(width);
  return std::min(maxLines, LineCount(chosen, width)) * QFontMetrics(chosen).height();
}

void ElidedLabel::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  const QRect room = contentsRect();
  const QString whole = text().simplified();
  const QFont chosen = FontFor(room.width());
  const QFontMetrics metrics(chosen);
  painter.setFont(chosen);
  const int lineHeight = metrics.height();
  const int lines = std::clamp(room.height() / std::max(1, lineHeight), 1, maxLines);

  QStringList shown;
  QTextLayout layout(whole, chosen);
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(room.width());
    if (shown.size() == lines - 1) {
      shown << metrics.elidedText(whole.mid(line.textStart()), Qt::ElideRight, room.width());
      break;
    }
    shown << whole.mid(line.textStart(), line.textLength()).trimmed();
  }
  layout.endLayout();
  const bool cut = !shown.isEmpty() && shown.last().endsWith(QChar(0x2026));
  const QString tip = cut ? whole : QString();
  if (toolTip() != tip) setToolTip(tip);

  const int height = lineHeight * static_cast<int>(shown.size());
  int y = room.top() + (room.height() - height) / 2;
  for (const QString &line : shown) {
    painter.drawText(QRect(room.left(), y, room.width(), lineHeight), static_cast<int>(alignment()) | Qt::TextSingleLine, line);
    y += lineHeight;
  }
}
