// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QFile>
#include <QTemporaryDir>

#include "Numbered.h"
#include "persons/PersonStore.h"

#include <gtest/gtest.h>
#include <ostream>

// Values in the messages of failures.
inline void PrintTo(const QString &text, std::ostream *out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const PlaceRecord &place, std::ostream *out) {
  *out << QStringList{place.City, place.Country, place.GMTDIFF}.join(u' ').toStdString() << ' ' << place.LatDeg << ':' << place.LatMT << ' '
       << place.LongDeg << ':' << place.LongMT;
}
inline std::ostream &operator<<(std::ostream &out, const QString &text) { return out << '"' << text.toStdString() << '"'; }

// Both stores, copied from the built data folder, in a folder of their own.
class PersonFiles : public testing::Test {
 public:
  PersonFiles() {
    for (const char *name : {"RECOS.Dat", "Daily.dat", "PLACES.DAT"}) {
      QFile::copy(QStringLiteral(ORVANI_EPHE "/COMMON/") + QLatin1String(name), At(name));
      QFile::setPermissions(At(name), QFile::ReadOwner | QFile::WriteOwner);
    }
  }

  QString At(const char *name) const { return folder.filePath(QLatin1String(name)); }
  std::shared_ptr<Database> OpenPersons() const { return Database::OpenDatabase(At("RECOS.Dat")); }

 private:
  QTemporaryDir folder;
};
