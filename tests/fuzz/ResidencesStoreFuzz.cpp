// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Daily.dat, the residences: shown by orvani-daily, then saved to together with the births.
#include "fuzz/Fuzz.h"
#include "fuzz/FuzzFolder.h"
#include "fuzz/Stores.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  TryUserStore("COMMON/Daily.dat", content, [&](const std::shared_ptr<Database> &) {
    const FuzzFolder &folder = FuzzFolder::Only();
    folder.RunDaily(content);
    SaveOnePerson(Database::OpenDatabase(folder.File("COMMON/RECOS.Dat")), folder.File("COMMON/Daily.dat"));
  });
  return 0;
}
