// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/frmEditLongLat.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <span>

#include "content/Theme.h"
#include "persons/FormParts.h"
#include "persons/PersonFields.h"
#include "persons/PlaceCombo.h"
#include "persons/UndoBar.h"
#include "platform/Errors.h"
#include "platform/Notices.h"
#include "platform/Numbers.h"

using namespace FormParts;

namespace {

constexpr double FarthestAngle = 180;

struct Choice {
  const char *name;
  int value;  // as it is stored
  const char *text;
};
constexpr int Lahiri = 1, Vakya = 15;
constexpr Choice Ayanamshas[] = {{"optLahiri", Lahiri, QT_TRANSLATE_NOOP("frmEditLongLat", "NC Lahiri (Default)")},
                                 {"optRaman", 2, QT_TRANSLATE_NOOP("frmEditLongLat", "BV Raman")},
                                 {"optKP", 3, QT_TRANSLATE_NOOP("frmEditLongLat", "Krishnamurthy (KP)")},
                                 {"optSayan", 12, QT_TRANSLATE_NOOP("frmEditLongLat", "Sayan (No Ayanamsh)")},
                                 {"optVakya", Vakya, QT_TRANSLATE_NOOP("frmEditLongLat", "Vakya")},
                                 {"optCustom", SettingKeys::CustomAyanType, QT_TRANSLATE_NOOP("frmEditLongLat", "Custom Ayanamsh")}};
constexpr Choice Nodes[] = {{"optRahuMean", 1, QT_TRANSLATE_NOOP("frmEditLongLat", "Mean Position (Default)")},
                            {"optRahuTrue", 2, QT_TRANSLATE_NOOP("frmEditLongLat", "True Position")}};
constexpr Choice DayDivisions[] = {{"optDivisionsHouse", 1, QT_TRANSLATE_NOOP("frmEditLongLat", "House rule (Default)")},
                                   {"optDivisionsExact", 2, QT_TRANSLATE_NOOP("frmEditLongLat", "Exact")}};
constexpr Choice SunriseRules[] = {{"optSunriseCentre", 1, QT_TRANSLATE_NOOP("frmEditLongLat", "Disc centre, no refraction (Default)")},
                                   {"optSunriseLimb", 2, QT_TRANSLATE_NOOP("frmEditLongLat", "Upper limb, with refraction")}};
constexpr Choice Methods[] = {{"optCalcEphem", 0, QT_TRANSLATE_NOOP("frmEditLongLat", "Modern Ephemeris")},
                              {"optCalcVakya", 1, QT_TRANSLATE_NOOP("frmEditLongLat", "Vakya Panchang/Surya Siddhanta")}};

QGridLayout *MakeGrid() {
  auto *grid = new QGridLayout;
  grid->setHorizontalSpacing(2 * Grid::Gap);
  grid->setVerticalSpacing(Grid::Gap);
  grid->setColumnStretch(1, 1);
  return grid;
}

QVBoxLayout *LayOut(QWidget *tab) {
  auto *layout = new QVBoxLayout(tab);
  layout->setContentsMargins(Grid::CardPadding, Grid::CardPadding, Grid::CardPadding, Grid::CardPadding);
  layout->setSpacing(2 * Grid::Gap);
  return layout;
}

QButtonGroup *MakeOptions(QVBoxLayout *layout, std::span<const Choice> choices, QObject *owner) {
  auto *group = new QButtonGroup(owner);
  for (const Choice &choice : choices) {
    auto *option = new QRadioButton(QCoreApplication::translate("frmEditLongLat", choice.text));
    option->setObjectName(QLatin1String(choice.name));
    group->addButton(option, choice.value);
    layout->addWidget(option);
  }
  return group;
}

void Select(QButtonGroup &group, int value) {
  if (QAbstractButton *option = group.button(value)) option->setChecked(true);
}

// Degrees and minutes as one number, 027:09 as 27.09, by the characters at their places.
double AngleNumber(const QString &text) {
  bool isNumber = false;
  const double number = (text.left(3) + QLatin1Char('.') + text.right(2)).toDouble(&isNumber);
  return isNumber ? number : 0;
}

}  // namespace

