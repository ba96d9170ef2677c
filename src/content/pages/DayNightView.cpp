// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/DayNightView.h"

#include <QLabel>
#include <QVBoxLayout>

#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/Card.h"
#include "content/pages/PageScroll.h"
#include "content/pages/SideBySide.h"

namespace {
constexpr int RoomyHeight = 560, RoomyWidth = 840;  // pixels from which the rows take the normal size
}

DayNightView::DayNightView(const Names &names, std::vector<CaptionTable::Column> columns, int timeColumn, int rowsOfHalf, QWidget *parent)
    : PageView(parent), halfRows(rowsOfHalf), timeCol(timeColumn), strip(new SpanStrip), note(new QLabel), beforeSunrise(new QLabel) {
  setObjectName(names.page);
  std::array<Card *, 2> cards{};
  for (size_t half = 0; half < 2; ++half) {
    cards[half] = new Card;
    titles[half] = new QLabel;
    titles[half]->setObjectName(names.titles[half]);
    titles[half]->setProperty("role", QStringLiteral("head"));
    titles[half]->setContentsMargins(10, 4, 10, 0);
    QFont font = titles[half]->font();
    font.setBold(true);
    titles[half]->setFont(font);
    columns[static_cast<size_t>(timeColumn)].head = names.timeHeads[half];
    tables[half] = new CaptionTable(columns, halfRows, static_cast<int>(half) * halfRows);
    cards[half]->Body()->addWidget(titles[half]);
    cards[half]->Body()->addWidget(tables[half], 1);
    cards[half]->Body()->addStretch(0);
  }
  note->setObjectName(names.note);
  beforeSunrise->setObjectName(QStringLiteral("lblBeforeSunrise"));
  beforeSunrise->setText(tr("It is before sunrise: the periods of the day before are still running."));
  beforeSunrise->setProperty("role", QStringLiteral("warn"));
  auto *content = new QWidget;
  auto *layout = new QVBoxLayout(content);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Grid::Gap);
  layout->addWidget(new SideBySide(cards[0], cards[1]), 1);
  auto *below = new Card;
  below->Body()->addWidget(strip);
  stripCard = below;
  stripCard->hide();
  layout->addSpacing(Grid::Gap);
  layout->addWidget(stripCard);
  for (QLabel *line : {beforeSunrise, note}) {
    line->setWordWrap(true);
    line->setContentsMargins(Grid::Gap, 0, Grid::Gap, 0);
    line->hide();
    layout->addWidget(line);
  }
  note->setProperty("role", QStringLiteral("caption"));
  PageScroll::Fill(this, content);
}

void DayNightView::SetNote(const QString &words) {
  note->setText(words);
  note->setVisible(!words.isEmpty());
}

void DayNightView::MarkRunning(int row, int markColumn, const QString &word) {
  for (int i = 0; i < 2 * halfRows; ++i) {
    QLabel &mark = TableOf(i).Cell(RowOf(i), markColumn);
    mark.setText(i == row ? word : QString());
    TableOf(i).SetTone(RowOf(i), markColumn, CaptionTable::Tone::Warn);
  }
  for (int half = 0; half < 2; ++half)
    tables[static_cast<size_t>(half)]->SetRunningRow(row >= 0 && row / halfRows == half ? RowOf(row) : -1);
}

void DayNightView::SetStrip(SpanStrip::Span span, const QString &name) {
  strip->setAccessibleName(name);
  strip->SetSpan(std::move(span));
  stripCard->show();
}

void DayNightView::SetBeforeSunrise(bool before) { beforeSunrise->setVisible(before); }

void DayNightView::ApplyFonts(const SetFonts &fonts) {
  fontsShown = fonts;
  roomyShown = IsRoomy();
  for (size_t half = 0; half < 2; ++half) {
    fonts.SetSmallFont(*titles[half]);
    tables[half]->ApplyFonts(fonts, roomyShown);
  }
  fonts.SetSmallFont(*strip);
  fonts.SetSmallFont(*note);
  fonts.SetSmallFont(*beforeSunrise);
}

bool DayNightView::IsRoomy() const { return height() >= RoomyHeight && width() >= RoomyWidth; }

void DayNightView::resizeEvent(QResizeEvent *event) {
  PageView::resizeEvent(event);
  if (IsRoomy() != roomyShown) ApplyFonts(SetFonts(fontsShown));
}
