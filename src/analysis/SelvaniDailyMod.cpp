// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/SelvaniDailyMod.h"

#include <QCoreApplication>
#include <QLocale>

#include "platform/Errors.h"

namespace {

QString tr(const char *text) { return QCoreApplication::translate("SelvaniDailyMod", text); }

BirthRecord ReadBirth(const Recordset &row) {
  const auto whole = [&](const char *column) { return row.Field(QLatin1String(column)).toInt(); };
  BirthRecord record;
  record.Name = row.Field(QStringLiteral("Name")).toString();
  record.Day = whole("Day");
  record.Month = whole("Month");
  record.Year = whole("Year");
  record.Hour = whole("Hour");
  record.Minutes = whole("Minutes");
  record.AMPM = whole("AMPM");
  record.Sex = whole("Sex");
  record.place = ReadPlaceRecord(row);
  return record;
}

void SetPlace(clsPerson &person, const PlaceRecord &place, const QString &decimalGmtDiff) {
  person.SetCountry(place.Country);
  person.SetGMTDIFF(decimalGmtDiff);
  person.SetLatDeg(place.LatDeg);
  person.SetLatMT(place.LatMT);
  person.SetLongDeg(place.LongDeg);
  person.SetLongMT(place.LongMT);
  person.SetTextNS(place.TextNS);
  person.SetTextEW(place.TextEW);
}

}  // namespace

SelvaniDailyMod::SelvaniDailyMod(UserSettings &userSettings, Stores openStores, std::function<void(const QString &)> rememberPerson)
    : settings(userSettings),
      stores(std::move(openStores)),
      remember(std::move(rememberPerson)),
      dashas([this]() -> const clsPlanets & { return BirthChart(); }, [this] { return TodayChart().clsPerson().GetBirthDate(); }) {}

const clsPlanets &SelvaniDailyMod::BirthChart() const {
  if (!birthChart) throw UsageError(tr("No person is loaded yet. Choose a person first."));
  return *birthChart;
}

const clsPlanets &SelvaniDailyMod::TodayChart() const {
  if (!dailySession) throw UsageError(tr("No moment is analysed yet. Choose a person and a date first."));
  return dailySession->TodayChart;
}

bool SelvaniDailyMod::LoadPerson(const QString &name) {
  const bool isFound = LoadBirth(name);
  if (isFound && remember) remember(BirthChart().clsPerson().Name());
  return isFound;
}

bool SelvaniDailyMod::ReloadPerson() { return LoadBirth(BirthChart().clsPerson().Name()); }

bool SelvaniDailyMod::LoadBirth(const QString &name) {
  if (!stores.personDb) return false;
  Recordset found = stores.personDb->OpenRecordset(QStringLiteral("SELECT * FROM PERSON WHERE Name = ?"), {name.trimmed()});
  if (found.RecordCount() == 0) return false;
  found.MoveFirst();
  const BirthRecord record = ReadBirth(found);
  try {
    CheckBirth(record);
    SetBirthPerson(record);
  } catch (const ConversionError &error) {
    throw ConversionError(tr("The birth of '%1' cannot be calculated. %2").arg(record.Name.trimmed(), error.Sentence()));
  }
  return true;
}

bool SelvaniDailyMod::LoadLastPerson(const QString &lastPerson) {
  if (!lastPerson.isEmpty() && LoadPerson(lastPerson)) return true;
  if (!stores.personDb) return false;
  const Recordset first = stores.personDb->OpenRecordset(QStringLiteral("SELECT Name FROM PERSON ORDER BY Name LIMIT 1"));
  return !first.IsEmpty() && LoadPerson(first.Field(QStringLiteral("Name")).toString());
}

