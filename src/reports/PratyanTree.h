// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <vector>

class clsPlanets;

// One period of the Vimshottari tree with its sub-periods.
struct PratyanPeriod {
  int lord = 0;   // planet index
  int level = 1;  // 1 Mahadasha, 2 Antardasha, 3 Pratyantara
  QString name;   // the lord's full name
  QDateTime begin, end;
  bool running = false;
  std::vector<PratyanPeriod> parts;
};

// The navigator's label on the report's dasha page. Twips; `left` counts from the left margin.
struct PratyanLabel {
  QString caption;
  double left = 0;
  double top = 0;
  bool bold = false;
};

// The Vimshottari periods of a birth from Mahadasha to Pratyantara, with those marked that run at a moment.
class PratyanTree {
 public:
  // Forms the tree. A period runs from the moment after its begin to its end.
  void FindPratyantara(const clsPlanets &birthChart, const QDateTime &moment);

  const std::vector<PratyanPeriod> &Periods() const { return periods; }

  // The nine Mahadashas with their Antardashas, in three columns of three.
  std::vector<PratyanLabel> Labels() const;

  // "23 Jul 1980", the month by the language's name.
  QString DateText(const QDateTime &date) const;

 private:
  std::vector<PratyanPeriod> periods;
  std::vector<QString> months;  // 1 to 12, short
};
