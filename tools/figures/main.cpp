// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Prints every member's answers for the births of a cases file, a line each: case, member, value. For checking the
// program's figures against independently worked ones: figures CASES [MEMBERS] | sort, then diff.
#include <QCoreApplication>
#include <cstdio>

#include "figures/MemberList.h"
#include "figures/Members.h"
#include "platform/Errors.h"
#include "platform/Notices.h"

int main(int argc, char **argv) {
  const QCoreApplication app(argc, argv);
  const QStringList arguments = app.arguments();
  if (arguments.size() < 2 || arguments.size() > 3) {
    std::fprintf(stderr, "figures: usage: figures CASES [MEMBERS], as in figures tests/authorities/cases.tsv\n");
    return 2;
  }
  // A word that is out of place in the echo of keys would fill the screen with notices.
  Notices::Install([](const Notice &) {});
  try {
    const MemberList list = ReadMemberList(arguments.value(2, QStringLiteral(FIGURES_MEMBERS)));
    for (const auto &one : ReadCases(arguments[1])) {
      Members members(*one);
      for (const QString &member : list.For(*one)) {
        const QString line = QStringLiteral("%1\t%2\t%3\n").arg(QString::number(one->Number()), member, members.Answer(member));
        std::fputs(line.toUtf8().constData(), stdout);
      }
    }
    return 0;
  } catch (const Error &error) {
    std::fprintf(stderr, "figures: %s\n", error.what());
    return 1;
  }
}
