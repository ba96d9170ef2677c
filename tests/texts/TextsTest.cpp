// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The texts of the built language file: that none is missing, and that a reader finds no slip in them.
#include <gtest/gtest.h>

#include <QFile>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

#include "content/Languages.h"
#include "content/PredictionKeys.h"
#include "engine/clsPlanets.h"
#include "panchang/DailyYogas.h"
#include "platform/AppPaths.h"
#include "platform/Database.h"
#include "platform/Recordset.h"

namespace {

struct Text {
  QString place;  // table, category and head, to name it in a failure
  QString table, category, val;
  bool isParagraph = false;
};

QStringList WordsOf(const QString &text) { return text.split(' ', Qt::SkipEmptyParts); }

// The tables that hold paragraphs and nothing else, and the categories of Daily that hold short words.
const QSet<QString> ParagraphTables{"Daily", "Transits", "MarMatch", "Muhu", "Bhava", "Nakshatra", "FORTUNE", "ASP", "YOGAS", "VPHALA"};
const QSet<QString> ShortCategories{"Gen", "Yoganame"};

class Texts : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    const AppPaths paths(QStringLiteral(ORVANI_EPHE "/.."));
    words = OpenLanguageDb(paths, QStringLiteral("ENGLISH"));
    ASSERT_NE(words, nullptr);
    const auto store = Database::OpenDatabase(QStringLiteral(ORVANI_EPHE "/ENGLISH/ENGLISH.DAT"), Database::Mode::ReadOnly);
    QStringList tables = ParagraphTables.values();
    tables << "CNVT"
           << "YOGNAME";
    for (const QString &table : tables) {
      Recordset rows = store->OpenRecordset("SELECT Head, Category, Val FROM " + table);
      ASSERT_FALSE(rows.IsEmpty()) << table.toStdString();
      for (; !rows.AtEnd(); rows.MoveNext()) {
        Text text{{}, table, rows.Field("Category").toString(), rows.Field("Val").toString(), false};
        text.place = table + ' ' + text.category + ' ' + rows.Field("Head").toString();
        text.isParagraph = ParagraphTables.contains(table) && !ShortCategories.contains(text.category);
        all.push_back(text);
      }
    }
  }
  static void TearDownTestSuite() {
    words.reset();
    all.clear();
  }

  static void Asks(const QString &table, const QString &head, const QString &category = {}) {
    const TextRow row = words->Find(table, head, category);
    EXPECT_TRUE(row.found && !row.val.trimmed().isEmpty()) << (table + ' ' + category + ' ' + head).toStdString();
  }
  static void Asks(const PredictionKeys::Key &key) { Asks(key.kind == 12 ? "Transits" : "Daily", key.head, key.category); }

  static std::shared_ptr<TextDb> words;
  static std::vector<Text> all;
};

std::shared_ptr<TextDb> Texts::words;
std::vector<Text> Texts::all;

// Sentences with the signs between them dropped, in small letters.
QStringList SentencesOf(const QString &text) {
  static const QRegularExpression end(QStringLiteral("[.?!][\"')]*\\s+"));
  static const QRegularExpression signs(QStringLiteral("[^a-z0-9 ]"));
  QStringList sentences;
  for (const QString &sentence : text.toLower().split(end, Qt::SkipEmptyParts)) sentences << QString(sentence).remove(signs).simplified();
  return sentences;
}

std::vector<QString> FaultsOf(const QString &text) {
  static const std::pair<QRegularExpression, const char *> patterns[] = {
      {QRegularExpression("\\b(\\w+)\\s+\\1\\b", QRegularExpression::CaseInsensitiveOption), "a word stands twice"},
      {QRegularExpression("\\s[,.;:?!)]|\\(\\s"), "a blank stands on the wrong side of a sign"},
      {QRegularExpression("[,;:][^\\s\\d\"')]|[.?!][A-Za-z]"), "a blank is missing after a sign"},
      {QRegularExpression("[,;:.?!]{2,}|\\s{2,}|--"), "signs or blanks in a row"},
      {QRegularExpression("^[^A-Z\"0-9%]"), "the first letter is small"},
      {QRegularExpression("[^.?!\"')]$"), "the last sentence has no end"},
      {QRegularExpression("[.?!]['\")]* [a-z]"), "a sentence begins with a small letter"},
  };
  std::vector<QString> faults;
  for (const auto &[pattern, fault] : patterns)
    if (const auto match = pattern.match(text); match.hasMatch())
      faults.push_back(QStringLiteral("%1: '%2'").arg(QLatin1String(fault), text.mid(match.capturedStart() - 8, 30)));
  if (text.count('"') % 2 != 0) faults.push_back("a quotation is left open");
  if (text.count('(') != text.count(')')) faults.push_back("a bracket is left open");
  for (const QChar sign : text)
    if (sign.unicode() > 126 && (!sign.isLetter() || sign == QChar::ReplacementCharacter))
      faults.push_back(QStringLiteral("U+%1 is not a plain sign").arg(sign.unicode(), 4, 16, QLatin1Char('0')));
  return faults;
}

}  // namespace

