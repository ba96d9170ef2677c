// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>
#include <QStandardPaths>
#include <array>
#include <utility>

#include "analysis/NowCardPage.h"
#include "analysis/PredictionPages.h"
#include "app/ElidedLabel.h"
#include "app/HeaderCard.h"
#include "app/Maker.h"
#include "app/MessageBoxes.h"
#include "app/NavigationColumn.h"
#include "app/NowCard.h"
#include "app/SamplePerson.h"
#include "app/StoreRescue.h"
#include "app/frmDate.h"
#include "app/frmStatus.h"
#include "chart/ImageButton.h"
#include "content/PageNumber.h"
#include "content/ShellFonts.h"
#include "content/Skin.h"
#include "content/Theme.h"
#include "content/contentManager.h"
#include "content/frmSettings.h"
#include "content/pages/AshtakavargaView.h"
#include "content/pages/AspectsView.h"
#include "content/pages/BirthAttributesView.h"
#include "content/pages/ChogadiyaView.h"
#include "content/pages/CreditsView.h"
#include "content/pages/DashaView.h"
#include "content/pages/EvilMuhurthaView.h"
#include "content/pages/ExactDayView.h"
#include "content/pages/HelpView.h"
#include "content/pages/HoraView.h"
#include "content/pages/LargeChartView.h"
#include "content/pages/ListView.h"
#include "content/pages/MonthView.h"
#include "content/pages/OverviewView.h"
#include "content/pages/PageScroll.h"
#include "content/pages/PanchangView.h"
#include "content/pages/PlanetTableView.h"
#include "content/pages/RichTextPage.h"
#include "content/pages/RichTextView.h"
#include "content/pages/ScoresView.h"
#include "content/pages/TrishulView.h"
#include "content/pages/UpagrahasView.h"
#include "content/pages/VakyaView.h"
#include "content/pages/VargasView.h"
#include "persons/PlacesUpgrade.h"
#include "persons/frmEditLongLat.h"
#include "persons/frmManageUsers.h"
#include "persons/frmPeople.h"
#include "platform/Errors.h"
#include "platform/Notices.h"
#include "platform/Numbers.h"
#include "platform/StoreKeeper.h"
#include "platform/gui/AskSaveFile.h"
#include "reports/DailyReport.h"
#include "reports/PageExport.h"
#include "reports/frmDayPrint.h"
#include "reports/frmPratyan.h"

namespace {

constexpr int LeastForAbove = 740;  // inner height, pixels, that leaves room for the dial above the rows of a narrow column

// Index of a list entry and the page that it goes to.
struct ListRow {
  int index, page;
};
constexpr std::array<ListRow, 11> ChartListRows{{{0, PageNumber::Chowgadiya},
                                                 {1, PageNumber::EvilMuhurthas},
                                                 {12, PageNumber::BirthKundali},
                                                 {13, PageNumber::VimshottariDasha},
                                                 {14, PageNumber::SunriseKundali},
                                                 {15, PageNumber::TrishulChakra},
                                                 {16, PageNumber::BirthPlanets},
                                                 {17, PageNumber::TodayPlanets},
                                                 {18, PageNumber::TransitKundali},
                                                 {20, PageNumber::HoraChart},
                                                 {23, PageNumber::Panchang}}};
constexpr std::array<ListRow, 8> PredictionListRows{{{0, PageNumber::WeekdayResult},
                                                     {1, PageNumber::FinancialAnalysis},
                                                     {2, PageNumber::Journey},
                                                     {3, PageNumber::YogaResults},
                                                     {4, PageNumber::TithiResult},
                                                     {5, PageNumber::NakshatraResult},
                                                     {11, PageNumber::Rashifala},
                                                     {12, PageNumber::SuryaYogaResults}}};

constexpr std::array<ListRow, 9> StudyListRows{{{0, PageNumber::DivisionalCharts},
                                                {1, PageNumber::Ashtakavarga},
                                                {2, PageNumber::Upagrahas},
                                                {3, PageNumber::Aspects},
                                                {4, PageNumber::BirthAttributes},
                                                {5, PageNumber::DayScores},
                                                {6, PageNumber::VakyaPositions},
                                                {7, PageNumber::ExactDay},
                                                {8, PageNumber::Month}}};

// The order in which the lists show their entries.
constexpr std::array ChartListOrder{12, 18, 14, 16, 17, 23, 13, 15, 0, 20, 1};
constexpr std::array PredictionListOrder{11, 0, 4, 5, 12, 3, 2, 1};
constexpr std::array StudyListOrder{7, 8, 0, 1, 2, 3, 4, 5, 6};

template <size_t N>
int PageOf(const std::array<ListRow, N> &rows, int index) {
  for (const ListRow &row : rows)
    if (row.index == index) return row.page;
  return 0;
}

QString TitleKeyOf(int page) {
  for (const contentManager::Row &row : contentManager::Table())
    if (row.page == page) return QLatin1String(row.titleKey);
  return {};
}

template <size_t N, size_t M>
std::vector<ListView::Entry> ListEntries(const std::array<int, N> &order, const std::array<ListRow, M> &rows) {
  std::vector<ListView::Entry> entries;
  for (const int index : order) {
    ListView::Entry entry;
    entry.index = index;
    entry.page = PageOf(rows, index);
    entry.titleKey = TitleKeyOf(entry.page);
    entries.push_back(std::move(entry));
  }
  return entries;
}

// Shows a report's progress on the status screen, and lets it be stopped there.
class StatusProgress : public ReportProgress {
 public:
  StatusProgress(frmDayPrint::Target target, QWidget *parent) : status(parent) {
    if (target == frmDayPrint::Target::Pdf)
      status.PDFStatus();
    else
      status.PrintStatus();
    status.SetCancelVisible(true);
  }
  bool Step(int done, int total) override {
    status.SetProgress(done, total);
    return !status.WasCancelled();
  }

