// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/MonthView.h"

#include <QDate>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "analysis/MonthIcs.h"
#include "analysis/SelvaniDailyMod.h"
#include "content/PageNumber.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/MonthGrid.h"
#include "content/pages/MonthPaint.h"
#include "content/pages/PagePdf.h"
#include "content/pages/PageScroll.h"
#include "platform/Errors.h"
#include "platform/FileTools.h"
#include "platform/Notices.h"

MonthView::MonthView(QWidget *parent)
    : PageView(parent), title(MakeHead(QStringLiteral("lblMonthTitle"))), subtitle(new QLabel), grid(new MonthGrid) {
  setObjectName(QStringLiteral("framMonth"));
  setAccessibleName(tr("The month"));
  askFile = [this](const QString &suggested) {
    const bool pdf = suggested.endsWith(QStringLiteral(".pdf"));
    return PagePdf::AskFile(this, tr("Save the month"), suggested, pdf ? tr("PDF (*.pdf)") : tr("Calendar (*.ics)"));
  };
  subtitle->setObjectName(QStringLiteral("lblMonthDesc"));
  subtitle->setProperty("role", QStringLiteral("caption"));
  subtitle->setWordWrap(true);

  const auto button = [this](const char *name, const QString &words, const std::function<void()> &work) {
    auto *made = new QPushButton(words);
    made->setObjectName(QLatin1String(name));
    connect(made, &QPushButton::clicked, this, [this, work] { Guarded(work); });
    buttons.push_back(made);
    return made;
  };
  auto *head = new QHBoxLayout;
  head->addWidget(title);
  head->addStretch(1);
  auto *previous = button("cmdMonthPrevious", tr("Previous"), [this] { Step(-1); });
  previous->setAccessibleName(tr("Previous month"));
  head->addWidget(previous);
  auto *next = button("cmdMonthNext", tr("Next"), [this] { Step(1); });
  next->setAccessibleName(tr("Next month"));
  head->addWidget(next);

  const auto paint = [this](QPainter &painter, const QRectF &room) { MonthPaint::PaintSheet(painter, room, page); };
  auto *below = new QHBoxLayout;
  below->setSpacing(Grid::Gap + 4);
  auto *pdf = button("cmdMonthPdf", tr("Save as PDF..."), [this, paint] {
    const QString path = askFile(FileName("pdf"));
    if (!path.isEmpty()) PagePdf::Write(path, page.title, QPageLayout::Landscape, paint);
  });
  pdf->setProperty("role", QStringLiteral("primary"));
  below->addWidget(pdf);
  below->addWidget(
      button("cmdMonthPrint", tr("Print..."), [this, paint] { PagePdf::Print(this, page.title, QPageLayout::Landscape, paint); }));
  below->addWidget(button("cmdMonthIcs", tr("Save calendar..."), [this] {
    const QString path = askFile(FileName("ics"));
    if (path.isEmpty() || !shown) return;
    WriteWholeFile(path, MonthIcs::Calendar(shown->TodayChart(), page.year, page.month, QDateTime::currentDateTimeUtc()));
  }));
  below->addWidget(button("cmdMonthDay", tr("Exact day"), [this] { emit GoToPage(PageNumber::ExactDay); }));
  below->addStretch(1);

  auto *card = new Card;
  card->Body()->setContentsMargins(Grid::CardPadding, Grid::Gap + 4, Grid::CardPadding, Grid::CardPadding);
  card->Body()->addLayout(head);
  card->Body()->addWidget(subtitle);
  card->Body()->addWidget(grid, 1);
  card->Body()->addLayout(below);
  PageScroll::Fill(this, card);
  connect(grid, &MonthGrid::DayChosen, this, &MonthView::DayChosen);
  connect(grid, &MonthGrid::MonthWanted, this, [this](int step) { Guarded([this, step] { Step(step); }); });
}

void MonthView::Fill(SelvaniDailyMod &session) {
  shown = &session;
  page = FillMonth(session.TodayChart());
  Show();
}

void MonthView::Step(int months) {
  if (!shown) return;
  const QDate wanted = QDate(page.year, page.month, 1).addMonths(months);
  page = FillMonth(shown->TodayChart(), wanted.year(), wanted.month());
  Show();
}

void MonthView::Show() {
  title->setText(page.title);
  subtitle->setText(page.subtitle);
  grid->SetPage(page);
}

void MonthView::Guarded(const std::function<void()> &work) {
  try {
    work();
  } catch (const Error &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
}

QString MonthView::FileName(const char *ending) const { return QStringLiteral("%1.%2").arg(page.title, QLatin1String(ending)); }

void MonthView::ApplyFonts(const SetFonts &fonts) {
  fonts.SetNormalFont(*title);
  for (QWidget *line : std::initializer_list<QWidget *>{subtitle, grid}) fonts.SetSmallFont(*line);
}
