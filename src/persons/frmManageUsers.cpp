// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/frmManageUsers.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QCompleter>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QStringListModel>
#include <QVBoxLayout>

#include "content/Role.h"
#include "content/Skin.h"
#include "content/Theme.h"
#include "persons/FormParts.h"
#include "persons/PersonFields.h"
#include "persons/PersonsFile.h"
#include "persons/PlaceCombo.h"
#include "persons/PlaceEditor.h"
#include "persons/UndoBar.h"
#include "platform/Errors.h"
#include "platform/FileTools.h"
#include "platform/Notices.h"
#include "platform/gui/AskSaveFile.h"

using namespace FormParts;

namespace {

const QString HomeCountry = QStringLiteral("India");
constexpr int FirstYear = 1800;
constexpr int WideFrom = 860;  // from this width on birth and residence stand side by side
constexpr int MostFaultsShown = 12;
constexpr int HeadingHeight = 3 * Grid::Gap + 4;

QFrame *MakeCard() {
  auto *card = new QFrame;
  card->setProperty("role", "card");
  auto *layout = new QVBoxLayout(card);
  layout->setContentsMargins(Grid::CardPadding, Grid::CardPadding, Grid::CardPadding, Grid::CardPadding);
  layout->setSpacing(Grid::Gap);
  return card;
}

QLabel *MakeCardHeading(const QString &text) {
  QLabel *label = MakeHeading(text);
  label->setMinimumHeight(HeadingHeight);  // that of a heading with a link beside it, so that neighbours align
  return label;
}

// A long name keeps its start and its end.
QString Short(const QString &name) { return name.size() <= 48 ? name : name.left(30) + QChar(0x2026) + name.right(12); }

}  // namespace

frmManageUsers::frmManageUsers(std::shared_ptr<Database> personDb, const QString &dailyPath, QWidget *parent)
    : QDialog(parent), db(std::move(personDb)), store(db, dailyPath) {
  setObjectName(QStringLiteral("frmManageUsers"));
  setWindowTitle(tr("Persons"));
  setModal(true);

  bar = new UndoBar;
  auto *content = new QWidget;
  auto *column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  cards = new QBoxLayout(QBoxLayout::LeftToRight);
  column->addLayout(cards);
  column->addStretch();
  cards->setSpacing(2 * Grid::Gap);
  auto *head = MakeHead();
  cards->addWidget(MakeBirth(), 1);
  cards->addWidget(MakeResidence(), 1);
  auto *scroll = new QScrollArea;
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(content);

  auto *all = new QVBoxLayout(this);
  all->setContentsMargins(Grid::Margin, Grid::Margin, Grid::Margin, Grid::Margin);
  all->setSpacing(2 * Grid::Gap);
  all->addWidget(head);
  all->addWidget(scroll, 1);
  all->addWidget(bar);
  all->addWidget(MakeButtons());
  resize(1000, 680);
  setMinimumSize(560, 420);

  ReloadPlaces();
  birth->ListCountry(HomeCountry);
  residence->ListCountry(HomeCountry);
  seenVersion = store.DataVersion();
  FillPersons();
  if (names->rowCount() > 0)
    ChooseRow(0);
  else
    AddUser();
}

frmManageUsers::~frmManageUsers() = default;

// --- layout ---------------------------------------------------------------------------------------

