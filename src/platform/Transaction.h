// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

class Database;

// All changes between its making and Commit stand together or not at all, over attached stores too.
class Transaction {
 public:
  // Takes the write lock at once, so that a store locked by another program is found before anything is changed.
  // Throws StoreError when the lock cannot be had, or when a transaction is already open on this database.
  explicit Transaction(Database &store);
  // Undoes everything unless Commit has succeeded.
  ~Transaction();
  Transaction(const Transaction &) = delete;
  Transaction &operator=(const Transaction &) = delete;

  // Throws StoreError when the changes could not be written; they are then undone on destruction.
  void Commit();

 private:
  Database &database;
  bool open = true;
};
