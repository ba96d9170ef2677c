// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QHash>

#include "content/SetFonts.h"
#include "content/pages/PageView.h"

class Kundali;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;

// The overview of the day, page 18: both charts, the limbs of the panchang, sunrise to the running dasha.
class OverviewView : public PageView {
  Q_OBJECT

 public:
  explicit OverviewView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 protected:
  void resizeEvent(QResizeEvent *event) override;

 private:
  struct RowNames {
    const char *head, *value, *role;
    bool hasExactTwin = false;
  };

  QLabel *Label(const char *name, const char *role);
  // A link to the exact day in a row that has an exact twin; empty and hidden where the two agree.
  QPushButton *ExactLink(const char *value);
  void MakeExactLink(QPushButton &link);
  QWidget *FactorsHead();
  QWidget *FactsCard(QWidget *head, const QList<RowNames> &rows);

  bool IsNarrow() const;

  SetFonts fontsShown;
  bool narrowShown = false;
  QDateTime moment;
  QHBoxLayout *columns;
  QList<QGridLayout *> factGrids;
  QHash<QString, QLabel *> labels;
  QHash<QString, QPushButton *> exactLinks;  // by the value that they stand beside
  QPushButton *lblTodPanchang;
  QPushButton *exactHead;  // says that the times are exact, and leads to the exact day
  QLabel *chartInfo, *momentInfo;
  Kundali *kunBirth, *kunTransit;
};