frmEditLongLat::frmEditLongLat(std::shared_ptr<Database> personDb, UserSettings &settings, clsIni configuration, QWidget *parent)
    : QDialog(parent), db(std::move(personDb)), store(db), userSettings(settings), ini(std::move(configuration)) {
  setObjectName(QStringLiteral("frmEditLongLat"));
  setWindowTitle(tr("Options"));
  setModal(true);
  EditTab = new QTabWidget;
  EditTab->setObjectName(QStringLiteral("EditTab"));
  bar = new UndoBar;
  EditTab->addTab(MakeCityTab(), tr("Cit&ies"));
  EditTab->addTab(MakeCountryTab(), tr("Cou&ntries"));
  EditTab->addTab(MakeOptionsTab(), tr("&Options"));
  EditTab->addTab(MakeDetailsTab(), tr("Your &details"));

  auto *all = new QVBoxLayout(this);
  all->setContentsMargins(Grid::Margin, Grid::Margin, Grid::Margin, Grid::Margin);
  all->setSpacing(2 * Grid::Gap);
  all->addWidget(EditTab, 1);
  all->addWidget(bar);
  auto *last = new QHBoxLayout;
  QPushButton *close = MakeButton("cmdClose", tr("&Close"), tr("Close this screen."));
  last->addStretch();
  last->addWidget(close);
  all->addLayout(last);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  resize(680, 560);
  setMinimumSize(520, 420);

  FillCountryLists();
  FillCityList();
  lblCityNote->setText(tr("Type the name of a place, or choose one from the list."));
  if (cboCNTRY->count() > 0) ShowCountry(cboCNTRY->itemText(0));
  ShowOptions();
}

frmEditLongLat::~frmEditLongLat() = default;

// --- layout -------------------------------------------------------------------------------------------

QLabel *frmEditLongLat::MakeFaultOf(const QLineEdit *field) {
  QLabel *label = MakeFault(field->objectName());
  connect(field, &QLineEdit::textChanged, label, &QLabel::hide);
  return label;
}

QLineEdit *frmEditLongLat::MakeAngle(const char *name, const QString &what) {
  auto *edit = new QLineEdit(PersonFields::NoAngle);
  edit->setObjectName(QLatin1String(name));
  edit->setAccessibleName(tr("%1 as degrees:minutes").arg(what));
  edit->setToolTip(tr("Degrees and minutes of arc, as 027:09."));
  edit->installEventFilter(this);
  return edit;
}

