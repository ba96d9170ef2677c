// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/PlaceEditor.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "content/Role.h"
#include "content/ShellFonts.h"
#include "content/Theme.h"
#include "persons/ClockHistory.h"
#include "persons/FormParts.h"
#include "persons/PersonFields.h"
#include "persons/PlaceCombo.h"

using namespace FormParts;

namespace {

void SelectLetter(QComboBox &box, const QString &letter) {
  box.setCurrentIndex(letter.compare(box.itemText(1), Qt::CaseInsensitive) == 0 ? 1 : 0);
}

}  // namespace

PlaceEditor::PlaceEditor(const Names &names, const QString &what, QWidget *parent) : QWidget(parent) {
  auto *grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(Grid::Gap);
  grid->setVerticalSpacing(Grid::Gap);
  grid->setColumnStretch(1, 1);

  country = new QComboBox;
  country->setObjectName(QLatin1String(names.country));
  country->setEditable(true);
  country->setInsertPolicy(QComboBox::NoInsert);
  country->setDuplicatesEnabled(true);
  country->setCompleter(nullptr);
  PlaceCombo::ChooseOnlyByHand(*country);
  country->setMinimumContentsLength(12);
  country->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  country->setAccessibleName(tr("Country of %1").arg(what));
  country->setToolTip(tr("Choose the country of %1, or type the start of its name.").arg(what));
  AddRow(tr("Country"), country, nullptr, nullptr);

  city = new PlaceCombo;
  city->setObjectName(QLatin1String(names.city));
  city->setAccessibleName(tr("City of %1").arg(what));
  city->setToolTip(tr("Choose the city of %1, or type the start of its name: position and time difference follow.").arg(what));
  AddRow(tr("City"), city, nullptr, nullptr);

  difference = new QLineEdit;
  difference->setObjectName(QLatin1String(names.difference));
  difference->setAccessibleName(tr("Time difference from GMT, place of %1, as +hours.minutes").arg(what));
  difference->setToolTip(tr("Enter the hours and minutes ahead of Greenwich, as +05.30; behind it with a minus sign."));
  differenceFault = MakeFault(QLatin1String(names.difference));
  takeClock = new QPushButton;
  takeClock->setObjectName(QStringLiteral("cmdUse_") + QLatin1String(names.difference));
  takeClock->setAutoDefault(false);
  takeClock->hide();
  AddRow(tr("GMT difference"), difference, takeClock, differenceFault);
  clock = new QLabel;
  clock->setObjectName(QStringLiteral("lblClock_") + QLatin1String(names.difference));
  clock->setWordWrap(true);
  clock->setTextFormat(Qt::PlainText);
  clock->setFont(ShellFonts().SmallFont());
  clock->hide();
  grid->addWidget(clock, grid->rowCount(), 1, 1, 2);

  latitude = MakeAngle(names.latitude, names.northSouth, {QStringLiteral("N"), QStringLiteral("S")}, tr("Latitude"));
  longitude = MakeAngle(names.longitude, names.eastWest, {QStringLiteral("E"), QStringLiteral("W")}, tr("Longitude"));
  for (const Angle *angle : {&latitude, &longitude}) {
    const bool isLatitude = angle == &latitude;
    angle->edit->setAccessibleName(tr("%1, place of %2, as degrees:minutes").arg(isLatitude ? tr("Latitude") : tr("Longitude"), what));
    angle->edit->setToolTip(isLatitude ? tr("Enter the latitude in degrees and minutes of arc, as 027:09.")
                                       : tr("Enter the longitude in degrees and minutes of arc, as 078:00."));
    angle->hemisphere->setToolTip(isLatitude ? tr("Choose N north of the equator, S south of it.")
                                             : tr("Choose E east of Greenwich, W west of it."));
    connect(angle->edit, &QLineEdit::textEdited, this, [this, fault = angle->fault] {
      Say(*fault, QString());
      DoubtLatitude();
      ShowClock();
      emit Changed();
    });
    connect(angle->hemisphere, &QComboBox::activated, this, [this] {
      ShowClock();
      emit Changed();
    });
  }

  connect(country->lineEdit(), &QLineEdit::textEdited, this, &PlaceEditor::TypedCountry);
  connect(country, &QComboBox::activated, this, [this](int index) {
    if (!search || index < 0) return;
    const PlaceSearch::Country &chosen = search->Countries().at(static_cast<std::size_t>(index));
    ChoseCountry(chosen.Name, chosen.GMTDIF);
  });
  connect(city, &PlaceCombo::Matched, this, &PlaceEditor::TakePlace);
  connect(city, &PlaceCombo::Unmatched, this, &PlaceEditor::TakeNoPlace);
  connect(difference, &QLineEdit::textEdited, this, [this] {
    Say(*differenceFault, QString());
    ShowClock();
    emit Changed();
  });
  connect(takeClock, &QPushButton::clicked, this, [this] {
    difference->setText(takeClock->property("difference").toString());
    Say(*differenceFault, QString());
    ShowClock();
    emit Changed();
    difference->setFocus();
  });
  Empty(PersonFields::NoDifference);
}

