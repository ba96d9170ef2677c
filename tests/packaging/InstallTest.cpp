// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// An installed copy: whole, of one version, and running from its own folder; and man pages that know every option.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <memory>

#include "platform/FileTools.h"

namespace {

struct Answer {
  int code = -1;
  QString out, err;
};

Answer Start(const QString &program, const QStringList &arguments, const QMap<QString, QString> &variables = {}) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (auto variable = variables.begin(); variable != variables.end(); ++variable) environment.insert(variable.key(), variable.value());
  process.setProcessEnvironment(environment);
  process.start(program, arguments);
  process.waitForFinished(60000);
  return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

QString First(const QString &text, const char *pattern) {
  return QRegularExpression(QLatin1String(pattern), QRegularExpression::MultilineOption).match(text).captured(1);
}

QSet<QString> All(const QString &text, const char *pattern) {
  QSet<QString> found;
  QRegularExpressionMatchIterator matches =
      QRegularExpression(QLatin1String(pattern), QRegularExpression::MultilineOption).globalMatch(text);
  while (matches.hasNext()) found << matches.next().captured(1);
  return found;
}

std::string Listed(const QSet<QString> &names) {
  QStringList sorted(names.begin(), names.end());
  sorted.sort();
  return sorted.join(' ').toStdString();
}

class InstalledCopy : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    // Beside the build: a folder for temporary files may forbid to start programs.
    prefix = std::make_unique<QTemporaryDir>(QStringLiteral(ORVANI_BUILD "/installed-XXXXXX"));
    installed = Start(ORVANI_CMAKE, {"--install", ORVANI_BUILD, "--prefix", prefix->path(), "--component", "system"});
  }
  static void TearDownTestSuite() { prefix.reset(); }

  void SetUp() override { ASSERT_EQ(installed.code, 0) << installed.err.toStdString(); }

  static QString At(const QString &relative) { return prefix->filePath(relative); }
  static QString Text(const QString &relative) { return QString::fromUtf8(ReadWholeFile(At(relative))); }
  static QString Unpacked(const QString &relative) { return Start("gzip", {"-dc", At(relative)}).out; }

  // A user without anything: an own home, and no folder of this machine that may hold another copy.
  Answer Call(const QString &program, const QStringList &arguments) const {
    return Start(At("bin/" + program), arguments,
                 {{"HOME", home.path()},
                  {"XDG_DATA_HOME", ""},
                  {"XDG_CONFIG_HOME", ""},
                  {"XDG_DATA_DIRS", home.path()},
                  {"QT_QPA_PLATFORM", ""},
                  {"DISPLAY", ""},
                  {"WAYLAND_DISPLAY", ""}});
  }

  static QMap<QString, qint64> Files(const QString &folder) {
    QMap<QString, qint64> files;
    QDirIterator each(folder, QDir::Files, QDirIterator::Subdirectories);
    while (each.hasNext()) {
      const QString path = each.next();
      files[QDir(folder).relativeFilePath(path)] = each.fileInfo().size();
    }
    return files;
  }

  QTemporaryDir home;
  inline static std::unique_ptr<QTemporaryDir> prefix;
  inline static Answer installed;
};

}  // namespace

// A desktop follows names from file to file: each must lead somewhere.
TEST_F(InstalledCopy, HoldsWhatADesktopLooksFor) {
  const QString entry = Text("share/applications/orvani.desktop");
  EXPECT_TRUE(QFileInfo(At("bin/" + First(entry, "^Exec=(\\S+)"))).isExecutable());
  const QString icon = First(entry, "^Icon=(\\S+)");
  EXPECT_TRUE(QFileInfo::exists(At("share/icons/hicolor/scalable/apps/" + icon + ".svg")));
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
    const QImage picture(At(QStringLiteral("share/icons/hicolor/%1x%1/apps/%2.png").arg(size).arg(icon)));
    ASSERT_EQ(picture.size(), QSize(size, size));
    EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0) << size << ": the corner outside the rounded square";
    EXPECT_EQ(qAlpha(picture.pixel(size / 2, size / 2)), 255) << size;
  }
  const QString metainfo = Text("share/metainfo/org.brivanta.orvani.metainfo.xml");
  EXPECT_TRUE(QFileInfo::exists(At("share/applications/" + First(metainfo, "<launchable type=\"desktop-id\">(.+)<"))));
  const QSet<QString> programs = All(metainfo, "<binary>(.+)</binary>");
  EXPECT_EQ(programs.size(), 2);
  for (const QString &program : programs) {
    EXPECT_TRUE(QFileInfo(At("bin/" + program)).isExecutable()) << program.toStdString();
    EXPECT_TRUE(Unpacked("share/man/man1/" + program + ".1.gz").startsWith(".\\\" SPDX")) << program.toStdString();
  }
  EXPECT_EQ(Files(At("share/orvani/EPHE")), Files(ORVANI_EPHE));
  const QString copyright = Text("share/doc/orvani/copyright");
  for (const char *part : {"GNU AFFERO GENERAL PUBLIC LICENSE", "GeoNames", "CC-BY-4.0", "\n .\n"})
    EXPECT_TRUE(copyright.contains(part)) << part;
}