QWidget *frmManageUsers::MakeHead() {
  auto *card = MakeCard();
  auto *row = new QHBoxLayout;
  row->setSpacing(Grid::Gap);
  auto *caption = MakeLabel(tr("&Name"), "caption");
  cmbPerson = new QComboBox;
  cmbPerson->setObjectName(QStringLiteral("cmbPerson"));
  cmbPerson->setAccessibleName(tr("Name of the person"));
  cmbPerson->setToolTip(tr("Enter the name of the person to generate the horoscope for."));
  cmbPerson->setEditable(true);
  cmbPerson->setInsertPolicy(QComboBox::NoInsert);
  cmbPerson->setDuplicatesEnabled(true);
  cmbPerson->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cmbPerson->setMinimumContentsLength(20);
  names = new QStringListModel(this);
  cmbPerson->setModel(names);
  if (auto *rows = qobject_cast<QListView *>(cmbPerson->view())) rows->setUniformItemSizes(true);
  auto *completer = new QCompleter(names, this);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  completer->setFilterMode(Qt::MatchContains);
  completer->setCompletionMode(QCompleter::PopupCompletion);
  if (auto *rows = qobject_cast<QListView *>(completer->popup())) rows->setUniformItemSizes(true);
  cmbPerson->setCompleter(completer);
  caption->setBuddy(cmbPerson);
  row->addWidget(caption);
  row->addWidget(cmbPerson, 1);
  QPushButton *add = MakeButton("flpAddUser", tr("Ne&w person"), tr("Empty the fields for a person who is not in the list."));
  QPushButton *remove = MakeButton("flpDelUser", tr("&Delete"), tr("Delete this person with the residence. It can be taken back."));
  row->addWidget(add);
  row->addWidget(remove);
  static_cast<QVBoxLayout *>(card->layout())->addLayout(row);
  lblNameNote = MakeFault(QStringLiteral("cmbPerson"));
  card->layout()->addWidget(lblNameNote);

  PlaceCombo::ChooseOnlyByHand(*cmbPerson);
  connect(cmbPerson->lineEdit(), &QLineEdit::returnPressed, this, [this] {
    if (!PersonStore::IsSameName(cmbPerson->currentText(), chosen)) ChoosePerson(cmbPerson->currentText());
  });
  connect(cmbPerson, &QComboBox::activated, this, [this](int index) { Guard(*this, [&] { ChooseRow(index); }); });
  connect(add, &QPushButton::clicked, this, &frmManageUsers::AddUser);
  connect(remove, &QPushButton::clicked, this, [this] { Guard(*this, [this] { DeleteUser(); }); });
  connect(cmbPerson, &QComboBox::editTextChanged, this, [this] { ShowName(); });
  return card;
}

