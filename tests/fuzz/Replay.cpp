// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Tries every file of the folders on the line: first inputs, and those that once were findings.
#include <QDirIterator>

#include "fuzz/Fuzz.h"
#include "fuzz/FuzzFolder.h"

int main(int argc, char **argv) {
  LLVMFuzzerInitialize(&argc, &argv);
  std::freopen("/dev/null", "w", stdout);
  int tried = 0;
  for (int at = 1; at < argc; ++at) {
    QDirIterator inputs(QString::fromLocal8Bit(argv[at]), QDir::Files);
    while (inputs.hasNext()) {
      const QString path = inputs.next();
      std::fprintf(stderr, "%s\n", qPrintable(path));
      const QByteArray content = FuzzFolder::Read(path);
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(content.constData()), static_cast<std::size_t>(content.size()));
      ++tried;
    }
  }
  Require(tried > 0, "there are inputs");
  return 0;
}