TEST_F(InstalledCopy, IsOfTheVersionThatTheChangelogTells) {
  const QString changelog = QString::fromUtf8(ReadWholeFile(ORVANI_SOURCE "/CHANGELOG.md"));
  const QString version = First(changelog, "^## ([0-9.]+), "), day = First(changelog, "^## [0-9.]+, (\\S+)$");
  ASSERT_FALSE(version.isEmpty());
  EXPECT_EQ(Call("orvani", {"--version"}).out.toStdString(), "orvani " + version.toStdString() + '\n');
  EXPECT_TRUE(Call("orvani-daily", {"--version"}).out.startsWith("orvani-daily " + version + '\n'));
  EXPECT_EQ(First(Text("share/metainfo/org.brivanta.orvani.metainfo.xml"), "<release version=\"(.+)\">"), version + "\" date=\"" + day);
  EXPECT_EQ(First(Unpacked("share/doc/orvani/changelog.Debian.gz"), "^orvani \\((.+)-1\\) "), version);
  EXPECT_EQ(Unpacked("share/doc/orvani/changelog.gz"), changelog);
  EXPECT_TRUE(Text("share/orvani/EPHE/SEED").startsWith(version + ' ')) << "a release brings every user's texts up to date";
  for (const char *page : {"orvani", "orvani-daily"}) {
    const QString head = QStringLiteral(".TH %1 1 \"%2\" \"Orvani %3\"").arg(QString(page).toUpper(), day, version);
    EXPECT_TRUE(Unpacked(QStringLiteral("share/man/man1/%1.1.gz").arg(page)).contains(head)) << head.toStdString();
  }
}

TEST_F(InstalledCopy, RunsFromItsFolderAndFillsTheUsersOwn) {
  const QMap<QString, qint64> before = Files(prefix->path());
  const Answer day = Call("orvani-daily", {"--at", "2026-11-21 09:00"});
  EXPECT_EQ(day.code, 0) << day.err.toStdString();
  for (const char *part : {"Anvik Telvar", "Shukla Dvadashi", "9:16 AM-10:50 AM", "14:31:25"}) EXPECT_TRUE(day.out.contains(part)) << part;
  EXPECT_EQ(Files(home.filePath(".local/share/orvani/EPHE")), Files(ORVANI_EPHE));
  EXPECT_EQ(Files(prefix->path()), before);

  const Answer window = Call("orvani", {});
  EXPECT_EQ(window.code, 1);
  EXPECT_EQ(window.err, "orvani: there is no display here; orvani-daily prints the day in a terminal.\n");
}

TEST_F(InstalledCopy, HasManPagesThatKnowEveryOption) {
  for (const char *program : {"orvani", "orvani-daily"}) {
    const QString page = Unpacked(QStringLiteral("share/man/man1/%1.1.gz").arg(program)).replace("\\-", "-");
    const QSet<QString> options = All(Call(program, {"--help"}).out, "^ +(?:-\\w, )?(--[a-z-]+)");
    EXPECT_GE(options.size(), 5) << program;
    EXPECT_EQ(Listed(options - All(page, "^\\.TP\\n.*?(--[a-z-]+)")), "") << program << ": options without a paragraph";
    EXPECT_EQ(Listed(All(page, "(--[a-z-]+)") - options), "") << program << ": options that the program does not have";
  }
  const QString refusal = Call("orvani-daily", {"--pdf", home.filePath("day.pdf"), "--topics", "?"}).err;
  QString listed = First(refusal, "the topics are (.+)\\.$").remove(QRegularExpression(QStringLiteral(" \\(all of them: \\w+\\)")));
  const QStringList topics = listed.replace(", and ", ", ").split(", ");
  EXPECT_GE(topics.size(), 12) << refusal.toStdString();
  const QString page = Unpacked("share/man/man1/orvani-daily.1.gz");
  const QString paragraph = page.mid(page.indexOf(".BI \\-\\-topics")).section(".SS", 0, 0);
  EXPECT_EQ(Listed(All(paragraph, "^\\.BR (\\w+) [.,]$")), Listed(QSet<QString>(topics.begin(), topics.end())));
}

// The changelog is read by a machine: what it cannot read is named with its line.
TEST(Changelog, ThatCannotBeReadIsNamed) {
  const std::pair<const char *, const char *> cases[] = {
      {"# Changes\n\n## 1.0.0, soon\n", "CHANGELOG.md:3: '## 1.0.0, soon' tells no release"},
      {"# Changes\n\n## 1.0.0, 2026-02-30\n", "CHANGELOG.md:3: '## 1.0.0, 2026-02-30' tells no release"},
      {"# Changes\n\n## 1.0.0, 2026-11-21\n\n- One.\nTwo.\n", "CHANGELOG.md:6: 'Two.' is neither a change"},
      {"# Changes\n", "CHANGELOG.md: no release"}};
  for (const auto &[text, sentence] : cases) {
    const QTemporaryDir source, out;
    WriteWholeFile(source.filePath("CHANGELOG.md"), text);
    const Answer answer = Start(ORVANI_PYTHON, {ORVANI_SOURCE "/tools/makerelease.py", source.path(), out.path()});
    EXPECT_EQ(answer.code, 1);
    EXPECT_TRUE(answer.err.startsWith(sentence)) << answer.err.toStdString();
    EXPECT_TRUE(QDir(out.path()).isEmpty());
  }
}
