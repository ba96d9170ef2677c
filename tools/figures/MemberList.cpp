// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "figures/MemberList.h"

#include <QFile>

#include "figures/Case.h"
#include "platform/Errors.h"

namespace {

QStringList Choices(const QString &inside) {
  const qsizetype dots = inside.indexOf(QLatin1String(".."));
  if (dots < 0) return inside.split(QLatin1Char('|'));
  QStringList numbers;
  for (int number = inside.left(dots).toInt(); number <= inside.mid(dots + 2).toInt(); ++number) numbers << QString::number(number);
  return numbers;
}

void Expand(const QString &line, QStringList &out) {
  const qsizetype open = line.lastIndexOf(QLatin1Char('{'));
  if (open < 0) {
    out << line;
    return;
  }
  const qsizetype close = line.indexOf(QLatin1Char('}'), open);
  for (const QString &choice : Choices(line.mid(open + 1, close - open - 1))) Expand(line.left(open) + choice + line.mid(close + 1), out);
}

}  // namespace

QStringList MemberList::For(const Case &one) const {
  if (!one.HasPerson()) return tables;
  return one.Number() == 0 ? first + charts : charts;
}

MemberList ReadMemberList(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw MissingFileError(QStringLiteral("The list of members '%1' cannot be read.").arg(path));
  MemberList list;
  QStringList *section = nullptr;
  for (const QString &raw : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
    const QString line = raw.trimmed();
    if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) continue;
    if (line == QLatin1String("[tables]"))
      section = &list.tables;
    else if (line == QLatin1String("[first]"))
      section = &list.first;
    else if (line == QLatin1String("[charts]"))
      section = &list.charts;
    else if (section)
      Expand(line, *section);
    else
      throw ConversionError(QStringLiteral("'%1' stands before the first section of '%2'.").arg(line, path));
  }
  return list;
}
