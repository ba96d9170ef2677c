// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <vector>

inline QString OutputOf(const QString &program, const QStringList &arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
  return QString::fromUtf8(process.readAllStandardOutput());
}

// A word of a PDF as another program reads it: page from 1, place in points.
struct PdfWord {
  int page = 0;
  QRectF place;
  QString text;
};

inline std::vector<PdfWord> WordsOf(const QString &file) {
  static const QRegularExpression mark(
      QStringLiteral("<page|<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">([^<]*)</word>"));
  std::vector<PdfWord> words;
  int page = 0;
  for (auto matches = mark.globalMatch(OutputOf(QStringLiteral("pdftotext"), {"-bbox", file, "-"})); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    if (match.captured(5).isEmpty()) {
      ++page;
      continue;
    }
    const auto number = [&match](int group) { return match.captured(group).toDouble(); };
    QString text = match.captured(5);
    for (const auto &[code, sign] : {std::pair("&quot;", "\""), {"&apos;", "'"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&amp;", "&"}})
      text.replace(QLatin1String(code), QLatin1String(sign));
    words.push_back({page, QRectF(QPointF(number(1), number(2)), QPointF(number(3), number(4))), text});
  }
  return words;
}
