// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/DayTimeline.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <cmath>

#include "content/pages/DayTimelinePaint.h"

DayTimeline::DayTimeline(QWidget *parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picExactDay"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void DayTimeline::SetPage(const ExactDayPage &dayPage) {
  page = dayPage;
  QStringList spoken;
  for (const ExactDayPage::Lane &lane : page.lanes)
    for (const ExactDayPage::Bar &bar : lane.bars) spoken << bar.spoken;
  setAccessibleName(page.title);
  setAccessibleDescription(spoken.join(QStringLiteral("; ")));
  TellParts(*this);
  updateGeometry();
  update();
}

int DayTimeline::PartCount() const {
  size_t count = 0;
  for (const ExactDayPage::Lane &lane : page.lanes) count += lane.bars.size();
  return static_cast<int>(count);
}

std::pair<size_t, size_t> DayTimeline::BarOf(int number) const {
  auto rest = static_cast<size_t>(number);
  size_t lane = 0;
  while (rest >= page.lanes[lane].bars.size()) rest -= page.lanes[lane++].bars.size();
  return {lane, rest};
}

QString DayTimeline::PartWords(int bar) const {
  const auto [lane, inLane] = BarOf(bar);
  return QStringLiteral("%1: %2").arg(page.lanes[lane].head, page.lanes[lane].bars[inLane].spoken);
}

QRect DayTimeline::PartRoom(int bar) const {
  const auto [lane, inLane] = BarOf(bar);
  const DayTimelinePaint paint(page, font(), const_cast<DayTimeline *>(this));
  return paint.BarRect(paint.Scale(rect()), rect(), lane, page.lanes[lane].bars[inLane]).toRect();
}

QString DayTimeline::TextAt(const QPoint &point) const {
  const DayTimelinePaint paint(page, font(), const_cast<DayTimeline *>(this));
  const ExactDayPage::Bar *bar = paint.BarAt(rect(), point);
  return bar ? bar->spoken : QString();
}

QSize DayTimeline::sizeHint() const {
  const DayTimelinePaint paint(page, font(), const_cast<DayTimeline *>(this));
  return {static_cast<int>(std::ceil(paint.MinimumWidth() * 2)), static_cast<int>(std::ceil(paint.Height()))};
}

QSize DayTimeline::minimumSizeHint() const {
  const DayTimelinePaint paint(page, font(), const_cast<DayTimeline *>(this));
  return {static_cast<int>(std::ceil(paint.MinimumWidth())), static_cast<int>(std::ceil(paint.Height()))};
}

void DayTimeline::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  DayTimelinePaint(page, font(), this).Paint(painter, rect(), PaintInks::Screen());
}

bool DayTimeline::event(QEvent *event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto *help = static_cast<QHelpEvent *>(event);
  const QString told = TextAt(help->pos());
  if (told.isEmpty())
    QToolTip::hideText();
  else
    QToolTip::showText(help->globalPos(), told, this);
  return true;
}

void DayTimeline::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) updateGeometry();
}