QWidget *frmEditLongLat::MakeCityTab() {
  auto *tab = new QWidget;
  QVBoxLayout *layout = LayOut(tab);
  layout->addWidget(MakeHeading(tr("Places of birth and residence")));
  QGridLayout *grid = MakeGrid();
  cmbCityList = new PlaceCombo;
  cmbCityList->setObjectName(QStringLiteral("cmbCityList"));
  cmbCityList->setAccessibleName(tr("City"));
  cbocCountry = new QComboBox;
  cbocCountry->setObjectName(QStringLiteral("cbocCountry"));
  cbocCountry->setAccessibleName(tr("Country of the city"));
  cbocCountry->setEditable(true);
  cbocCountry->setInsertPolicy(QComboBox::NoInsert);
  PlaceCombo::ChooseOnlyByHand(*cbocCountry);
  txtCitGMT = new QLineEdit(PersonFields::NoDifference);
  txtCitGMT->setObjectName(QStringLiteral("txtCitGMT"));
  txtCitGMT->setAccessibleName(tr("Time difference from GMT as +hours.minutes"));
  txtLat = MakeAngle("txtLat", tr("Latitude"));
  txtLong = MakeAngle("txtLong", tr("Longitude"));
  const auto option = [](const char *name, const QString &text) {
    auto *button = new QRadioButton(text);
    button->setObjectName(QLatin1String(name));
    return button;
  };
  optNorth = option("optNorth", tr("North"));
  optSouth = option("optSouth", tr("South"));
  optEast = option("optEast", tr("East"));
  optWest = option("optWest", tr("West"));
  for (const auto &[one, other] : {std::pair(optNorth, optSouth), std::pair(optEast, optWest)}) {
    auto *pair = new QButtonGroup(this);
    pair->addButton(one);
    pair->addButton(other);
  }
  optNorth->setChecked(true);
  optEast->setChecked(true);
  lblCityNote = MakeLabel(QString(), "caption");
  lblCityNote->setObjectName(QStringLiteral("lblCityNote"));
  lblCityNote->setWordWrap(true);

  int row = 0;
  const auto add = [&](const QString &caption, QWidget *field, QRadioButton *one = nullptr, QRadioButton *other = nullptr) {
    grid->addWidget(MakeLabel(caption, "caption", field), row, 0);
    grid->addWidget(field, row, 1, 1, one ? 1 : 3);
    if (one) {
      grid->addWidget(one, row, 2);
      grid->addWidget(other, row, 3);
    }
    ++row;
    if (const auto *edit = qobject_cast<QLineEdit *>(field)) grid->addWidget(MakeFaultOf(edit), row++, 1, 1, 3);
  };
  add(tr("City"), cmbCityList);
  grid->addWidget(lblCityNote, row++, 1, 1, 3);
  add(tr("Country"), cbocCountry);
  add(tr("GMT difference"), txtCitGMT);
  add(tr("Latitude"), txtLat, optNorth, optSouth);
  add(tr("Longitude"), txtLong, optEast, optWest);
  layout->addLayout(grid);
  layout->addStretch();

  auto *buttons = new QHBoxLayout;
  buttons->setSpacing(Grid::Gap);
  QPushButton *addCity = MakeButton("cmdAdd", tr("&Add"), tr("Empty the fields for a new place."));
  QPushButton *change = MakeButton("cmdChange", tr("C&hange"), tr("Change the place that is shown."));
  QPushButton *remove = MakeButton("cmdDelete", tr("De&lete"), tr("Delete the place that is shown. It can be taken back."));
  cmdSave = MakeButton("cmdSave", tr("&Save"), tr("Save this place."));
  cmdSave->setProperty("role", "primary");
  for (QPushButton *button : {addCity, change, remove}) buttons->addWidget(button);
  buttons->addStretch();
  buttons->addWidget(cmdSave);
  layout->addLayout(buttons);
  cmdSave->setEnabled(false);

  connect(cmbCityList, &PlaceCombo::Matched, this, [this](const Place &place) {
    if (!cmdSave->isEnabled()) ShowCity(place);  // while a place is being written, its name is only a name
  });
  connect(addCity, &QPushButton::clicked, this, &frmEditLongLat::AddCity);
  connect(change, &QPushButton::clicked, this, &frmEditLongLat::ChangeCity);
  connect(remove, &QPushButton::clicked, this, [this] { Guard(*this, [this] { DeleteCity(); }); });
  connect(cmdSave, &QPushButton::clicked, this, [this] { Guard(*this, [this] { SaveCity(); }); });
  return tab;
}

