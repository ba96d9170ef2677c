// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/clsDailyPrinter.h"

#include <QCoreApplication>
#include <algorithm>

#include "analysis/SelvaniDailyMod.h"
#include "chart/KundaliModel.h"
#include "platform/ReportError.h"
#include "reports/ChartOutput.h"

namespace {

constexpr double FirstLeft = 1400;
constexpr double TextLeft = 1500;  // from the first running text on, headers and footers too
constexpr unsigned Black = 0;
constexpr double TwipsPerPixel = 15;
constexpr double LineWidth = 6;  // inches of running text

constexpr double HeaderLine = 11;  // points: what fits between the sheet's head and the header's rule
constexpr double LeastSize = 6.5;

// Makes the white around a picture's outline transparent, as far as it reaches from the edges, so that what lies below shows.
void ClearGround(QImage &picture) {
  constexpr int white = 200;  // the grey from which on a pixel is ground; the outline is far darker
  picture = picture.convertToFormat(QImage::Format_ARGB32);
  const auto isGround = [&](const QPoint &p) {
    const QRgb pixel = picture.pixel(p);
    return qAlpha(pixel) != 0 && std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)}) >= white;
  };
  std::vector<QPoint> edge;
  for (int x = 0; x < picture.width(); ++x) edge.insert(edge.end(), {QPoint(x, 0), QPoint(x, picture.height() - 1)});
  for (int y = 0; y < picture.height(); ++y) edge.insert(edge.end(), {QPoint(0, y), QPoint(picture.width() - 1, y)});
  while (!edge.empty()) {
    const QPoint p = edge.back();
    edge.pop_back();
    if (!picture.valid(p) || !isGround(p)) continue;
    picture.setPixel(p, qRgba(255, 255, 255, 0));
    for (const QPoint &step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) edge.push_back(p + step);
  }
}

}  // namespace

clsDailyPrinter::clsDailyPrinter(PrinterService &printerService, SelvaniDailyMod &dailySession, Setup reportSetup)
    : printer(printerService), session(dailySession), setup(std::move(reportSetup)) {
  LanguageRow &language = setup.language;
  if (language.NormalSize <= 0) language.NormalSize = 11;
  if (language.SmallSize <= 0) language.SmallSize = 10;
  if (language.HeaderSize <= 0) language.HeaderSize = 18;
}

void clsDailyPrinter::SetLayout(double left) {
  InchUnit = 1440;
  LeftMargin = left;
  TopMargin = 1440;
}

void clsDailyPrinter::PrintRoutine(const ReportTopics &topics, ReportProgress *progress) {
  SetLayout(FirstLeft);
  struct Page {
    const char *key;
    void (clsDailyPrinter::*print)();
  };
  constexpr std::array<Page, 12> pages{{
      {"FrontPage", &clsDailyPrinter::PrintFrontPage},
      {"PlanetPos", &clsDailyPrinter::PrintPlanets},
      {"MoreCharts", &clsDailyPrinter::PrintMoreCharts},
      {"Auspicious", &clsDailyPrinter::PrintPanchang},
      {"Mahadasha", &clsDailyPrinter::PrintDasha},
      {"DivisionalCharts", &clsDailyPrinter::PrintVargas},
      {"Ashtakavarga", &clsDailyPrinter::PrintAshtakavarga},
      {"Upagrahas", &clsDailyPrinter::PrintUpagrahas},
      {"Aspects", &clsDailyPrinter::PrintAspects},
      {"BirthAttributes", &clsDailyPrinter::PrintBirthAttributes},
      {"DayScores", &clsDailyPrinter::PrintScores},
      {"Vakya", &clsDailyPrinter::PrintVakya},
  }};
  const int total = static_cast<int>(std::count_if(pages.begin(), pages.end(), [&](const Page &page) { return topics.Has(page.key); })) +
                    (topics.HasPrediction() ? 1 : 0);
  int done = 0;
  const auto step = [&] {
    if (progress && !progress->Step(done, total))
      throw ReportCancelled(QCoreApplication::translate("clsDailyPrinter", "The report was stopped; nothing was saved."));
    ++done;
  };
  for (const Page &page : pages) {
    if (!topics.Has(page.key)) continue;
    step();
    (this->*page.print)();
    printer.NewPage();
  }
  if (topics.HasPrediction()) {
    step();
    PrintPredictions(topics);
  }
  step();
  printer.EndDoc();
}

// --- primitives -------------------------------------------------------------------------------------------

