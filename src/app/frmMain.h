// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <memory>
#include <vector>

#include "analysis/SelvaniDailyMod.h"
#include "content/Languages.h"
#include "content/SetFonts.h"
#include "platform/AppPaths.h"
#include "platform/clsIni.h"

class ElidedLabel;
class HeaderCard;
class LargeChartView;
class MessageBoxes;
class NavigationColumn;
class NowCard;
class PageView;
class QComboBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class RichTextPage;
class contentManager;

// The one window: navigation, person, date and language above, and the page area. It owns the session and passes
// every action of the user to it and to the page dispatcher.
class frmMain : public QMainWindow {
  Q_OBJECT

 public:
  frmMain(AppPaths applicationPaths, UserSettings &userSettings, MessageBoxes &messageBoxes, QWidget *parent = nullptr);
  ~frmMain() override;

  // Opens the databases, the language and the last person, and shows the overview of the present moment.
  void Load();

  contentManager &Pages() { return *pages; }
  SelvaniDailyMod &Session() { return *session; }

  // The present moment as the session takes it; tests put a fixed one in its place.
  void SetClock(std::function<QDateTime()> now) { clock = std::move(now); }
  // What ends the program after the exit question; the application's quit when it is not set.
  void SetEnd(std::function<void()> end) { endProgram = std::move(end); }
  // Asks for the file of a page's PDF; empty for none. A file dialog when it is not set.
  void SetFileChooser(std::function<QString(const QString &suggested)> choose) { chooseFile = std::move(choose); }
  void SetOpener(std::function<void(const QUrl &)> opener) { openAddress = std::move(opener); }

  static int PageOfChartList(int index);  // 0 for an index without a page
  static int PageOfPredictionList(int index);

  void ChangePerson(const QString &name);
  void ChangeMoment(const QDateTime &moment);

 public slots:
  void OpenPeople();
  void OpenPersonManager();
  void OpenOptions();
  void OpenDate();
  void OpenSettings();
  void OpenPrint();
  void SavePageAsPdf();
  void PrintPage();
  void OpenDashaTree();
  void OpenHelp();
  void OpenWebsite();
  void AskExit();

 protected:
  void closeEvent(QCloseEvent *event) override;
  bool event(QEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

 private:
  void MakeHeader();
  void MakeBody();
  void MakePages();
  void MakeKeys();
  void AddView(int page, PageView *view);
  void AddPlanets();
  void AddRichText(int page);
  void AddLargeChart(int page, int kind);

  void OpenDatabases();
  void LoadLanguages();
  void SelectLanguage();
  void OnLanguageChosen(int index);
  void CheckAyanamsha();
  void SelectLastPerson();
  void BuildDay(const QDateTime &moment);
  void ChangeMouseIcons();
  void ShowPersonHeader();
  void ShowMoment();
  void OnNavigation(const QString &name);
  void OnPageShown(int page);
  void PlaceContent();
  void SavePosition();
  void ShowAfter(const std::function<void()> &step);
  void CalculateAnew();
  void FollowOthers();
  bool StoresChanged();

  AppPaths paths;
  UserSettings &settings;
  clsIni ini;
  MessageBoxes &boxes;
  std::function<QDateTime()> clock;
  std::function<void()> endProgram;
  std::function<void(const QUrl &)> openAddress;
  std::function<QString(const QString &)> chooseFile;
  std::unique_ptr<SelvaniDailyMod> session;
  std::vector<LanguageRow> languages;
  SetFonts fonts;
  bool sampleShown = false;  // no stored person is to be had
  std::pair<qlonglong, qlonglong> seenStores;
  QString toldResidence;   // the fault of the residence that was told last
  bool followDue = false;  // another window's change is not shown yet

  QWidget *header = nullptr;
  HeaderCard *personCard = nullptr, *dateCard = nullptr;
  QHBoxLayout *cards = nullptr;
  QComboBox *cmbLang = nullptr;
  QLabel *lblMainChartName = nullptr;
  ElidedLabel *lblHint = nullptr;
  NavigationColumn *navigation = nullptr;
  NowCard *nowCard = nullptr;
  QWidget *leftColumn = nullptr, *host = nullptr;
  QGridLayout *hostGrid = nullptr;
  LargeChartView *largeChart = nullptr;
  RichTextPage *richText = nullptr;
  contentManager *pages = nullptr;
};