QWidget *frmEditLongLat::MakeCountryTab() {
  auto *tab = new QWidget;
  QVBoxLayout *layout = LayOut(tab);
  layout->addWidget(MakeHeading(tr("Countries and their standard time")));
  QGridLayout *grid = MakeGrid();
  cboCNTRY = new QComboBox;
  cboCNTRY->setObjectName(QStringLiteral("cboCNTRY"));
  cboCNTRY->setAccessibleName(tr("Country"));
  cboCNTRY->setEditable(true);
  cboCNTRY->setInsertPolicy(QComboBox::NoInsert);
  PlaceCombo::ChooseOnlyByHand(*cboCNTRY);
  txtGMTDiff = new QLineEdit(PersonFields::NoDifference);
  txtGMTDiff->setObjectName(QStringLiteral("txtGMTDiff"));
  txtGMTDiff->setAccessibleName(tr("Time difference from GMT as +hours.minutes"));
  grid->addWidget(MakeLabel(tr("Country"), "caption", cboCNTRY), 0, 0);
  grid->addWidget(cboCNTRY, 0, 1);
  grid->addWidget(MakeLabel(tr("GMT difference"), "caption", txtGMTDiff), 1, 0);
  grid->addWidget(txtGMTDiff, 1, 1);
  QLabel *fault = MakeFaultOf(txtGMTDiff);
  grid->addWidget(fault, 2, 1);
  layout->addLayout(grid);
  layout->addStretch();
  auto *buttons = new QHBoxLayout;
  buttons->setSpacing(Grid::Gap);
  QPushButton *add = MakeButton("cmdCAdd", tr("&Add"), tr("Empty the fields for a new country."));
  QPushButton *modify = MakeButton("cmdCModify", tr("C&hange"), tr("Change the country that is shown."));
  QPushButton *remove = MakeButton("cmdCDel", tr("De&lete"), tr("Delete the country that is shown. It can be taken back."));
  cmdCSave = MakeButton("cmdCSave", tr("&Save"), tr("Save this country."));
  cmdCSave->setProperty("role", "primary");
  cmdCSave->setEnabled(false);
  for (QPushButton *button : {add, modify, remove}) buttons->addWidget(button);
  buttons->addStretch();
  buttons->addWidget(cmdCSave);
  layout->addLayout(buttons);

  connect(cboCNTRY, &QComboBox::editTextChanged, fault, &QLabel::hide);
  // While a country is being written, its name is only a name.
  connect(cboCNTRY->lineEdit(), &QLineEdit::returnPressed, this, [this] {
    const int listed = cboCNTRY->findText(cboCNTRY->currentText().trimmed(), Qt::MatchFixedString);
    if (listed >= 0 && !cmdCSave->isEnabled()) Guard(*this, [&] { ShowCountry(cboCNTRY->itemText(listed)); });
  });
  connect(cboCNTRY, &QComboBox::activated, this, [this](int index) { Guard(*this, [&] { ShowCountry(cboCNTRY->itemText(index)); }); });
  connect(add, &QPushButton::clicked, this, &frmEditLongLat::AddCountry);
  connect(modify, &QPushButton::clicked, this, &frmEditLongLat::ChangeCountry);
  connect(remove, &QPushButton::clicked, this, [this] { Guard(*this, [this] { DeleteCountry(); }); });
  connect(cmdCSave, &QPushButton::clicked, this, [this] { Guard(*this, [this] { SaveCountry(); }); });
  return tab;
}