void clsDailyPrinter::UseFont(const Style &style) {
  PrintFont font;
  if (style.font != QLatin1String(NormFont)) font.name = style.font;
  font.size = style.size == NormSize ? setup.language.NormalSize : style.size;
  font.bold = style.bold;
  printer.SetFont(font);
}

double clsDailyPrinter::TextHeightOf(const QString &, const Style &style) {
  UseFont(style);
  return printer.TextHeight();
}

double clsDailyPrinter::TextWidthOf(const QString &text, const Style &style) {
  UseFont(style);
  return printer.TextWidth(text);
}

void clsDailyPrinter::PlaceText(const QString &text, double x, double y, Across across, Down down, const Style &style) {
  printer.SetDrawWidth(1);
  const auto width = static_cast<float>(TextWidthOf(text, style)), height = static_cast<float>(TextHeightOf(text, style));
  if (across != Across::Left) x -= across == Across::Center ? width / 2 : width;
  if (down != Down::Top) y -= down == Down::Middle ? height / 2 : height;
  printer.SetCurrent(x, y);
  printer.Print(text);
}

clsDailyPrinter::Style clsDailyPrinter::HeadStyle(double size) const {
  return {QLatin1String(NormFont), std::min<double>(setup.language.HeaderSize, size), setup.language.HeadBold};
}

clsDailyPrinter::Style clsDailyPrinter::SmallStyle() const {
  return {QLatin1String(NormFont), static_cast<double>(setup.language.SmallSize), false};
}

clsDailyPrinter::Style clsDailyPrinter::Fitted(const QString &text, double width, Style style) {
  if (style.size == NormSize) style.size = setup.language.NormalSize;
  const Style whole = style;
  for (const bool narrow : {false, true}) {
    style = whole;
    if (narrow) style.font = QStringLiteral("Arial Narrow");
    const double least = narrow ? LeastSize : std::min(whole.size, 8.5);
    for (; style.size >= least; style.size -= 0.25)
      if (TextWidthOf(text, style) <= width) return style;
  }
  style.size = LeastSize;
  return style;
}

void clsDailyPrinter::PlaceFitted(const QString &text, double x, double y, Across across, Down down, double width, const Style &style) {
  PlaceText(text, x, y, across, down, Fitted(text, width, style));
}

clsDailyPrinter::Style clsDailyPrinter::Common(const QStringList &texts, double width, double least, Style style) {
  if (style.size == NormSize) style.size = setup.language.NormalSize;
  for (const QString &text : texts)
    while (style.size - 0.25 >= least && TextWidthOf(text, style) > width) style.size -= 0.25;
  return style;
}

double clsDailyPrinter::WrapColumn(const QString &text, double x, double y, double width, double leading, const Style &style, bool print) {
  const double top = y;
  QString line;
  const auto flush = [&] {
    if (print) PlaceText(line, x, y, Across::Left, Down::Top, style);
    y += TextHeightOf(line, style) + leading;
    line.clear();
  };
  for (const QString &word : text.trimmed().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    if (!line.isEmpty() && TextWidthOf(word, style) + TextWidthOf(line, style) >= width) flush();
    line += word + QLatin1Char(' ');
  }
  flush();
  return y - top;
}

QString clsDailyPrinter::PageTitle(const char *key) const {
  return session.TodayChart().GetHeadValue(11, QLatin1String(key), QStringLiteral("GEN"));
}

QString clsDailyPrinter::Word(const char *category, const char *key) const {
  return session.TodayChart().GetHeadValue(1, QLatin1String(key), QLatin1String(category));
}

QString clsDailyPrinter::TimesTitle(const QString &title, const QString &head) const {
  return head.isEmpty() ? title : Word("Exact", "ExactTitle").arg(title);
}

void clsDailyPrinter::PlaceTimesHead(const QString &head, double y) {
  if (!head.isEmpty()) PlaceFitted(head, LeftMargin + Inches(3.3), y, Across::Center, Down::Top, Inches(6.4), {QLatin1String(NormFont), 9});
}

void clsDailyPrinter::Title(const QString &text, double x, double y, Down down) {
  constexpr double titleSize = 14;  // the titles stand a quarter of an inch above their tables
  PlaceText(text, x, y, Across::Center, down, HeadStyle(titleSize));
}

void clsDailyPrinter::Rule(double x1, double y1, double x2, double y2) { printer.Line(x1, y1, x2, y2, Black); }