 private:
  frmStatus status;
};

// The navigation row that leads to a page.
const char *SectionOf(int page) {
  if (page == PageNumber::TodayOverview) return "fflpHome";
  if (page == PageNumber::Credits) return "flpCredits";
  if (page == PageNumber::Help) return "flpHelp";
  if (page == PageNumber::ChartList) return "flpCharts";
  if (page == PageNumber::StudyList) return "flpStudy";
  for (const ListRow &row : StudyListRows)
    if (row.page == page) return "flpStudy";
  if (page == PageNumber::PredictionList) return "flpPredictions";
  for (const ListRow &row : ChartListRows)
    if (row.page == page) return "flpCharts";
  return "flpPredictions";
}

}  // namespace

int frmMain::PageOfChartList(int index) { return PageOf(ChartListRows, index); }
int frmMain::PageOfPredictionList(int index) { return PageOf(PredictionListRows, index); }

frmMain::frmMain(AppPaths applicationPaths, UserSettings &userSettings, MessageBoxes &messageBoxes, QWidget *parent)
    : QMainWindow(parent), paths(applicationPaths), settings(userSettings), ini(std::move(applicationPaths)), boxes(messageBoxes) {
  setObjectName("frmMain");
  setWindowTitle(Maker::Title);
  setMinimumSize(800, 600);
  resize(1280, 800);
  clock = [] { return QDateTime(QDate::currentDate(), QTime::currentTime(), Qt::UTC); };
  endProgram = [] { QCoreApplication::exit(0); };
  openAddress = [](const QUrl &address) { QDesktopServices::openUrl(address); };
  chooseFile = [this](const QString &suggested) {
    return AskSaveFile(this, tr("Save the page as PDF"), suggested, tr("PDF documents (*.pdf)"));
  };

  auto *central = new QWidget(this);
  auto *rows = new QVBoxLayout(central);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  setCentralWidget(central);
  MakeHeader();
  rows->addWidget(header);
  MakeBody();
  auto *body = new QHBoxLayout;
  // The pages keep the ring of the focus free around their cards, so that those end level with the left column.
  body->setContentsMargins(Grid::Margin, Grid::Margin - PageScroll::Ring, Grid::Margin - PageScroll::Ring, Grid::Margin - PageScroll::Ring);
  body->setSpacing(Grid::Margin - PageScroll::Ring);
  body->addWidget(leftColumn);
  body->addWidget(host, 1);
  rows->addLayout(body, 1);
  MakeKeys();
}

// The copies are brought up to what this run has saved.
frmMain::~frmMain() {
  if (!session) return;
  for (const std::shared_ptr<Database> &store : {session->OpenStores().personDb, session->OpenStores().dailyDb}) {
    try {
      if (store && store->OpenMode() == Database::Mode::ReadWrite) StoreKeeper::KeepCopy(store->Path());
    } catch (const Error &) {
      // The copy of the start goes on serving, and the next start tells what stands in the way.
    }
  }
}

// --- making ---------------------------------------------------------------------------------------------------------

