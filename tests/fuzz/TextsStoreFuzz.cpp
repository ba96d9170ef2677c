// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// ENGLISH.DAT, the words and texts: every answer of orvani-daily is made from them, and the file is only read.
#include "fuzz/Fuzz.h"
#include "fuzz/FuzzFolder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  FuzzFolder &folder = FuzzFolder::Only();
  folder.Begin("ENGLISH/ENGLISH.DAT", content);
  DailyOptions texts;
  texts.form = DailyOptions::Form::Read;
  folder.RunDaily(texts);
  folder.RunDaily(content);
  Require(FuzzFolder::Read(folder.File("ENGLISH/ENGLISH.DAT")) == content, "the texts are only read");
  return 0;
}
