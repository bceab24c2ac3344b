// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/DetailRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/Colours.h"
#include "ui/SampleDocument.h"

namespace clipvane {
namespace {

using testing::ElementsAre;

TEST(DetailRows, NothingSelected_ElevenDashesButTheRatesSource) {
    const TimelineDocument document;
    EXPECT_EQ(detailTitle(document, std::nullopt), "No event selected");
    EXPECT_THAT(
        detailRows(document, std::nullopt),
        ElementsAre(DetailRow{"Clip Name", "-"}, DetailRow{"Reel ID", "-"}, DetailRow{"Track", "-"},
                    DetailRow{"Source In", "-"}, DetailRow{"Source Out", "-"},
                    DetailRow{"Source Dur", "-"}, DetailRow{"Record In", "-"},
                    DetailRow{"Record Out", "-"}, DetailRow{"Record Dur", "-"},
                    DetailRow{"FPS Source", "Default"}, DetailRow{"Format", "-"}));
}

TEST(DetailRows, EventSelected_ItsFieldsAndDurations) {
    TimelineDocument document;
    document.events = test::numberedEvents(2);
    document.fps = 25;
    document.fpsSource = "File";
    EXPECT_EQ(detailTitle(document, 1), "Event 002: Clip 002");
    EXPECT_THAT(
        detailRows(document, 1),
        ElementsAre(DetailRow{"Clip Name", "Clip 002"}, DetailRow{"Reel ID", "R002"},
                    DetailRow{"Track", "V"}, DetailRow{"Source In", "01:00:00:00"},
                    DetailRow{"Source Out", "01:00:04:00"},
                    DetailRow{"Source Dur", "00:00:04:00 (100 frames)"},
                    DetailRow{"Record In", "02:00:00:00"}, DetailRow{"Record Out", "02:00:04:00"},
                    DetailRow{"Record Dur", "00:00:04:00 (100 frames)"},
                    DetailRow{"FPS Source", "File"}, DetailRow{"Format", "EDL"}));
}

TEST(DetailRows, StaleRow_AsWithoutSelection) {
    TimelineDocument document;
    document.events = test::numberedEvents(2);
    EXPECT_EQ(detailRows(document, 2), detailRows(document, std::nullopt));
    EXPECT_EQ(detailTitle(document, 2), "No event selected");
}

TEST(DetailColour, FollowsTheKey) {
    for (const auto key : {"Source In", "Source Out", "Source Dur"}) {
        EXPECT_EQ(detailColour(key), colours::rgb(1.0, 0.84, 0.52)) << key;
    }
    for (const auto key : {"Record In", "Record Out", "Record Dur"}) {
        EXPECT_EQ(detailColour(key), colours::rgb(0.96, 0.65, 0.72)) << key;
    }
    EXPECT_EQ(detailColour("Reel ID"), colours::rgb(0.75, 0.92, 0.7));
    for (const auto key : {"FPS", "FPS Source"}) {
        EXPECT_EQ(detailColour(key), colours::rgb(0.62, 0.82, 1.0)) << key;
    }
    for (const auto key : {"Clip Name", "Track", "Format", "anything"}) {
        EXPECT_EQ(detailColour(key), QColor(255, 255, 255)) << key;
    }
}

}  // namespace
}  // namespace clipvane
