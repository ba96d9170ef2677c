// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/DashaRow.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "content/Theme.h"

namespace {
constexpr int Side = 14;
constexpr int Track = 3;
}  // namespace

DashaRow::DashaRow(QWidget *parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  FitHeight();
}

void DashaRow::SetPeriod(State periodState, double share, const QString &word) {
  state = periodState;
  elapsed = std::clamp(share, 0.0, 1.0);
  note = word;
  setAccessibleDescription(word);
  update();
}

QSize DashaRow::sizeHint() const {
  return {fontMetrics().horizontalAdvance(text()) + fontMetrics().horizontalAdvance(note) + 4 * Side + 16,
          qRound(fontMetrics().height() * 2.3)};
}

// Rows share the room that there is, up to two and a half lines each.
void DashaRow::FitHeight() { setMaximumHeight(qRound(fontMetrics().height() * 2.5)); }

QSize DashaRow::minimumSizeHint() const { return {sizeHint().width(), qRound(fontMetrics().height() * 1.7)}; }

bool DashaRow::event(QEvent *happening) {
  const QEvent::Type type = happening->type();
  if (type == QEvent::HoverEnter || type == QEvent::HoverLeave || type == QEvent::FontChange) update();
  if (type == QEvent::FontChange) FitHeight();
  return QAbstractButton::event(happening);
}

void DashaRow::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
    return;
  }
  // The page steps between rows and levels by the arrows.
  const int key = event->key();
  if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right)
    event->ignore();
  else
    QAbstractButton::keyPressEvent(event);
}

void DashaRow::paintEvent(QPaintEvent *) {
  const Theme &theme = Theme::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool runs = state == State::Running;
  const QRectF room = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
  const QColor ground = isDown() ? theme.chart.line : underMouse() || runs ? theme.selection : tinted ? theme.tint : theme.chart.card;
  painter.setBrush(ground);
  painter.setPen(hasFocus() ? QPen(theme.chart.saffron, 2) : QPen(Qt::NoPen));
  painter.drawRoundedRect(room, 6, 6);
  if (runs) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.chart.saffron);
    painter.drawRoundedRect(QRectF(room.left() + 2, room.top() + 5, 4, room.height() - 10), 2, 2);
    const QRectF track(room.left() + Side, room.bottom() - Track - 2, room.width() - 2 * Side, Track);
    painter.setBrush(theme.chart.line);
    painter.drawRoundedRect(track, Track / 2.0, Track / 2.0);
    painter.setBrush(theme.chart.saffron);
    painter.drawRoundedRect(QRectF(track.left(), track.top(), track.width() * elapsed, Track), Track / 2.0, Track / 2.0);
  }
  const QRect words = rect().adjusted(Side, 0, -Side, runs ? -Track : 0);
  // An arrow head at the end: the row leads on.
  const int head = fontMetrics().height() / 4;
  const QPointF tip(words.right(), words.center().y());
  painter.setPen(QPen(theme.chart.muted, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(QPolygonF({tip + QPointF(-head, -head), tip, tip + QPointF(-head, head)}));

  painter.setPen(state == State::Past ? theme.chart.muted : theme.chart.ink);
  QFont font = this->font();
  font.setBold(runs);
  painter.setFont(font);
  painter.drawText(words, Qt::AlignVCenter | Qt::AlignLeft, text());
  painter.setFont(this->font());
  painter.setPen(runs ? theme.chart.accent : theme.chart.muted);
  painter.drawText(words.adjusted(0, 0, -Side - head, 0), Qt::AlignVCenter | Qt::AlignRight, note);
}
