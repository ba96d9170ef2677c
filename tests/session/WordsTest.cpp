// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The language's words: every key that a rule can form is there, and a key that is not is told in its own words.
#include <gtest/gtest.h>

#include <QFile>

#include "content/Languages.h"
#include "engine/clsPlanets.h"
#include "platform/Errors.h"
#include "platform/Notices.h"
#include "support/DataFolder.h"

TEST(Words, HoldEveryKeyThatARuleCanForm) {
  const AppPaths paths(QStringLiteral(ORVANI_EPHE "/.."));
  const auto words = OpenLanguageDb(paths, QStringLiteral("ENGLISH"));
  ASSERT_NE(words, nullptr);
  QFile keys(QStringLiteral(ORVANI_DATA_SOURCES "/keys/cnvt-keys.txt"));
  ASSERT_TRUE(keys.open(QIODevice::ReadOnly));
  int asked = 0;
  for (const QString &line : QString::fromUtf8(keys.readAll()).split('\n', Qt::SkipEmptyParts)) {
    if (line.startsWith('#')) continue;
    const QStringList columns = line.split('\t');
    ASSERT_EQ(columns.size(), 2) << line.toStdString();
    const TextRow row = words->Find("CNVT", columns[1], columns[0]);
    EXPECT_TRUE(row.found && !row.val.trimmed().isEmpty()) << line.toStdString();
    ++asked;
  }
  EXPECT_GT(asked, 400);
  // The short planet names are English in every language.
  for (int planet = 0; planet <= 12; ++planet)
    EXPECT_EQ(words->Find("CNVT", QString::number(planet), "PLNTABB").val, clsPlanets::PlanetNameEng(planet));
  // The dasha balances are worked out with the table's years.
  for (int position = 1; position <= 9; ++position)
    EXPECT_EQ(words->Find("CNVT", QString::number(position), "LysY1").val.toInt(),
              clsPlanets::GetVimSotPeriods(clsPlanets::GetVimSotPlanetLord(position)));
}

namespace {

// Nothing is there but one row without a text in each table.
class BareTextDb : public TextDb {
 public:
  TextRow Find(const QString &table, const QString &head, const QString &) override {
    if (table == broken) throw StoreError(QStringLiteral("broken"));
    return head == "null" ? TextRow{true, true, {}} : TextRow{};
  }
  QString broken;
};

}  // namespace

TEST(Words, TellWhatWasNotFound) {
  const char *const expected[] = {"Item Not Found 'key' in  'cat'", "Item Not Found 'key' in  '",     "Item Not Found 'key'",
                                  "Item Not Found 'key' in  ''",    "Item Not Found 'key' in  ''",    "Item Not Found 'key' in  'cat'",
                                  "Item Not Found 'key'",           "Item Not Found 'key' in  'cat'", "Item Not Found 'key' in  'cat'",
                                  "Item Not Found 'key' in  'cat'", "Item Not Found 'key' in  'cat'", "Item Not Found 'key' in  ''"};
  MemoryUserSettings settings;
  clsPlanets chart(settings);
  const auto words = std::make_shared<BareTextDb>();
  chart.setTextDB(words, nullptr);
  NoticeRecorder notices;
  for (int kind = 1; kind <= 12; ++kind) {
    notices.Clear();
    EXPECT_EQ(chart.GetHeadValue(kind, QStringLiteral("key"), "cat"), "");
    ASSERT_EQ(notices.Seen().size(), 1u) << kind;
    EXPECT_EQ(notices.Seen()[0].text, expected[kind - 1]) << kind;
    EXPECT_EQ(notices.Seen()[0].title, "");
    // A row without a text: empty for some tables, a fault for those that hand the field on.
    notices.Clear();
    if (kind == 1 || kind == 4 || kind == 11 || kind == 12)
      EXPECT_EQ(chart.GetHeadValue(kind, QStringLiteral("null"), "cat"), "") << kind;
    else
      EXPECT_THROW(chart.GetHeadValue(kind, QStringLiteral("null"), "cat"), StoreError) << kind;
    EXPECT_TRUE(notices.Seen().empty()) << kind;
  }
  EXPECT_EQ(chart.GetHeadValue(13, QStringLiteral("key"), "cat"), "");
  EXPECT_TRUE(notices.Seen().empty());
  // A failing store never stops the daily paragraphs, and always the others.
  words->broken = "Daily";
  EXPECT_EQ(chart.GetDailyText("key", "cat"), "");
  words->broken = "CNVT";
  EXPECT_THROW(chart.GetTextBetween("CNVT", "key", "cat"), StoreError);
  // Another short planet name than the English one means a damaged language file; the program goes on.
  words->broken.clear();
  notices.Clear();
  chart.PlanetName(1);
  EXPECT_EQ(notices.Seen().back().title, "Invalid Data File");
  EXPECT_EQ(notices.Seen().back().text, "Invalid Data File. Please Re-install. Program will Terminate");
}

TEST(Words, AreRememberedByTheChartThatAsked) {
  class Tongue : public TextDb {
   public:
    explicit Tongue(QString name) : tongue(std::move(name)) {}
    TextRow Find(const QString &, const QString &head, const QString &) override { return {true, false, tongue + head}; }

   private:
    QString tongue;
  };
  MemoryUserSettings settings;
  clsPlanets chart(settings);
  chart.setTextDB(std::make_shared<Tongue>("a"), nullptr);
  double second = 2;
  EXPECT_EQ(chart.ConvertRashi(3), "a3");
  EXPECT_EQ(chart.GetNakshatraName(second), "a2");
  chart.setTextDB(std::make_shared<Tongue>("b"), nullptr);
  EXPECT_EQ(chart.ConvertRashi(3), "a3");
  EXPECT_EQ(chart.ConvertRashi(4), "b4");
  EXPECT_EQ(chart.GetNakshatraName(second), "a2");
  EXPECT_EQ(chart.NakNamePlanet(0), "b1") << "this one asks each time";
}
