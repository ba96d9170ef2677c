// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDialog>
#include <memory>

#include "persons/PlaceSearch.h"
#include "persons/PlaceStore.h"
#include "platform/UserSettings.h"
#include "platform/clsIni.h"

class PlaceCombo;
class QButtonGroup;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QVBoxLayout;
class UndoBar;

// The places and countries of the list, the ayanamsha and the node, and the user's own details, each on a tab. Each tab has its own save
// button; nothing is asked before a deletion, which is taken back at one click.
class frmEditLongLat : public QDialog {
  Q_OBJECT

 public:
  // settings must outlive the screen. Throws StoreError.
  frmEditLongLat(std::shared_ptr<Database> personDb, UserSettings &settings, clsIni configuration, QWidget *parent = nullptr);
  ~frmEditLongLat() override;

 signals:
  void CalculationChanged();  // ayanamsha, node or the times of day were saved: charts must be made anew

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  QWidget *MakeCityTab();
  QWidget *MakeCountryTab();
  QWidget *MakeOptionsTab();
  QWidget *MakeDetailsTab();
  QLabel *MakeFaultOf(const QLineEdit *field);
  QLineEdit *MakeAngle(const char *name, const QString &what);

  void FillCountryLists();
  void FillCityList();
  void ShowCity(const Place &place);
  void AddCity();
  void ChangeCity();
  void SaveCity();
  void DeleteCity();
  void AddCountry();
  void ChangeCountry();
  void SaveCountry();
  void DeleteCountry();
  void ShowCountry(const QString &name);
  void ShowOptions();
  void SaveOptions();
  void SaveDetails();
  void CheckAngle(QLineEdit *field);
  void TellNotSaved(const QString &name);

  std::shared_ptr<Database> db;
  PlaceStore store;
  std::unique_ptr<PlaceSearch> places;
  UserSettings &userSettings;
  clsIni ini;

  QTabWidget *EditTab;
  UndoBar *bar;
  PlaceCombo *cmbCityList;
  QComboBox *cbocCountry;
  QLineEdit *txtCitGMT, *txtLat, *txtLong;
  QRadioButton *optNorth, *optSouth, *optEast, *optWest;
  QLabel *lblCityNote;
  QPushButton *cmdSave;
  qlonglong cityRow = 0;          // the row on the screen; 0 for a new place
  std::optional<Place> seenCity;  // that row as the store held it when it came on the screen

  QComboBox *cboCNTRY;
  QLineEdit *txtGMTDiff;
  QPushButton *cmdCSave;
  QString countryName;     // the row on the screen; empty for a new country
  QString seenDifference;  // that row's as the store held it when it came on the screen

  QButtonGroup *methods, *ayanamshas, *nodes, *dayDivisions, *sunriseRules;  // ids are the stored values
  QLineEdit *txtCustAyan;
  QLineEdit *txtName;
  QPlainTextEdit *txtAddress;
};
