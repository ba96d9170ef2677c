// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The options of orvani-daily, one a line: read, and where they are right, the day is shown by them.
#include "fuzz/Fuzz.h"
#include "fuzz/FuzzFolder.h"
#include "platform/Errors.h"
#include "reports/ReportTopics.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  const QStringList arguments = QStringLiteral("orvani-daily\n").append(QString::fromUtf8(content)).split(u'\n');
  FuzzFolder &folder = FuzzFolder::Only();
  DailyOptions options;
  try {
    options = DailyOptions::Parse(arguments);
    ReportTopics::FromKeys(options.topics);
  } catch (const UsageError &error) {
    Require(!error.Sentence().isEmpty() && !error.Sentence().contains(QLatin1String("\n\n")), "a wrong call is one sentence");
    return 0;
  }
  if (options.at) Require(options.at->isValid(), "the moment exists");
  if (options.month) Require(options.month->isValid(), "the month exists");
  // A report is drawn and needs more than the lines; its topics are read by now. A calendar goes where nothing else lies.
  options.pdfFile.clear();
  if (!options.icsFile.isEmpty()) options.icsFile = folder.File("COMMON/month.ics");
  const int code = folder.RunDaily(options);
  Require(code != 1, "no call makes sound data files wrong");
  return 0;
}