QWidget *frmManageUsers::MakeBirth() {
  auto *card = MakeCard();
  auto *layout = static_cast<QVBoxLayout *>(card->layout());
  layout->addWidget(MakeCardHeading(tr("Birth")));
  auto *hint = MakeLabel(tr("As the birth certificate tells it, by the clock of the place."), "caption");
  hint->setWordWrap(true);
  layout->addWidget(hint);

  auto *grid = new QGridLayout;
  grid->setHorizontalSpacing(Grid::Gap);
  grid->setVerticalSpacing(Grid::Gap);
  grid->setColumnStretch(1, 1);
  const auto list = [](const char *name, const QString &what, const QString &tip) {
    auto *box = new QComboBox;
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(what);
    box->setToolTip(tip);
    box->setMaxVisibleItems(16);
    return box;
  };
  lblDateFault = MakeFault(QStringLiteral("cmbBirthDay"));
  cmbBirthDay = list("cmbBirthDay", tr("Day of birth"), tr("Choose the day on which the person was born."));
  cmbBirthMonth = list("cmbBirthMonth", tr("Month of birth"), tr("Choose the month in which the person was born."));
  cmbBirthYear =
      list("cmbBirthYear", tr("Year of birth"), tr("Choose the year in which the person was born, or type it with four digits."));
  cmbBirthYear->setEditable(true);
  cmbBirthYear->setInsertPolicy(QComboBox::NoInsert);
  cmbBirthYear->setMinimumContentsLength(5);
  for (int day = 1; day <= 31; ++day) cmbBirthDay->addItem(QString::number(day));
  for (int month = 1; month <= 12; ++month) cmbBirthMonth->addItem(PersonFields::MonthName(month));
  for (int year = QDate::currentDate().year(); year >= FirstYear; --year) cmbBirthYear->addItem(QString::number(year));
  auto *dateRow = new QHBoxLayout;
  dateRow->setSpacing(Grid::Gap);
  dateRow->addWidget(cmbBirthDay, 2);
  dateRow->addWidget(cmbBirthMonth, 4);
  dateRow->addWidget(cmbBirthYear, 3);
  auto *dateCaption = MakeLabel(tr("Date"), "caption");
  dateCaption->setBuddy(cmbBirthDay);

  txtPerBirthTime = new QLineEdit;
  txtPerBirthTime->setObjectName(QStringLiteral("txtPerBirthTime"));
  txtPerBirthTime->setAccessibleName(tr("Time of birth as hours.minutes on the 24-hour clock"));
  txtPerBirthTime->setToolTip(tr("Enter the time of birth by the clock of the place, as 09.05 or 21.05."));
  txtPerBirthTime->setPlaceholderText(tr("hh.mm"));
  optAM = new QRadioButton(tr("AM"));
  optPM = new QRadioButton(tr("PM"));
  optMale = new QRadioButton(tr("Male"));
  optFemale = new QRadioButton(tr("Female"));
  optAM->setToolTip(tr("From midnight to noon. Choosing it rewrites the hour: 12.30 becomes 00.30."));
  optPM->setToolTip(tr("From noon to midnight. Choosing it rewrites the hour: 01.30 becomes 13.30."));
  optAM->setObjectName(QStringLiteral("optAM"));
  optPM->setObjectName(QStringLiteral("optPM"));
  optMale->setObjectName(QStringLiteral("optMale"));
  optFemale->setObjectName(QStringLiteral("optFemale"));
  auto *halves = new QButtonGroup(this);
  halves->setObjectName(QStringLiteral("optAMPM"));
  halves->addButton(optAM, 0);
  halves->addButton(optPM, 1);
  auto *sexes = new QButtonGroup(this);
  sexes->addButton(optMale, 1);
  sexes->addButton(optFemale, 2);
  optAM->setChecked(true);
  optMale->setChecked(true);
  lblTimeFault = MakeFault(QStringLiteral("txtPerBirthTime"));
  for (QRadioButton *option : {optMale, optFemale})
    option->setStyleSheet(QStringLiteral("QRadioButton:disabled { color: palette(placeholder-text); }"));
  auto *timeRow = new QHBoxLayout;
  timeRow->setSpacing(Grid::Gap);
  timeRow->addWidget(txtPerBirthTime, 1);
  timeRow->addWidget(optAM);
  timeRow->addWidget(optPM);
  auto *timeCaption = MakeLabel(tr("Time"), "caption");
  timeCaption->setBuddy(txtPerBirthTime);
  auto *sexRow = new QHBoxLayout;
  sexRow->setSpacing(Grid::Gap);
  sexRow->addWidget(optMale);
  sexRow->addWidget(optFemale);
  sexRow->addStretch();
  auto *sexCaption = MakeLabel(tr("Sex"), "caption");

  grid->addWidget(dateCaption, 0, 0);
  grid->addLayout(dateRow, 0, 1);
  grid->addWidget(lblDateFault, 1, 1);
  grid->addWidget(timeCaption, 2, 0);
  grid->addLayout(timeRow, 2, 1);
  grid->addWidget(lblTimeFault, 3, 1);
  grid->addWidget(sexCaption, 4, 0);
  grid->addLayout(sexRow, 4, 1);
  grid->setColumnMinimumWidth(0, sexCaption->fontMetrics().horizontalAdvance(QStringLiteral("GMT difference")) + Grid::Gap);
  layout->addLayout(grid);
  birth = new PlaceEditor({"cmbBirthCountry", "cmbBirthCity", "txtGMT", "txtLati", "TextNS", "txtLongi", "TextEW"}, tr("birth"));
  layout->addWidget(birth);
  layout->addStretch();

  for (QComboBox *box : {cmbBirthDay, cmbBirthMonth, cmbBirthYear}) {
    connect(box, &QComboBox::currentTextChanged, this, [this] {
      Say(*lblDateFault, QString());
      ShowMoment();
    });
  }
  connect(txtPerBirthTime, &QLineEdit::textEdited, this, [this] { TypedTime(); });
  connect(halves, &QButtonGroup::idClicked, this, [this](int id) { ChoseHalf(id == 1); });
  return card;
}

QWidget *frmManageUsers::MakeResidence() {
  auto *card = MakeCard();
  auto *layout = static_cast<QVBoxLayout *>(card->layout());
  auto *head = new QHBoxLayout;
  head->addWidget(MakeCardHeading(tr("Residence")));
  head->addStretch();
  auto *same = new QPushButton(tr("Same as birth"));
  same->setObjectName(QStringLiteral("cmdSameAsBirth"));
  same->setProperty("role", "link");
  same->setAutoDefault(false);
  same->setToolTip(tr("Take over the place of birth."));
  head->addWidget(same);
  same->setMaximumHeight(HeadingHeight);
  layout->addLayout(head);
  lblResidence = MakeLabel(QString(), "caption");
  lblResidence->setObjectName(QStringLiteral("lblResidence"));
  lblResidence->setWordWrap(true);
  layout->addWidget(lblResidence);
  residence = new PlaceEditor({"cmbResCountry", "cmbResCity", "txtResGMT", "txtLat", "txtLatNS", "txtLong", "txtLongEW"}, tr("residence"));
  layout->addWidget(residence);
  layout->addStretch();
  connect(same, &QPushButton::clicked, this, [this] {
    residence->SetTexts(birth->Texts());
    ShowResidence();
  });
  connect(residence, &PlaceEditor::Changed, this, &frmManageUsers::ShowResidence);
  return card;
}

