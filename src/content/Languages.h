// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "platform/AppPaths.h"
#include "platform/Database.h"
#include "platform/TextDb.h"

// One language of the list of languages. The sizes are points; faces are the same for every language.
struct LanguageRow {
  QString Name, Directory;
  bool Include = false;  // its data file was there at the last start
  int HeaderSize = 0, NormalSize = 0, SubHeadSize = 0, KundliSize = 0, EngSize = 0, SmallSize = 0, TextSize = 0, TextHeadSize = 0;
  bool HeadBold = false, SubHeadBold = false;
};

// The languages that are offered: the one "English", whatever other rows the list holds. Throws StoreError.
std::vector<LanguageRow> OfferedLanguages(const AppPaths &paths);

// One language, whether it is offered or not; none for a name that is not in the list.
std::optional<LanguageRow> FindLanguage(const AppPaths &paths, const QString &name);

// Opens the text store of a language by its Directory. A missing one shows a warning and gives nothing: the caller
// keeps the language that it has. Throws StoreError for a store that cannot be read.
std::shared_ptr<TextDb> OpenLanguageDb(const AppPaths &paths, const QString &langDirectory);
