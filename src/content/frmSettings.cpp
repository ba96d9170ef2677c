// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/frmSettings.h"

#include <QButtonGroup>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <span>

#include "chart/Kundali.h"
#include "content/Role.h"
#include "content/ShellFonts.h"
#include "content/Skin.h"
#include "content/Theme.h"
#include "platform/Errors.h"
#include "platform/Notices.h"

struct frmSettings::Choice {
  const char *name;
  int value;  // as it is stored
  const char *text;
  const char *meaning;
};

struct frmSettings::Step {
  const char *name;
  const char *title;
  const char *text;
};

namespace {

constexpr int LastStep = 3;
constexpr int SouthIndian = 2;
constexpr int HouseDivisions = 1, ExactDivisions = 2, DiscCentre = 1, UpperLimb = 2;  // as they are stored

// A day's sky, for the pictures of the chart styles: sign and what stands in it.
struct Placed {
  int sign;
  const char *names;
};
constexpr int SampleAscendant = 5;
constexpr Placed Sample[] = {{5, "Asc"}, {5, "Ju"}, {8, "Su Me"}, {7, "Ve"}, {12, "Mo"}, {11, "Sa"}, {10, "Ma"}, {1, "Ra"}, {7, "Ke"}};

QLabel *MakeLabel(const QString &text, const char *role, const QFont &font) {
  auto *label = new QLabel(text);
  label->setProperty("role", role);
  label->setFont(font);
  label->setWordWrap(true);
  return label;
}

QFont Bold(QFont font) {
  font.setBold(true);
  return font;
}

Kundali *MakeSample(int style) {
  auto *chart = new Kundali;
  chart->Clear();
  chart->SetChartStyle(style);
  chart->SetHouseNumber(SampleAscendant);
  chart->SetAscendantName(QStringLiteral("Asc"));
  for (const Placed &placed : Sample)
    for (const QString &name : QString::fromLatin1(placed.names).split(QLatin1Char(' '))) chart->PlanetPlace(placed.sign, name);
  ShellFonts().SetKundaliFont(*chart);
  chart->SetHouseFont(ShellFonts().SmallFont());
  chart->setAccessibleName(frmSettings::tr("Sample of the style"));
  chart->setFocusPolicy(Qt::NoFocus);  // the option below it is the way for the keyboard
  chart->setMinimumSize(150, 150);
  chart->setMaximumSize(220, 220);
  return chart;
}

}  // namespace

frmSettings::frmSettings(UserSettings &userSettings, clsIni configuration, QWidget *parent)
    : QDialog(parent), settings(userSettings), ini(std::move(configuration)) {
  setObjectName(QStringLiteral("frmSettings"));
  setWindowTitle(tr("Settings Wizard"));
  setModal(true);
  frames = new QStackedWidget;
  ayanamsha = new QButtonGroup(this);
  kundaliStyle = new QButtonGroup(this);
  rahuKetu = new QButtonGroup(this);
  dayDivisions = new QButtonGroup(this);
  sunriseRule = new QButtonGroup(this);

  auto *all = new QVBoxLayout(this);
  all->setContentsMargins(Grid::Margin, Grid::Margin, Grid::Margin, Grid::Margin);
  all->setSpacing(2 * Grid::Gap);
  all->addWidget(MakeTrail());
  all->addWidget(frames, 1);
  MakeAyanamsha();
  MakeKundaliStyle();
  MakeRahuKetu();
  MakeYourDetails();
  all->addWidget(MakeButtons());  // last, as Tab goes through them after what they lead on from
  setMinimumSize(640, 440);
  resize(780, 560);

  LoadValues();
  ShowStep(0);
}

QWidget *frmSettings::MakeTrail() {
  auto *row = new QWidget;
  auto *layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(3 * Grid::Gap);
  const QString titles[] = {tr("1  Ayanamsha and day"), tr("2  Chart style"), tr("3  Rahu and Ketu"), tr("4  Your details")};
  for (const QString &title : titles) {
    trail << MakeLabel(title, "caption", ShellFonts().NormalFont());
    trail.last()->setWordWrap(false);
    layout->addWidget(trail.last());
  }
  layout->addStretch();
  return row;
}

