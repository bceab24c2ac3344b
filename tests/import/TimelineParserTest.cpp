// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/TimelineParser.h>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <clipvane/FrameRateSource.h>
#include "support/RowName.h"
#include "support/TemporaryFolder.h"
#include "support/WithoutPrivileges.h"

namespace clipvane::test {
namespace {

using namespace std::string_literals;

constexpr std::string_view edl = "001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00\n";
constexpr std::string_view xml = "<timeline><clip in='1s'/><clip/></timeline>";
const Error unsupported{"Clipvane", 10,
                        "Unsupported file type. Open EDL, XML, FCPXML, or XMEML files."};

struct Row {
    std::string_view file;
    std::string_view format;  ///< empty: refused
    std::string_view name;
};

class FileType : public testing::TestWithParam<Row> {};

TEST_P(FileType, IsDecidedByTheExtension) {
    const TemporaryFolder folder;
    const auto path = folder / GetParam().file;
    writeContent(path, GetParam().format == "EDL" ? edl : xml);
    const auto result = TimelineParser::parse(path);
    if (GetParam().format.empty()) {
        ASSERT_FALSE(result.has_value());
        EXPECT_EQ(result.error(), unsupported);
        return;
    }
    ASSERT_TRUE(result.has_value());
    ASSERT_FALSE(result->events.empty());
    EXPECT_EQ(result->events[0].format, GetParam().format);
}

INSTANTIATE_TEST_SUITE_P(
    Names, FileType,
    testing::Values(Row{"cut.edl", "EDL", "edl"}, Row{"cut.EDL", "EDL", "capitals"},
                    Row{"cut.Edl", "EDL", "mixedCase"}, Row{"cut.txt", "EDL", "txt"},
                    Row{"cut.TXT", "EDL", "txtCapitals"}, Row{"cut.xml", "XML", "xml"},
                    Row{"cut.XML", "XML", "xmlCapitals"}, Row{"cut.fcpxml", "XML", "fcpxml"},
                    Row{"cut.xmeml", "XML", "xmeml"}, Row{"cut.XMEML", "XML", "xmemlCapitals"},
                    Row{"cut.1.final.edl", "EDL", "severalDots"},
                    Row{".edl", "EDL", "onlyExtension"},
                    Row{"Sc\u00E8ne 1.edl", "EDL", "beyondASCII"},
                    Row{"cut\xFF.edl", "EDL", "illFormedName"}, Row{"cut.edl.bak", "", "backup"},
                    Row{"cut", "", "noExtension"}, Row{"edl", "", "noDot"},
                    Row{"cut.csv", "", "csv"}, Row{"cut.", "", "emptyExtension"},
                    Row{"cut.edl ", "", "blankAfterExtension"},
                    Row{"cut. edl", "", "blankInExtension"}, Row{"cut.xm\u0131", "", "dotlessI"},
                    Row{"cut.ed\u013A", "", "otherLetter"}, Row{"cut.edlx", "", "longerExtension"}),
    RowName());

TEST(TimelineParser, ADotInTheFolderName_IsNoExtension) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "cuts.edl");
    writeContent(folder / "cuts.edl/cut", edl);
    EXPECT_EQ(TimelineParser::parse(folder / "cuts.edl/cut").error(), unsupported);
}

// The file is read before its extension is looked at.

TEST(TimelineParser, AMissingFileOfAnyType_GivesTheReadError) {
    const TemporaryFolder folder;
    for (const char* name : {"cut.edl", "cut.csv", "cut"}) {
        const auto result = TimelineParser::parse(folder / name);
        ASSERT_FALSE(result.has_value());
        EXPECT_EQ(result.error(), (Error{"POSIX", ENOENT,
                                         "The file \""s + name +
                                             "\" could not be read: No such file or directory."}));
    }
}

TEST(TimelineParser, AFolderOfAnyType_GivesTheReadError) {
    const TemporaryFolder folder;
    for (const char* name : {"cut.edl", "cut.csv"}) {
        std::filesystem::create_directory(folder / name);
        const auto result = TimelineParser::parse(folder / name);
        ASSERT_FALSE(result.has_value());
        EXPECT_EQ(result.error().code, EISDIR);
    }
}

TEST(TimelineParser, AFileThatMayNotBeRead_GivesTheReadError) {
    const TemporaryFolder folder;
    for (const char* name : {"cut.edl", "cut.csv"}) {
        writeContent(folder / name, edl);
        std::filesystem::permissions(folder / name, std::filesystem::perms::none);
        const WithoutPrivileges ordinaryUser;
        const auto result = TimelineParser::parse(folder / name);
        ASSERT_FALSE(result.has_value());
        EXPECT_EQ(result.error().code, EACCES);
    }
}

TEST(TimelineParser, AFIFO_IsRefusedWithoutWaiting) {
    const TemporaryFolder folder;
    const auto path = folder / "cut.edl";
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    const auto result = TimelineParser::parse(path);
    ASSERT_FALSE(result.has_value());
    EXPECT_NE(result.error(), unsupported);
}

TEST(TimelineParser, ALinkToATimeline_IsFollowedUnderItsOwnName) {
    const TemporaryFolder folder;
    writeContent(folder / "cut.dat", edl);
    std::filesystem::create_symlink("cut.dat", folder / "cut.edl");
    ASSERT_TRUE(TimelineParser::parse(folder / "cut.edl").has_value());
    EXPECT_EQ(TimelineParser::parse(folder / "cut.dat").error(), unsupported);
}

struct ContentRow {
    std::string_view name;
    std::string_view file;
    std::string content;
    std::size_t events;
    double fps;
    std::string_view fpsSource;
};

class FileContent : public testing::TestWithParam<ContentRow> {};

