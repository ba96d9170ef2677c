// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDialog>

#include "reports/PratyanTree.h"

class QTreeWidget;
class QTreeWidgetItem;

// The Vimshottari periods of the birth as a tree with their dates, down to the Pratyantara. What runs at the moment of the
// analysis is marked, open and in view.
class frmPratyan : public QDialog {
  Q_OBJECT

 public:
  explicit frmPratyan(QWidget *parent = nullptr);

  void FindPratyantara(const clsPlanets &birthChart, const QDateTime &moment);

  const PratyanTree &Tree() const { return tree; }

 private:
  void Add(QTreeWidgetItem *parent, const PratyanPeriod &period);

  PratyanTree tree;
  QTreeWidget *tvwPratyan;
  QTreeWidgetItem *running = nullptr;
};
