// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/ListView.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "analysis/SelvaniDailyMod.h"
#include "content/PageNumber.h"
#include "content/Theme.h"
#include "content/pages/PageScroll.h"
#include "content/pages/PageTile.h"

ListView::ListView(const QString &name, const QString &element, std::vector<Entry> pages, QWidget *parent)
    : PageView(parent), entries(std::move(pages)), content(new QWidget), grid(new QGridLayout) {
  auto *layout = new QVBoxLayout(content);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(grid, 1);
  layout->addStretch(0);
  setObjectName(name);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(Grid::Gap + 4);
  for (const Entry &entry : entries) {
    auto *tile = new PageTile(QStringLiteral("page%1").arg(entry.page, 2, 10, QLatin1Char('0')), content);
    tile->setObjectName(element + QString::number(entry.index));
    tile->setText(entry.title);
    tile->SetHelp(entry.help.isEmpty() ? HelpLine(entry.page) : entry.help);
    tile->installEventFilter(this);
    connect(tile, &QAbstractButton::clicked, this, [this, index = entry.index] { emit Chosen(index); });
    tiles.push_back(tile);
  }
  PageScroll::Fill(this, content)->setFocusPolicy(Qt::NoFocus);
  if (!tiles.empty()) setFocusProxy(tiles.front());
  LayOut();
}

QString ListView::HelpLine(int page) {
  switch (page) {
    case PageNumber::BirthKundali: return tr("The sky at birth as a picture of twelve houses.");
    case PageNumber::SunriseKundali: return tr("The sky at the sunrise of the day.");
    case PageNumber::TransitKundali: return tr("Where the planets stand at the chosen moment.");
    case PageNumber::BirthPlanets: return tr("Places, motion and dignity of the planets at birth.");
    case PageNumber::TodayPlanets: return tr("Places, motion and dignity of the planets now.");
    case PageNumber::VimshottariDasha: return tr("The planetary periods of a life, five levels deep.");
    case PageNumber::TrishulChakra: return tr("The nakshatras around the trident, from the day's Moon.");
    case PageNumber::Panchang: return tr("Tithi, nakshatra, yoga and karana, at birth and now.");
    case PageNumber::Journey: return tr("Whether the day favours a journey.");
    case PageNumber::Chowgadiya: return tr("Good and bad eighths of the day and the night.");
    case PageNumber::HoraChart: return tr("The planet that rules each hour.");
    case PageNumber::Rashifala: return tr("The day for your Moon sign.");
    case PageNumber::MoonTransits: return tr("What the Moon's house from the birth Moon brings.");
    case PageNumber::FinancialAnalysis: return tr("Money and trade today.");
    case PageNumber::EvilMuhurthas: return tr("Four periods to keep clear of for new work.");
    case PageNumber::YogaResults: return tr("The special combinations of the day.");
    case PageNumber::SuryaYogaResults: return tr("The yoga of Sun and Moon, and its fruit.");
    case PageNumber::TithiResult: return tr("The lunar day, and what suits it.");
    case PageNumber::NakshatraResult: return tr("The Moon's nakshatra today.");
    case PageNumber::WeekdayResult: return tr("The lord of the weekday.");
    case PageNumber::DivisionalCharts: return tr("Any of the seventeen, as a chart and as a table.");
    case PageNumber::Ashtakavarga: return tr("The bindus of each planet by sign, and their total.");
    case PageNumber::Upagrahas: return tr("The seventeen sensitive points, in both reckonings.");
    case PageNumber::Aspects: return tr("Who looks at whom, by sign, by degree and by angle.");
    case PageNumber::BirthAttributes: return tr("Gana, nadi, yoni and the other marks of the birth star.");
    case PageNumber::DayScores: return tr("Seven scores of the day and of the thirty to come.");
    case PageNumber::VakyaPositions: return tr("The siddhantic positions beside the modern ones.");
    case PageNumber::ExactDay: return tr("The day as a printed panchang has it, to the second.");
    case PageNumber::Month: return tr("A month of tithis, nakshatras and sunrises at a glance.");
    default: return {};
  }
}

void ListView::Fill(SelvaniDailyMod &session) {
  for (size_t i = 0; i < entries.size(); ++i)
    if (entries[i].title.isEmpty()) tiles[i]->setText(session.TodayChart().GetHeadValue(11, entries[i].titleKey, QStringLiteral("GEN")));
}

void ListView::ApplyFonts(const SetFonts &fonts) {
  for (PageTile *tile : tiles) tile->ApplyFonts(fonts);
}

void ListView::resizeEvent(QResizeEvent *event) {
  PageView::resizeEvent(event);
  LayOut();
}

void ListView::LayOut() {
  const int gap = grid->horizontalSpacing();
  constexpr int scrollBar = 16;
  const int wanted = std::clamp((width() - scrollBar + gap) / (PageTile::LeastWidth + gap), 1, 3);
  if (wanted == columns) return;
  columns = wanted;
  for (int i = 0; i < static_cast<int>(tiles.size()); ++i) {
    grid->removeWidget(tiles[static_cast<size_t>(i)]);
    grid->addWidget(tiles[static_cast<size_t>(i)], i / columns, i % columns);
  }
  for (int column = 0; column < 3; ++column) grid->setColumnStretch(column, column < columns ? 1 : 0);
  const int rows = (static_cast<int>(tiles.size()) + columns - 1) / columns;
  for (int row = 0; row < static_cast<int>(tiles.size()); ++row) grid->setRowStretch(row, row < rows ? 1 : 0);
}

bool ListView::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::KeyPress) return PageView::eventFilter(watched, event);
  const auto found = std::find(tiles.begin(), tiles.end(), watched);
  const int key = static_cast<QKeyEvent *>(event)->key();
  const bool moves =
      key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End;
  if (found == tiles.end() || !moves) return PageView::eventFilter(watched, event);
  MoveFocus(static_cast<int>(found - tiles.begin()), key);
  return true;
}

void ListView::MoveFocus(int from, int key) {
  const int last = static_cast<int>(tiles.size()) - 1;
  const int to = key == Qt::Key_Left    ? from - 1
                 : key == Qt::Key_Right ? from + 1
                 : key == Qt::Key_Up    ? from - columns
                 : key == Qt::Key_Down  ? from + columns
                 : key == Qt::Key_Home  ? 0
                                        : last;
  if (to < 0 || to > last) return;
  tiles[static_cast<size_t>(to)]->setFocus(Qt::TabFocusReason);
  if (auto *scroll = findChild<PageScroll *>()) scroll->ensureWidgetVisible(tiles[static_cast<size_t>(to)]);
}
