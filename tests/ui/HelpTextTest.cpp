// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/HelpText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace clipvane {
namespace {

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines{{}};
    for (const char c : text) {
        if (c == '\n') {
            lines.emplace_back();
        } else {
            lines.back() += c;
        }
    }
    return lines;
}

TEST(HelpText, LineByLine) {
    const std::vector<std::string> expected{
        "Clipvane",
        "",
        "Instructions",
        "",
        "1. Click Open Timeline and choose an EDL, XML, FCPXML, or XMEML file.",
        "2. The app reads timeline FPS from the file when available. If no FPS is found, "
        "it uses 24 fps as the reference.",
        "3. Review all timeline events in the Event Viewer on the left.",
        "4. Use the Global FPS dropdown in the top bar to convert the loaded event list "
        "to a standard frame rate.",
        "5. Select an event to see clip name, reel ID, source timecodes, record "
        "timecodes, calculated durations, FPS source, track, and format on the right.",
        "6. Source and record timecodes, duration calculations, Copy Info, CSV export, "
        "and EDL export use the selected global FPS.",
        "7. Add or edit comments for the selected event in the Comments field.",
        "8. Use Copy Info to copy the selected event details, FPS, durations, and "
        "comments.",
        "9. Use Remove Event to remove the selected event from the active export list.",
        "10. Export CSV for a spreadsheet report containing event details, FPS, "
        "durations, and comments.",
        "11. Export EDL to create a new edited EDL event list from the remaining events.",
        "",
        "Notes",
        "",
        "Import supports EDL, XML, FCPXML, and XMEML files. Export currently supports CSV"
        " reports and edited EDL files. FPS is detected from common file metadata such as"
        " frame rate, timebase, and FCPXML frameDuration values when available. AAF is "
        "not included because reliable AAF support requires dedicated interchange "
        "libraries.",
        ""};
    const auto lines = linesOf(helpText());
    ASSERT_EQ(lines.size(), 22U);
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(lines[i], expected[i]) << i + 1;
    EXPECT_FALSE(lines[20].empty());
    EXPECT_FALSE(lines[21].empty());
    EXPECT_EQ(helpText().find("http"), std::string_view::npos);
}

}  // namespace
}  // namespace clipvane
