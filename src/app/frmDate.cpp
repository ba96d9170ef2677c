// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/frmDate.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

#include "content/ShellFonts.h"
#include "content/Skin.h"
#include "content/Theme.h"
#include "platform/Errors.h"
#include "platform/Notices.h"
#include "platform/Numbers.h"

namespace {

// Names of days and months are the program's language, not the desktop's.
const QLocale Words(QLocale::English, QLocale::UnitedStates);

QPushButton *MakeButton(const char *name, const QString &text, const SetFonts &fonts) {
  auto *button = new QPushButton(Skin::Picture(QLatin1String(name)), text);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(true);  // Enter on it presses it
  fonts.SetNormalFont(*button);
  return button;
}

}  // namespace

frmDate::frmDate(Clock now, QWidget *parent) : DropDown(parent), clock(std::move(now)) {
  setObjectName(QStringLiteral("frmDate"));
  setWindowTitle(tr("Date and time"));
  const SetFonts fonts = ShellFonts();
  MakeCalendar();

  lblMoment = new QLabel;
  lblMoment->setObjectName(QStringLiteral("lblMoment"));
  lblMoment->setProperty("role", "head");
  fonts.SetSubHeadFont(*lblMoment);

  auto *label = new QLabel(tr("Time in 24 Hrs. Format:"));
  label->setObjectName(QStringLiteral("lblDTime"));
  fonts.SetNormalFont(*label);
  txtDTime = new QLineEdit;
  txtDTime->setObjectName(QStringLiteral("txtDTime"));
  txtDTime->setInputMask(QStringLiteral("99:99;_"));
  txtDTime->setAccessibleName(label->text());
  txtDTime->setAlignment(Qt::AlignCenter);
  fonts.SetNormalFont(*txtDTime);
  txtDTime->setFixedWidth(txtDTime->fontMetrics().horizontalAdvance(QStringLiteral("00:00")) + 5 * Grid::Gap);
  label->setBuddy(txtDTime);

  QPushButton *previous = MakeButton("flpPrevDay", tr("&Previous day"), fonts);
  QPushButton *present = MakeButton("flpNow", tr("&Now"), fonts);
  QPushButton *next = MakeButton("flpNextDay", tr("N&ext day"), fonts);
  auto *take = new QPushButton(tr("&Show this moment"));
  take->setObjectName(QStringLiteral("flpCloseX"));
  take->setProperty("role", "primary");
  fonts.SetNormalFont(*take);
  present->setToolTip(tr("Show the present moment"));

  auto *days = new QHBoxLayout;
  days->setSpacing(Grid::Gap);
  days->addWidget(previous, 1);
  days->addWidget(present, 1);
  days->addWidget(next, 1);
  auto *time = new QHBoxLayout;
  time->setSpacing(Grid::Gap);
  time->addWidget(label);
  time->addWidget(txtDTime);
  time->addStretch();
  time->addWidget(take);
  auto *all = new QVBoxLayout(this);
  all->setContentsMargins(Grid::Margin, Grid::Margin, Grid::Margin, Grid::Margin);
  all->setSpacing(Grid::Gap);
  all->addWidget(lblMoment);
  all->addWidget(mntToday, 1);
  all->addLayout(days);
  all->addSpacing(Grid::Gap);
  all->addLayout(time);
  setTabOrder(mntToday, previous);
  setTabOrder(previous, present);
  setTabOrder(present, next);
  setTabOrder(next, txtDTime);
  setTabOrder(txtDTime, take);

  connect(mntToday, &QCalendarWidget::clicked, this, &frmDate::Take);
  connect(mntToday, &QCalendarWidget::activated, this, &frmDate::Take);
  connect(mntToday, &QCalendarWidget::selectionChanged, this, &frmDate::ShowMoment);
  connect(txtDTime, &QLineEdit::textChanged, this, &frmDate::ShowMoment);
  connect(take, &QPushButton::clicked, this, &frmDate::Take);
  connect(previous, &QPushButton::clicked, this, [this] { MoveDay(-1); });
  connect(next, &QPushButton::clicked, this, [this] { MoveDay(1); });
  connect(present, &QPushButton::clicked, this, [this] {
    SetMoment(clock());
    Take();
  });
}