QWidget *frmManageUsers::MakeButtons() {
  auto *row = new QWidget;
  auto *layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Grid::Gap);
  QPushButton *cityList = MakeButton("flpCityList", tr("&Places"), tr("Edit the cities and the countries."));
  QPushButton *import = MakeButton("flpImport", tr("&Import"), tr("Take in persons from a CSV or JSON file."));
  QPushButton *exporting = MakeButton("flpExport", tr("&Export"), tr("Write all persons to a CSV or JSON file."));
  QPushButton *save = MakeButton("flpSave", tr("&Save"), tr("Save this person with the residence."));
  QPushButton *close = MakeButton("flpClose", tr("&Close"), tr("Close, and show the day of this person."));
  save->setProperty("role", "primary");
  save->setIcon(Skin::Picture(QStringLiteral("flpSave"), Skin::State::OnPrimary));
  for (QPushButton *button : {cityList, import, exporting}) layout->addWidget(button);
  layout->addStretch();
  layout->addWidget(save);
  layout->addWidget(close);

  connect(save, &QPushButton::clicked, this, [this] { Guard(*this, [this] { Save(); }); });
  connect(close, &QPushButton::clicked, this, [this] { done(Accepted); });
  connect(cityList, &QPushButton::clicked, this, [this] {
    emit CityListWanted();
    Guard(*this, [this] { ReloadPlaces(); });
  });
  const QString kinds = tr("Persons (*.csv *.json)");
  connect(import, &QPushButton::clicked, this, [this, kinds] {
    const QString path = QFileDialog::getOpenFileName(this, tr("Import persons"), QString(), kinds);
    if (!path.isEmpty()) ImportFrom(path);
  });
  connect(exporting, &QPushButton::clicked, this, [this, kinds] {
    const QString path = AskSaveFile(this, tr("Export persons"), QStringLiteral("persons.csv"), kinds);
    if (!path.isEmpty()) ExportTo(path);
  });
  return row;
}

