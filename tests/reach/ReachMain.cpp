// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The tests of reach, and with an option the report or the pictures.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QWidget>
#include <cstdio>

#include "reach/ReachScreens.h"
#include "reach/Walks.h"

namespace {

struct Column {
  const char *head;
  const char *scale;
  bool dark;
  QSize size;
  Findings (*walk)(QWidget &);
};
const Column Columns[] = {{"Names", "1", false, {1280, 800}, WalkNames},   {"Keys", "1", false, {1280, 800}, WalkKeys},
                          {"800 by 600", "1", false, {800, 600}, WalkFit}, {"150 %", "1.5", false, {800, 600}, WalkFit},
                          {"200 %", "2", false, {800, 600}, WalkFit},      {"Light", "1", false, {1280, 800}, WalkInk},
                          {"Dark", "1", true, {1280, 800}, WalkInk}};

// One column's lines: screen, number looked at, number of faults, faults.
int WriteColumn(const Column &column) {
  ReachScreens(column.dark, column.size).ForEach([&](const QString &name, QWidget &screen) {
    const Findings found = column.walk(screen);
    std::printf("%s\t%d\t%d\n", qUtf8Printable(name), found.seen, static_cast<int>(found.faults.size()));
    for (const QString &fault : found.faults)
      std::fprintf(stderr, "%s, %s: %s\n", column.head, qUtf8Printable(name), qUtf8Printable(fault));
  });
  return 0;
}

// Each column by a run of its own: the scale is that of a whole program.
int WriteReport(const QString &path) {
  QStringList order;
  QHash<QString, QStringList> cells;
  for (int i = 0; i < static_cast<int>(std::size(Columns)); ++i) {
    QProcess run;
    QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
    surroundings.insert(QStringLiteral("QT_SCALE_FACTOR"), QLatin1String(Columns[i].scale));
    run.setProcessEnvironment(surroundings);
    run.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    run.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--column"), QString::number(i)});
    if (!run.waitForFinished(300000) || run.exitCode() != 0) return 1;
    for (const QString &line : QString::fromUtf8(run.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
      const QStringList parts = line.split(QLatin1Char('\t'));
      if (parts.size() < 3) return 1;
      if (!cells.contains(parts[0])) order << parts[0];
      cells[parts[0]] << (parts[2] == QLatin1String("0") ? parts[1] : QStringLiteral("**%1 of %2**").arg(parts[2], parts[1]));
    }
  }
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return 1;
  QString text = QStringLiteral(
      "# Reach\n\n"
      "What was looked at on every page and every dialog, and found good; a bold figure counts the faults among them. Written by\n"
      "`build/release/bin/reach_test --report docs/reach.md`; `./test` walks the same screens and fails on any fault.\n\n"
      "- **Names**: things in the tree that a screen reader is told: each has its name, its role and, where it is drawn, its words.\n"
      "- **Keys**: stops of Tab at 1280 by 800: all that can be used is reached, in the order of the eye, with a focus of 3:1 or more.\n"
      "- **800 by 600, 150 %, 200 %**: widgets in the smallest window: no text is cut, elided or covered, no picture is stretched.\n"
      "- **Light, Dark**: texts of 4.5:1 or more and pictures of 3:1 or more, measured on the drawn screen.\n\n| Screen |");
  QString rule = QStringLiteral("|---|");
  for (const Column &column : Columns) {
    text += QStringLiteral(" %1 |").arg(QLatin1String(column.head));
    rule += QStringLiteral("---:|");
  }
  text += QLatin1Char('\n') + rule + QLatin1Char('\n');
  for (const QString &name : order) text += QStringLiteral("| %1 | %2 |\n").arg(name, cells[name].join(QStringLiteral(" | ")));
  return file.write(text.toUtf8()) > 0 ? 0 : 1;
}

int WritePictures(const QString &folder, bool dark, const QSize &size) {
  QDir().mkpath(folder);
  ReachScreens(dark, size).ForEach([&](QString name, QWidget &screen) {
    name.replace(QLatin1Char(' '), QLatin1Char('-')).remove(QLatin1Char('\'')).remove(QLatin1Char(',')).remove(QLatin1Char(':'));
    screen.grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
  });
  return 0;
}

}  // namespace

int main(int argc, char **argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setCursorFlashTime(0);
  QCommandLineParser parser;
  const QCommandLineOption report(QStringLiteral("report"), QStringLiteral("Write the table of all walks."), QStringLiteral("FILE"));
  const QCommandLineOption column(QStringLiteral("column"), QStringLiteral("Print one column of the table."), QStringLiteral("INDEX"));
  const QCommandLineOption pictures(QStringLiteral("pictures"), QStringLiteral("Write a picture of every screen."), QStringLiteral("DIR"));
  const QCommandLineOption dark(QStringLiteral("dark"), QStringLiteral("Pictures as on a dark desktop."));
  const QCommandLineOption size(QStringLiteral("size"), QStringLiteral("Of the window in pictures."), QStringLiteral("WxH"),
                                QStringLiteral("1280x800"));
  parser.addOptions({report, column, pictures, dark, size});
  parser.addHelpOption();
  parser.process(application);
  if (parser.isSet(report)) return WriteReport(parser.value(report));
  if (parser.isSet(column))
    return WriteColumn(Columns[std::clamp(parser.value(column).toInt(), 0, static_cast<int>(std::size(Columns)) - 1)]);
  if (parser.isSet(pictures)) {
    const QStringList sides = parser.value(size).split(QLatin1Char('x'));
    return WritePictures(parser.value(pictures), parser.isSet(dark), QSize(sides.first().toInt(), sides.last().toInt()));
  }
  return RUN_ALL_TESTS();
}