void frmDate::MakeCalendar() {
  const Theme &theme = Theme::Current();
  const ChartPalette &colours = theme.chart;
  mntToday = new QCalendarWidget;
  mntToday->setObjectName(QStringLiteral("mntToday"));
  mntToday->setAccessibleName(tr("Day"));
  mntToday->setLocale(Words);
  mntToday->setFirstDayOfWeek(Qt::Sunday);
  mntToday->setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
  mntToday->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  mntToday->setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
  ShellFonts().SetNormalFont(*mntToday);

  QTextCharFormat head;
  head.setForeground(colours.muted);
  head.setBackground(colours.card);
  mntToday->setHeaderTextFormat(head);
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) mntToday->setWeekdayTextFormat(day, QTextCharFormat());
  mntToday->setMinimumHeight(11 * mntToday->fontMetrics().lineSpacing() + 8 * Grid::Gap);

  mntToday->setStyleSheet(
      QStringLiteral("#qt_calendar_navigationbar { background: %1; }"
                     "QToolButton { background: transparent; border: 1px solid transparent; border-radius: 6px;"
                     " padding: 4px 8px; color: %2; font-weight: bold; }"
                     "QToolButton:hover { background: %3; }"
                     "QToolButton:focus { border-color: %4; }"
                     "QToolButton::menu-indicator { image: none; }"
                     "QCalendarWidget QTableView { border: 2px solid transparent; border-radius: 6px; selection-background-color: %2;"
                     " selection-color: %1; }"
                     "QCalendarWidget QTableView:focus { border-color: %4; }"
                     "QCalendarWidget QAbstractItemView:disabled { color: %6; }"
                     "QMenu { background: %1; } QMenu::item:selected { background: %3; color: %5; }")
          .arg(colours.card.name(), colours.maroon.name(), theme.selection.name(), colours.saffron.name(), colours.ink.name(),
               colours.muted.name()));
  if (auto *days = mntToday->findChild<QAbstractItemView *>()) days->setAccessibleName(tr("Days of the month"));
  const std::tuple<const char *, const char *, QString> arrows[] = {{"qt_calendar_prevmonth", "ctlLeft", tr("Previous month")},
                                                                    {"qt_calendar_nextmonth", "ctlRight", tr("Next month")}};
  for (const auto &[arrow, picture, words] : arrows) {
    auto *button = mntToday->findChild<QToolButton *>(QLatin1String(arrow));
    if (button) button->setAccessibleName(words);
    const QIcon icon = Skin::Picture(QLatin1String(picture));
    if (button && !icon.isNull()) button->setIcon(icon);
  }
}

void frmDate::SetMoment(const QDateTime &moment) {
  QTextCharFormat today;
  today.setForeground(Theme::Current().chart.saffron);
  today.setFontWeight(QFont::Bold);
  mntToday->setDateTextFormat(QDate(), QTextCharFormat());
  mntToday->setDateTextFormat(clock().date(), today);
  mntToday->setSelectedDate(moment.date());
  txtDTime->setText(moment.time().toString(QStringLiteral("HH:mm")));
  ShowMoment();
}

QDateTime frmDate::Moment() const { return MomentOf(mntToday->selectedDate(), txtDTime->displayText()); }

QDateTime frmDate::MomentOf(const QDate &day, const QString &time) {
  QString filled = time;
  filled.replace(QLatin1Char('_'), QLatin1Char('0'));
  const QString what = tr("time of day");
  const int hours = TextToWhole(filled.left(2), what);
  const int minutes = TextToWhole(filled.right(2), what);
  return QDateTime(day, QTime(0, 0), Qt::UTC).addSecs((qint64(hours) * 60 + minutes) * 60);
}

void frmDate::MoveDay(int days) { mntToday->setSelectedDate(mntToday->selectedDate().addDays(days)); }

void frmDate::ShowMoment() { lblMoment->setText(Words.toString(Moment(), QStringLiteral("dddd, MMMM d, yyyy  HH:mm"))); }

void frmDate::Take() {
  // A double click tells of itself twice.
  if (!isVisible()) return;
  const QDateTime moment = Moment();
  accept();
  emit Chosen(moment);
}

void frmDate::keyPressEvent(QKeyEvent *event) {
  // Not by the line edit's own signal, which stays silent while places of the mask are blank.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    Take();
  else
    DropDown::keyPressEvent(event);
}

void frmDate::showEvent(QShowEvent *event) {
  DropDown::showEvent(event);
  txtDTime->setFocus();
  txtDTime->selectAll();
}
