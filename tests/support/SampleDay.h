// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include "analysis/SelvaniDailyMod.h"
#include "content/Languages.h"
#include "platform/AppPaths.h"

// The day of the built stores' sample person, or of one given by hand. Nothing is written.
struct SampleDay {
  explicit SampleDay(const QDateTime &moment, const std::optional<BirthRecord> &birth = {}) {
    if (birth)
      session.SetBirthPerson(*birth);
    else
      EXPECT_TRUE(session.LoadLastPerson({}));
    session.BuildAnalysis(moment);
  }

  AppPaths paths{QStringLiteral(ORVANI_EPHE "/..")};
  MemoryUserSettings settings;
  SelvaniDailyMod session{
      settings,
      {OpenLanguageDb(paths, QStringLiteral("ENGLISH")), Database::OpenDatabase(paths.RecosPath(), Database::Mode::ReadOnly),
       Database::OpenDatabase(paths.DailyPath(), Database::Mode::ReadOnly)}};
};
