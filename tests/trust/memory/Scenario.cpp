// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "memory/Scenario.h"
#include "support/Records.h"

#include <fstream>
#include <iterator>
#include <map>

namespace clipvane::test {
namespace {

void write(const std::filesystem::path& path, std::string_view content) {
    std::ofstream(path, std::ios::binary) << content;
}

std::string read(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

const std::string times = "01:02:10:00 01:02:14:12 01:00:00:00 01:00:04:12";

constexpr std::string_view edl =
    "TITLE: HARBOUR\n* FPS: 25\n"
    "001  A001C003_230412_R2XL  V  C        01:02:10:00 01:02:14:12 01:00:00:00 01:00:04:12\n"
    "* FROM CLIP NAME: Harbour wide, taken before noon\n"
    "* SOURCE FILE: /media/day1/A001C003_230412_R2XL.mov\n"
    "002  A002  V  D  024  02:11:00:00 02:11:03:00 01:00:04:12 01:00:07:12\n"
    "* FROM CLIP NAME: Pilot boat\n"
    "003  MUSIC  A2  C  00:00:00:00 00:00:13:12 01:00:00:00 01:00:13:12\n";

constexpr std::string_view xmeml =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE xmeml>\n<xmeml><sequence>\n"
    "<rate><timebase>25</timebase></rate><track>\n"
    "<clipitem id=\"clipitem-1-with-a-long-identifier\"><name>Start line</name>"
    "<duration>250</duration><start>0</start><end>75</end><in>100</in><out>175</out>"
    "<file id=\"file-1\"><pathurl>file://localhost/media/start%20line.mov</pathurl></file>"
    "<comments>Wind &amp; waves, and more than fits into a short text</comments>"
    "<TRAC\u212A>V1</TRAC\u212A><\u00DCberblendung-von-rechts/></clipitem>\n"
    "<clipitem><name>Buoy</name><start>-1</start><in>40</in><duration>500</duration>"
    "<file id=\"file-2\"><pathurl>file:///media/buoy%20two.mov</pathurl></file></clipitem>\n"
    "</track></sequence></xmeml>\n";

constexpr std::string_view fcpxml =
    "<?xml version=\"1.0\"?>\n<!DOCTYPE fcpxml [<!ENTITY place \"Lighthouse\">]>\n<fcpxml>"
    "<resources><format id=\"r1\" frameDuration=\"1001/30000s\"/>\n"
    "<asset id=\"r2\" name=\"Lamp room\"/><asset id=\"r3\" src=\"file:///media/gull%20one.mov\"/>"
    "</resources>\n<event name=\"Coast\"><spine>\n"
    "<asset-clip ref=\"r2\" offset=\"0s\" start=\"3600s\" duration=\"150150/30000s\">"
    "<title ref=\"r4\" lane=\"1\" offset=\"3601s\" name=\"&place; at dusk, late in the year\"/>"
    "</asset-clip>\n<gap name=\"Gap\" offset=\"150150/30000s\" duration=\"30030/30000s\"/>\n"
    "<asset-clip ref=\"r3\" offset=\"180180/30000s\" duration=\"90090/30000s\" lane=\"-1\"/>\n"
    "</spine></event></fcpxml>\n";

constexpr std::string_view latinXML =
    "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n<a><clip name=\"Le ph\xE9re \x80\" "
    "start=\"10\" duration=\"5\"/><clip name=\"second\"/></a>\n";

/// The timeline that is open before another one is.
const std::string other = "001 AX V C " + times + "\n002 B V C " + times + "\n003 C V C " + times;

const std::string clip =
    "<asset-clip ref='r2' lane='1' offset='3601s' duration='10s' name='Lighthouse at dusk'>"
    "<note>seen from the pier</note></asset-clip>\n";

std::string utf16(std::string_view ascii) {
    std::string wide = "\xFF\xFE";
    for (const char c : ascii) wide += {c, '\0'};
    return wide;
}

/// More events than a list has in one block.
std::string repeated(std::string_view head, const std::string& event, std::string_view tail) {
    std::string text(head);
    for (int i = 0; i < 3000; ++i) text += event;
    return text += tail;
}

void openOther(MemoryCommands& commands, const Place& place) {
    commands.answer = place.timeline("before.edl");
    commands.openTimeline();
}

Scenario opening(const char* name, const char* file, bool isLarge = false) {
    const auto prepare = [file](MemoryCommands& commands, const Place& place) {
        openOther(commands, place);
        commands.answer = place.timeline(file);
    };
    return {name, &DocumentCommands::openTimeline, prepare, isLarge};
}

void exportAnew(MemoryCommands& commands, const Place& place) {
    openOther(commands, place);
    commands.isTyped = true;
    commands.typed = "said \"yes\"\nand then said nothing more for a while";
    commands.textDidChange();
    commands.answer = place.exports() / "an export with a name that no short text holds";
}

void exportOver(MemoryCommands& commands, const Place& place) {
    exportAnew(commands, place);
    write(commands.answer, "an earlier export\n");
}

void exportThroughLink(MemoryCommands& commands, const Place& place) {
    exportAnew(commands, place);
    write(place.exports() / "target", "an earlier export\n");
    std::filesystem::create_symlink("target", commands.answer);
}

void exportManyEvents(MemoryCommands& commands, const Place& place) {
    exportOver(commands, place);
    const TimelineEvent event = commands.documentModel.events[0].record();
    commands.documentModel.events = std::vector(6000, event);
}

/// Timecodes whose conversion needs more room than they have, between usual ones.
void changeRate(MemoryCommands& commands, const Place& place) {
    openOther(commands, place);
    auto& events = commands.documentModel.events;
    edit(events, 1, [](TimelineEvent& event) {
        event.sourceIn = "-9999:1:1:1";
        event.recordIn = "99999999:1:1:1";
    });
    edit(events, 2, [](auto& event) { event.recordOut = "a text that is no timecode"; });
    commands.title = "30 fps";
}

void changeToEndlessRate(MemoryCommands& commands, const Place& place) {
    openOther(commands, place);
    commands.title = "1000000000000 fps";
}

void type(MemoryCommands& commands, const Place& place) {
    openOther(commands, place);
    edit(commands.documentModel.events, 0, [](auto& event) { event.comments = "old\r\nlines"; });
    commands.isTyped = true;
    commands.typed = "new\nlines, more than the old ones, and longer";
}

void removeOrCopy(MemoryCommands& commands, const Place& place) {
    type(commands, place);
    commands.textDidChange();
}

void appendField(std::string& text, std::string_view field) {
    text += field;
    text += '|';
}

/// Identifiers are others in every run.
void appendField(std::string&, const UUID&) {}

void appendField(std::string& text, bool isHighlighted) {
    appendField(text, isHighlighted ? std::string_view("highlighted") : "");
}

std::string describe(const TimelineDocument& document) {
    std::string text;
    appendField(text, document.sourceURL ? document.sourceURL->native() : "none");
    for (const auto& events : {records(document.events), document.removedEvents}) {
        for (const TimelineEvent& event : events) {
            forEachField([&](const char*, const auto& field) { appendField(text, field); }, event);
        }
        text += "||";
    }
    appendField(text, std::to_string(document.fps));
    appendField(text, document.fpsSource);
    return text;
}

}  // namespace

void Place::writeTimelines() const {
    write(timeline("before.edl"), other);
    write(timeline("cut.edl"), edl);
    write(timeline("latin.edl"), "001 PH\xC9RE V C " + times + "\n* FROM CLIP NAME: Ph\xE9re\n");
    write(timeline("large.edl"), repeated("TITLE: x\n", "1 AX V C " + times + "\n* x\n", ""));
    write(timeline("cut.xml"), xmeml);
    write(timeline("cut.fcpxml"), fcpxml);
    write(timeline("large.fcpxml"), repeated("<a><asset id='r2' name='Lamp room'/>", clip, "</a>"));
    write(timeline("latin.xml"), latinXML);
    write(timeline("wide.xml"), utf16(xmeml));
    write(timeline("cut.pdf"), edl);
}

std::string essence(const MemoryCommands& commands, const Place& place) {
    std::string text = describe(commands.document());
    appendField(text, commands.pasteboard.view());
    std::map<std::string, std::string> contents;
    for (const auto& entry : std::filesystem::directory_iterator(place.exports())) {
        contents[entry.path().filename()] = read(entry.path());
    }
    for (const auto& [name, content] : contents) {
        appendField(text, name);
        appendField(text, content);
    }
    return text;
}

std::vector<Scenario> allScenarios() {
    return {
        opening("open-edl", "cut.edl"),
        opening("open-invalid-utf8", "latin.edl"),
        opening("open-large-edl", "large.edl", true),
        opening("open-xmeml", "cut.xml"),
        opening("open-fcpxml", "cut.fcpxml"),
        opening("open-large-fcpxml", "large.fcpxml", true),
        opening("open-windows-1252", "latin.xml"),
        opening("open-utf-16", "wide.xml"),
        opening("open-missing-file", "no such file in the folder.edl"),
        opening("open-unsupported", "cut.pdf"),
        {"change-rate", &DocumentCommands::fpsChanged, changeRate},
        {"change-to-endless-rate", &DocumentCommands::fpsChanged, changeToEndlessRate},
        {"remove-event", &DocumentCommands::removeSelectedEvent, removeOrCopy},
        {"copy-info", &DocumentCommands::copySelectedInfo, removeOrCopy},
        {"type-comment", &DocumentCommands::textDidChange, type},
        {"export-csv", &DocumentCommands::exportCSV, exportOver},
        {"export-edl", &DocumentCommands::exportEDL, exportOver},
        {"export-new-csv", &DocumentCommands::exportCSV, exportAnew},
        {"export-new-edl", &DocumentCommands::exportEDL, exportAnew},
        {"export-csv-through-link", &DocumentCommands::exportCSV, exportThroughLink},
        {"export-large-csv", &DocumentCommands::exportCSV, exportManyEvents},
        {"export-large-edl", &DocumentCommands::exportEDL, exportManyEvents},
    };
}

}  // namespace clipvane::test
