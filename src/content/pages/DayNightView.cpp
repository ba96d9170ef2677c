// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/DayNightView.h"

#include <QLabel>
#include <QVBoxLayout>

#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/PageScroll.h"
#include "content/pages/SideBySide.h"

namespace {
constexpr QSize Roomy(840, 560);  // pixels from which the rows take the normal size
}

DayNightView::DayNightView(const Names &names, std::vector<CaptionTable::Column> columns, int timeColumn, int rowsOfHalf, QWidget *parent)
    : PageView(parent),
      halfRows(rowsOfHalf),
      timeCol(timeColumn),
      exactHead(new QLabel),
      strip(new SpanStrip),
      note(new QLabel),
      beforeSunrise(new QLabel) {
  setObjectName(names.page);
  std::array<Card *, 2> cards{};
  for (size_t half = 0; half < 2; ++half) {
    cards[half] = new Card;
    titles[half] = MakeHead(names.titles[half]);
    titles[half]->setContentsMargins(10, 4, 10, 0);
    columns[static_cast<size_t>(timeColumn)].head = names.timeHeads[half];
    tables[half] = new CaptionTable(columns, halfRows, static_cast<int>(half) * halfRows);
    cards[half]->Body()->addWidget(titles[half]);
    cards[half]->Body()->addWidget(tables[half], 1);
    noParts[half] = new QLabel;
    noParts[half]->setObjectName(QStringLiteral("lblNoParts%1").arg(half));
    noParts[half]->setProperty("role", QStringLiteral("warn"));
    noParts[half]->setContentsMargins(10, 4, 10, 4);
    noParts[half]->setWordWrap(true);
    noParts[half]->hide();
    cards[half]->Body()->addWidget(noParts[half]);
    cards[half]->Body()->addStretch(0);
  }
  note->setObjectName(names.note);
  beforeSunrise->setObjectName(QStringLiteral("lblBeforeSunrise"));
  beforeSunrise->setText(tr("It is before sunrise: the periods of the day before are still running."));
  beforeSunrise->setProperty("role", QStringLiteral("warn"));
  exactHead->setObjectName(QStringLiteral("lblExactHead"));
  exactHead->setProperty("role", QStringLiteral("caption"));
  exactHead->setWordWrap(true);
  exactHead->setContentsMargins(Grid::Gap, 0, Grid::Gap, 0);
  exactHead->hide();
  auto *content = new QWidget;
  auto *layout = new QVBoxLayout(content);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Grid::Gap);
  layout->addWidget(exactHead);
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

void DayNightView::SetStrip(SpanStrip::Span span, const QString &name, StripPlace place) {
  hasStrip = !span.parts.empty();
  stripPlace = place;
  strip->setAccessibleName(name);
  strip->SetSpan(std::move(span));
  ShowStrip();
}

void DayNightView::ShowStrip() {
  stripCard->setVisible(hasStrip && (stripPlace == StripPlace::Always || sizeShown == CaptionTable::TextSize::Large));
}

void DayNightView::SetExact(const std::optional<ExactFrame> &frame) {
  exactHead->setText(frame ? frame->head : QString());
  exactHead->setVisible(frame.has_value());
  for (size_t half = 0; half < 2; ++half) {
    noParts[half]->setText(frame ? frame->none[half] : QString());
    noParts[half]->setVisible(!noParts[half]->text().isEmpty());
    tables[half]->setVisible(noParts[half]->text().isEmpty());
  }
}

void DayNightView::SetBeforeSunrise(bool before) { beforeSunrise->setVisible(before); }

void DayNightView::ApplyFonts(const SetFonts &fonts) {
  fontsShown = fonts;
  sizeShown = TextSize();
  const bool large = sizeShown == CaptionTable::TextSize::Large;
  for (size_t half = 0; half < 2; ++half) {
    for (QLabel *line : {titles[half], noParts[half]}) large ? fonts.SetNormalFont(*line) : fonts.SetSmallFont(*line);
    tables[half]->ApplyFonts(fonts, sizeShown);
  }
  for (QWidget *line : std::initializer_list<QWidget *>{exactHead, strip, note, beforeSunrise})
    large ? fonts.SetNormalFont(*line) : fonts.SetSmallFont(*line);
  ShowStrip();
}

CaptionTable::TextSize DayNightView::TextSize() const { return CaptionTable::TextSizeFor(size(), Roomy); }

void DayNightView::resizeEvent(QResizeEvent *event) {
  PageView::resizeEvent(event);
  if (TextSize() != sizeShown) ApplyFonts(SetFonts(fontsShown));
}