TEST_P(FileContent, GivesEventsAndRate) {
    const TemporaryFolder folder;
    writeContent(folder / GetParam().file, GetParam().content);
    const auto result = TimelineParser::parse(folder / GetParam().file);
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->events.size(), GetParam().events);
    EXPECT_EQ(result->fps, GetParam().fps);
    EXPECT_EQ(result->fpsSource, GetParam().fpsSource);
}

/// Two bytes for each character, the lower one first.
std::string utf16LE(std::string_view ascii) {
    std::string bytes;
    for (const char c : ascii) {
        bytes += c;
        bytes += '\0';
    }
    return bytes;
}

const std::string event(edl);

INSTANTIATE_TEST_SUITE_P(
    EDL, FileContent,
    testing::Values(
        ContentRow{"noRate", "a.edl", event, 1, defaultFPS, fpsSourceDefault},
        ContentRow{"rate", "a.edl", "* FRAME RATE: 23.976\n" + event, 1, 23.976, fpsSourceFile},
        ContentRow{"zeroRate", "a.edl", event + "* fps = 0", 1, defaultFPS, fpsSourceDefault},
        ContentRow{"defaultRateNamed", "a.edl", event + "* FPS: 24", 1, 24.0, fpsSourceFile},
        ContentRow{"rateOfXML", "a.edl", event + "<timebase>25</timebase>", 1, 25.0, fpsSourceFile},
        ContentRow{"extremeRate_IsNoErrorYet", "a.edl", event + "* FPS: 99999999999999999999", 1,
                   1e20, fpsSourceFile},
        ContentRow{"empty", "a.edl", "", 0, defaultFPS, fpsSourceDefault},
        ContentRow{"nothingOfAnEDL", "a.txt", "Dear all,\nplease find enclosed\n", 0, defaultFPS,
                   fpsSourceDefault},
        ContentRow{"nulsOnly", "a.edl", std::string(1000, '\0'), 0, defaultFPS, fpsSourceDefault},
        ContentRow{"byteOrderMarkHidesFirstLine", "a.edl", "\xEF\xBB\xBF" + event + event, 1,
                   defaultFPS, fpsSourceDefault},
        ContentRow{"byteOrderMarkBeforeRate", "a.edl",
                   "\xEF\xBB\xBF"
                   "FPS: 25\n" +
                       event,
                   1, 25.0, fpsSourceFile},
        ContentRow{"utf16HasNoEvents", "a.edl", "\xFF\xFE" + utf16LE("FPS: 25\n" + event), 0,
                   defaultFPS, fpsSourceDefault},
        ContentRow{"byte85IsNoNewline", "a.edl", "TITLE\x85" + event, 0, defaultFPS,
                   fpsSourceDefault},
        ContentRow{"byteA0IsNoBlank", "a.edl", "\xA0" + event, 0, defaultFPS, fpsSourceDefault},
        ContentRow{"latin1AndRate", "a.edl", event + "* Sc\xE8ne\nfps: 25\n" + event, 2, 25.0,
                   fpsSourceFile}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    XML, FileContent,
    testing::Values(ContentRow{"noRate", "a.xml", "<a><clip/></a>", 1, defaultFPS,
                               fpsSourceDefault},
                    ContentRow{"duration", "a.fcpxml", "<a frameDuration='1001/24000s'><clip/></a>",
                               1, 24000.0 / 1001.0, fpsSourceFile},
                    ContentRow{"zeroDuration", "a.fcpxml", "<a frameDuration='0/25s'><clip/></a>",
                               1, defaultFPS, fpsSourceDefault},
                    ContentRow{"timebase", "a.xmeml", "<a><timebase>30</timebase><clip/></a>", 1,
                               30.0, fpsSourceFile},
                    ContentRow{"commentCounts", "a.xml", "<!-- fps: 60 --><a><clip/></a>", 1, 60.0,
                               fpsSourceFile},
                    ContentRow{"malformed", "a.xml", "<a><clip/><clip/><b></a>", 2, defaultFPS,
                               fpsSourceDefault},
                    ContentRow{"empty", "a.xml", "", 0, defaultFPS, fpsSourceDefault},
                    ContentRow{"edlUnderXMLName", "a.xml", event, 0, defaultFPS, fpsSourceDefault},
                    ContentRow{"utf16HasEventsAndNoRate", "a.xml",
                               "\xFF\xFE" + utf16LE("<a frameDuration='1/25s'><clip/></a>"), 1,
                               defaultFPS, fpsSourceDefault}),
    RowName());

TEST(TimelineParser, IllFormedBytesOfAnEDL_AreReplacedOnePerMaximalSubpart) {
    const std::string replacement = "\uFFFD";
    const TemporaryFolder folder;
    for (const auto& [bytes, count, rest] :
         std::vector<std::tuple<std::string, int, std::string>>{{"\xE2\x82"
                                                                 "A",
                                                                 1, "A"},
                                                                {"\xC0\x80", 2, ""},
                                                                {"\xED\xA0\x80", 3, ""},
                                                                {"\xF0\x80\x80\x80", 4, ""},
                                                                {"\xF8\x88\x80\x80\x80", 5, ""},
                                                                {"\xF0\x9F\x98", 1, ""},
                                                                {"\x85", 1, ""}}) {
        writeContent(folder / "cut.edl", event + "* FROM CLIP NAME: " + bytes);
        const auto result = TimelineParser::parse(folder / "cut.edl");
        ASSERT_TRUE(result.has_value());
        ASSERT_EQ(result->events.size(), 1U);
        std::string expected;
        for (int i = 0; i < count; ++i) expected += replacement;
        EXPECT_EQ(result->events[0].clipName, expected + rest);
    }
}

}  // namespace
}  // namespace clipvane::test
