// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/DocumentInfo.h"

// What every PDF of this program tells about itself.
inline DocumentInfo PdfDocumentInfo(const QString &makerAddress) {
  const QString title = QStringLiteral("Orvani");
  return {
      title, QStringLiteral("Brivanta Works"), QStringLiteral("Astrology Chart"),
      QStringLiteral("Indian astrology;Astrology;Muhurtha;Electional Astrology;Tarnok;Horoscope;Kundli;Vedic Astrology;Brivanta Soft;%1;"
                     "Jyotish")
          .arg(makerAddress)};
}
