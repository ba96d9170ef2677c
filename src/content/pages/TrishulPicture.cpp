// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/TrishulPicture.h"

#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "content/Skin.h"
#include "content/Theme.h"
#include "platform/FileTools.h"

namespace {

constexpr double DrawingSide = 1000;
constexpr double Edge = 44;  // the numbers at the shafts' ends stand on the drawing's edge

}  // namespace

TrishulPicture::TrishulPicture(const AppPaths &paths, QWidget *parent)
    : QWidget(parent), drawing(Skin::PictureAt(paths.Ephe(QStringLiteral("COMMON\\trishul.svg")))) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  for (int label = 0; label < Count; ++label) {
    const auto i = static_cast<size_t>(label);
    const double angle = 2 * M_PI * label / Count - M_PI / 4;
    places[i].centre = QPointF(500 + 500 * std::sin(angle), 500 - 500 * std::cos(angle));
    labels[i] = new QLabel(this);
    labels[i]->setObjectName(QStringLiteral("lblTrishulNums%1").arg(label));
    labels[i]->setAlignment(Qt::AlignCenter);
    SetMark(label, Mark::None);
  }
  ReadPlaces(paths.Ephe(QStringLiteral("COMMON\\trishul-labels.tsv")));
}

// Rows of label, x, y, place; a row that cannot be read leaves its number in the ring.
void TrishulPicture::ReadPlaces(const QString &path) {
  for (const QByteArray &line : ReadFileIfAny(path).split('\n')) {
    const QList<QByteArray> cells = line.trimmed().split('\t');
    if (line.startsWith('#') || cells.size() < 4) continue;
    bool number = false, across = false, down = false;
    const int label = cells[0].toInt(&number);
    const QPointF centre(cells[1].toDouble(&across), cells[2].toDouble(&down));
    if (number && across && down && label >= 0 && label < Count) places[static_cast<size_t>(label)] = {centre, cells[3] == "point"};
  }
}

void TrishulPicture::SetMark(int label, Mark mark) {
  marks[static_cast<size_t>(label)] = mark;
  QLabel &number = Number(label);
  QFont font = number.font();
  font.setBold(true);
  number.setFont(font);
  update();
}

QRectF TrishulPicture::Square() const {
  const double side = std::min(width(), height());
  QRectF square(0, 0, side, side);
  square.moveCenter(QRectF(rect()).center());
  const double margin = side * Edge / (DrawingSide + 2 * Edge);
  return square.adjusted(margin, margin, -margin, -margin);
}

void TrishulPicture::LayOut() {
  const QRectF square = Square();
  for (int label = 0; label < Count; ++label) {
    QLabel &number = Number(label);
    const int side = qRound(number.fontMetrics().height() * 1.45);
    QRect room(0, 0, side, side);
    room.moveCenter((square.topLeft() + places[static_cast<size_t>(label)].centre * square.width() / DrawingSide).toPoint());
    // The outermost numbers stay whole, whatever their font is.
    room.moveLeft(std::clamp(room.left(), 0, std::max(0, width() - side)));
    room.moveTop(std::clamp(room.top(), 0, std::max(0, height() - side)));
    number.setGeometry(room);
  }
  update();
}

void TrishulPicture::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void TrishulPicture::paintEvent(QPaintEvent *) {
  const Theme &theme = Theme::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing.paint(&painter, Square().toRect());
  for (int label = 0; label < Count; ++label) {
    const Mark mark = marks[static_cast<size_t>(label)];
    const QRectF disc = QRectF(Number(label).geometry()).adjusted(1, 1, -1, -1);
    const bool today = mark == Mark::Today || mark == Mark::Both;
    const bool birth = mark == Mark::Birth || mark == Mark::Both;
    painter.setBrush(today ? theme.selection : theme.chart.card);
    painter.setPen(today   ? QPen(theme.chart.saffron, 2.5)
                   : birth ? QPen(theme.chart.maroon, 2.5)
                           : QPen(IsPoint(label) ? theme.chart.gold : theme.chart.line, 1));
    painter.drawEllipse(disc);
    if (mark != Mark::Both) continue;
    painter.setPen(QPen(theme.chart.maroon, 1.5));
    painter.drawEllipse(disc.adjusted(3, 3, -3, -3));
  }
}