void clsDailyPrinter::PageHeader() {
  printer.SetDrawWidth(1);
  const double right = LeftMargin + Inches(6.6);
  printer.FilledBox(LeftMargin, TopMargin, right, TopMargin + 30, Black);
  printer.Box(LeftMargin, TopMargin, right, TopMargin + Inches(0.5), Black);
  PlaceText(QStringLiteral("Daily Astrology"), LeftMargin + Inches(0.8), TopMargin - 250, Across::Left, Down::Top, HeadStyle(HeaderLine));
  PlaceFitted(session.NowInfo().trimmed(), right, TopMargin - 250, Across::Right, Down::Top, Inches(4.2),
              {QLatin1String(NormFont), HeaderLine});
  printer.Picture(Picture(punditji, "punditji.jpg", true), LeftMargin + 100, TopMargin - 300, 500, 1054);
  PlaceFitted(session.ShowPersonHeader().lblPersonName, LeftMargin + Inches(3.3), TopMargin + Inches(0.25), Across::Center, Down::Middle,
              Inches(5.6), {QLatin1String(NormFont), 12});
}

void clsDailyPrinter::PageFooter() {
  printer.SetDrawWidth(1);
  const double right = LeftMargin + Inches(6.6), y = TopMargin + Inches(9.3);
  printer.FilledBox(LeftMargin, y, right, y + 30, Black);
  const Style style{QLatin1String(NormFont), 7};
  PlaceText(QStringLiteral("Generated by Orvani - ") + setup.makerAddress, LeftMargin, y + 80, Across::Left, Down::Top, style);
  PlaceText(QStringLiteral("Page ") + QString::number(printer.Page()), right, y + 80, Across::Right, Down::Top, style);
}

void clsDailyPrinter::NextPage() {
  printer.NewPage();
  PageHeader();
  PageFooter();
  printer.SetCurrent(LeftMargin, TopMargin + Inches(0.8));
}

void clsDailyPrinter::PrintMyText(const QString &text, const QString &font, double size, bool bold, bool heading) {
  SetLayout(TextLeft);
  const Style style{font, size, bold}, face{QLatin1String(NormFont), size, bold};
  double y = printer.CurrentY() + 100;
  const auto printLine = [&](const QString &line, const Style &lineStyle) {
    PlaceText(line, LeftMargin, y, Across::Left, Down::Top, lineStyle);
    y = printer.CurrentY();
  };
  const auto nextPage = [&] {
    NextPage();
    y = printer.CurrentY();
  };
  QString whole = text.trimmed();
  whole.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  for (const QString &paragraph : whole.split(QLatin1Char('\n'))) {
    QString line;
    for (const QString &word : paragraph.split(QLatin1Char(' '))) {
      if (!line.isEmpty() && TextWidthOf(word, style) + TextWidthOf(line, style) >= Inches(LineWidth)) {
        printLine(line, face);
        if (y < TopMargin + Inches(9))
          y += 50;
        else
          nextPage();
        line.clear();
      }
      line += word + QLatin1Char(' ');
    }
    if (y > TopMargin + Inches(8.8)) nextPage();
    printLine(line, face);
    if (heading) y -= 100;
    y += 50;
  }
  if (!heading) printLine(QString(), SmallStyle());
  printer.SetCurrent(LeftMargin, y);
}

void clsDailyPrinter::Place(KundaliModel &model, const KundaliPage &page) const {
  model.Clear();
  model.SetChartStyle(session.Settings().IntValue(SettingKeys::KundStyle));
  model.SetHouseNumber(page.houseNumber);
  for (const KundaliPage::Placed &placed : page.planets) model.PlanetPlace(placed.sign, placed.name);
}

void clsDailyPrinter::Chart(const KundaliPage &page, double x, double y, int widthPixels, int heightPixels) {
  KundaliModel model;
  Place(model, page);
  ChartOutput::PrintKundaliNonApi(printer, model.Layout(), QSizeF(widthPixels, heightPixels) * TwipsPerPixel, x, y, PrintFont().name,
                                  setup.language.NormalSize);
}

const QImage &clsDailyPrinter::Picture(QImage &picture, const char *name, bool clearGround) {
  if (!picture.isNull()) return picture;
  if (!picture.load(setup.picturesDir + QLatin1Char('/') + QLatin1String(name)))
    throw ReportError(QCoreApplication::translate("clsDailyPrinter", "The picture \"%1\" of the report cannot be read. Please re-install.")
                          .arg(QLatin1String(name)));
  if (clearGround) ClearGround(picture);
  return picture;
}
