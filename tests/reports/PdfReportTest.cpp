// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Real PDFs, read back by another program; and the screens that ask for them.
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "platform/FileTools.h"
#include "platform/ReportError.h"
#include "reports/PdfWords.h"
#include "reports/ReportFixture.h"
#include "reports/frmDayPrint.h"
#include "reports/frmPratyan.h"

namespace {

class PdfReportTest : public ReportFixture {
 protected:
  QString File(const char *name) const { return data.Path() + QLatin1Char('/') + QLatin1String(name); }
};

TEST_F(PdfReportTest, WordsStandOnBothPapersWhereTheyBelong) {
  for (const QPageSize::PageSizeId paper : {QPageSize::A4, QPageSize::Letter}) {
    const QString file = File("report.pdf");
    const QSizeF points = QPageSize(paper).sizePoints();
    ASSERT_TRUE(Report().SavePdf(file, ReportTopics::Usual(), nullptr, QPageSize(paper)));
    int page = 0, generated = 0;
    for (const PdfWord &word : WordsOf(file)) {
      page = word.page;
      EXPECT_GT(word.place.left(), 36) << word.text.toStdString();
      EXPECT_LT(word.place.right(), points.width() - 12) << word.text.toStdString() << " on page " << page;
      EXPECT_LT(word.place.bottom(), points.height() - 24);
      if (word.text != QLatin1String("Generated")) continue;
      ++generated;
      // 1400 twips from the left, 370 fewer on the dasha page, 100 more after running text; 9.3 inches and 80 twips down.
      const double left = page == 5 ? 51.5 : page > 6 ? 75 : 70;
      EXPECT_NEAR(word.place.left(), left, 0.5);
      EXPECT_NEAR(word.place.top(), (1440 + 9.3 * 1440 + 80) / 20, 1);
    }
    EXPECT_GE(page, 6);
    EXPECT_EQ(generated, page);
  }
  const QString info = OutputOf("pdfinfo", {File("report.pdf")});
  for (const char *line : {"Author:          Brivanta Works", "Subject:         Astrology Chart", "Keywords:        Indian astrology;"})
    EXPECT_TRUE(info.contains(QLatin1String(line))) << line;
  for (const QString &font : OutputOf("pdffonts", {File("report.pdf")}).split('\n').mid(2))
    EXPECT_TRUE(font.isEmpty() || font.contains(QRegularExpression("yes (yes|no ) yes"))) << font.toStdString();
}

TEST_F(PdfReportTest, AStoppedOrFailedFileLeavesTheOldOne) {
  const QString file = File("report.pdf");
  WriteWholeFile(file, "old");
  struct Stop : ReportProgress {
    bool Step(int done, int) override { return done < 2; }
  } stop;
  EXPECT_FALSE(Report().SavePdf(file, ReportTopics::Usual(), &stop));
  EXPECT_EQ(ReadFileIfAny(file), "old");
  QFile::remove(data.File("COMMON\\trishul.jpg"));
  EXPECT_THROW(Report().SavePdf(file, ReportTopics::Usual()), ReportError);
  EXPECT_EQ(ReadFileIfAny(file), "old");
  EXPECT_THROW(Report().SavePdf(data.Path(), ReportTopics::FromKeys({"Rashifala"})), StoreError);
  EXPECT_THROW(Report().SavePdf(QStringLiteral("/dev/full/report.pdf"), ReportTopics::FromKeys({"Rashifala"})), StoreError);
  // Nothing ticked is an empty document.
  ASSERT_TRUE(Report().SavePdf(file, ReportTopics()));
  EXPECT_TRUE(OutputOf("pdfinfo", {file}).contains(QRegularExpression("Pages: +1")));
}

TEST_F(PdfReportTest, TopicsFollowTheirRootAndTheRootStays) {
  DailyReport report = Report();
  int printed = 0, asked = 0;
  QStringList told;
  bool printer = true, fails = false, stops = false;
  frmDayPrint::Services services;
  services.hasPrinter = [&] { return printer; };
  services.print = [&](const ReportTopics &topics) {
    if (fails) throw ReportError(QStringLiteral("The printer is gone."));
    if (stops) return false;
    ++printed;
    EXPECT_FALSE(topics.Has("Journey"));
    EXPECT_TRUE(topics.Has("Rashifala"));
    return true;
  };
  services.askFile = [&](const QString &suggested) {
    EXPECT_TRUE(suggested.endsWith("Anvik Telvar 2026-11-21.pdf"));
    return File("saved.pdf");
  };
  services.offerPdf = [&](const QString &question) {
    told << question;
    return ++asked > 0;
  };
  services.tell = [&](const QString &sentence, bool bad) {
    told << sentence;
    EXPECT_FALSE(bad) << sentence.toStdString();
  };
  frmDayPrint form(report, services);
  auto *tree = form.findChild<QTreeWidget *>("tvwPrint");
  QTreeWidgetItem *root = tree->topLevelItem(0);
  ASSERT_EQ(root->childCount(), 12);
  for (int i = 0; i < 12; ++i) EXPECT_EQ(root->child(i)->checkState(0), Qt::Checked);
  QTreeWidgetItem *study = tree->topLevelItem(1);
  ASSERT_EQ(study->childCount(), 7);
  EXPECT_EQ(form.Topics(), ReportTopics::Usual());
  root->child(8)->setCheckState(0, Qt::Unchecked);
  EXPECT_EQ(root->checkState(0), Qt::Checked);
  form.show();
  stops = true;
  QTest::mouseClick(form.findChild<QPushButton *>("cmdPrint"), Qt::LeftButton);
  EXPECT_TRUE(form.isVisible()) << "a print that was stopped leaves the topics there";
  stops = false;
  QTest::mouseClick(form.findChild<QPushButton *>("cmdPrint"), Qt::LeftButton);
  EXPECT_EQ(printed, 1);
  EXPECT_FALSE(form.isVisible());

  root->setCheckState(0, Qt::Unchecked);
  EXPECT_FALSE(form.Topics().HasPrediction());
  root->setCheckState(0, Qt::Checked);
  EXPECT_TRUE(form.Topics().Has("Journey"));
  EXPECT_EQ(form.Topics(), ReportTopics::FromKeys({"main"}));
  study->setCheckState(0, Qt::Checked);
  study->child(3)->setCheckState(0, Qt::Unchecked);
  EXPECT_EQ(form.Topics(),
            ReportTopics::FromKeys({"Main", "DivisionalCharts", "ashtakavarga", "Upagrahas", "BirthAttributes", " DayScores", "Vakya"}));
  root->setCheckState(0, Qt::Checked);
  study->setCheckState(0, Qt::Unchecked);

  // Without a printer, and when one vanishes, the PDF is offered.
  for (const bool any : {false, true}) {
    printer = any;
    fails = true;
    QFile::remove(File("saved.pdf"));
    form.show();
    form.Print();
    EXPECT_TRUE(ReadFileIfAny(File("saved.pdf")).startsWith("%PDF"));
    EXPECT_FALSE(form.isVisible());
  }
  EXPECT_TRUE(told[0].startsWith("No printer is installed"));
  EXPECT_TRUE(told[2].startsWith("The printer is gone."));
}

TEST_F(PdfReportTest, TheDashaTreeMarksWhatRuns) {
  frmPratyan form;
  form.FindPratyantara(session.BirthChart(), session.AnalysisMoment());
  QStringList running;
  const std::vector<PratyanPeriod> *level = &form.Tree().Periods();
  for (int depth = 0; depth < 3; ++depth) {
    ASSERT_EQ(level->size(), 9u);
    const PratyanPeriod *found = nullptr;
    for (size_t i = 0; i < level->size(); ++i) {
      if ((*level)[i].running) found = &(*level)[i];
      EXPECT_TRUE(i == 0 || (*level)[i].begin == (*level)[i - 1].end);
    }
    ASSERT_TRUE(found);
    running << QString::number(found->lord);
    EXPECT_TRUE(found->parts.empty() || found->parts[0].begin == found->begin);
    level = &found->parts;
  }
  EXPECT_TRUE(session.DashaCalc().CalcCurrentDasha(session.BirthChart()).startsWith(running.join(':') + ':'));
  form.show();
  auto *tree = form.findChild<QTreeWidget *>("tvwPratyan");
  EXPECT_EQ(tree->currentItem()->text(3), "running");
  EXPECT_TRUE(tree->viewport()->rect().intersects(tree->visualItemRect(tree->currentItem())));
}

}  // namespace
