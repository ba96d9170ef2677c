// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>
#include <memory>
#include <vector>

#include "dasha/clsDashas.h"
#include "engine/clsPlanets.h"

// A text server that answers each key with "table|head|category", so that a figure names the word it asks for.
class EchoTextDb : public TextDb {
 public:
  TextRow Find(const QString &table, const QString &head, const QString &category) override;
};

// One birth of a cases file with the charts made from it. Each is made on first use and then kept.
class Case {
 public:
  Case(int caseNumber, const QMap<QString, QString> &fieldsByName);

  int Number() const { return number; }
  bool HasPerson() const { return fields.contains(QStringLiteral("person.Name")); }

  clsPerson RawPerson() const;
  std::unique_ptr<clsPlanets> NewChart();                           // with the case's settings and words, and no person
  std::unique_ptr<clsPlanets> NewCopy();                            // filled by CopySettingTo, not calculated
  std::unique_ptr<clsPlanets> NewChartOf(const clsPerson &person);  // calculated

  clsPlanets &Chart();         // the case's chart, calculated; without a person an empty chart
  clsPlanets &Copy();          // calculated
  clsPlanets &Recalculated();  // the chart's own record, calculated by a second chart object
  clsPlanets &Stale();         // every cache read, then every longitude moved on by 47.3
  clsPlanets &Refilled();      // the same after a second FillVargaTable
  clsPlanets &Back(int days);  // a copy, moved days earlier and calculated

 private:
  int number;
  QMap<QString, QString> fields;
  MemoryUserSettings settings;
  std::shared_ptr<TextDb> words = std::make_shared<EchoTextDb>();
  std::unique_ptr<clsPlanets> chart, copy, recalculated, stale, refilled;
  QMap<int, std::shared_ptr<clsPlanets>> back;
};

// Reads a cases file: case<TAB>person.Field or settings.Key<TAB>value. The case -1, which has no person, always comes first.
std::vector<std::unique_ptr<Case>> ReadCases(const QString &path);