void frmManageUsers::resizeEvent(QResizeEvent *event) {
  cards->setDirection(width() >= WideFrom ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  QDialog::resizeEvent(event);
}

// --- persons --------------------------------------------------------------------------------------

void frmManageUsers::ReloadPlaces() {
  auto fresh = std::make_unique<PlaceSearch>(db);
  birth->SetSearch(fresh.get());
  residence->SetSearch(fresh.get());
  places = std::move(fresh);
}

void frmManageUsers::FillPersons() {
  const QString text = cmbPerson->currentText();
  names->setStringList(store.Names());
  cmbPerson->setEditText(text);
}

void frmManageUsers::ChoosePerson(const QString &name) {
  for (int row = 0; row < names->rowCount(); ++row) {
    if (!PersonStore::IsSameName(cmbPerson->itemText(row), name)) continue;
    Guard(*this, [&] { ChooseRow(row); });
    return;
  }
}

void frmManageUsers::ChooseRow(int row) {
  const std::optional<PersonRecord> record = store.At(row);
  if (!record) return;
  KeepUnsaved();
  cmbPerson->setCurrentIndex(row);
  ShowPerson(*record);
}

void frmManageUsers::ShowPerson(const PersonRecord &record) {
  chosen = record.Name;
  seen = record;
  cmbPerson->setEditText(record.Name);
  cmbPerson->lineEdit()->setCursorPosition(0);
  cmbBirthDay->setCurrentIndex(record.Day - 1);
  cmbBirthMonth->setCurrentIndex(record.Month >= 1 && record.Month <= 12 ? record.Month - 1 : -1);
  cmbBirthYear->setEditText(QString::number(record.Year));
  txtPerBirthTime->setText(PersonFields::TimeText(record.Hour, record.Minutes));
  (record.AMPM == 2 ? optPM : optAM)->setChecked(true);
  (record.Sex == 1 ? optMale : optFemale)->setChecked(true);
  birth->Show(record.birth);
  if (record.residence)
    residence->Show(*record.residence);
  else
    residence->Empty(PersonFields::NoDifference);
  Say(*lblDateFault, QString());
  Say(*lblTimeFault, QString());
  ShowMoment();
  ShowName();
  ShowResidence();
  saved = Form();
}

void frmManageUsers::EmptyEverything() {
  cmbPerson->setCurrentIndex(-1);
  cmbPerson->setEditText(QString());
  for (QComboBox *list : {cmbBirthDay, cmbBirthMonth, cmbBirthYear}) list->setCurrentIndex(-1);
  cmbBirthYear->setEditText(QString());
  txtPerBirthTime->clear();
  optAM->setChecked(true);
  optMale->setChecked(true);
  birth->Empty(QStringLiteral("00.00"));
  residence->Empty(QStringLiteral("00.00"));
  Say(*lblDateFault, QString());
  Say(*lblTimeFault, QString());
}

void frmManageUsers::AddUser() {
  KeepUnsaved();
  chosen.clear();
  seen.reset();
  EmptyEverything();
  ShowMoment();
  ShowName();
  ShowResidence();
  saved = Form();
  cmbPerson->setFocus();
}

QDate frmManageUsers::BirthDate() const {
  bool isYear = false;
  const int year = cmbBirthYear->currentText().trimmed().toInt(&isYear);
  return isYear && year >= 1 && year <= 9999 ? QDate(year, cmbBirthMonth->currentIndex() + 1, cmbBirthDay->currentIndex() + 1) : QDate();
}

std::optional<PersonRecord> frmManageUsers::Read() {
  PersonRecord record;
  record.Name = cmbPerson->currentText().trimmed();
  bool isSound = true;
  const QDate date = BirthDate();
  if (date.isValid()) {
    record.Day = date.day();
    record.Month = date.month();
    record.Year = date.year();
  } else {
    const bool isWhole =
        cmbBirthDay->currentIndex() >= 0 && cmbBirthMonth->currentIndex() >= 0 && !cmbBirthYear->currentText().trimmed().isEmpty();
    Say(*lblDateFault,
        isWhole ? tr("There is no %1 %2 %3.").arg(cmbBirthDay->currentText(), cmbBirthMonth->currentText(), cmbBirthYear->currentText())
                : tr("Please choose day, month and year."));
    isSound = false;
  }
  if (const auto time = PersonFields::ReadTime(txtPerBirthTime->text())) {
    record.Hour = time->hour;
    record.Minutes = time->minutes;
  } else {
    Say(*lblTimeFault, tr("Please write hours and minutes, as 09.05."));
    isSound = false;
  }
  record.AMPM = optAM->isChecked() ? 1 : 2;
  record.Sex = optMale->isChecked() ? 1 : 2;
  const auto born = birth->Read();
  record.residence = residence->Read();
  if (!isSound || !born || !record.residence) return std::nullopt;
  record.birth = *born;
  return record;
}

void frmManageUsers::Save() {
  if (cmbPerson->currentText().trimmed().isEmpty()) {
    Notices::Show({Notice::Kind::Warning, windowTitle(), tr("Please enter a name.")});
    cmbPerson->setFocus();
    return;
  }
  const std::optional<PersonRecord> record = Read();
  if (!record) {
    bar->Tell(tr("Not saved yet: please mend the marked fields."));
    return;
  }
  const bool isChosen = seen && PersonStore::IsSameName(chosen, record->Name);
  const bool isOther = !isChosen && store.Has(record->Name);
  const auto before = isOther ? store.SnapshotOf(record->Name) : PersonStore::Removed();
  if (!store.SaveOver(*record, isOther ? store.Find(record->Name) : isChosen ? seen : std::nullopt)) {
    TellOfOtherSave(record->Name);
    return;
  }
  bar->Clear();
  FillPersons();
  if (isOther) {
    bar->Offer(tr("%1 was in the list already and is changed.").arg(Short(record->Name)), tr("&Undo"), [this, before, name = record->Name] {
      store.GoBackTo(before, {name});
      FillPersons();
      saved = Form();
      ChoosePerson(name);
    });
  }
  if (const auto stored = store.Find(record->Name)) ShowPerson(*stored);
  warnedOfLoss = false;
}

// Somebody saved or deleted this person in another window after it came on the screen here: the user says whose word holds.
void frmManageUsers::TellOfOtherSave(const QString &name) {
  const std::optional<PersonRecord> theirs = store.Find(name);
  FillPersons();
  seen = theirs;  // saving again is the user's word
  if (!theirs) {
    bar->Tell(tr("Not saved: %1 was deleted in another window meanwhile. Save again to add this person anew.").arg(Short(name)));
    return;
  }
  bar->Offer(tr("Not saved: %1 was changed in another window meanwhile. Save again to keep what stands here.").arg(Short(name)),
             tr("Show that change"), [this, theirs] {
               KeepUnsaved();
               ShowPerson(*theirs);
             });
}

// Back from another window: its changes are shown, unless something is being written here.
bool frmManageUsers::event(QEvent *event) {
  if (event->type() == QEvent::WindowActivate) Guard(*this, [this] { FollowOthers(); });
  return QDialog::event(event);
}

void frmManageUsers::FollowOthers() {
  try {
    const auto now = store.DataVersion();
    if (seenVersion != now) {
      FillPersons();
      const std::optional<PersonRecord> stored = store.Find(chosen);
      if (!HasUnsaved() && seen && stored && *stored != *seen) ShowPerson(*stored);
      seenVersion = now;  // last: what could not be read is read the next time
    }
    isFaultTold = false;
  } catch (const Error &) {
    // The box that tells it brings the screen to the front again as it closes, so a fault that lasts is told once.
    if (!std::exchange(isFaultTold, true)) throw;
  }
}

void frmManageUsers::DeleteUser() {
  const QString name = cmbPerson->currentText().trimmed();
  const QString stored = PersonStore::IsSameName(chosen, name) ? chosen : name;
  const QStringList form = Form();
  const bool wasUnsaved = HasUnsaved();
  const PersonStore::Removed removed = store.Delete(stored);
  saved = form;  // nothing of it is to be kept besides the deleted person
  FillPersons();
  if (names->rowCount() > 0) {
    ChooseRow(0);
  } else {
    chosen.clear();
    seen.reset();
    EmptyEverything();
    ShowMoment();
    ShowName();
    saved = Form();
  }
  if (removed.IsEmpty()) {
    bar->Tell(name.isEmpty() ? tr("There is nobody to delete.") : tr("%1 is not in the list; nothing was deleted.").arg(Short(name)));
    return;
  }
  bar->Offer(tr("%1 is deleted.").arg(Short(name)), tr("&Undo"), [this, removed, form, wasUnsaved, name] {
    store.Restore(removed);
    FillPersons();
    if (const auto back = store.Find(removed.name)) ShowPerson(*back);
    if (wasUnsaved) SetForm(form);
  });
}

void frmManageUsers::KeepUnsaved() {
  if (saved.isEmpty() || !HasUnsaved()) return;
  const QStringList form = Form();
  bar->Offer(tr("The changes to %1 are not saved.").arg(form.first().trimmed().isEmpty() ? tr("the new person") : Short(form.first())),
             tr("Take back"), [this, form, before = chosen, record = seen, kept = saved] {
               SetForm(form);
               chosen = before;
               seen = record;
               saved = kept;
               ShowName();
             });
}

QStringList frmManageUsers::Form() const {
  return QStringList{cmbPerson->currentText(),
                     QString::number(cmbBirthDay->currentIndex()),
                     QString::number(cmbBirthMonth->currentIndex()),
                     cmbBirthYear->currentText(),
                     txtPerBirthTime->text(),
                     optPM->isChecked() ? QStringLiteral("PM") : QStringLiteral("AM"),
                     optMale->isChecked() ? QStringLiteral("1") : QStringLiteral("2")} +
         birth->Texts() + residence->Texts();
}

void frmManageUsers::SetForm(const QStringList &form) {
  constexpr int Own = 7;
  cmbPerson->setEditText(form.value(0));
  cmbBirthDay->setCurrentIndex(form.value(1).toInt());
  cmbBirthMonth->setCurrentIndex(form.value(2).toInt());
  cmbBirthYear->setEditText(form.value(3));
  txtPerBirthTime->setText(form.value(4));
  (form.value(5) == QLatin1String("PM") ? optPM : optAM)->setChecked(true);
  (form.value(6) == QLatin1String("1") ? optMale : optFemale)->setChecked(true);
  const qsizetype each = (form.size() - Own) / 2;
  birth->SetTexts(form.mid(Own, each));
  residence->SetTexts(form.mid(Own + each));
  ShowMoment();
  ShowResidence();
}

// --- while typing ---------------------------------------------------------------------------------

void frmManageUsers::TypedTime() {
  Say(*lblTimeFault, QString());
  (PersonFields::IsAfternoon(txtPerBirthTime->text()) ? optPM : optAM)->setChecked(true);
  ShowMoment();
}

void frmManageUsers::ChoseHalf(bool afternoon) {
  txtPerBirthTime->setText(PersonFields::InHalfOfDay(txtPerBirthTime->text(), afternoon));
  ShowMoment();
}

void frmManageUsers::ShowMoment() {
  const auto time = PersonFields::ReadTime(txtPerBirthTime->text());
  birth->SetMoment(BirthDate(), time ? QTime(time->hour, time->minutes) : QTime());
}

// A residence that was never entered is a point in the Gulf of Guinea, and a day calculated there is nobody's day.
void frmManageUsers::ShowResidence() {
  const bool isNowhere = residence->IsNowhere();
  SetRole(*lblResidence, isNowhere ? "warn" : "caption");
  lblResidence->setText(isNowhere ? tr("No place is entered: once saved, the day is calculated for 000:00 by Greenwich time.")
                                  : tr("The day is calculated for this place and its clock."));
}

// The sex of a saved person stays; and a name that is somebody else's must not be overwritten unawares.
void frmManageUsers::ShowName() {
  const QString name = cmbPerson->currentText().trimmed();
  const bool isChosen = !chosen.isEmpty() && PersonStore::IsSameName(name, chosen);
  bool isStored = isChosen;
  if (!isChosen && !name.isEmpty()) Guard(*this, [&] { isStored = store.Has(name); });
  SetRole(*lblNameNote, "warn");
  Say(*lblNameNote, isStored && !isChosen ? tr("This name is in the list already: saving changes that person.") : QString());
  for (QRadioButton *option : {optMale, optFemale}) {
    option->setEnabled(!isStored);
    option->setToolTip(isStored ? tr("The sex of a saved person stays as it was first saved.") : tr("Choose the sex of the person."));
  }
}

// --- files ----------------------------------------------------------------------------------------

void frmManageUsers::ExportTo(const QString &path) {
  Guard(*this, [&] {
    const std::vector<PersonRecord> all = store.All();
    WriteWholeFile(path, PersonsFile::Write(all, PersonsFile::FormatOf(path)));
    bar->Tell(tr("%n persons are written to %1.", nullptr, static_cast<int>(all.size())).arg(QFileInfo(path).fileName()));
  });
}

void frmManageUsers::ImportFrom(const QString &path) {
  Guard(*this, [&] {
    const PersonsFile::Contents contents = PersonsFile::Read(ReadWholeFile(path), PersonsFile::FormatOf(path));
    const PersonStore::Removed before = store.Snapshot();
    const PersonStore::Tally tally = store.SaveAll(contents.persons);
    const QStringList form = Form();
    const bool wasUnsaved = HasUnsaved();
    FillPersons();
    if (!wasUnsaved) {
      if (const auto stored = store.Find(chosen))
        ShowPerson(*stored);
      else if (names->rowCount() > 0)
        ChooseRow(0);
    }
    QString sentence = tr("New persons: %1. Changed persons: %2.").arg(tally.added).arg(tally.changed);
    if (!contents.faults.isEmpty()) sentence += tr(" Rows left out: %1.").arg(contents.faults.size());
    const QVariantList imported = PersonStore::NamesOf(contents.persons);
    bar->Offer(sentence, tr("&Undo"), [this, before, form, imported] {
      store.GoBackTo(before, imported);
      FillPersons();
      if (const auto back = store.Find(chosen))
        ShowPerson(*back);
      else
        SetForm(form);
    });
    QStringList shown = contents.faults + contents.doubts;
    if (shown.isEmpty()) return;
    if (const auto more = shown.size() - MostFaultsShown; more > 0) shown = shown.mid(0, MostFaultsShown) << tr("and %1 more.").arg(more);
    const QString title = contents.faults.isEmpty() ? tr("Rows to check") : tr("Rows left out");
    Notices::Show({Notice::Kind::Information, title, shown.join(u'\n')});
  });
}

// --- closing --------------------------------------------------------------------------------------

void frmManageUsers::done(int result) {
  if (HasUnsaved() && !warnedOfLoss) {
    warnedOfLoss = true;
    bar->Offer(tr("The changes to this person are not saved. Closing again leaves them."), tr("Save"), [this] { Save(); });
    return;
  }
  warnedOfLoss = false;
  const QString name = cmbPerson->currentText();
  QDialog::done(result);
  emit Closed(name);
}
