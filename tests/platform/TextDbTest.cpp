// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "StoreFixture.h"

#include "platform/TextDb.h"

namespace {

class TextDbTest : public StoreFixture {
 public:
  QString MakeTexts(const QStringList &missing = {}) const {
    QStringList statements;
    for (const QString table :
         {"CNVT", "Daily", "Transits", "MarMatch", "Muhu", "Bhava", "Nakshatra", "FORTUNE", "ASP", "YOGAS", "YOGNAME", "VPHALA"}) {
      if (!missing.contains(table)) {
        statements << QString("CREATE TABLE %1 (Head TEXT COLLATE NOCASE, Category TEXT COLLATE NOCASE, Val TEXT)").arg(table)
                   << QString("CREATE INDEX ix%1 ON %1 (Head, Category)").arg(table);
      }
    }
    statements << "INSERT INTO CNVT VALUES ('1', 'Rashi', 'Aries'), ('1', 'Gana', 'Deva'), ('Nak', 'Gen', 'Nakshatra'), ('x', 'Gen', "
                  "NULL), ('y', '', '')";
    return Make(At("ENGLISH.DAT"), statements);
  }
};

TEST_F(TextDbTest, LooksUpByTableHeadAndCategoryWithoutRegardToCase) {
  StoreTextDb texts(Database::OpenDatabase(MakeTexts(), Database::Mode::ReadOnly));
  const std::tuple<const char *, const char *, const char *, bool, bool, const char *> cases[] = {
      {"CNVT", "1", "Gana", true, false, "Deva"},
      {"cnvt", "1", "RASHI", true, false, "Aries"},
      {"CNVT", "1", "", true, false, "Aries"},  // the first row in the order of the texts, not of the categories
      {"cnvt", "nAK", "GEN", true, false, "Nakshatra"},
      {"CNVT", "Nak", "Rashi", false, false, ""},
      {"CNVT", "x", "Gen", true, true, ""},
      {"CNVT", "y", "", true, false, ""},
      {"Daily", "1", "", false, false, ""},
      {"CNVT", "O'Brien", "it's", false, false, ""},
  };
  for (const auto &[table, head, category, found, isNull, val] : cases) {
    const TextRow row = texts.Find(table, head, category);
    EXPECT_EQ(row.found, found) << table << ' ' << head << ' ' << category;
    EXPECT_EQ(row.isNull, isNull) << head;
    EXPECT_EQ(row.val, val) << head;
  }
  EXPECT_THROW(texts.Find("sqlite_master", "1", ""), StoreError);
  EXPECT_FALSE(texts.Find("CNVT", QString(), "Gen").found);
}

TEST_F(TextDbTest, LanguageDataWithoutOneOfItsTablesIsRefusedAtOnce) {
  EXPECT_THROW(StoreTextDb(Database::OpenDatabase(MakeTexts({"YOGNAME"}))), StoreError);
}

}  // namespace
