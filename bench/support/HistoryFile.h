#pragma once

#include "HistoryData.h"

#include <functional>

namespace bench {

// Writes a new history file at `path` with `count` records in one
// transaction. Record i is called every 317 s from 1 January 2023, 08:00,
// hidden when i is odd; `describe` fills in its names and number.
void populateHistory(const QString &path, int count, const std::function<void(int i, HistoryData &record)> &describe);
// How many records the history file at `path` holds, read by a store of its own.
qsizetype storedHistoryCount(const QString &path);

} // namespace bench
