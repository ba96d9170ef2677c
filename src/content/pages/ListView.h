// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <vector>

#include "content/pages/PageView.h"

class PageTile;
class QGridLayout;

// A list of pages as tiles: picture, title and a line on what the page is good for.
class ListView : public PageView {
  Q_OBJECT

 public:
  struct Entry {
    int index = 0;          // the number that Chosen tells, and that ends the tile's object name
    int page = 0;           // gives picture and helping line
    QString titleKey = {};  // in the table of page titles, category "GEN"
    QString title = {};     // given: in place of the looked up title
    QString help = {};      // given: in place of the list's own line
  };

  // name: of the panel, such as "picChartList"; element: of the tiles, such as "flpChartList".
  ListView(const QString &name, const QString &element, std::vector<Entry> pages, QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 signals:
  void Chosen(int index);

 protected:
  void resizeEvent(QResizeEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  static QString HelpLine(int page);
  void LayOut();
  void MoveFocus(int from, int key);

  std::vector<Entry> entries;
  std::vector<PageTile *> tiles;
  QWidget *content;
  QGridLayout *grid;
  int columns = 0;
};
