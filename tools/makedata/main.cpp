// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "DataTree.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 4) {
    std::fputs("usage: orvani-makedata SOURCE_DIR EPHE_DIR VERSION\n", stderr);
    return 1;
  }
  try {
    DataTree::Make(arguments[1], arguments[2], arguments[3]);
    return 0;
  } catch (const std::exception &fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
}
