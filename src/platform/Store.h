// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

// All of the store: a database file, its recordsets, and transactions over them.
#include "platform/Database.h"
#include "platform/Recordset.h"
#include "platform/Transaction.h"
