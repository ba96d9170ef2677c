// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDialog>
#include <memory>

#include "persons/PersonStore.h"
#include "persons/PlaceSearch.h"

class PlaceEditor;
class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QStringListModel;
class UndoBar;

// Adds, edits and deletes the persons: the birth, and the place of residence. Nothing is asked before a deletion; it is taken back at one
// click. What cannot be read stays in its field with a word beside it, and nothing is saved.
class frmManageUsers : public QDialog {
  Q_OBJECT

 public:
  // Throws StoreError where a store cannot be read.
  frmManageUsers(std::shared_ptr<Database> personDb, const QString &dailyPath, QWidget *parent = nullptr);
  ~frmManageUsers() override;

  // Shows the person of this name; another name changes nothing.
  void ChoosePerson(const QString &name);
  // Reads the places anew, after they were edited.
  void ReloadPlaces();

  // All persons to a file, or from one; the format follows the file's ending. Faults are told on the screen.
  void ExportTo(const QString &path);
  void ImportFrom(const QString &path);

  void done(int result) override;  // the close button, Esc and the window's own

 signals:
  // The screen is closed; name: the person who is chosen, perhaps empty.
  void Closed(const QString &name);
  // The user wants to edit the places. The slot may show a modal screen; the places are read anew when it returns.
  void CityListWanted();

 protected:
  void resizeEvent(QResizeEvent *event) override;
  bool event(QEvent *event) override;

 private:
  QWidget *MakeHead();
  QWidget *MakeBirth();
  QWidget *MakeResidence();
  QWidget *MakeButtons();

  void FillPersons();
  void ShowPerson(const PersonRecord &record);
  void ChooseRow(int row);
  void EmptyEverything();
  void AddUser();
  void Save();
  void TellOfOtherSave(const QString &name);
  void FollowOthers();
  void DeleteUser();
  void TypedTime();
  void ChoseHalf(bool afternoon);
  void ShowMoment();
  void ShowName();
  void ShowResidence();
  std::optional<PersonRecord> Read();
  QDate BirthDate() const;

  // The whole form, to see what is not saved and to go back to.
  QStringList Form() const;
  void SetForm(const QStringList &form);
  bool HasUnsaved() const { return Form() != saved; }
  void KeepUnsaved();  // offers to take back what is about to be replaced

  std::shared_ptr<Database> db;
  PersonStore store;
  std::unique_ptr<PlaceSearch> places;
  QStringListModel *names;
  QComboBox *cmbPerson;
  QLabel *lblNameNote;
  QComboBox *cmbBirthDay, *cmbBirthMonth, *cmbBirthYear;
  QLabel *lblDateFault;
  QLineEdit *txtPerBirthTime;
  QLabel *lblTimeFault;
  QLabel *lblResidence;
  QRadioButton *optAM, *optPM, *optMale, *optFemale;
  PlaceEditor *birth, *residence;
  QBoxLayout *cards;
  UndoBar *bar;
  QString chosen;                    // the stored name of the person on the screen; empty for a new one
  std::optional<PersonRecord> seen;  // that person as the store held it then
  std::pair<qlonglong, qlonglong> seenVersion;
  bool isFaultTold = false;  // of following other windows
  QStringList saved;         // the form as it was last loaded or saved
  bool warnedOfLoss = false;
};
