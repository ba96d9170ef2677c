// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/Languages.h"

#include "platform/DataFiles.h"
#include "platform/Notices.h"
#include "platform/Recordset.h"

namespace {

LanguageRow ReadRow(const Recordset &row) {
  const auto text = [&](const char *field) { return row.Field(QLatin1String(field)).toString(); };
  const auto whole = [&](const char *field) { return row.Field(QLatin1String(field)).toInt(); };
  LanguageRow language;
  language.Name = text("Name");
  language.Directory = text("Directory");
  language.Include = whole("Include") != 0;
  language.HeaderSize = whole("HeaderSize");
  language.NormalSize = whole("NormalSize");
  language.SubHeadSize = whole("SubHeadSize");
  language.KundliSize = whole("KundliSize");
  language.EngSize = whole("EngSize");
  language.SmallSize = whole("SmallSize");
  language.TextSize = whole("TextSize");
  language.TextHeadSize = whole("TextHeadSize");
  language.HeadBold = whole("HeadBold") != 0;
  language.SubHeadBold = whole("SubHeadBold") != 0;
  return language;
}

std::vector<LanguageRow> AllLanguages(const AppPaths &paths) {
  const auto database = Database::OpenDatabase(paths.LangsPath(), Database::Mode::ReadOnly);
  Recordset rows = database->OpenRecordset(QStringLiteral("SELECT * FROM Language ORDER BY Name"));
  std::vector<LanguageRow> languages;
  for (; !rows.AtEnd(); rows.MoveNext()) languages.push_back(ReadRow(rows));
  return languages;
}

}  // namespace

std::vector<LanguageRow> OfferedLanguages(const AppPaths &paths) {
  std::vector<LanguageRow> languages = AllLanguages(paths);
  std::erase_if(languages, [](const LanguageRow &language) { return !language.Include || language.Name != QLatin1String("English"); });
  return languages;
}

// Compared as read and not by the store: a name of strange bytes reads as other letters than it is stored in.
std::optional<LanguageRow> FindLanguage(const AppPaths &paths, const QString &name) {
  for (LanguageRow &language : AllLanguages(paths))
    if (language.Name.compare(name, Qt::CaseInsensitive) == 0) return std::move(language);
  return std::nullopt;
}

std::shared_ptr<TextDb> OpenLanguageDb(const AppPaths &paths, const QString &langDirectory) {
  if (!DataFiles::LanguageFileExists(paths, langDirectory)) {
    Notices::Show({Notice::Kind::Warning, QStringLiteral("File Not Found"),
                   QStringLiteral("Could Not Locate Data File For This Language.\r\nPlease Re-install Software.")});
    return nullptr;
  }
  return std::make_shared<StoreTextDb>(Database::OpenDatabase(paths.LanguageDataPath(langDirectory), Database::Mode::ReadOnly));
}