QWidget *frmSettings::MakeButtons() {
  auto *row = new QWidget;
  auto *layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Grid::Gap);
  const auto make = [layout](const char *name, const QString &text) {
    auto *button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    ShellFonts().SetNormalFont(*button);
    layout->addWidget(button);
    return button;
  };
  flpCancel = make("flpCancel", tr("&Cancel"));
  layout->addStretch();
  flpPrevFrame = make("flpPrevFrame", tr("&Previous"));
  flpNextFrame = make("flpNextFrame", tr("&Next"));
  flpFinish = make("flpFinish", tr("&Finish"));
  connect(flpCancel, &QPushButton::clicked, this, &frmSettings::reject);
  connect(flpPrevFrame, &QPushButton::clicked, this, [this] { ShowStep(frames->currentIndex() - 1); });
  connect(flpNextFrame, &QPushButton::clicked, this, [this] { ShowStep(frames->currentIndex() + 1); });
  connect(flpFinish, &QPushButton::clicked, this, &frmSettings::accept);
  return row;
}

QVBoxLayout *frmSettings::AddFrame(const Step &step) {
  auto *card = new QFrame;
  card->setObjectName(QLatin1String(step.name));
  card->setProperty("role", "card");
  auto *head = new QHBoxLayout;
  head->setSpacing(Grid::Gap);
  const QPixmap picture = Skin::Pixmap(QLatin1String(step.name), QSize(28, 28), devicePixelRatioF());
  if (!picture.isNull()) {
    auto *icon = new QLabel;
    icon->setPixmap(picture);
    icon->setAccessibleName(tr(step.title));
    head->addWidget(icon);
  }
  head->addWidget(MakeLabel(tr(step.title), "title", ShellFonts().HeadFont()), 1);
  auto *layout = new QVBoxLayout(card);
  layout->setContentsMargins(Grid::CardPadding, Grid::CardPadding, Grid::CardPadding, Grid::CardPadding);
  layout->setSpacing(Grid::Gap / 2);
  layout->addLayout(head);
  layout->addWidget(MakeLabel(tr(step.text), "", ShellFonts().NormalFont()));
  layout->addSpacing(2 * Grid::Gap);
  frames->addWidget(card);
  return layout;
}

QRadioButton *frmSettings::MakeOption(QButtonGroup *group, const Choice &choice) {
  auto *option = new QRadioButton(tr(choice.text));
  option->setObjectName(QLatin1String(choice.name));
  option->setFont(Bold(ShellFonts().NormalFont()));
  option->setAccessibleDescription(tr(choice.meaning));
  group->addButton(option, choice.value);
  return option;
}

QLabel *frmSettings::MakeMeaning(const Choice &choice) {
  QLabel *meaning = MakeLabel(tr(choice.meaning), "caption", ShellFonts().SmallFont());
  meaning->setContentsMargins(3 * Grid::Gap + 2, 0, 0, 0);
  meaning->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  return meaning;
}

void frmSettings::MakeAyanamsha() {
  static constexpr Choice choices[] = {
      {"optLahiri", 1, QT_TR_NOOP("NC Lahiri (Default)"),
       QT_TR_NOOP("The ayanamsha of the Indian national calendar; most almanacs use it.")},
      {"optRaman", 2, QT_TR_NOOP("BV Raman"),
       QT_TR_NOOP("About a degree and a half smaller than Lahiri's: planets stand that much further on.")},
      {"optKP", 3, QT_TR_NOOP("Krishnamurthy (KP)"),
       QT_TR_NOOP("About six minutes of arc smaller than Lahiri's; made for the KP system of sub-lords.")},
      {"optSayan", 12, QT_TR_NOOP("Sayan (No Ayanamsh)"), QT_TR_NOOP("The tropical zodiac, counted from the spring equinox.")},
  };
  static constexpr Choice divisions[] = {
      {"optDivisionsHouse", HouseDivisions, QT_TR_NOOP("House rule (Default)"),
       QT_TR_NOOP("Sunrise by the ascendant, and the day counted in clock numbers, as this program always has.")},
      {"optDivisionsExact", ExactDivisions, QT_TR_NOOP("Exact"),
       QT_TR_NOOP("By the sky, as a good printed panchang has it: true parts of daylight and night.")},
  };
  static constexpr Choice sunrises[] = {
      {"optSunriseCentre", DiscCentre, QT_TR_NOOP("Disc centre, no refraction (Default)"), QT_TR_NOOP("The definition of most panchangs.")},
      {"optSunriseLimb", UpperLimb, QT_TR_NOOP("Upper limb, with refraction"),
       QT_TR_NOOP("As the Sun is seen to rise, a few minutes earlier; newspapers print it.")},
  };
  QVBoxLayout *layout =
      AddFrame({"framAyanamsha", QT_TR_NOOP("Ayanamsha and day divisions"),
                QT_TR_NOOP("Select the Ayanamsha you wish to use. It is the distance between the zodiac of the Western system and "
                           "that of Jyotish. To see positions of the Western system, select Sayan.")});
  auto *columns = new QHBoxLayout;
  columns->setSpacing(3 * Grid::Gap);
  const auto addColumn = [&] {
    auto *column = new QVBoxLayout;
    column->setSpacing(Grid::Gap / 2);
    columns->addLayout(column, 1);
    return column;
  };
  const auto addChoices = [&](QVBoxLayout *column, const QString &head, QButtonGroup *group, std::span<const Choice> offered) {
    column->addWidget(MakeLabel(head, "head", Bold(ShellFonts().NormalFont())));
    for (const Choice &choice : offered) {
      column->addWidget(MakeOption(group, choice), 0, Qt::AlignLeft);
      column->addWidget(MakeMeaning(choice));
    }
    column->addSpacing(Grid::Gap);
  };
  QVBoxLayout *left = addColumn(), *right = addColumn();
  addChoices(left, tr("Ayanamsha"), ayanamsha, choices);
  left->addStretch();
  addChoices(right, tr("Day divisions"), dayDivisions, divisions);
  addChoices(right, tr("Sunrise of exact times"), sunriseRule, sunrises);
  right->addStretch();
  layout->addLayout(columns);
  lblKept =
      MakeLabel(tr("A setting of your own is in force. It is kept unless you select another here."), "warn", ShellFonts().SmallFont());
  lblKept->setObjectName(QStringLiteral("lblKept"));
  layout->addWidget(lblKept);
  layout->addStretch();
}

