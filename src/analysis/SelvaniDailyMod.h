// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "analysis/BirthRecord.h"
#include "analysis/OverviewPage.h"
#include "analysis/clsSelvaniDaily.h"
#include "dasha/clsDashas.h"

// The three lines above every page.
struct PersonHeader {
  QString lblPersonName, lblBDate, lblNowIn;
};

// The session: whose day is shown and which moment. It holds the two charts that every page is drawn from, the
// chosen person's birth chart and the chart of the analysis moment at the place of residence.
class SelvaniDailyMod {
 public:
  struct Stores {
    std::shared_ptr<TextDb> words;       // the language's texts
    std::shared_ptr<Database> personDb;  // births; may be empty for a person given by hand
    std::shared_ptr<Database> dailyDb;   // residences; may be empty
  };

  // rememberPerson is told the name of each person that is loaded from the store.
  SelvaniDailyMod(UserSettings &userSettings, Stores openStores, std::function<void(const QString &)> rememberPerson = {});

  // Loads the first person of this name (blanks around it do not count). Gives false, and changes nothing, where
  // there is none. Throws StoreError, and ConversionError for a record that cannot be read.
  bool LoadPerson(const QString &name);
  // The person shown, as the store has it by now; false, and no change, where it is gone. Throws as LoadPerson does.
  bool ReloadPerson();
  // The person last shown, else the first by name; false for an empty store.
  bool LoadLastPerson(const QString &lastPerson);
  void SetBirthPerson(const BirthRecord &record);

  // A residence given by hand takes the place of the stored one for every later analysis.
  void SetResidence(std::optional<PlaceRecord> place) { residenceByHand = std::move(place); }

  // Makes the chart of the moment (seconds are dropped) at the person's residence, or at the birth place where no
  // residence is stored, and returns the moment. Throws UsageError before a person is loaded.
  QDateTime BuildAnalysis(const QDateTime &moment);
  // The same at the birth place, whatever residence is stored.
  QDateTime BuildAnalysisAtBirthPlace(const QDateTime &moment) { return BuildAnalysisAt(std::nullopt, moment); }

  // Another language: the birth chart keeps the names that it has fetched, the analysis chart is built anew.
  void ChangeLanguage(std::shared_ptr<TextDb> words);

  bool HasPerson() const { return birthChart != nullptr; }
  bool HasAnalysis() const { return dailySession != nullptr; }
  const clsPlanets &BirthChart() const;
  const clsPlanets &TodayChart() const;
  clsDashas &DashaCalc() { return dashas; }
  const Stores &OpenStores() const { return stores; }
  UserSettings &Settings() const { return settings; }
  const QDateTime &AnalysisMoment() const { return analysisMoment; }

  PersonHeader ShowPersonHeader() const;
  const QString &NowInfo() const { return lblNowInfo; }  // "Today : Saturday, November 21, 2026 8:40 "
  OverviewPage FillMainPage();
  QString CurrentDashaText();  // the running lords' short names joined by "-"

 private:
  bool LoadBirth(const QString &name);
  QDateTime BuildAnalysisAt(std::optional<PlaceRecord> residence, const QDateTime &moment);
  std::optional<PlaceRecord> StoredResidence(const QString &name) const;

  UserSettings &settings;
  Stores stores;
  std::function<void(const QString &)> remember;
  std::optional<PlaceRecord> residenceByHand;
  std::unique_ptr<clsPlanets> birthChart;
  std::unique_ptr<clsSelvaniDaily> dailySession;
  QDateTime analysisMoment;
  std::optional<PlaceRecord> analysisResidence;
  clsDashas dashas;
  QString lblNowInfo;
};
