// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Telling lines of figures that were worked out independently of this program.
#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <cmath>

#include "figures/Members.h"
#include "platform/Notices.h"

TEST(Figures, AgreeWithTheIndependentOnes) {
  const auto former = Notices::Install([](const Notice &) {});  // the echo of keys is no proper language
  QMap<int, std::shared_ptr<Members>> members;
  const auto cases = ReadCases(QStringLiteral(AUTHORITIES "/cases.tsv"));
  for (const auto &one : cases) members[one->Number()] = std::make_shared<Members>(*one);

  QFile file(QStringLiteral(AUTHORITIES "/figures.tsv"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  int lines = 0;
  for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
    const QStringList columns = line.split(QLatin1Char('\t'));
    ASSERT_EQ(columns.size(), 3) << line.toStdString();
    const QString answer = members[columns[0].toInt()]->Answer(columns[1]);
    bool isNumber = false, wantsNumber = false;
    const double got = answer.toDouble(&isNumber), want = columns[2].toDouble(&wantsNumber);
    const bool agrees = answer == columns[2] || (isNumber && wantsNumber && std::abs(got - want) <= 1e-6);
    EXPECT_TRUE(agrees) << line.toStdString() << " is answered by " << answer.toStdString();
    ++lines;
  }
  EXPECT_GT(lines, 500);
  Notices::Install(former);
}