void frmSettings::MakeKundaliStyle() {
  static constexpr Choice choices[] = {
      {"optNorthKundli", 0, QT_TR_NOOP("North Indian Style"),
       QT_TR_NOOP("The houses stay in place, the first at the top. Numbers tell the signs.")},
      {"optEastKundli", 1, QT_TR_NOOP("East Indian Style"), QT_TR_NOOP("The signs stay in place, Aries at the top, and run to the left.")},
      {"optSouthKundli", 2, QT_TR_NOOP("South Indian Style"),
       QT_TR_NOOP("The signs stay in place, from Aries in the top row to the right.")},
  };
  QVBoxLayout *layout =
      AddFrame({"framKundaliStyle", QT_TR_NOOP("Chart style"), QT_TR_NOOP("Select how charts are drawn. All three show the same sky.")});
  auto *columns = new QGridLayout;  // one row each for charts, options and meanings, so that the columns stay level
  columns->setHorizontalSpacing(3 * Grid::Gap);
  columns->setVerticalSpacing(Grid::Gap / 2);
  int column = 0;
  for (const Choice &choice : choices) {
    Kundali *chart = MakeSample(choice.value);
    QRadioButton *option = MakeOption(kundaliStyle, choice);
    columns->addWidget(chart, 0, column);
    columns->addWidget(option, 1, column, Qt::AlignLeft);
    columns->addWidget(MakeMeaning(choice), 2, column);
    columns->setColumnStretch(column++, 1);
    connect(chart, &Kundali::Click, option, &QAbstractButton::click);
  }
  layout->addLayout(columns);
  layout->addStretch();
}

void frmSettings::MakeRahuKetu() {
  static constexpr Choice choices[] = {
      {"optRahuMean", 1, QT_TR_NOOP("Mean Positions (Default)"), QT_TR_NOOP("The node moves evenly backward, as in most almanacs.")},
      {"optRahuTrue", 2, QT_TR_NOOP("True Positions"),
       QT_TR_NOOP("The node's own wavering path, less than two degrees from the mean one.")},
  };
  QVBoxLayout *layout =
      AddFrame({"framRahuKetu", QT_TR_NOOP("Rahu and Ketu"),
                QT_TR_NOOP("Choose the method for Rahu-Ketu Calculation. Rahu and Ketu are the two points where the Moon's "
                           "path crosses that of the Sun.")});
  for (const Choice &choice : choices) {
    layout->addWidget(MakeOption(rahuKetu, choice), 0, Qt::AlignLeft);
    layout->addWidget(MakeMeaning(choice));
    layout->addSpacing(Grid::Gap);
  }
  layout->addStretch();
}