void SelvaniDailyMod::SetBirthPerson(const BirthRecord &record) {
  // The former chart stays until the new one is calculated: a record that cannot be read changes nothing.
  auto chart = std::make_unique<clsPlanets>(settings);
  chart->setTextDB(stores.words, stores.personDb);
  clsPerson &person = chart->clsPerson();
  person.SetName(record.Name);
  person.SetDay(record.Day);
  person.SetMonth(record.Month);
  person.SetYear(record.Year);
  person.SetHour(record.Hour);
  person.SetMinutes(record.Minutes);
  person.SetAMPM(record.AMPM);
  person.SetPLOB(record.place.City);
  person.SetSex(record.Sex);
  SetPlace(person, record.place, DecimalGmtDiff(record.place.GMTDIFF));
  person.SetTimeCorr(record.TimeCorr);
  chart->Calculate();
  dashas.Forget();
  birthChart = std::move(chart);
}

std::optional<PlaceRecord> SelvaniDailyMod::StoredResidence(const QString &name) const {
  if (!stores.dailyDb) return std::nullopt;
  Recordset found = stores.dailyDb->OpenRecordset(QStringLiteral("SELECT * FROM PERSON WHERE NAME = ?"), {name});
  if (found.RecordCount() == 0) return std::nullopt;
  found.MoveFirst();
  PlaceRecord place = ReadPlaceRecord(found);
  try {
    CheckPlace(place);
  } catch (const ConversionError &error) {
    throw StoreError(tr("The residence of '%1' cannot be used. %2").arg(name, error.Sentence()));
  }
  return place;
}

QDateTime SelvaniDailyMod::BuildAnalysis(const QDateTime &moment) {
  return BuildAnalysisAt(residenceByHand ? residenceByHand : StoredResidence(BirthChart().clsPerson().Name()), moment);
}

QDateTime SelvaniDailyMod::BuildAnalysisAt(std::optional<PlaceRecord> residence, const QDateTime &moment) {
  const clsPerson &birth = BirthChart().clsPerson();
  auto session = std::make_unique<clsSelvaniDaily>(settings);
  session->TodayChart.setTextDB(stores.words, stores.personDb);
  clsPerson &person = session->TodayChart.clsPerson();
  person.SetName(birth.Name());
  person.SetBirthDate(moment);
  person.SetSex(birth.Sex());
  if (residence) {
    person.SetPLOB(residence->City);
    SetPlace(person, *residence, DecimalGmtDiff(residence->GMTDIFF));
  } else {
    person.SetPLOB(birth.PLOB());
    SetPlace(
        person,
        {birth.PLOB(), birth.Country(), {}, birth.LatDeg(), birth.LatMT(), birth.TextNS(), birth.LongDeg(), birth.LongMT(), birth.TextEW()},
        birth.GMTDIFF());
  }
  session->TodayChart.Calculate();
  dailySession = std::move(session);
  analysisMoment = moment;
  analysisResidence = std::move(residence);
  lblNowInfo = QStringLiteral("Today : %1 %2:%3 ")
                   .arg(QLocale::c().toString(moment.date(), QStringLiteral("dddd, MMMM dd, yyyy")), QString::number(moment.time().hour()),
                        QString::number(moment.time().minute()));
  return moment;
}

void SelvaniDailyMod::ChangeLanguage(std::shared_ptr<TextDb> words) {
  stores.words = std::move(words);
  if (birthChart) birthChart->setTextDB(stores.words, stores.personDb);
  if (dailySession) BuildAnalysisAt(analysisResidence, analysisMoment);
}

PersonHeader SelvaniDailyMod::ShowPersonHeader() const {
  const clsPerson &birth = BirthChart().clsPerson();
  const clsPerson &now = TodayChart().clsPerson();
  return {birth.Name(),
          QStringLiteral("Birth: ") + QLocale::c().toString(birth.GetBirthDate(), QStringLiteral(" dddd, MMMM, dd, yyyy (hh:mm AP)")),
          QStringLiteral("Residence: %1, %2 ").arg(now.PLOB(), now.Country())};
}

QString SelvaniDailyMod::CurrentDashaText() {
  const QStringList lords = dashas.CalcCurrentDasha(BirthChart()).split(QLatin1Char(':'), Qt::SkipEmptyParts);
  QStringList names;
  for (const QString &lord : lords) names << TodayChart().PlanetName(lord.toInt());
  return names.join(QLatin1Char('-'));
}

OverviewPage SelvaniDailyMod::FillMainPage() { return FillOverview(BirthChart(), TodayChart(), CurrentDashaText()); }
