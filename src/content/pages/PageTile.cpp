// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/PageTile.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "content/SetFonts.h"
#include "content/Skin.h"
#include "content/Theme.h"

namespace {
constexpr int Padding = 14;
constexpr double SmallestTitle = 0.75;  // of the title's size
constexpr int LeastIcon = 36, MostIcon = 64;
}  // namespace

PageTile::PageTile(const QString &picture, QWidget *parent) : QAbstractButton(parent), pictureName(picture), titleFont(font()) {
  titleFont.setBold(true);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void PageTile::SetHelp(const QString &line) {
  help = line;
  setToolTip(line);
  setAccessibleDescription(line);
  update();
}

void PageTile::ApplyFonts(const SetFonts &fonts) {
  titleFont = fonts.NormalFont();
  titleFont.setBold(true);
  fonts.SetSmallFont(*this);
  setMaximumHeight(sizeHint().height() * 3);
  updateGeometry();
}

QSize PageTile::sizeHint() const {
  return {LeastWidth, 2 * Padding + QFontMetrics(titleFont).height() + 2 + 2 * fontMetrics().lineSpacing()};
}

bool PageTile::event(QEvent *happening) {
  if (happening->type() == QEvent::HoverEnter || happening->type() == QEvent::HoverLeave) update();
  return QAbstractButton::event(happening);
}

void PageTile::keyPressEvent(QKeyEvent *event) {
  const int key = event->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter)
    click();
  else
    QAbstractButton::keyPressEvent(event);
}

void PageTile::paintEvent(QPaintEvent *) {
  const Theme &theme = Theme::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(isDown() ? theme.chart.line : underMouse() ? theme.selection : theme.chart.card);
  painter.setPen(hasFocus() ? QPen(theme.chart.saffron, 2) : QPen(theme.chart.line, 1));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Grid::CardRadius, Grid::CardRadius);

  QRect words = rect().adjusted(Padding, Padding, -Padding, -Padding);
  const QIcon icon = Skin::Picture(pictureName, isDown() ? Skin::State::Down : Skin::State::Normal);
  if (!icon.isNull()) {
    const int side = std::clamp(height() / 3, LeastIcon, MostIcon);
    icon.paint(&painter, QRect(words.left(), rect().center().y() - side / 2, side, side));
    words.setLeft(words.left() + side + Padding);
  }
  const QFontMetrics titles(titleFont);
  const QRect helpRoom = fontMetrics().boundingRect(QRect(0, 0, words.width(), words.height()), Qt::TextWordWrap, help);
  const int used = titles.height() + 2 + helpRoom.height();
  words.setTop(std::max(words.top(), rect().center().y() - used / 2));
  // A title that is too long for a narrow tile is set a little smaller before it is cut.
  QFont fitting = titleFont;
  while (fitting.pointSizeF() > titleFont.pointSizeF() * SmallestTitle && QFontMetrics(fitting).horizontalAdvance(text()) > words.width())
    fitting.setPointSizeF(fitting.pointSizeF() - 0.25);
  painter.setFont(fitting);
  painter.setPen(theme.chart.ink);
  painter.drawText(QRect(words.left(), words.top(), words.width(), titles.height()), Qt::AlignLeft | Qt::AlignVCenter,
                   QFontMetrics(fitting).elidedText(text(), Qt::ElideRight, words.width()));
  painter.setFont(font());
  painter.setPen(theme.chart.muted);
  painter.drawText(QRect(words.left(), words.top() + titles.height() + 2, words.width(), height()),
                   Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, help);
}