void frmSettings::MakeYourDetails() {
  QVBoxLayout *layout = AddFrame({"framYourDetails", QT_TR_NOOP("Your details"),
                                  QT_TR_NOOP("Your name and address are printed on reports. Leave them empty to print none.")});
  const auto make = [layout](const char *name, const QString &text) {
    QLabel *label = MakeLabel(text, "caption", ShellFonts().SmallFont());
    auto *field = new QLineEdit;
    field->setObjectName(QLatin1String(name));
    field->setMaxLength(clsIni::LongestValue);
    ShellFonts().SetNormalFont(*field);
    field->setAccessibleName(text);
    label->setBuddy(field);
    layout->addWidget(label);
    layout->addWidget(field);
    layout->addSpacing(Grid::Gap);
    return field;
  };
  txtName = make("txtName", tr("Name"));
  txtAddress = make("txtAddress", tr("Address"));
  layout->addStretch();
}

void frmSettings::LoadValues() {
  txtName->setText(ini.GetIniString(QStringLiteral("DispName"), QString()));
  txtAddress->setText(ini.GetIniString(QStringLiteral("DispAdd"), QString()));
  const auto select = [](const QButtonGroup *group, int value) {
    if (QAbstractButton *option = group->button(value)) option->setChecked(true);
  };
  select(rahuKetu, settings.IntValue(SettingKeys::RahuKetuMode) == 1 ? 1 : 2);
  select(ayanamsha, settings.IntValue(SettingKeys::AyanType));
  select(kundaliStyle, settings.IntValue(SettingKeys::KundStyle));
  select(dayDivisions, settings.IntValue(SettingKeys::DayDivisions) == ExactDivisions ? ExactDivisions : HouseDivisions);
  select(sunriseRule, settings.IntValue(SettingKeys::SunriseRule) == UpperLimb ? UpperLimb : DiscCentre);
  lblKept->setVisible(ayanamsha->checkedId() < 0);
}

void frmSettings::ShowStep(int step) {
  frames->setCurrentIndex(qBound(0, step, LastStep));
  const int at = frames->currentIndex();
  for (int i = 0; i <= LastStep; ++i) SetRole(*trail[i], i == at ? "step" : "caption");
  QPushButton *forward = at == LastStep ? flpFinish : flpNextFrame;
  flpPrevFrame->setEnabled(at > 0);
  flpNextFrame->setEnabled(at < LastStep);
  flpFinish->setEnabled(at == LastStep);
  for (QPushButton *button : {flpNextFrame, flpFinish}) {
    button->setDefault(button == forward);
    SetRole(*button, button == forward ? "primary" : "");
  }
  QWidget *first[] = {ayanamsha->checkedButton(), kundaliStyle->checkedButton(), rahuKetu->checkedButton(), txtName};
  QWidget *focus = first[at] ? first[at] : forward;
  focus->setFocus();
}

void frmSettings::Write() {
  ini.WriteIniString(QStringLiteral("DispName"), txtName->text());
  ini.WriteIniString(QStringLiteral("DispAdd"), txtAddress->text());
  std::vector<UserSettings::Change> changes{
      {SettingKeys::RahuKetuMode, rahuKetu->checkedId() == 1 ? 1 : 2},
      {SettingKeys::DayDivisions, dayDivisions->checkedId()},
      {SettingKeys::SunriseRule, sunriseRule->checkedId()},
      // With none selected the last of the styles is meant.
      {SettingKeys::KundStyle, kundaliStyle->checkedId() < 0 ? SouthIndian : kundaliStyle->checkedId()}};
  if (ayanamsha->checkedId() > 0) changes.emplace_back(SettingKeys::AyanType, ayanamsha->checkedId());
  isInForce = true;
  settings.SetAll(changes);
}

void frmSettings::accept() {
  if (!flpFinish->isEnabled()) return;
  try {
    Write();
  } catch (const Error &error) {
    Notices::Show({Notice::Kind::Warning, windowTitle(), error.Sentence()});
    return;  // what was typed stays
  }
  QDialog::accept();
}

void frmSettings::reject() {
  const QString told = isInForce ? tr("You have chosen to cancel Settings Wizard. The settings could not be stored; what you last finished "
                                      "with holds until the program ends.")
                                 : tr("You have chosen to cancel Settings Wizard. Settings have not been changed.");
  Notices::Show({Notice::Kind::Information, tr("Settings Wizard not completed"),
                 told + QStringLiteral("\r\n") + tr("You can run Setup Wizard later by clicking on 'Settings'")});
  QDialog::reject();
}
