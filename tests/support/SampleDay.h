// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include "analysis/SelvaniDailyMod.h"
#include "content/Languages.h"
#include "platform/AppPaths.h"
#include "platform/Notices.h"

// The day of the built stores' sample person, or of one given by hand. Nothing is written, and nothing may be left to tell at the end:
// a word that is missing is a notice.
struct SampleDay {
  explicit SampleDay(const QDateTime &moment, const std::optional<BirthRecord> &birth = {}) {
    if (birth)
      session.SetBirthPerson(*birth);
    else
      EXPECT_TRUE(session.LoadLastPerson({}));
    session.BuildAnalysis(moment);
  }
  ~SampleDay() {
    for (const Notice &notice : notices.Seen()) ADD_FAILURE() << notice.text.toStdString();
  }

  NoticeRecorder notices;
  AppPaths paths{QStringLiteral(ORVANI_EPHE "/..")};
  MemoryUserSettings settings;
  SelvaniDailyMod session{
      settings,
      {OpenLanguageDb(paths, QStringLiteral("ENGLISH")), Database::OpenDatabase(paths.RecosPath(), Database::Mode::ReadOnly),
       Database::OpenDatabase(paths.DailyPath(), Database::Mode::ReadOnly)}};
};