QWidget *frmEditLongLat::MakeOptionsTab() {
  auto *tab = new QWidget;
  QVBoxLayout *layout = LayOut(tab);
  auto *method = new QGroupBox(tr("Calculation method"));
  method->setObjectName(QStringLiteral("framMethod"));
  methods = MakeOptions(new QVBoxLayout(method), Methods, this);
  layout->addWidget(method);
  method->hide();  // the method travels with the ayanamsha

  auto *columns = new QHBoxLayout;
  columns->setSpacing(4 * Grid::Gap);
  auto *left = new QVBoxLayout, *right = new QVBoxLayout;
  left->setSpacing(Grid::Gap);
  right->setSpacing(Grid::Gap);
  left->addWidget(MakeHeading(tr("Ayanamsha")));
  ayanamshas = MakeOptions(left, Ayanamshas, this);
  ayanamshas->button(Vakya)->hide();
  auto *custom = new QHBoxLayout;
  txtCustAyan = new QLineEdit;
  txtCustAyan->setObjectName(QStringLiteral("txtCustAyan"));
  txtCustAyan->setAccessibleName(tr("Custom ayanamsha in decimal degrees"));
  custom->addSpacing(3 * Grid::Gap);
  custom->addWidget(MakeLabel(tr("Degrees"), "caption", txtCustAyan));
  custom->addWidget(txtCustAyan, 1);
  left->addLayout(custom);
  left->addWidget(MakeFaultOf(txtCustAyan));
  left->addStretch();
  right->addWidget(MakeHeading(tr("Rahu and Ketu")));
  nodes = MakeOptions(right, Nodes, this);
  right->addSpacing(Grid::Gap);
  right->addWidget(MakeHeading(tr("Day divisions")));
  dayDivisions = MakeOptions(right, DayDivisions, this);
  dayDivisions->button(1)->setToolTip(tr("Sunrise by the ascendant, and the day counted in clock numbers."));
  dayDivisions->button(2)->setToolTip(tr("By the sky, as a good printed panchang has it."));
  right->addSpacing(Grid::Gap);
  right->addWidget(MakeHeading(tr("Sunrise of exact times")));
  sunriseRules = MakeOptions(right, SunriseRules, this);
  right->addStretch();
  columns->addLayout(left, 1);
  columns->addLayout(right, 1);
  layout->addLayout(columns);
  layout->addStretch();
  auto *buttons = new QHBoxLayout;
  QPushButton *save = MakeButton("cmdSaveAyanKundStyle", tr("&Save"), tr("Save these options."));
  save->setProperty("role", "primary");
  buttons->addStretch();
  buttons->addWidget(save);
  layout->addLayout(buttons);
  connect(ayanamshas, &QButtonGroup::idToggled, this,
          [this] { txtCustAyan->setEnabled(ayanamshas->checkedId() == SettingKeys::CustomAyanType); });
  connect(save, &QPushButton::clicked, this, [this] { Guard(*this, [this] { SaveOptions(); }); });
  return tab;
}

QWidget *frmEditLongLat::MakeDetailsTab() {
  auto *tab = new QWidget;
  QVBoxLayout *layout = LayOut(tab);
  layout->addWidget(MakeHeading(tr("Printed on reports")));
  QGridLayout *grid = MakeGrid();
  txtName = new QLineEdit;
  txtName->setObjectName(QStringLiteral("txtName"));
  txtName->setAccessibleName(tr("Your name"));
  txtAddress = new QPlainTextEdit;
  txtAddress->setObjectName(QStringLiteral("txtAddress"));
  txtAddress->setAccessibleName(tr("Your address"));
  txtAddress->setTabChangesFocus(true);
  txtAddress->setMaximumHeight(6 * txtAddress->fontMetrics().lineSpacing());
  grid->addWidget(MakeLabel(tr("Name"), "caption", txtName), 0, 0);
  grid->addWidget(txtName, 0, 1);
  grid->addWidget(MakeLabel(tr("Address"), "caption", txtAddress), 1, 0, Qt::AlignTop);
  grid->addWidget(txtAddress, 1, 1);
  layout->addLayout(grid);
  layout->addStretch();
  auto *buttons = new QHBoxLayout;
  QPushButton *save = MakeButton("cmdSaveYourDet", tr("&Save"), tr("Save your details."));
  save->setProperty("role", "primary");
  buttons->addStretch();
  buttons->addWidget(save);
  layout->addLayout(buttons);
  connect(save, &QPushButton::clicked, this, [this] { Guard(*this, [this] { SaveDetails(); }); });
  return tab;
}

// --- cities -------------------------------------------------------------------------------------------

void frmEditLongLat::FillCountryLists() {
  for (QComboBox *list : {cboCNTRY, cbocCountry}) {
    const QString text = list->currentText();
    list->clear();
    list->addItems(store.Countries());
    list->setCurrentIndex(-1);
    list->setEditText(text);
  }
}

void frmEditLongLat::FillCityList() {
  auto fresh = std::make_unique<PlaceSearch>(db);
  cmbCityList->SetSearch(fresh.get());
  places = std::move(fresh);
  cmbCityList->ListCountry(QString());
}

