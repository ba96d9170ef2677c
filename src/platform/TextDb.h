// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "platform/Database.h"

#include <QCoreApplication>
#include <QString>

#include <memory>

// The answer to one text lookup.
struct TextRow {
  bool found = false;   // a row with that key exists
  bool isNull = false;  // it exists and holds no text
  QString val;
};

// A server of texts by table, head and category: the words of one language.
class TextDb {
 public:
  virtual ~TextDb() = default;

  // The first row under that key; all three compare without regard to case. An empty category means that the head alone decides.
  // Throws StoreError for a table that language data does not have, and when the store fails.
  virtual TextRow Find(const QString &table, const QString &head, const QString &category) = 0;
};

// Texts from a language's data file. Keeps one prepared query for each table and form of key, since a page asks for hundreds,
// and one read transaction while it lives: the database is for this object alone, and other programs renew the file by renaming.
class StoreTextDb : public TextDb {
  Q_DECLARE_TR_FUNCTIONS(StoreTextDb)

 public:
  // Throws StoreError when the file lacks one of the tables.
  explicit StoreTextDb(std::shared_ptr<Database> languageDb);
  ~StoreTextDb() override;
  StoreTextDb(const StoreTextDb &) = delete;
  StoreTextDb &operator=(const StoreTextDb &) = delete;

  TextRow Find(const QString &table, const QString &head, const QString &category) override;

  const QString &Path() const { return database->Path(); }

 private:
  struct Queries;

  std::shared_ptr<Database> database;
  std::unique_ptr<Queries> queries;
};