void frmMain::MakeHeader() {
  header = new QFrame(centralWidget());
  header->setProperty("role", "header");
  auto *row = new QHBoxLayout(header);
  row->setContentsMargins(Grid::Margin, 10, Grid::Margin, 8);
  row->setSpacing(Grid::Margin);

  auto *brand = new QWidget(header);
  brand->setObjectName("brand");
  auto *brandRow = new QHBoxLayout(brand);
  brandRow->setContentsMargins(8, 0, 0, 0);
  brandRow->setSpacing(14);
  auto *mark = new QLabel(brand);
  mark->setAccessibleName(Maker::Title);
  mark->setAccessibleDescription(tr("The emblem of the program: a crescent around the Sun"));
  mark->setPixmap(Skin::Pixmap(QStringLiteral("mark"), QSize(46, 46), devicePixelRatioF()));
  auto *names = new QVBoxLayout;
  names->setSpacing(0);
  auto *title = new QLabel(Maker::Title, brand);
  title->setProperty("role", "brand");
  auto *sub = new QLabel(tr("Daily Astrology"), brand);
  sub->setProperty("role", "caption");
  names->addStretch();
  names->addWidget(title);
  names->addWidget(sub);
  names->addStretch();
  brandRow->addWidget(mark);
  brandRow->addLayout(names);
  brandRow->addStretch();
  row->addWidget(brand);

  auto *right = new QVBoxLayout;
  right->setSpacing(6);
  cards = new QHBoxLayout;
  cards->setSpacing(12);
  personCard = new HeaderCard("lblPersonName", "lblBDate", "flpDropNameList", header);
  personCard->Button()->setAccessibleName(tr("Change person"));
  connect(personCard, &HeaderCard::Opened, this, &frmMain::OpenPeople);
  dateCard = new HeaderCard("lblNowInfo", "lblNowIn", "flpDropToday", header);
  dateCard->Button()->setAccessibleName(tr("Change analysis date"));
  connect(dateCard, &HeaderCard::Opened, this, &frmMain::OpenDate);
  cmbLang = new QComboBox(header);
  cmbLang->setObjectName("cmbLang");
  cmbLang->setAccessibleName(tr("Language"));
  cmbLang->setToolTip(tr("Language"));
  cmbLang->setProperty("role", "headercard");
  cmbLang->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Expanding);
  connect(cmbLang, &QComboBox::activated, this, &frmMain::OnLanguageChosen);
  cards->addWidget(personCard, 5);
  cards->addWidget(dateCard, 7);
  cards->addWidget(cmbLang);
  right->addLayout(cards, 1);

  auto *titleRow = new QHBoxLayout;
  titleRow->setSpacing(12);
  auto *back = new ImageButton(header);
  back->setObjectName("imgBack");
  Skin::Dress(*back, QStringLiteral("imgBack"));
  back->setText(tr("Back"));
  back->setAccessibleName(tr("Back"));
  back->SetToolTip(tr("Back to the page before (Alt+Left)"));
  back->setFixedSize(34, 34);
  connect(back, &QAbstractButton::clicked, this, [this] { pages->GoBack(); });
  lblMainChartName = new QLabel(header);
  lblMainChartName->setObjectName("lblMainChartName");
  lblMainChartName->setProperty("role", "title");
  lblHint = new ElidedLabel(header);
  lblHint->setObjectName("lblHint");
  lblHint->setProperty("role", "caption");
  lblHint->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  titleRow->addWidget(back);
  titleRow->addWidget(lblMainChartName);
  titleRow->addWidget(lblHint, 1);
  auto *pdf = new ImageButton(header);
  pdf->setObjectName("flpPdf");
  Skin::Dress(*pdf, QStringLiteral("flpPdf"));
  pdf->setText(tr("PDF"));
  pdf->setAccessibleName(tr("Save this page as PDF"));
  pdf->SetToolTip(tr("Save this page as PDF (Ctrl+S)"));
  pdf->setFixedSize(34, 34);
  connect(pdf, &QAbstractButton::clicked, this, &frmMain::SavePageAsPdf);
  titleRow->addWidget(pdf);
  right->addLayout(titleRow);
  row->addLayout(right, 1);
}

void frmMain::MakeBody() {
  leftColumn = new QWidget(centralWidget());
  auto *column = new QVBoxLayout(leftColumn);
  column->setContentsMargins(0, PageScroll::Ring, 0, PageScroll::Ring);
  column->setSpacing(12);
  navigation = new NavigationColumn({{"fflpHome", tr("Home"), tr("Go to the main page")},
                                     {"flpCharts", tr("Charts"), tr("See astrological charts.")},
                                     {"flpPredictions", tr("Predictions"), tr("See predictions.")},
                                     {"flpPerson", tr("Persons"), tr("Add and edit persons and places.")},
                                     {"flpStudy", tr("Study"), tr("See everything else the chart knows.")},
                                     {"flpPrint", tr("Print"), tr("Print analysis.")},
                                     {"flpSettings", tr("Settings"), tr("Change program settings.")},
                                     {"flpCredits", tr("Credits"), tr("Credits list.")},
                                     {"flpWebsite", tr("Website"), Maker::WebAddress},
                                     {"flpHelp", tr("Help"), tr("See help file.")},
                                     {"flpExit", tr("Exit"), tr("Exit program.")}},
                                    leftColumn);
  connect(navigation, &NavigationColumn::Pressed, this, &frmMain::OnNavigation);
  connect(navigation, &NavigationColumn::Hint, lblHint, &QLabel::setText);
  for (HeaderCard *card : {personCard, dateCard}) {
    const QString hint = card == personCard ? tr("Change person.") : tr("Change analysis date.");
    card->Button()->SetToolTip(hint);
    connect(card->Button(), &ImageButton::MouseEnter, this, [this, hint] { lblHint->setText(hint); });
    connect(card->Button(), &ImageButton::MouseExit, this, [this] { lblHint->clear(); });
  }
  nowCard = new NowCard(leftColumn);
  column->addWidget(navigation, 1);
  column->addWidget(nowCard);
  host = new QWidget(centralWidget());
  hostGrid = new QGridLayout(host);
  hostGrid->setContentsMargins(0, 0, 0, 0);
}

