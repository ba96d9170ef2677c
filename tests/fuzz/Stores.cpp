// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "fuzz/Stores.h"

#include <QFile>
#include <algorithm>

#include "fuzz/Fuzz.h"
#include "fuzz/FuzzFolder.h"
#include "persons/PersonStore.h"
#include "platform/StoreKeeper.h"

namespace {

// Gives nothing for a store that was refused.
std::shared_ptr<Database> Opened(const QString &path, const QByteArray &content) {
  try {
    return StoreKeeper::OpenUserStore(path, StoreKeeper::Doubt::Accept);
  } catch (const StoreError &error) {
    Require(!error.Sentence().isEmpty(), "the fault has a sentence");
    Require(FuzzFolder::Read(path) == content, "a store that is refused is left as it is");
    if (error.Reason() != StoreError::Kind::Damaged && error.Reason() != StoreError::Kind::Foreign) return nullptr;
  }
  const QString aside = StoreKeeper::RestoreCopy(path);
  Require(FuzzFolder::Read(aside) == content, "a store that is moved aside keeps its content");
  StoreKeeper::OpenUserStore(path);
  return nullptr;
}

}  // namespace

void TryUserStore(const char *relative, const QByteArray &content, const std::function<void(std::shared_ptr<Database>)> &use) {
  FuzzFolder &folder = FuzzFolder::Only();
  folder.Begin(relative, content);
  const QString path = folder.File(relative);
  QFile kept(StoreKeeper::KeptPath(path));
  Require(kept.open(QIODevice::WriteOnly) && kept.write(folder.Sound(relative)) > 0, "a copy can be kept");
  kept.close();
  const std::shared_ptr<Database> store = Opened(path, content);
  if (!store) return;
  try {
    use(store);
  } catch (const Error &error) {
    Require(!error.Sentence().isEmpty(), "the fault has a sentence");
  }
}

void SaveOnePerson(const std::shared_ptr<Database> &persons, const QString &dailyPath) {
  PersonStore store(persons, dailyPath);
  const std::vector<PersonRecord> before = store.All();
  Require(store.Names().size() == static_cast<qsizetype>(before.size()), "the list shows each person");
  if (before.empty()) return;
  PersonRecord changed = store.At(0).value();
  changed.seconds = changed.seconds == 7 ? 8 : 7;
  store.Save(changed);
  const std::vector<PersonRecord> after = store.All();
  Require(after.size() == before.size() || after.size() == before.size() + 1, "nobody is lost by saving");
  const auto stayed = std::count_if(before.begin(), before.end(),
                                    [&](const PersonRecord &one) { return std::find(after.begin(), after.end(), one) != after.end(); });
  Require(stayed + 2 >= static_cast<qsizetype>(before.size()), "saving one person leaves the others");
}
