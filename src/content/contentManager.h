// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QObject>
#include <QRect>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "content/SetFonts.h"

class QLabel;
class QWidget;
class SelvaniDailyMod;

// The page dispatcher: one table of pages. Every navigation of the main screen ends in ShowPage.
class contentManager : public QObject {
  Q_OBJECT

 public:
  struct Row {
    int page;
    const char *titleKey;  // in table Daily, category GEN
    const char *element;   // object name of the widget that shows it
  };
  static const std::vector<Row> &Table();

  // A page's widget and what fills it. The overview is shown before it is filled, every other page after.
  struct Page {
    QWidget *widget = nullptr;
    std::function<void()> fill;
    std::function<void(const SetFonts &)> applyFonts;
  };

  contentManager(SelvaniDailyMod &session, QLabel &lblMainChartName, QObject *parent = nullptr);

  void AddPage(int page, Page content);
  // What surrounds the filling of a page for as long as the answer lives, such as a gathering of its notices.
  void SetFillGuard(std::function<std::shared_ptr<void>()> makeGuard) { fillGuard = std::move(makeGuard); }
  // Runs on every change of page, before the next one is filled.
  void SetLeaving(std::function<void()> action) { leaving = std::move(action); }
  void SetFontsOf(const SetFonts &languageFonts) { fonts = languageFonts; }

  // Shows the page, filled anew; a number that is no page changes nothing. What goes wrong in a page is told in its
  // sentence, and the page is shown as far as it was filled.
  void ShowPage(int page);
  void ShowAgain() { ShowPage(CurrentPage); }
  void GoBack() { ShowPage(PreviousPage); }

  int Current() const { return CurrentPage; }
  QWidget *CurrentWidget() const;  // none before the first page
  int Previous() const { return PreviousPage; }
  QString TitleOf(int page) const;

  // The rectangle of the large chart and of the rich text in a main screen of this inner size.
  static QRect ContentRect(const QSize &inner);

 signals:
  void PageShown(int page);

 private:
  static void Tell(const std::function<void()> &step);  // what a step throws becomes a notice
  void HideCurrentPage();
  void SetPageTitle(const QString &text);
  void ApplyPageFonts(int page);

  SelvaniDailyMod &session;
  QLabel &title;
  SetFonts fonts;
  std::function<std::shared_ptr<void>()> fillGuard;
  std::function<void()> leaving;
  std::map<int, Page> pages;
  int CurrentPage = 0;
  int PreviousPage = 0;
};
