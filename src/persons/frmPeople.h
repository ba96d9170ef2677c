// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QStringList>

#include "content/DropDown.h"

class Database;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QSortFilterProxyModel;
class QStringListModel;

// The list from which the person of the session is chosen. Typing narrows it to the names that hold the typed text.
class frmPeople : public DropDown {
  Q_OBJECT

 public:
  explicit frmPeople(QWidget *parent = nullptr);

  // All persons by name. Throws StoreError.
  void Fill(const Database &personDb);
  void SetNames(const QStringList &names);
  // The person who is marked when the list opens.
  void SetCurrent(const QString &name);

 signals:
  void Chosen(const QString &name);
  void ManagePersons();

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void showEvent(QShowEvent *event) override;

 private:
  void Narrow(const QString &typed);
  void MarkRow(int row);
  void Choose();
  void ShowCount();

  QStringListModel *model;
  QSortFilterProxyModel *shown;
  QString current;
  QLineEdit *txtFind;
  QLabel *lblCount;
  QLabel *lblNone;
  QListView *lvwPeople;
  QPushButton *cmdManage;
};