void PlaceEditor::AddRow(const QString &label, QWidget *field, QWidget *beside, QLabel *below) {
  auto *grid = static_cast<QGridLayout *>(layout());
  const int row = grid->rowCount();
  QLabel *caption = MakeLabel(label, "caption", field);
  caption->setMinimumWidth(caption->fontMetrics().horizontalAdvance(QStringLiteral("GMT difference")) + Grid::Gap);
  grid->addWidget(caption, row, 0);
  grid->addWidget(field, row, 1, 1, beside ? 1 : 2);
  if (beside) grid->addWidget(beside, row, 2);
  if (below) grid->addWidget(below, row + 1, 1, 1, 2);
}

PlaceEditor::Angle PlaceEditor::MakeAngle(const char *name, const char *hemisphereName, const QStringList &letters, const QString &label) {
  Angle angle{new QLineEdit, new QComboBox, MakeFault(QLatin1String(name))};
  angle.edit->setObjectName(QLatin1String(name));
  angle.hemisphere->setObjectName(QLatin1String(hemisphereName));
  angle.hemisphere->addItems(letters);
  angle.hemisphere->setAccessibleName(tr("%1: %2").arg(label, letters.join(QStringLiteral(" or "))));
  AddRow(label, angle.edit, angle.hemisphere, angle.fault);
  return angle;
}

void PlaceEditor::SetSearch(const PlaceSearch *places) {
  search = places;
  city->SetSearch(places);
  const QString text = country->currentText();
  country->clear();
  if (search)
    for (const PlaceSearch::Country &one : search->Countries()) country->addItem(one.Name);
  country->setEditText(text);
}

void PlaceEditor::ListCountry(const QString &name) { city->ListCountry(name); }

void PlaceEditor::TypedCountry(const QString &text) {
  const bool isGrowing = text.size() > lastCountryTyped.size() || !lastCountryTyped.startsWith(text, Qt::CaseInsensitive);
  lastCountryTyped = text;
  const PlaceSearch::Country *match = search ? search->FindCountry(text) : nullptr;
  if (match) {
    if (isGrowing) PlaceCombo::CompleteInline(*country->lineEdit(), text, match->Name);
    ChoseCountry(match->Name, match->GMTDIF);
  } else {
    city->SetCountry(text.trimmed());
    emit Changed();
  }
}

void PlaceEditor::ChoseCountry(const QString &name, const QString &countryDifference) {
  difference->setText(countryDifference);
  Say(*differenceFault, QString());
  city->SetCountry(name);
  city->ListCountry(name);
  ShowClock();
  emit Changed();
}

// The country that comes with a city does not narrow the typing: the user has not chosen it.
void PlaceEditor::TakePlace(const Place &place) {
  taken = place;
  country->setEditText(place.Country);
  lastCountryTyped = place.Country;
  difference->setText(PersonFields::ShownDifference(place.GMTDIFF));
  latitude.edit->setText(PersonFields::ShownDegrees(place.Lat));
  longitude.edit->setText(PersonFields::ShownDegrees(place.Longy));
  SelectLetter(*latitude.hemisphere, place.NOSO);
  SelectLetter(*longitude.hemisphere, place.EaWe);
  ClearFaults();
  ShowClock();
  emit Changed();
}

void PlaceEditor::TakeNoPlace() {
  for (const Angle *angle : {&latitude, &longitude}) {
    angle->edit->setText(PersonFields::NoAngle);
    angle->hemisphere->setCurrentIndex(0);
    Say(*angle->fault, QString());
  }
  ShowClock();
  emit Changed();
}

void PlaceEditor::Show(const PlaceRecord &place) {
  country->setEditText(place.Country);
  lastCountryTyped = place.Country;
  city->SetCountry(place.Country);
  city->ShowCity(place.City);
  difference->setText(PersonFields::ShownDifference(place.GMTDIFF));
  latitude.edit->setText(PersonFields::DegreesText(place.LatDeg, place.LatMT));
  longitude.edit->setText(PersonFields::DegreesText(place.LongDeg, place.LongMT));
  SelectLetter(*latitude.hemisphere, place.TextNS);
  SelectLetter(*longitude.hemisphere, place.TextEW);
  ClearFaults();
  ShowClock();
}

void PlaceEditor::ClearFaults() {
  for (QLabel *fault : {differenceFault, latitude.fault, longitude.fault}) Say(*fault, QString());
  DoubtLatitude();
}

