// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <functional>
#include <span>
#include <vector>

#include "analysis/KundaliPage.h"
#include "content/Languages.h"
#include "platform/PrinterService.h"
#include "reports/ReportProgress.h"
#include "reports/ReportTopics.h"

class SelvaniDailyMod;
class KundaliModel;
class clsPlanets;
struct AspectsPage;
struct VargasPage;

// Composes the daily report of the session's person and moment on a printer, at fixed places. Lengths are twips.
// Faults of the printer, of the stores and of the pictures rise to the caller; so does ReportCancelled.
class clsDailyPrinter {
 public:
  struct Setup {
    LanguageRow language;  // sizes and bold of its fonts
    QString picturesDir;   // holds punditji.jpg and trishul.jpg
    QString makerAddress;  // for the footer
  };

  // A font name and a size that stand for the language's normal ones.
  static constexpr const char *NormFont = "NormFont";
  static constexpr double NormSize = 666;

  clsDailyPrinter(PrinterService &printer, SelvaniDailyMod &session, Setup setup);

  // Prints the pages of the topics in their order and ends the document.
  void PrintRoutine(const ReportTopics &topics, ReportProgress *progress = nullptr);

  // Running text from the present height on, wrapped at 6 inches and carried over to new pages. Paragraphs end with CR LF.
  // A heading stands close to what follows it; any other text is followed by a gap.
  void PrintMyText(const QString &text, const QString &font, double size, bool bold, bool heading);

 private:
  enum class Across { Left, Center, Right };
  enum class Down { Top, Middle, Bottom };

  struct Style {
    Style() : Style(QLatin1String(NormFont), NormSize) {}
    Style(QString fontName, double points, bool isBold = false) : font(std::move(fontName)), size(points), bold(isBold) {}

    QString font;
    double size;
    bool bold;
  };

  // --- primitives: clsDailyPrinter.cpp ---
  void SetLayout(double left);
  void UseFont(const Style &style);
  void PlaceText(const QString &text, double x, double y, Across across, Down down, const Style &style);
  double TextHeightOf(const QString &text, const Style &style);
  double TextWidthOf(const QString &text, const Style &style);
  void PageHeader();
  void PageFooter();
  void NextPage();
  double Inches(double inches) const { return inches * InchUnit; }

  // A style in which a text keeps to a width: smaller first, then narrow.
  Style Fitted(const QString &text, double width, Style style);
  void PlaceFitted(const QString &text, double x, double y, Across across, Down down, double width, const Style &style = Style());
  // One size for all cells of a column or a table, not below `least` points; the few that are longer are fitted one by one.
  Style Common(const QStringList &texts, double width, double least, Style style = Style());
  // Wrapped at blanks without page breaks, `leading` twips between the lines; gives the height used.
  double WrapColumn(const QString &text, double x, double y, double width, double leading, const Style &style, bool print);

  Style HeadStyle(double size) const;
  Style SmallStyle() const;
  QString PageTitle(const char *key) const;
  QString Word(const char *category, const char *key) const;
  // A title of exact times says so; what they are goes by `head`, which is empty by the house rule.
  QString TimesTitle(const QString &title, const QString &head) const;
  void PlaceTimesHead(const QString &head, double y);
  void Title(const QString &text, double x, double y, Down down = Down::Middle);
  void Rule(double x1, double y1, double x2, double y2);
  void Place(KundaliModel &model, const KundaliPage &page) const;
  void Chart(const KundaliPage &page, double x, double y, int widthPixels, int heightPixels);
  const QImage &Picture(QImage &picture, const char *name, bool clearGround = false);

  // --- pages: ReportPages.cpp, ReportTables.cpp, ReportTexts.cpp ---
  void PrintFrontPage();
  void PrintPlanets();
  void PrintPlanetTable(const clsPlanets &chart, const QString &title, double y0, bool withFooter);
  void PrintMoreCharts();
  void PrintTrishul(double y0);
  void PrintHoraTable(double y);
  void PrintChogadiyaTable(double y);
  void PrintPanchang();
  void PrintEvilMuhurthas(double top);
  void PrintDasha();
  void PrintPredictions(const ReportTopics &topics);
  void PrintTopic(const QString &title, const QString &body);
  void PrintYogas();

  // --- study pages: StudyPages.cpp, StudyTables.cpp ---
  struct TableColumn {
    QString head;
    QStringList cells;
    double share = 1;  // of the table's width, beside the other columns
    Across across = Across::Left;
    bool strong = false;
    bool wraps = false;  // at blanks, and the row grows; other columns make the table's text smaller
  };
  struct Table {
    std::vector<TableColumn> columns;
    double rowHeight = 270;                                          // at least
    double points = 10;                                              // of the text, at most
    bool withTotal = false;                                          // a rule parts the last row from the others
    std::function<unsigned(size_t row, size_t column)> ground = {};  // 0xRRGGBB of a cell
  };

  void BeginStudyPage(const QString &title);
  // A page of the birth chart, and then one of the day's; `title` of the page table.
  void OfBirthAndDay(const char *title, const std::function<void(const clsPlanets &, const QString &)> &print);
  QString BirthTitle(const char *title) const;
  QString DayTitle(const char *title) const;
  // A table with its places: the columns' left edges and the last one's right, and the rows' heights.
  struct LaidTable {
    const Table &table;
    std::vector<double> lefts, heights;
    Style head, body;

    double Room(size_t column) const;
    Style StyleOf(size_t column) const { return {body.font, body.size, table.columns[column].strong}; }
    QString Cell(size_t row, size_t column) const { return table.columns[column].cells[static_cast<qsizetype>(row)]; }
  };
  LaidTable LayTable(const Table &table);
  double WrapCell(const LaidTable &laid, size_t row, size_t column, double top, bool print);
  void PlaceCell(const LaidTable &laid, const QString &text, size_t column, double middle, const Style &style);
  double PrintRows(const LaidTable &laid, size_t from, size_t to, double y);
  // y, or the top of a new page where the height does not fit below it.
  double RoomFor(double height, double y);
  double HeightOf(const Table &table);
  // From y down, as wide as the page; gives the height where it ends. What no page holds is carried over to the next, with the heads.
  double PrintTable(const Table &table, double y);
  // A line of words under a table; gives the height where it ends.
  double PrintNote(const QString &text, double y);
  void StudyChart(const KundaliPage &page, const QString &title, const QRectF &place, double points);

  void PrintVargas();
  void PrintVargaTable(const VargasPage &page);
  void PrintAshtakavarga();
  void PrintUpagrahas();
  void PrintAspects();
  void PrintAspectGrids(const AspectsPage &page);
  void PrintBirthAttributes();
  void PrintScores();
  void PrintScoreLine(std::span<const double> scores, const QRectF &place);
  void PrintVakya();

  PrinterService &printer;
  SelvaniDailyMod &session;
  Setup setup;
  double InchUnit = 1440;
  double LeftMargin = 1400;
  double TopMargin = 1440;
  QImage punditji, trishul;
};
