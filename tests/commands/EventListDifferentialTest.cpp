// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// The list of rows must show, at every step of a session, what a plain list of records would: each
// session imports, comments, removes, converts, replaces and exports at random on both.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

#include <clipvane/CSVReport.h>
#include <clipvane/EditedEDL.h>
#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>
#include <clipvane/TimelineParser.h>
#include <clipvane/TimelineRate.h>
#include "judges/EDLJudge.h"
#include "judges/XMLJudge.h"
#include "support/Random.h"
#include "support/Records.h"
#include "support/Scale.h"

namespace clipvane::test {
namespace {

using namespace std::string_view_literals;

// What both import.

constexpr std::array timecodes{"01:00:00:00"sv, "00:00:00:01"sv,          "10:59:59:23"sv,
                               "99:59:59:24"sv, "98:99:99:99"sv,          "99:99:99:99"sv,
                               "00:00:00:00"sv, "\u0660\u0661:00:00:00"sv};
constexpr std::array oddTimecodes{"01:00:00;12"sv,  "1:2:3:4"sv,     ""sv,     "00:00:00:123456"sv,
                                  "100:00:00:00"sv, "00:00:-1:-5"sv, "none"sv, "01:02:03:04:x"sv};
constexpr std::array words{"001"sv,           "7"sv,      "AX"sv, "A012C003"sv, "V"sv,
                           "\u00C9t\u00E9"sv, "a&amp;b"sv};
constexpr std::array names{"* FROM CLIP NAME: Pier"sv, "* FROM CLIP NAME:"sv,
                           "from clip name: \u30C6\u30A4\u30AF"sv,
                           "* FROM CLIP NAME: say \"hi\""sv};
constexpr std::array otherLines{"* COMMENT: second, \"half\""sv, "M2 AX 025.0"sv, ""sv, "  *x"sv,
                                "FCM: DROP FRAME"sv};
constexpr std::array lineEnds{"\n"sv, "\n"sv, "\n"sv, "\r\n"sv, "\r"sv, "\u2028"sv, "\v"sv};

constexpr std::size_t longLength = 66'000;  // beyond what a row can tell

std::string anyEDL(Random& random) {
    std::string text;
    const std::string_view lineEnd = random.pick(lineEnds);
    for (std::size_t events = random.below(6); events > 0; --events) {
        text += std::string(random.oneIn(4) ? "\u0663" : random.pick(words)) + "1 ";
        text += std::string(random.pick(words)) + "  " + std::string(random.pick(words)) + " C";
        for (int i = 0; i < 4; ++i) text += " " + std::string(random.pick(timecodes));
        text += lineEnd;
        for (std::size_t lines = random.below(4); lines > 0; --lines) {
            text += random.oneIn(2) ? random.pick(names) : random.pick(otherLines);
            if (random.oneIn(300)) text += std::string(longLength, '*');
            text += random.oneIn(10) ? random.pick(lineEnds) : lineEnd;
        }
    }
    return text;
}

std::string attribute(const char* name, std::string_view value) {
    return std::string(" ") + name + "='" + std::string(value) + "'";
}

std::string anyTime(Random& random) {
    if (random.oneIn(3))
        return std::to_string(random.below(100'000)) + (random.oneIn(2) ? "s" : "");
    return std::string(random.oneIn(2) ? random.pick(timecodes) : random.pick(oddTimecodes));
}

std::string anyXML(Random& random) {
    std::string text = "<a>";
    for (std::size_t events = random.below(6); events > 0; --events) {
        const bool isEvent = random.oneIn(3);
        if (isEvent) {
            text += "<event" + attribute("number", random.pick(words));
            if (random.oneIn(2)) text += attribute("highlighted", "TRUE");
            text += "><source" + attribute("in", anyTime(random)) +
                    attribute("out", anyTime(random)) + "/>";
        } else {
            text += "<clip" + attribute("ref", random.pick(words));
            for (const char* name : {"start", "offset", "duration", "out", "end"}) {
                if (random.oneIn(2)) text += attribute(name, anyTime(random));
            }
            if (random.oneIn(2)) text += attribute("name", random.pick(words));
            if (random.oneIn(300)) text += attribute("track", std::string(longLength, 't'));
            text += ">";
        }
        if (random.oneIn(3)) text += "<comment>one\ntwo</comment>";
        text += isEvent ? "</event>" : "</clip>";
    }
    return text + "</a>";
}

// What the plain list exports.

std::string csvField(std::string_view text) {
    std::string field = "\"";
    for (const char c : text) field += c == '"' ? "\"\"" : std::string(1, c == '\n' ? ' ' : c);
    return field + "\"";
}

std::string plainCSV(const std::vector<TimelineEvent>& events, double fps) {
    std::string text =
        "Event,Clip Name,Reel ID,FPS,FPS Source,Source In,Source Out,Source Duration,Record In,"
        "Record Out,Record Duration,Track,Format,Highlighted,Comments\n";
    if (events.empty()) text += '\n';
    for (const TimelineEvent& e : events) {
        std::string row;
        for (const std::string& field :
             {e.eventNumber, e.clipName, e.reelID, formatFPS(fps), std::string("Default"),
              e.sourceIn, e.sourceOut, durationDisplay(e.sourceIn, e.sourceOut, fps), e.recordIn,
              e.recordOut, durationDisplay(e.recordIn, e.recordOut, fps), e.track, e.format,
              std::string(e.highlighted ? "Yes" : "No"), e.comments}) {
            row += (row.empty() ? "" : ",") + csvField(field);
        }
        text += row + "\n";
    }
    return text;
}

std::string plainEDL(const std::vector<TimelineEvent>& events) {
    std::string text = "TITLE: Clipvane Export\nFCM: NON-DROP FRAME\n";
    int number = 0;
    for (const TimelineEvent& e : events) {
        const std::string digits = std::to_string(++number);
        text += "\n" + std::string(3 - std::min<std::size_t>(3, digits.size()), '0') + digits;
        text += "  " + (e.reelID.empty() ? "AX" : e.reelID) + " " +
                (e.track.empty() ? "V" : e.track) + " C        " + e.sourceIn + " " + e.sourceOut +
                " " + e.recordIn + " " + e.recordOut + "\n* FROM CLIP NAME: " + e.clipName + "\n";
        if (e.comments.empty()) continue;
        std::string comment = e.comments;
        std::ranges::replace(comment, '\n', ' ');
        text += "* COMMENT: " + comment + "\n";
    }
    return text;
}

/// A document, and beside it what it would be with records for events.
class Session {
  public:
    explicit Session(Random& random) : random(random) { import(); }

    void step() {
        switch (random.below(8)) {
            case 0:
                import();
                break;
            case 1:
            case 2:
                comment();
                break;
            case 3:
                remove();
                break;
            case 4:
                convert();
                break;
            case 5:
                replace();
                break;
            case 6:
                document.events = EventList(document.events);
                break;
            default:
                askForIdentifiers();
        }
    }

    void check() const {
        ASSERT_EQ(document.events.size(), plain.size());
        std::size_t row = 0;
        for (const EventView& event : document.events) checkEvent(event, plain[row++]);
        EXPECT_EQ(csvText(document), plainCSV(plain, document.fps));
        EXPECT_EQ(edlText(document), plainEDL(plain));
    }

  private:
    static void checkEvent(const EventView& event, const TimelineEvent& expected) {
        EXPECT_EQ(event.eventNumber, expected.eventNumber);
        EXPECT_EQ(event.clipName, expected.clipName);
        EXPECT_EQ(event.reelID, expected.reelID);
        EXPECT_EQ(event.sourceIn, expected.sourceIn);
        EXPECT_EQ(event.sourceOut, expected.sourceOut);
        EXPECT_EQ(event.recordIn, expected.recordIn);
        EXPECT_EQ(event.recordOut, expected.recordOut);
        EXPECT_EQ(event.format, expected.format);
        EXPECT_EQ(event.track, expected.track);
        EXPECT_EQ(event.comments, expected.comments);
        EXPECT_EQ(event.highlighted, expected.highlighted);
        EXPECT_EQ(event.rawText(), expected.rawText);
        if (expected.id != UUID{}) {
            EXPECT_EQ(event.id(), expected.id);
        }
    }

    void import() {
        if (random.oneIn(2)) {
            const std::string text = anyEDL(random);
            document.events = TimelineParser::parseEDL(text);
            plain = edlJudge().read(utf16(text));
        } else {
            const std::string text = anyXML(random);
            document.events = TimelineParser::parseXML(text, document.fps);
            plain = judgedXML(text, "UTF-8", document.fps);
        }
        // The readers' own identifiers are not drawn before somebody asks.
        for (TimelineEvent& event : plain) event.id = {};
    }

    static EDLJudge& edlJudge() {
        static EDLJudge judge;
        return judge;
    }

    void comment() {
        if (plain.empty()) return;
        constexpr std::array texts{""sv, "short"sv, "two\nlines, \"quoted\""sv,
                                   "a comment that no short text holds"sv};
        const std::size_t row = random.below(plain.size());
        plain[row].comments = random.pick(texts);
        document.events.setComments(row, plain[row].comments);
    }

    void remove() {
        if (plain.empty()) return;
        const std::size_t row = random.below(plain.size());
        document.events.erase(row);
        plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(row));
    }

    void convert() {
        constexpr std::array unusual{1.0, 100.0, 101.0, 1000.0};
        const double from = document.fps;
        document.fps = random.oneIn(4) ? random.pick(unusual) : random.pick(standardFPSValues);
        std::size_t count = 0;
        if (std::abs(from - document.fps) > 0.0001) {
            for (TimelineEvent& event : plain) {
                for (std::string* timecode :
                     {&event.sourceIn, &event.sourceOut, &event.recordIn, &event.recordOut}) {
                    if (frames(*timecode, from)) ++count;
                    *timecode = convertTimecode(*timecode, from, document.fps);
                }
            }
        }
        EXPECT_EQ(convertTimecodes(document.events, from, document.fps), count);
    }

    /// Takes an event out, changes it, and puts it back there or at another place.
    void replace() {
        if (plain.empty()) return;
        TimelineEvent event = document.events[random.below(plain.size())].record();
        event.sourceIn = random.oneIn(2) ? random.pick(timecodes) : random.pick(oddTimecodes);
        event.clipName = random.pick(words);
        event.highlighted = random.oneIn(2);
        if (random.oneIn(4)) event.format = random.pick(words);
        if (random.oneIn(20)) event.reelID.assign(longLength, 'r');
        if (random.oneIn(3)) {
            document.events.push_back(event);
            plain.push_back(event);
        } else {
            const std::size_t row = random.below(plain.size());
            document.events.replace(row, event);
            plain[row] = event;
        }
    }

    void askForIdentifiers() {
        for (std::size_t row = 0; row < plain.size(); ++row) {
            if (random.oneIn(2)) plain[row].id = document.events[row].id();
        }
    }

    Random& random;
    TimelineDocument document;
    std::vector<TimelineEvent> plain;
};

TEST(EventListDifferential, SessionsOnRowsAndOnRecords_ShowTheSameAtEveryStep) {
    Random random;
    for (std::size_t left = generatedCases(4'000); left > 0 && !testing::Test::HasFailure();
         --left) {
        Session session(random);
        ASSERT_NO_FATAL_FAILURE(session.check());
        for (std::size_t steps = random.below(10); steps > 0; --steps) {
            session.step();
            ASSERT_NO_FATAL_FAILURE(session.check());
        }
    }
}

}  // namespace
}  // namespace clipvane::test
