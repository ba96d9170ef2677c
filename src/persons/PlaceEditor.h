// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDate>
#include <QTime>
#include <QWidget>

#include "persons/PlaceRecord.h"
#include "persons/PlaceSearch.h"

class PlaceCombo;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

// A place with its clock as a group of fields: country, city, time difference, latitude, longitude. Used for the birth and for the
// residence.
class PlaceEditor : public QWidget {
  Q_OBJECT

 public:
  // Object names of the fields.
  struct Names {
    const char *country, *city, *difference, *latitude, *northSouth, *longitude, *eastWest;
  };
  // what: "birth" or "residence", for accessible names.
  PlaceEditor(const Names &names, const QString &what, QWidget *parent = nullptr);

  void SetSearch(const PlaceSearch *places);
  void ListCountry(const QString &name);  // fills the list of cities

  void Show(const PlaceRecord &place);
  void Empty(const QString &difference);  // no place; "000:00" north and east
  // The place as the fields tell it. Nothing where one cannot be read: it then says so beside it and keeps its text.
  std::optional<PlaceRecord> Read();

  // No city, at the crossing of equator and prime meridian: what the fields show before anything is entered.
  bool IsNowhere() const;

  // The moment for which the clocks of the place are looked up; an invalid one for none.
  void SetMoment(const QDate &date, const QTime &time);

  // All texts, to compare and to go back to.
  QStringList Texts() const;
  void SetTexts(const QStringList &texts);

 signals:
  void Changed();

 private:
  struct Angle {
    QLineEdit *edit;
    QComboBox *hemisphere;
    QLabel *fault;
  };

  Angle MakeAngle(const char *name, const char *hemisphereName, const QStringList &letters, const QString &label);
  void AddRow(const QString &label, QWidget *field, QWidget *beside, QLabel *below);
  void TypedCountry(const QString &text);
  void ChoseCountry(const QString &name, const QString &difference);
  void TakePlace(const Place &place);
  void TakeNoPlace();
  void ClearFaults();
  void DoubtLatitude();
  void ShowClock();
  std::optional<Place> KnownPlace() const;

  const PlaceSearch *search = nullptr;
  QComboBox *country;
  PlaceCombo *city;
  QLineEdit *difference;
  QLabel *differenceFault;
  QLabel *clock;
  QPushButton *takeClock;
  Angle latitude, longitude;
  QString lastCountryTyped;
  std::optional<Place> taken;  // the place that last filled in the fields
  QDate date;
  QTime time;
};