// A latitude is let pass up to 180, as that of a city is; beyond the pole it is most likely a slip of the pen.
void PlaceEditor::DoubtLatitude() {
  const auto north = PersonFields::ReadDegrees(latitude.edit->text());
  if (!north || north->ArcMinutes() <= PersonFields::NorthPole * 60) return;
  SetRole(*latitude.fault, "warn");
  Say(*latitude.fault, tr("No place on the earth lies beyond 090:00. Please check."));
}

void PlaceEditor::Empty(const QString &withDifference) {
  Show(PlaceRecord());
  difference->setText(withDifference);
}

std::optional<PlaceRecord> PlaceEditor::Read() {
  PlaceRecord place;
  place.Country = country->currentText().trimmed();
  place.City = city->currentText().trimmed();
  bool isSound = true;
  const auto refuse = [&](QLabel *fault, const QString &sentence) {
    SetRole(*fault, "bad");
    Say(*fault, sentence);
    isSound = false;
  };
  const auto minutes = PersonFields::ReadDifference(difference->text());
  if (minutes)
    place.GMTDIFF = PersonFields::DifferenceText(*minutes);
  else
    refuse(differenceFault, tr("Please write hours and minutes ahead of Greenwich with two digits of minutes, as +05.30."));
  const auto north = PersonFields::ReadDegrees(latitude.edit->text());
  if (!north)
    refuse(latitude.fault, tr("Please write degrees up to 180 and minutes, as 027:09."));
  else
    std::tie(place.LatDeg, place.LatMT) = std::pair(north->degrees, north->minutes);
  const auto east = PersonFields::ReadDegrees(longitude.edit->text());
  if (east)
    std::tie(place.LongDeg, place.LongMT) = std::pair(east->degrees, east->minutes);
  else
    refuse(longitude.fault, tr("Please write degrees up to 180 and minutes, as 078:00."));
  place.TextNS = latitude.hemisphere->currentText();
  place.TextEW = longitude.hemisphere->currentText();
  return isSound ? std::optional(place) : std::nullopt;
}

bool PlaceEditor::IsNowhere() const {
  return city->currentText().trimmed().isEmpty() && latitude.edit->text() == PersonFields::NoAngle &&
         longitude.edit->text() == PersonFields::NoAngle;
}

void PlaceEditor::SetMoment(const QDate &day, const QTime &clockTime) {
  date = day;
  time = clockTime;
  ShowClock();
}

std::optional<Place> PlaceEditor::KnownPlace() const {
  const auto north = PersonFields::ReadDegrees(latitude.edit->text()), east = PersonFields::ReadDegrees(longitude.edit->text());
  if (!search || !north || !east) return std::nullopt;
  auto known =
      search->At(city->currentText(), country->currentText(), (latitude.hemisphere->currentIndex() == 1 ? -1 : 1) * north->ArcMinutes(),
                 (longitude.hemisphere->currentIndex() == 1 ? -1 : 1) * east->ArcMinutes());
  // A name that is typed in part, or another name of the place, has filled in the place all the same.
  const auto stands = [](const Angle &angle, const QString &stored, const QString &letter) {
    return angle.edit->text() == PersonFields::ShownDegrees(stored) && angle.hemisphere->currentText() == letter;
  };
  if (!known && taken && country->currentText() == taken->Country && stands(latitude, taken->Lat, taken->NOSO) &&
      stands(longitude, taken->Longy, taken->EaWe))
    known = taken;
  return known;
}

void PlaceEditor::ShowClock() {
  std::optional<ClockHistory::Advice> advice;
  if (date.isValid() && time.isValid()) {
    if (const std::optional<Place> place = KnownPlace())
      advice = ClockHistory::Advise(place->City, place->Zone, date, time, difference->text());
  }
  takeClock->setVisible(advice && advice->differs);
  Say(*clock, advice ? advice->sentence : QString());
  if (!advice) return;
  SetRole(*clock, advice->differs ? "warn" : "caption");
  takeClock->setText(tr("Use %1").arg(advice->offered));
  takeClock->setToolTip(tr("Take over the difference that the clocks showed."));
  takeClock->setProperty("difference", advice->offered);
}

QStringList PlaceEditor::Texts() const {
  return {country->currentText(),
          city->currentText(),
          difference->text(),
          latitude.edit->text(),
          latitude.hemisphere->currentText(),
          longitude.edit->text(),
          longitude.hemisphere->currentText()};
}

void PlaceEditor::SetTexts(const QStringList &texts) {
  country->setEditText(texts.value(0));
  city->SetCountry(texts.value(0));
  city->ShowCity(texts.value(1));
  difference->setText(texts.value(2));
  latitude.edit->setText(texts.value(3));
  SelectLetter(*latitude.hemisphere, texts.value(4));
  longitude.edit->setText(texts.value(5));
  SelectLetter(*longitude.hemisphere, texts.value(6));
  ClearFaults();
  ShowClock();
}
