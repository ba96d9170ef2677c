// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// GENDAT.INI, which people also write by hand: whatever it holds, the day is shown, and a write changes one line and no other or
// sets a damaged file aside whole.
#include <QFile>

#include "fuzz/Fuzz.h"
#include "fuzz/FuzzFolder.h"
#include "platform/clsIni.h"

namespace {

constexpr const char *Keys[] = {"SelLang", "LastPerson", "DispName", "DispAdd"};
const QString Missing = QStringLiteral("\x01 no value");

QStringList Values(const clsIni &ini) {
  QStringList values;
  for (const char *key : Keys) values << ini.GetIniString(QLatin1String(key), Missing);
  for (const char *number : {"1", "2", "3"}) values << ini.GetIniString(QLatin1String(number), Missing, QStringLiteral("Messages"));
  for (const QString &value : values) Require(value.size() <= clsIni::LongestValue, "no value is too long");
  return values;
}

// The lines without the marks of their ends.
QByteArrayList Lines(const QByteArray &content) {
  QByteArrayList lines = content.split('\n');
  for (QByteArray &line : lines)
    if (line.endsWith('\r')) line.chop(1);
  if (lines.last().isEmpty()) lines.removeLast();
  return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  FuzzFolder &folder = FuzzFolder::Only();
  folder.Begin("INIFILES/GENDAT.INI", content);
  const clsIni ini(folder.Paths());
  const QStringList before = Values(ini);

  DailyOptions options;
  Require(folder.RunDaily(options) == 0, "the day is shown whatever the file holds");

  const QString written = QStringLiteral("Meera \u0928");
  ini.WriteIniString(QStringLiteral("LastPerson"), written);
  QStringList after = Values(ini);
  Require(after[1] == written, "what is written reads back");
  after[1] = before[1];
  Require(after == before, "a write changes no other value");

  const QString aside = folder.File("INIFILES/GENDAT.INI.damaged");
  if (QFile::exists(aside)) {
    Require(FuzzFolder::Read(aside) == content, "a file that is set aside keeps its content");
    return 0;
  }
  const QByteArrayList former = Lines(content), now = Lines(FuzzFolder::Read(folder.File("INIFILES/GENDAT.INI")));
  qsizetype same = 0;
  for (const QByteArray &line : now)
    if (same < former.size() && former[same] == line) ++same;
  // Where the key was there its line is another; where it was not, lines are added alone.
  Require(before[1] == Missing ? same == former.size() : now.size() == former.size(), "the other lines stay");
  return 0;
}