void frmMain::AddView(int page, PageView *view) {
  hostGrid->addWidget(view, 0, 0);
  connect(view, &PageView::GoToPage, this, [this](int target) { pages->ShowPage(target); });
  pages->AddPage(page, {view, [this, view] { view->Fill(*session); }, [view](const SetFonts &f) { view->ApplyFonts(f); }});
}

void frmMain::AddLargeChart(int page, int kind) {
  pages->AddPage(page, {largeChart,
                        [this, kind] {
                          largeChart->SetKind(kind);
                          largeChart->Fill(*session);
                        },
                        [this](const SetFonts &f) { largeChart->ApplyFonts(f); }});
}

void frmMain::AddRichText(int page) {
  pages->AddPage(page, {richText,
                        [this, page] {
                          richText->Text().Clear();
                          const clsPlanets &today = session->TodayChart();
                          richText->SetHeads(today.clsPerson().GetBirthDate().toString(QStringLiteral("dddd, d MMMM yyyy")),
                                             tr("Moon in %1, %2, %3").arg(today.RashiName(), today.NakNamePlanet(7), today.TithiName()));
                          const PredictionPage filled = FillPredictionPage(page, session->BirthChart(), session->TodayChart());
                          for (const PredictionPage::Line &line : filled.lines) {
                            if (line.isHead)
                              richText->Text().AppendHead(line.text);
                            else
                              richText->Text().AppendBody(line.text);
                          }
                        },
                        [this](const SetFonts &f) { richText->ApplyFonts(f); }});
}

// One table serves both pages.
void frmMain::AddPlanets() {
  auto *planets = new PlanetTableView(host);
  hostGrid->addWidget(planets, 0, 0);
  for (const auto &[page, chart] : {std::pair(PageNumber::BirthPlanets, PlanetTableView::Chart::Birth),
                                    std::pair(PageNumber::TodayPlanets, PlanetTableView::Chart::Today)}) {
    const auto fill = [this, planets, which = chart] {
      planets->SetChart(which);
      planets->Fill(*session);
    };
    pages->AddPage(page, {planets, fill, [planets](const SetFonts &f) { planets->ApplyFonts(f); }});
  }
}

void frmMain::MakePages() {
  pages = new contentManager(*session, *lblMainChartName, this);
  pages->SetLeaving([this] { richText->Text().Clear(); });
  pages->SetFillGuard([this] { return std::make_shared<MessageBoxes::Fill>(boxes); });
  connect(pages, &contentManager::PageShown, this, &frmMain::OnPageShown);

  auto *charts =
      new ListView(QStringLiteral("picChartList"), QStringLiteral("flpChartList"), ListEntries(ChartListOrder, ChartListRows), host);
  connect(charts, &ListView::Chosen, this, [this](int index) { pages->ShowPage(PageOfChartList(index)); });
  AddView(PageNumber::ChartList, charts);
  auto *predictions = new ListView(QStringLiteral("picPrediList"), QStringLiteral("flpPrediList"),
                                   ListEntries(PredictionListOrder, PredictionListRows), host);
  connect(predictions, &ListView::Chosen, this, [this](int index) { pages->ShowPage(PageOfPredictionList(index)); });
  AddView(PageNumber::PredictionList, predictions);

  auto *study =
      new ListView(QStringLiteral("picStudyList"), QStringLiteral("flpStudyList"), ListEntries(StudyListOrder, StudyListRows), host);
  connect(study, &ListView::Chosen, this, [this](int index) { pages->ShowPage(PageOf(StudyListRows, index)); });
  AddView(PageNumber::StudyList, study);
  AddView(PageNumber::DivisionalCharts, new VargasView(host));
  AddView(PageNumber::Ashtakavarga, new AshtakavargaView(host));
  AddView(PageNumber::Upagrahas, new UpagrahasView(host));
  AddView(PageNumber::Aspects, new AspectsView(host));
  AddView(PageNumber::BirthAttributes, new BirthAttributesView(host));
  auto *scores = new ScoresView(host);
  connect(scores, &ScoresView::GoToDay, this,
          [this](const QDate &day) { ChangeMoment(QDateTime(day, session->AnalysisMoment().time(), Qt::UTC)); });
  AddView(PageNumber::DayScores, scores);
  AddView(PageNumber::VakyaPositions, new VakyaView(host));
  AddView(PageNumber::ExactDay, new ExactDayView(host));
  auto *month = new MonthView(host);
  connect(month, &MonthView::DayChosen, this, [this](const QDate &day) {
    ChangeMoment(QDateTime(day, session->AnalysisMoment().time(), Qt::UTC));
    pages->ShowPage(PageNumber::ExactDay);
  });
  AddView(PageNumber::Month, month);

  AddView(PageNumber::Credits, new CreditsView(QCoreApplication::applicationVersion(), Maker::WebAddress, host));
  AddView(PageNumber::Help, new HelpView(paths.Ephe(QStringLiteral("HELP/english.html")), host));
  AddPlanets();
  auto *dasha = new DashaView(host);
  connect(dasha, &DashaView::GoToTree, this, &frmMain::OpenDashaTree);
  connect(dasha, &DashaView::StatusChanged, lblHint, &QLabel::setText);
  AddView(PageNumber::VimshottariDasha, dasha);
  AddView(PageNumber::TrishulChakra, new TrishulView(paths, host));
  AddView(PageNumber::Panchang, new PanchangView(host));
  AddView(PageNumber::Chowgadiya, new ChogadiyaView(host));
  AddView(PageNumber::HoraChart, new HoraView(host));
  AddView(PageNumber::TodayOverview, new OverviewView(host));
  AddView(PageNumber::EvilMuhurthas, new EvilMuhurthaView(host));

  largeChart = new LargeChartView(host);
  hostGrid->addWidget(largeChart, 0, 0);
  AddLargeChart(PageNumber::BirthKundali, 1);
  AddLargeChart(PageNumber::TransitKundali, 2);
  AddLargeChart(PageNumber::SunriseKundali, 3);
  richText = new RichTextPage(host);
  hostGrid->addWidget(richText, 0, 0);
  for (const int page :
       {PageNumber::Journey, PageNumber::Rashifala, PageNumber::MoonTransits, PageNumber::FinancialAnalysis, PageNumber::YogaResults,
        PageNumber::SuryaYogaResults, PageNumber::TithiResult, PageNumber::NakshatraResult, PageNumber::WeekdayResult})
    AddRichText(page);
}

