// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// LANGS.Dat, the list of languages: brought in line with the text files at start, then read by both programs.
#include "content/Languages.h"
#include "fuzz/Fuzz.h"
#include "fuzz/FuzzFolder.h"
#include "platform/DataFiles.h"
#include "platform/Errors.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  FuzzFolder &folder = FuzzFolder::Only();
  folder.Begin("COMMON/LANGS.Dat", content);
  try {
    DataFiles::CheckLanguages(folder.Paths());
    for (const LanguageRow &language : OfferedLanguages(folder.Paths())) {
      Require(DataFiles::LanguageFileExists(folder.Paths(), language.Directory), "a language that is offered has its texts");
      Require(FindLanguage(folder.Paths(), language.Name).has_value(), "a language that is offered is found by its name");
    }
  } catch (const StoreError &error) {
    Require(!error.Sentence().isEmpty(), "the fault has a sentence");
    Require(FuzzFolder::Read(folder.File("COMMON/LANGS.Dat")) == content, "a store that is refused is left as it is");
  }
  folder.RunDaily(content);
  return 0;
}
