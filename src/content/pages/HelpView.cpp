// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/HelpView.h"

#include <QTextBrowser>
#include <QTextFrame>
#include <QVBoxLayout>
#include <algorithm>

#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/PageScroll.h"
#include "platform/Errors.h"
#include "platform/FileTools.h"

namespace {

constexpr int Measure = 75;  // characters a line

QString Sheet() {
  const Theme &theme = Theme::Current();
  return QStringLiteral(
             "h1 { color: %1; } h2 { color: %1; margin-top: 22px; } a { color: %1; } p, li { line-height: 140%; }"
             "td { padding: 4px 18px 4px 0; } .key { font-weight: bold; } .muted { color: %2; }")
      .arg(theme.chart.maroon.name(), theme.chart.muted.name());
}

}  // namespace

HelpView::HelpView(const QString &path, QWidget *parent) : PageView(parent), file(path), browser(new QTextBrowser) {
  setObjectName(QStringLiteral("picHelp"));
  browser->setObjectName(QStringLiteral("txtHelp"));
  browser->setAccessibleName(tr("Help"));
  const ChartPalette &colours = Theme::Current().chart;
  browser->setStyleSheet(QStringLiteral("QTextBrowser { background: %1; border: 1px solid %2; border-radius: %3px; }"
                                        "QTextBrowser:focus { border: 2px solid %4; padding: 4px 7px; }")
                             .arg(colours.card.name(), colours.line.name(), QString::number(Grid::CardRadius), colours.saffron.name()));
  browser->setOpenExternalLinks(false);
  browser->setTabChangesFocus(false);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(PageScroll::Ring, PageScroll::Ring, PageScroll::Ring, PageScroll::Ring);
  layout->addWidget(browser);
}

void HelpView::Fill(SelvaniDailyMod &) { Load(); }

void HelpView::Load() {
  browser->document()->setDefaultStyleSheet(Sheet());
  try {
    browser->setHtml(QString::fromUtf8(ReadWholeFile(file)));
  } catch (const StoreError &) {
    browser->setPlainText(tr("The help file '%1' is missing. Please re-install the program.").arg(file));
  }
  FitMeasure();
}

void HelpView::ApplyFonts(const SetFonts &fonts) {
  browser->setFont(fonts.NormalFont());
  FitMeasure();
}

void HelpView::resizeEvent(QResizeEvent *event) {
  PageView::resizeEvent(event);
  FitMeasure();
}

// A line much longer than the measure is hard to come back from: what is left over goes to the margins.
void HelpView::FitMeasure() {
  const int measure = browser->fontMetrics().averageCharWidth() * Measure;
  QTextFrame *page = browser->document()->rootFrame();
  QTextFrameFormat format = page->frameFormat();
  format.setTopMargin(Grid::Gap);
  format.setBottomMargin(Grid::Margin);
  format.setLeftMargin(std::max(Grid::Margin, (width() - measure) / 2));
  format.setRightMargin(format.leftMargin());
  page->setFrameFormat(format);
}