void frmEditLongLat::ShowCity(const Place &place) {
  cityRow = place.row;
  seenCity = place;
  if (cmbCityList->currentText() != place.City && !cmbCityList->lineEdit()->hasFocus()) cmbCityList->ShowCity(place.City);
  txtLat->setText(PersonFields::ShownDegrees(place.Lat));
  txtLong->setText(PersonFields::ShownDegrees(place.Longy));
  cbocCountry->setEditText(place.Country);
  txtCitGMT->setText(PersonFields::ShownDifference(place.GMTDIFF));
  (place.NOSO == QLatin1String("N") ? optNorth : optSouth)->setChecked(true);
  (place.EaWe == QLatin1String("E") ? optEast : optWest)->setChecked(true);
  QStringList facts;
  if (!place.Region.isEmpty()) facts << place.Region;
  if (place.Population > 0) facts << tr("%L1 people").arg(place.Population);
  if (!place.Zone.isEmpty()) facts << place.Zone;
  if (!place.Known.isEmpty()) facts << tr("also %1").arg(QString(place.Known).replace(u';', QStringLiteral(", ")));
  lblCityNote->setText(facts.join(QStringLiteral(" \u00b7 ")));
}

void frmEditLongLat::AddCity() {
  cityRow = 0;
  txtLat->setText(PersonFields::NoAngle);
  txtLong->setText(PersonFields::NoAngle);
  optNorth->setChecked(true);
  optEast->setChecked(true);
  cmbCityList->ShowCity(QString());
  lblCityNote->setText(tr("A new place: write its name, country, difference and position, then save."));
  cmdSave->setEnabled(true);
  cmbCityList->setFocus();
}

void frmEditLongLat::ChangeCity() {
  cmdSave->setEnabled(true);
  cmbCityList->setFocus();
}

void frmEditLongLat::SaveCity() {
  const QString country = cbocCountry->currentText().trimmed();
  if (!store.HasCountry(country)) {
    Notices::Show({Notice::Kind::Warning, tr("Country Not Found"), tr("Invalid Country, Please Select a Country From The List.")});
    return;
  }
  Place place;
  place.row = cityRow;
  place.City = cmbCityList->currentText().trimmed();
  place.Country = country;
  bool isSound = true;
  const auto refuse = [&](const QWidget *field, const QString &sentence) {
    Say(*findChild<QLabel *>(QStringLiteral("fault_") + field->objectName()), sentence);
    isSound = false;
  };
  for (const QLineEdit *angle : {txtLat, txtLong})
    if (!PersonFields::ReadDegrees(angle->text())) refuse(angle, tr("Please write degrees up to 180 and minutes, as 027:09."));
  const auto difference = PersonFields::ReadDifference(txtCitGMT->text());
  if (!difference) refuse(txtCitGMT, tr("Please write hours and minutes ahead of Greenwich with two digits of minutes, as +05.30."));
  if (place.City.isEmpty()) {
    lblCityNote->setText(tr("Please enter the name of the place."));
    isSound = false;
  }
  if (!isSound) return;
  const auto stored = [](const QLineEdit *edit) {
    const auto angle = PersonFields::ReadDegrees(edit->text());
    return PersonFields::StoredDegrees(PersonFields::DegreesText(angle->degrees, angle->minutes));
  };
  place.Lat = stored(txtLat);
  place.Longy = stored(txtLong);
  place.NOSO = optNorth->isChecked() ? QStringLiteral("N") : QStringLiteral("S");
  place.EaWe = optEast->isChecked() ? QStringLiteral("E") : QStringLiteral("W");
  place.GMTDIFF = PersonFields::DifferenceText(*difference);
  const RowsKept before = store.KeepCity(cityRow);
  const std::optional<qlonglong> row = store.SaveCityOver(place, seenCity);
  if (!row) {
    seenCity = places->Load(cityRow);  // saving again is the user's word
    if (!seenCity) cityRow = 0;
    TellNotSaved(place.City);
    return;
  }
  cmdSave->setEnabled(false);
  bar->Clear();
  FillCityList();
  if (const auto now = places->Load(*row)) ShowCity(*now);
  if (before.IsEmpty()) return;
  bar->Offer(tr("%1 is changed.").arg(place.City), tr("&Undo"), [this, before, row = *row] {
    store.GoBackTo(before);
    FillCityList();
    if (const auto now = places->Load(row)) {
      cmbCityList->ShowCity(now->City);
      ShowCity(*now);
    }
  });
}

