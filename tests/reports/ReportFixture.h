// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include "analysis/SelvaniDailyMod.h"
#include "platform/Notices.h"
#include "platform/Recordset.h"
#include "reports/DailyReport.h"
#include "support/DataFolder.h"

// The sample person on a day of its own, with the built data and pictures.
class ReportFixture : public testing::Test {
 protected:
  ReportFixture()
      : words(OpenLanguageDb(data.Paths(), QStringLiteral("ENGLISH"))),
        session(settings, {words, Database::OpenDatabase(data.Paths().RecosPath()), Database::OpenDatabase(data.Paths().DailyPath())}) {
    session.LoadLastPerson(QString());
    session.BuildAnalysis(QDateTime(QDate(2026, 11, 21), QTime(8, 40), Qt::UTC));
  }
  ~ReportFixture() override {
    for (const Notice &notice : notices.Seen()) ADD_FAILURE() << notice.text.toStdString();
  }

  clsDailyPrinter::Setup Setup() const {
    return {*FindLanguage(data.Paths(), QStringLiteral("English")), data.Paths().Ephe(QStringLiteral("COMMON")), Address};
  }
  DailyReport Report() { return {session, data.Paths(), Setup().language, Address}; }

  const QString Address = QStringLiteral("https://orvani.example");
  DataFolder data;
  MemoryUserSettings settings;
  NoticeRecorder notices;
  std::shared_ptr<TextDb> words;
  SelvaniDailyMod session;
};
