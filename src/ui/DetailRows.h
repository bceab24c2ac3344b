// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <clipvane/TimelineDocument.h>

namespace clipvane {

/// A line of the detail panel.
struct DetailRow {
    std::string_view key;
    std::string value;

    bool operator==(const DetailRow&) const = default;
};

/// The eleven lines for the event at `row`; with no such event, what an empty panel shows.
std::vector<DetailRow> detailRows(const TimelineDocument& document, std::optional<std::size_t> row);

/// "Event 001: A001_C001", or "No event selected".
std::string detailTitle(const TimelineDocument& document, std::optional<std::size_t> row);

/// The colour of the value of the line named `key`.
QColor detailColour(std::string_view key);

}  // namespace clipvane