void frmEditLongLat::TellNotSaved(const QString &name) {
  bar->Tell(tr("Not saved: %1 was changed or deleted in another window meanwhile. Save again to keep what stands here.").arg(name));
}

void frmEditLongLat::DeleteCity() {
  const QString name = cmbCityList->currentText().trimmed();
  const auto shown = places->Load(cityRow);
  const bool isShown = shown && shown->City.compare(name, Qt::CaseInsensitive) == 0;
  const RowsKept kept = store.DeleteCity(isShown ? cityRow : 0, name);
  if (kept.IsEmpty()) {
    bar->Tell(tr("%1 is not in the list; nothing was deleted.").arg(name));
    return;
  }
  cmdSave->setEnabled(false);
  FillCityList();
  AddCity();
  cmdSave->setEnabled(false);
  lblCityNote->clear();
  bar->Offer(tr("%1 is deleted.").arg(name), tr("&Undo"), [this, kept, shown] {
    store.Restore(kept);
    FillCityList();
    if (shown) {
      cmbCityList->ShowCity(shown->City);
      ShowCity(*shown);
    }
  });
}

// --- countries ----------------------------------------------------------------------------------------

void frmEditLongLat::ShowCountry(const QString &name) {
  countryName = name;
  cboCNTRY->setEditText(name);
  seenDifference = store.CountryDifference(name);
  txtGMTDiff->setText(seenDifference);
  cmdCSave->setEnabled(false);
}

void frmEditLongLat::AddCountry() {
  countryName.clear();
  txtGMTDiff->setText(PersonFields::NoDifference);
  cboCNTRY->setCurrentIndex(-1);
  cboCNTRY->setEditText(QString());
  cmdCSave->setEnabled(true);
  cboCNTRY->setFocus();
}

void frmEditLongLat::ChangeCountry() {
  cmdCSave->setEnabled(true);
  cboCNTRY->setFocus();
}

void frmEditLongLat::SaveCountry() {
  const QString name = cboCNTRY->currentText().trimmed();
  const auto difference = PersonFields::ReadDifference(txtGMTDiff->text());
  auto *fault = findChild<QLabel *>(QStringLiteral("fault_txtGMTDiff"));
  const bool isRenamed = !countryName.isEmpty() && countryName.compare(name, Qt::CaseInsensitive) != 0;
  const bool isTaken = isRenamed && store.HasCountry(name);
  if (name.isEmpty() || isTaken || !difference) {
    Say(*fault, name.isEmpty() ? tr("Please enter the name of the country.")
                : isTaken      ? tr("%1 is in the list already. Please write another name.").arg(name)
                               : tr("Please write hours and minutes ahead of Greenwich with two digits of minutes, as +05.30."));
    return;
  }
  const bool isAdded = countryName.isEmpty();
  const QString former = isAdded ? name : countryName;
  const RowsKept before = store.KeepCountry(former);
  if (!store.SaveCountryOver(name, PersonFields::DifferenceText(*difference), countryName, seenDifference)) {
    seenDifference = store.CountryDifference(countryName);  // saving again is the user's word
    if (!store.HasCountry(countryName)) countryName.clear();
    TellNotSaved(name);
    return;
  }
  FillCountryLists();
  ShowCountry(name);
  bar->Clear();
  FillCityList();
  if (before.IsEmpty()) return;
  const QString done = isAdded ? tr("%1 was in the list already and is changed.") : tr("%1 is changed.");
  bar->Offer(done.arg(name), tr("&Undo"), [this, before, former] {
    store.GoBackTo(before);
    FillCountryLists();
    const int listed = cboCNTRY->findText(former, Qt::MatchFixedString);
    ShowCountry(listed < 0 ? former : cboCNTRY->itemText(listed));  // in its own letters
    FillCityList();
  });
}

