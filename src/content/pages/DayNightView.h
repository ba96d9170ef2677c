// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "analysis/ExactTimes.h"
#include "content/SetFonts.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/PageView.h"
#include "content/pages/SpanStrip.h"

// A page of equal periods: those of the day in one card, those of the night in another, the running one marked.
class DayNightView : public PageView {
  Q_OBJECT

 public:
  void ApplyFonts(const SetFonts &fonts) override;

 protected:
  void resizeEvent(QResizeEvent *event) override;

  // titles, heads: object names of the two cards' titles and of their time columns' heads.
  struct Names {
    QString page;
    std::array<QString, 2> titles;
    std::array<QString, 2> timeHeads;
    QString note;
  };

  DayNightView(const Names &names, std::vector<CaptionTable::Column> columns, int timeColumn, int rowsOfHalf, QWidget *parent);

  // By the row of the whole day: those of the night follow those of the day.
  CaptionTable &TableOf(int row) const { return *tables[row < halfRows ? 0 : 1]; }
  int RowOf(int row) const { return row % halfRows; }
  QLabel &Title(int half) const { return *titles[static_cast<size_t>(half)]; }
  QLabel &TimeHead(int half) const { return tables[static_cast<size_t>(half)]->Head(timeCol); }
  void SetNote(const QString &words);

  // row: of the whole day, -1 for none. word: "now 9:05", or the moment's time; it stands in the mark column.
  void MarkRunning(int row, int markColumn, const QString &word);
  // The day and the night as a bar under the two cards; a page that does not call it has none.
  enum class StripPlace { Always, WhereRoomy };
  void SetStrip(SpanStrip::Span span, const QString &name, StripPlace place = StripPlace::Always);
  // Says that the times are exact; a half that the day has not shows the reason in place of its rows.
  void SetExact(const std::optional<ExactFrame> &frame);
  // Says that the periods of the day before still run.
  void SetBeforeSunrise(bool before);

 private:
  CaptionTable::TextSize TextSize() const;
  void ShowStrip();

  SetFonts fontsShown;
  CaptionTable::TextSize sizeShown = CaptionTable::TextSize::Small;
  bool hasStrip = false;
  StripPlace stripPlace = StripPlace::Always;
  int halfRows;
  int timeCol;
  QString noteWords;
  std::array<QLabel *, 2> titles{};
  std::array<CaptionTable *, 2> tables{};
  std::array<QLabel *, 2> noParts{};
  QLabel *exactHead;
  SpanStrip *strip;
  QWidget *stripCard;
  QLabel *note;
  QLabel *beforeSunrise;
};