void frmMain::MakeKeys() {
  const auto key = [this](const QKeySequence &sequence, auto action) {
    connect(new QShortcut(sequence, this), &QShortcut::activated, this, action);
  };
  key(QKeySequence::Print, [this] { OpenPrint(); });
  key(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P), [this] { PrintPage(); });
  key(QKeySequence::Save, [this] { SavePageAsPdf(); });
  key(QKeySequence(Qt::Key_F1), [this] { OpenHelp(); });
  key(QKeySequence(Qt::ALT | Qt::Key_Left), [this] { pages->GoBack(); });
  key(QKeySequence(Qt::Key_F5), [this] { pages->ShowAgain(); });
  key(QKeySequence(Qt::CTRL | Qt::Key_K), [this] { OpenPeople(); });
  key(QKeySequence(Qt::CTRL | Qt::Key_D), [this] { OpenDate(); });
  key(QKeySequence(Qt::ALT | Qt::Key_Home), [this] { pages->ShowPage(PageNumber::TodayOverview); });
  key(QKeySequence(Qt::CTRL | Qt::Key_Left), [this] { ChangeMoment(session->AnalysisMoment().addDays(-1)); });
  key(QKeySequence(Qt::CTRL | Qt::Key_Right), [this] { ChangeMoment(session->AnalysisMoment().addDays(1)); });
}

// --- loading ----------------------------------------------------------------------------------------------------------

void frmMain::Load() {
  OpenDatabases();
  MakePages();
  LoadLanguages();
  SelectLanguage();
  CheckAyanamsha();
  SelectLastPerson();
  BuildDay(clock());
  StoresChanged();
  ShowPersonHeader();
  ChangeMouseIcons();
  PlaceContent();
  pages->ShowPage(PageNumber::TodayOverview);
}