TEST_F(Texts, AnswerEveryDay) {
  QStringList signNames;
  for (int sign = 0; sign <= 13; ++sign) signNames << words->Find("CNVT", QString::number(sign), "SunSignEngNum").val;
  for (int weekday = 1; weekday <= 7; ++weekday) {
    Asks(PredictionKeys::WeekdayKey(weekday));
    for (int element = 1; element <= 4; ++element) Asks(PredictionKeys::JourneyKey(weekday, element));
    for (const QString &sign : signNames) Asks(PredictionKeys::FinanceKey(weekday, sign));
  }
  for (const QString &birthSign : signNames)
    for (const QString &todaySign : signNames) Asks(PredictionKeys::RashifalaKey(birthSign, todaySign));
  for (int tithi = 1; tithi <= 30; ++tithi) Asks(PredictionKeys::TithiKey(tithi));
  for (int nakshatra = 1; nakshatra <= 28; ++nakshatra) Asks(PredictionKeys::NakshatraKey(nakshatra));
  for (int yoga = 1; yoga <= 27; ++yoga) Asks(*PredictionKeys::SuryaYogaKey(yoga));
  for (int sign = 1; sign <= 13; ++sign) Asks(PredictionKeys::MoonTransitKey(1, sign));
  for (const DailyYogas::Yoga &yoga : DailyYogas::All()) {
    Asks("Daily", yoga.head, "Yoganame");
    Asks("Daily", yoga.head, "MuhuYoga");
  }
  for (const char *title : {"ChartList",    "PredictionList",   "Credits",     "BirthKundali",  "SunriseKundali",    "TransitKundali",
                            "BirthPlanets", "TodayPlanets",     "Panchang",    "Journey",       "VimshottariDasha",  "TrishulChakra",
                            "Chowgadiya",   "HoraChart",        "Rashifala",   "MoonTransits",  "FinancialAnalysis", "EvilMuhurthas",
                            "YogaResults",  "SuryaYogaResults", "TithiResult", "WeekdayResult", "NakshatraResult",   "TodayOverview"})
    Asks("Daily", title, "Gen");
}

// The families that no page asks for have whole sets too.
TEST_F(Texts, HoldWholeFamilies) {
  const auto asksNumbers = [](const char *table, int last, const char *category = "") {
    for (int number = 1; number <= last; ++number) Asks(table, QString::number(number), category);
  };
  asksNumbers("MarMatch", 9);
  asksNumbers("Bhava", 12);
  asksNumbers("Nakshatra", 27);
  asksNumbers("VPHALA", 9);
  asksNumbers("FORTUNE", 4, "PAYA");
  for (int one = 1; one <= 9; ++one)
    for (int other = one + 1; other <= 9; ++other) Asks("ASP", QStringLiteral("%1-%2").arg(one).arg(other));
  for (int planet = 1; planet <= 9; ++planet)
    for (int house = 1; house <= 12; ++house) Asks("Transits", clsPlanets::PlanetNameEng(planet) + QString::number(house));
  for (const char *part : {"Udveg", "Chara", "Laabh", "Amrit", "Kaal", "Shubh", "Rog"}) Asks("Muhu", part, "Chowgadiya");
  for (const Text &text : all)
    if (text.table == "YOGAS" || text.table == "YOGNAME") Asks(text.table == "YOGAS" ? "YOGNAME" : "YOGAS", text.place.section(' ', 2));
}

TEST_F(Texts, AreParagraphsOfOneMeasure) {
  int paragraphs = 0;
  for (const Text &text : all) {
    if (!text.isParagraph) continue;
    ++paragraphs;
    const qsizetype count = WordsOf(text.val).size();
    EXPECT_TRUE(count >= 40 && count <= 90) << text.place.toStdString() << ": " << count << " words";
  }
  EXPECT_GT(paragraphs, 500);
}

TEST_F(Texts, NeverRepeatASentence) {
  QHash<QString, QString> seen;
  for (const Text &text : all) {
    if (!text.isParagraph && WordsOf(text.val).size() < 10) continue;
    for (const QString &sentence : SentencesOf(text.val)) {
      if (const auto first = seen.constFind(sentence); first != seen.constEnd())
        ADD_FAILURE() << text.place.toStdString() << " and " << first->toStdString() << ": " << sentence.toStdString();
      seen.insert(sentence, text.place);
    }
  }
}

TEST_F(Texts, AreCleanlySet) {
  for (const Text &text : all) {
    if (!text.isParagraph && WordsOf(text.val).size() < 10) continue;
    for (const QString &fault : FaultsOf(text.val)) ADD_FAILURE() << text.place.toStdString() << ": " << fault.toStdString();
  }
}

// American spelling and the words of data/spelling/accepted-words.txt, which are British or the domain's own.
TEST_F(Texts, AreSpelledRight) {
  QFile list(QStringLiteral(ORVANI_DATA_SOURCES "/spelling/accepted-words.txt"));
  ASSERT_TRUE(list.open(QIODevice::ReadOnly));
  QSet<QString> accepted;
  for (const QString &line : QString::fromUtf8(list.readAll()).split('\n', Qt::SkipEmptyParts))
    if (!line.startsWith("# ")) accepted.insert(line.trimmed());

  static const QRegularExpression word(QStringLiteral("\\p{L}+(?:'\\p{L}+)*"));
  QHash<QString, QString> asked;
  for (const Text &text : all) {
    if (!text.isParagraph && WordsOf(text.val).size() < 2) continue;  // single names are spelled as they are
    for (auto match = word.globalMatch(text.val); match.hasNext();) {
      QString found = match.next().captured();
      if (found.endsWith("'s")) found.chop(2);
      if (!accepted.contains(found) && !accepted.contains(found.toLower())) asked.insert(found, text.place);
    }
  }
  QProcess speller;
  speller.start("hunspell", {"-d", "en_US", "-i", "utf-8", "-l"});
  ASSERT_TRUE(speller.waitForStarted()) << "hunspell and its American dictionary are needed";
  speller.write(asked.keys().join('\n').toUtf8() + '\n');
  speller.closeWriteChannel();
  ASSERT_TRUE(speller.waitForFinished(60000));
  ASSERT_EQ(speller.exitCode(), 0) << speller.readAllStandardError().constData();
  for (const QString &wrong : QString::fromUtf8(speller.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts))
    ADD_FAILURE() << asked.value(wrong).toStdString() << ": " << wrong.toStdString();
}
