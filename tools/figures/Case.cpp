// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "figures/Case.h"

#include <QFile>
#include <QRegularExpression>

#include "engine/Functions.h"
#include "platform/Errors.h"
#include "platform/Numbers.h"

TextRow EchoTextDb::Find(const QString &table, const QString &head, const QString &category) {
  // The years of the dasha lords must be numbers, since balances are worked out with them.
  static const QStringList years{"0", "7", "20", "6", "10", "7", "18", "16", "19", "17", "0"};
  if (category == QLatin1String("LysY1")) return {true, false, years.value(head.toInt())};
  // A key made of another word shows that word's number alone.
  static const QRegularExpression sign(QStringLiteral("CNVT\\|(-?\\d+)\\|SunSignEngNum"));
  QString shown = head;
  shown.replace(sign, QStringLiteral("[\\1]"));
  return {true, false, table + QLatin1Char('|') + shown + QLatin1Char('|') + category};
}

Case::Case(int caseNumber, const QMap<QString, QString> &fieldsByName) : number(caseNumber), fields(fieldsByName) {
  for (const SettingKey &key : {SettingKeys::AyanType, SettingKeys::RahuKetuMode, SettingKeys::CustAyan, SettingKeys::UpagrahaMode,
                                SettingKeys::CalcMangMod, SettingKeys::CalcVarMod}) {
    const QString name = QStringLiteral("settings.") + QLatin1String(key.key);
    if (fields.contains(name)) settings.SetValue(key, fields.value(name));
  }
}

clsPerson Case::RawPerson() const {
  clsPerson person;
  const auto text = [this](const char *field) { return fields.value(QStringLiteral("person.") + QLatin1String(field)); };
  const auto whole = [&](const char *field) { return text(field).toInt(); };
  person.SetName(text("Name"));
  person.SetSex(whole("Sex"));
  person.SetDay(whole("Day"));
  person.SetMonth(whole("Month"));
  person.SetYear(whole("Year"));
  person.SetHour(whole("Hour"));
  person.SetMinutes(whole("Minutes"));
  person.Setseconds(whole("seconds"));
  person.SetAMPM(whole("AMPM"));
  person.SetCountry(text("Country"));
  person.SetLatDeg(whole("LatDeg"));
  person.SetLatMT(whole("LatMT"));
  person.SetTextNS(text("TextNS"));
  person.SetLongDeg(whole("LongDeg"));
  person.SetLongMT(whole("LongMT"));
  person.SetTextEW(text("TextEW"));
  person.SetPLOB(text("PLOB"));
  person.SetGMTDIFF(text("GMTDIFF"));
  person.SetTimeCorr(text("TimeCorr"));
  person.SetTimeCorrInde(whole("TimeCorrInde"));
  return person;
}

std::unique_ptr<clsPlanets> Case::NewChart() {
  auto made = std::make_unique<clsPlanets>(settings);
  made->setTextDB(words, nullptr);
  return made;
}

std::unique_ptr<clsPlanets> Case::NewCopy() {
  auto made = NewChart();
  Chart().CopySettingTo(*made);
  return made;
}

std::unique_ptr<clsPlanets> Case::NewChartOf(const clsPerson &person) {
  auto made = NewChart();
  made->SetclsPerson(std::make_shared<clsPerson>(person));
  made->Calculate();
  return made;
}

clsPlanets &Case::Chart() {
  if (!chart) chart = HasPerson() ? NewChartOf(RawPerson()) : NewChart();
  return *chart;
}

clsPlanets &Case::Copy() {
  if (!copy) {
    copy = NewCopy();
    copy->Calculate();
  }
  return *copy;
}

clsPlanets &Case::Recalculated() {
  if (!recalculated) recalculated = NewChartOf(Chart().clsPerson());
  return *recalculated;
}

clsPlanets &Case::Stale() {
  if (!stale) {
    stale = NewChartOf(RawPerson());
    for (int index = 0; index <= 13; ++index) stale->Sign(index);
    for (int index = 0; index <= 26; ++index) stale->KrishAmsha(index);
    for (int index = 0; index <= 26; ++index) stale->SetPlanetLongi(index, Functions::NormDeg360(stale->PlanetLongi(index) + 47.3));
  }
  return *stale;
}

clsPlanets &Case::Refilled() {
  if (!refilled) {
    refilled = NewChartOf(RawPerson());
    for (int index = 0; index <= 26; ++index) refilled->SetPlanetLongi(index, Functions::NormDeg360(refilled->PlanetLongi(index) + 47.3));
    refilled->FillVargaTable();
  }
  return *refilled;
}

clsPlanets &Case::Back(int days) {
  std::shared_ptr<clsPlanets> &made = back[days];
  if (!made) {
    made = NewCopy();
    made->clsPerson().AddDays(-days);
    made->Calculate();
  }
  return *made;
}

std::vector<std::unique_ptr<Case>> ReadCases(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw MissingFileError(QStringLiteral("The cases file '%1' cannot be read.").arg(path));
  QMap<int, QMap<QString, QString>> byNumber;
  byNumber[-1];
  const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  for (const QString &line : lines) {
    const QStringList columns = line.split(QLatin1Char('\t'));
    if (columns.size() < 3) throw ConversionError(QStringLiteral("'%1' is not a line of a cases file.").arg(line));
    byNumber[TextToWhole(columns[0], QStringLiteral("case"))][columns[1]] = columns[2];
  }
  std::vector<std::unique_ptr<Case>> cases;
  for (auto it = byNumber.cbegin(); it != byNumber.cend(); ++it) cases.push_back(std::make_unique<Case>(it.key(), it.value()));
  return cases;
}
