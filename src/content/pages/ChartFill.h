// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

class Kundali;
class UserSettings;
struct KundaliPage;

// Fills a chart control from a page: cleared, in the user's style, houses numbered, planets placed in their order.
void FillChart(Kundali &chart, const KundaliPage &page, const UserSettings &settings);
