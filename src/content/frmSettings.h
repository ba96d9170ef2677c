// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDialog>

#include "platform/UserSettings.h"
#include "platform/clsIni.h"

class QButtonGroup;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QVBoxLayout;

// The settings wizard, four steps. Nothing is written before Finish; what must be remade afterwards is the caller's.
class frmSettings : public QDialog {
  Q_OBJECT

 public:
  frmSettings(UserSettings &userSettings, clsIni configuration, QWidget *parent = nullptr);

  void accept() override;  // Finish
  void reject() override;  // Cancel, Esc, the window's close button

 private:
  struct Choice;
  struct Step;

  QVBoxLayout *AddFrame(const Step &step);
  QRadioButton *MakeOption(QButtonGroup *group, const Choice &choice);
  QLabel *MakeMeaning(const Choice &choice);
  void MakeAyanamsha();
  void MakeKundaliStyle();
  void MakeRahuKetu();
  void MakeYourDetails();
  QWidget *MakeTrail();
  QWidget *MakeButtons();
  void LoadValues();
  void ShowStep(int step);
  void Write();  // throws StoreError

  UserSettings &settings;
  clsIni ini;
  QStackedWidget *frames;
  QList<QLabel *> trail;
  QButtonGroup *ayanamsha;  // ids are the stored values
  QButtonGroup *kundaliStyle;
  QButtonGroup *rahuKetu;
  QButtonGroup *dayDivisions, *sunriseRule;
  QLabel *lblKept;
  QLineEdit *txtName;
  QLineEdit *txtAddress;
  QPushButton *flpCancel, *flpPrevFrame, *flpNextFrame, *flpFinish;
  bool isInForce = false;  // a Finish set what holds for this run, kept or not
};
