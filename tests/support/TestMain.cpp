// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);  // the database drivers are plugins, which it finds
  return RUN_ALL_TESTS();
}