void frmMain::OpenDatabases() {
  SelvaniDailyMod::Stores stores;
  StoreRescue rescue(boxes);
  stores.personDb = rescue.Open(paths.RecosPath());
  stores.dailyDb = rescue.Open(paths.DailyPath());
  try {
    if (stores.personDb) PlacesUpgrade::Apply(*stores.personDb, paths.Ephe(QStringLiteral("COMMON/PLACES.DAT")));
  } catch (const Error &error) {
    // The places of an earlier version go on serving.
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
  session = std::make_unique<SelvaniDailyMod>(settings, stores, [this](const QString &name) {
    try {
      ini.WriteIniString(QStringLiteral("LastPerson"), name);
    } catch (const StoreError &error) {
      Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
    }
  });
}

void frmMain::LoadLanguages() {
  languages.clear();
  cmbLang->clear();
  std::vector<LanguageRow> offered;
  try {
    offered = OfferedLanguages(paths);
  } catch (const StoreError &error) {
    // The list is damaged, the words need not be: they serve in the sizes of the program's own screens.
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
    LanguageRow own = ShellFonts().Language();
    own.Name = QStringLiteral("English");
    own.Directory = QStringLiteral("ENGLISH");
    own.Include = true;
    offered.push_back(own);
  }
  for (LanguageRow &language : offered) {
    cmbLang->addItem(language.Name);
    languages.push_back(std::move(language));
  }
}

void frmMain::SelectLanguage() {
  if (languages.empty()) {
    // No language is offered: the words' own warning tells why, and the pages stay empty.
    OpenLanguageDb(paths, QStringLiteral("ENGLISH"));
    return;
  }
  bool isIndex = false;
  const int index = ini.GetIniString(QStringLiteral("SelLang"), QStringLiteral("0")).toInt(&isIndex);
  const int chosen = isIndex && index >= 0 && index < cmbLang->count() ? index : 0;
  cmbLang->setCurrentIndex(chosen);
  OnLanguageChosen(chosen);
}

void frmMain::OnLanguageChosen(int index) {
  if (index < 0 || index >= static_cast<int>(languages.size())) return;
  const LanguageRow &language = languages[static_cast<size_t>(index)];
  fonts = SetFonts(language);
  pages->SetFontsOf(fonts);
  std::shared_ptr<TextDb> words;
  try {
    words = OpenLanguageDb(paths, language.Directory);
  } catch (const StoreError &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
  if (!words) return;
  try {
    ini.WriteIniString(QStringLiteral("SelLang"), QString::number(index));
  } catch (const StoreError &error) {
    // The choice holds for this run.
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
  session->ChangeLanguage(words);
  if (session->HasAnalysis()) {
    ShowMoment();
    pages->ShowAgain();
  }
}

void frmMain::SelectLastPerson() {
  try {
    // Once a person is shown, it is that one: the configuration may name the choice of another window by now.
    const bool isShown = session->HasPerson() && !sampleShown;
    const QString last = isShown ? session->BirthChart().clsPerson().Name() : ini.GetIniString(QStringLiteral("LastPerson"), QString());
    if (session->LoadLastPerson(last)) {
      sampleShown = false;
      return;
    }
  } catch (const Error &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
  if (session->HasPerson() && !sampleShown) return;
  sampleShown = true;
  session->SetBirthPerson(SamplePerson());  // again after a change of settings too, which the birth chart has to follow
}

// No chart can be calculated with a custom ayanamsha that is no angle: told once and not of each birth, it leaves a screen to mend it on.
void frmMain::CheckAyanamsha() {
  if (settings.IntValue(SettingKeys::AyanType) != SettingKeys::CustomAyanType) return;
  try {
    TextToDegrees(settings.Value(SettingKeys::CustAyan), tr("custom ayanamsha of the settings"));
  } catch (const ConversionError &error) {
    const auto tell = [](const QString &words) { Notices::Show({Notice::Kind::Warning, QString(), words}); };
    tell(tr("%1 The usual ayanamsha holds until you choose another.").arg(error.Sentence()));
    try {
      settings.SetValue(SettingKeys::AyanType, QLatin1String(SettingKeys::AyanType.fallback));
    } catch (const StoreError &notKept) {
      tell(notKept.Sentence());
    }
  }
}

// A residence that cannot be used must keep neither the day from the window nor the user from the screen on which it is mended.
void frmMain::BuildDay(const QDateTime &moment) {
  try {
    session->BuildAnalysis(moment);
    toldResidence.clear();
  } catch (const Error &error) {
    session->BuildAnalysisAtBirthPlace(moment);  // where the moment itself is at fault, that is what is told
    if (std::exchange(toldResidence, error.Sentence()) == error.Sentence()) return;
    Notices::Show({Notice::Kind::Warning, QString(), tr("%1 The day is shown for the birth place.").arg(error.Sentence())});
  }
}

void frmMain::ChangeMouseIcons() {
  for (ImageButton *button : findChildren<ImageButton *>()) button->SetMousePointer(99);
}

// --- what the header tells ------------------------------------------------------------------------------------------------

void frmMain::ShowPersonHeader() {
  const PersonHeader lines = session->ShowPersonHeader();
  personCard->Main()->setText(lines.lblPersonName);
  personCard->Second()->setText(lines.lblBDate);
  dateCard->Second()->setText(lines.lblNowIn);
  QFont mainLine = fonts.NormalFont();
  mainLine.setBold(true);
  personCard->Main()->setFont(mainLine);
  dateCard->Main()->setFont(mainLine);
  QFont shortLine = fonts.SmallFont();
  shortLine.setBold(true);
  for (HeaderCard *card : {personCard, dateCard}) card->Main()->SetShortFont(shortLine);
  fonts.SetSmallFont(*personCard->Second());
  fonts.SetSmallFont(*dateCard->Second());
  fonts.SetSmallFont(*lblHint);
  ShowMoment();
}

void frmMain::ShowMoment() {
  if (!session->OpenStores().words) return;  // that there are none has been told, and nothing here goes without them
  try {
    dateCard->Main()->setText(session->NowInfo());
    nowCard->Fill(FillNowCard(session->TodayChart()));
  } catch (const Error &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
}

// A step that fails can have changed a part already: a residence that cannot be used leaves the day's chart as it was, beside the new
// birth. So what there is is shown either way.
void frmMain::ShowAfter(const std::function<void()> &step) {
  try {
    step();
  } catch (const Error &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
  ShowPersonHeader();
  pages->ShowAgain();
}

void frmMain::ChangePerson(const QString &name) {
  ShowAfter([&] {
    if (session->LoadPerson(name)) BuildDay(clock());
  });
}

void frmMain::ChangeMoment(const QDateTime &moment) {
  ShowAfter([&] { BuildDay(moment); });
}

void frmMain::CalculateAnew() {
  ShowAfter([this] {
    SelectLastPerson();
    BuildDay(session->AnalysisMoment());
  });
}

// --- actions --------------------------------------------------------------------------------------------------------------

void frmMain::OnNavigation(const QString &name) {
  if (name == QLatin1String("fflpHome")) pages->ShowPage(PageNumber::TodayOverview);
  if (name == QLatin1String("flpCharts")) pages->ShowPage(PageNumber::ChartList);
  if (name == QLatin1String("flpPredictions")) pages->ShowPage(PageNumber::PredictionList);
  if (name == QLatin1String("flpPerson")) OpenPersonManager();
  if (name == QLatin1String("flpStudy")) pages->ShowPage(PageNumber::StudyList);
  if (name == QLatin1String("flpCredits")) pages->ShowPage(PageNumber::Credits);
  if (name == QLatin1String("flpSettings")) OpenSettings();
  if (name == QLatin1String("flpWebsite")) OpenWebsite();
  if (name == QLatin1String("flpHelp")) OpenHelp();
  if (name == QLatin1String("flpPrint")) OpenPrint();
  if (name == QLatin1String("flpExit")) AskExit();
}

void frmMain::OpenPeople() {
  if (!session->OpenStores().personDb) {
    Notices::Show({Notice::Kind::Warning, QString(), tr("The store of persons is not open, so there is nobody to choose.")});
    return;
  }
  frmPeople people(this);
  connect(&people, &frmPeople::ManagePersons, this, &frmMain::OpenPersonManager, Qt::QueuedConnection);
  people.Fill(*session->OpenStores().personDb);
  people.SetCurrent(session->BirthChart().clsPerson().Name());
  connect(&people, &frmPeople::Chosen, this, &frmMain::ChangePerson);
  people.OpenBelow(*personCard->Button());
  people.exec();
}

// The manager's current person becomes the session's; the moment of the former session is kept.
void frmMain::OpenPersonManager() {
  const std::shared_ptr<Database> &persons = session->OpenStores().personDb;
  if (!persons) {
    Notices::Show({Notice::Kind::Warning, QString(), tr("The store of persons is not open, so there is nobody to edit.")});
    return;
  }
  try {
    frmManageUsers manager(persons, paths.DailyPath(), this);
    manager.ChoosePerson(session->BirthChart().clsPerson().Name());
    connect(&manager, &frmManageUsers::CityListWanted, this, &frmMain::OpenOptions);
    connect(&manager, &frmManageUsers::Closed, this, [this](const QString &name) {
      ShowAfter([&] {
        session->LoadPerson(name);
        BuildDay(session->AnalysisMoment());
      });
    });
    manager.exec();
  } catch (const Error &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
}

void frmMain::OpenOptions() {
  const std::shared_ptr<Database> &persons = session->OpenStores().personDb;
  if (!persons) return;
  FollowOthers();
  frmEditLongLat options(persons, settings, ini, this);
  connect(&options, &frmEditLongLat::CalculationChanged, this, &frmMain::CalculateAnew);
  options.exec();
}

void frmMain::OpenDate() {
  frmDate date(clock, this);
  date.SetMoment(session->AnalysisMoment());
  connect(&date, &frmDate::Chosen, this, &frmMain::ChangeMoment);
  date.OpenBelow(*dateCard->Button());
  date.exec();
}

void frmMain::OpenSettings() {
  FollowOthers();
  frmSettings wizard(settings, ini, this);
  wizard.exec();
  CalculateAnew();  // after Cancel too: what Finish could not keep holds for this run
}

void frmMain::OpenPrint() {
  if (languages.empty()) return;
  DailyReport report(*session, paths, fonts.Language(), Maker::WebAddress);
  frmDayPrint topics(report, this);
  topics.SetProgress([this](frmDayPrint::Target target) { return std::make_unique<StatusProgress>(target, this); });
  topics.exec();
}

void frmMain::SavePageAsPdf() {
  QString name = QStringLiteral("%1 %2.pdf").arg(session->BirthChart().clsPerson().Name(), lblMainChartName->text());
  name.replace(QRegularExpression(QStringLiteral("[\\\\/:*?\"<>|]")), QStringLiteral("-"));
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString file = chooseFile(QDir(folder).filePath(name));
  if (file.isEmpty()) return;
  try {
    PageExport::SavePdf(*pages->CurrentWidget(), file, session->BirthChart().clsPerson().Name(), Maker::WebAddress);
    lblHint->setText(tr("The page is saved as %1").arg(QDir::toNativeSeparators(file)));
  } catch (const Error &error) {
    Notices::Show({Notice::Kind::Warning, Maker::Title, error.Sentence()});
  }
}

void frmMain::PrintPage() {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog choice(&printer, this);
  choice.setWindowTitle(tr("Print this page"));
  if (choice.exec() == QDialog::Accepted) PageExport::Print(*pages->CurrentWidget(), printer);
}

void frmMain::OpenDashaTree() {
  frmPratyan tree(this);
  tree.FindPratyantara(session->BirthChart(), session->AnalysisMoment());
  tree.exec();
}

void frmMain::OpenHelp() { pages->ShowPage(PageNumber::Help); }

void frmMain::OpenWebsite() { openAddress(QUrl(Maker::WebAddress)); }

void frmMain::AskExit() {
  if (boxes.Ask(tr("Exit ") + Maker::Title + QLatin1Char('?'), tr("Do you really want to exit?"))) endProgram();
}

void frmMain::OnPageShown(int page) { navigation->Mark(SectionOf(page)); }

// --- the window -------------------------------------------------------------------------------------------------------------

// Closing keeps the place and only asks: the question alone ends the program.
void frmMain::closeEvent(QCloseEvent *event) {
  event->ignore();
  try {
    SavePosition();
  } catch (const Error &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
  AskExit();
}

void frmMain::SavePosition() {
  if (isMinimized()) return;
  std::vector<UserSettings::Change> changes{{SettingKeys::WindowState, isMaximized() ? 2 : 0}};
  if (!isMaximized() && !isFullScreen())
    changes.insert(
        changes.end(),
        {{SettingKeys::TopPos, y()}, {SettingKeys::LeftPos, x()}, {SettingKeys::Width, width()}, {SettingKeys::Height, height()}});
  settings.SetAll(changes);
}

bool frmMain::event(QEvent *event) {
  if (event->type() == QEvent::WindowActivate) FollowOthers();
  return QMainWindow::event(event);
}

// Another window may have changed this person, a place or a setting meanwhile: what is shown follows.
void frmMain::FollowOthers() {
  if (!session || !session->HasAnalysis()) return;
  try {
    const bool isOfOtherSettings = settings.Refresh();
    followDue = StoresChanged() || isOfOtherSettings || followDue;
    if (!followDue) return;
    if (sampleShown) {
      SelectLastPerson();  // the first person that another window adds
    } else if (!session->ReloadPerson()) {
      followDue = false;
      lblHint->setText(tr("%1 is no longer in the list of persons.").arg(session->BirthChart().clsPerson().Name()));
      return;
    }
    BuildDay(session->AnalysisMoment());
    followDue = false;
  } catch (const Error &) {
    return;  // tried again at the next return to the window, where a box would come again and again
  }
  ShowPersonHeader();
  pages->ShowAgain();
}

bool frmMain::StoresChanged() {
  const auto version = [](const std::shared_ptr<Database> &store) { return store ? store->DataVersion() : 0; };
  const std::pair now(version(session->OpenStores().personDb), version(session->OpenStores().dailyDb));
  return std::exchange(seenStores, now) != now;
}

void frmMain::resizeEvent(QResizeEvent *event) {
  QMainWindow::resizeEvent(event);
  PlaceContent();
}

void frmMain::PlaceContent() {
  const QSize inner = centralWidget()->size();
  const QRect content = contentManager::ContentRect(inner);
  // The header ends above the content, and the left column beside it.
  const int left = std::max(206, static_cast<int>(inner.width() * 0.3125) - 2 * Grid::Margin);
  leftColumn->setFixedWidth(std::min(left, 400));
  header->findChild<QWidget *>(QStringLiteral("brand"))->setFixedWidth(leftColumn->width());
  header->setFixedHeight(std::clamp(content.top() - 2 * Grid::Margin, 112, 160));
  // The moment is the longer text: on a narrow screen it takes more than its half.
  cards->setStretchFactor(dateCard, inner.width() < 1000 ? 7 : 5);
  nowCard->SetDial(inner.height() < 700              ? NowCard::Dial::Hidden
                   : leftColumn->width() >= 330      ? NowCard::Dial::Beside
                   : inner.height() >= LeastForAbove ? NowCard::Dial::Above
                                                     : NowCard::Dial::Hidden);
  if (!largeChart) return;
  centralWidget()->layout()->activate();
  const QRect inHost(host->mapFrom(centralWidget(), content.topLeft()), content.size());
  largeChart->SetChartRect(inHost);
  richText->SetTextRect(inHost);
}

void frmMain::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Escape)
    close();
  else
    QMainWindow::keyPressEvent(event);
}