void frmEditLongLat::DeleteCountry() {
  const QString name = cboCNTRY->currentText().trimmed();
  const RowsKept kept = store.DeleteCountry(name);
  if (kept.IsEmpty()) {
    bar->Tell(tr("%1 is not in the list; nothing was deleted.").arg(name));
    return;
  }
  FillCountryLists();
  AddCountry();
  cmdCSave->setEnabled(false);
  FillCityList();
  bar->Offer(tr("%1 is deleted.").arg(name), tr("&Undo"), [this, kept, name] {
    store.Restore(kept);
    FillCountryLists();
    ShowCountry(name);
    FillCityList();
  });
}

// --- options and details --------------------------------------------------------------------------------

void frmEditLongLat::ShowOptions() {
  const int stored = userSettings.IntValue(SettingKeys::AyanType);
  Select(*ayanamshas, stored == Vakya ? Lahiri : stored);
  Select(*nodes, userSettings.IntValue(SettingKeys::RahuKetuMode));
  Select(*methods, 0);
  Select(*dayDivisions, userSettings.IntValue(SettingKeys::DayDivisions) == 2 ? 2 : 1);
  Select(*sunriseRules, userSettings.IntValue(SettingKeys::SunriseRule) == 2 ? 2 : 1);
  txtCustAyan->setText(userSettings.Value(SettingKeys::CustAyan));
  txtCustAyan->setEnabled(ayanamshas->checkedId() == SettingKeys::CustomAyanType);
  txtName->setText(ini.GetIniString(QStringLiteral("DispName"), QString()));
  txtAddress->setPlainText(ini.GetIniString(QStringLiteral("DispAdd"), QString()));
}

void frmEditLongLat::SaveOptions() {
  std::vector<UserSettings::Change> changes{{SettingKeys::DayDivisions, dayDivisions->checkedId()},
                                            {SettingKeys::SunriseRule, sunriseRules->checkedId()}};
  if (ayanamshas->checkedId() == SettingKeys::CustomAyanType) {
    try {
      TextToDegrees(txtCustAyan->text(), tr("custom ayanamsha"));
    } catch (const ConversionError &) {
      Say(*findChild<QLabel *>(QStringLiteral("fault_txtCustAyan")), tr("Please write degrees as a decimal number up to 360, as 23.50."));
      return;
    }
    changes.emplace_back(SettingKeys::CustAyan, txtCustAyan->text().trimmed());
  }
  if (ayanamshas->checkedId() >= 0) changes.emplace_back(SettingKeys::AyanType, ayanamshas->checkedId());
  if (nodes->checkedId() >= 0) changes.emplace_back(SettingKeys::RahuKetuMode, nodes->checkedId());
  try {
    userSettings.SetAll(changes);
  } catch (const StoreError &) {
    emit CalculationChanged();  // they hold for this run all the same, and charts that are made from now on follow them
    throw;
  }
  emit CalculationChanged();
}

void frmEditLongLat::SaveDetails() {
  ini.WriteIniString(QStringLiteral("DispName"), txtName->text());
  ini.WriteIniString(QStringLiteral("DispAdd"), txtAddress->toPlainText());
}

// --- checks ---------------------------------------------------------------------------------------------

void frmEditLongLat::CheckAngle(QLineEdit *field) {
  if (AngleNumber(field->text()) <= FarthestAngle) return;
  Notices::Show(
      {Notice::Kind::Warning, field == txtLat ? tr("Invalid Latitude") : tr("Invalid Longitude"), tr("Please enter a value under 180.")});
}

bool frmEditLongLat::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::FocusOut && (watched == txtLat || watched == txtLong)) CheckAngle(static_cast<QLineEdit *>(watched));
  return QDialog::eventFilter(watched, event);
}
