// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "GeneratedTimeline.h"

#include <cstdio>

namespace clipvane {
namespace {

template <class... Values>
void appendFormatted(std::string& text, const char* format, Values... values) {
    char piece[1024];
    const int length = std::snprintf(piece, sizeof piece, format, values...);
    text.append(piece, static_cast<std::size_t>(length));
}

struct Time {
    unsigned hours, minutes, seconds, frames;
};

Time timeAt(std::size_t count) {
    const std::size_t seconds = count / 24;
    return {static_cast<unsigned>(seconds / 3600 % 24), static_cast<unsigned>(seconds / 60 % 60),
            static_cast<unsigned>(seconds % 60), static_cast<unsigned>(count % 24)};
}

void appendTime(std::string& text, std::size_t count) {
    const Time time = timeAt(count);
    appendFormatted(text, " %02u:%02u:%02u:%02u", time.hours, time.minutes, time.seconds,
                    time.frames);
}

std::string edl(std::size_t events, bool beyondASCII) {
    std::string text = "TITLE: GENERATED\nFCM: NON-DROP FRAME\n\n";
    text.reserve(events * 160);
    for (std::size_t i = 0; i < events; ++i) {
        const auto number = static_cast<unsigned>(i + 1);
        const unsigned reel = number % 400;
        appendFormatted(text, "%06u  A%03uC%03u  %-4s C       ", number, reel, number % 97,
                        number % 3 == 0 ? "A2" : "V");
        const std::size_t source = 86400 + i * 37 % 500000;
        appendTime(text, source);
        appendTime(text, source + 96);
        appendTime(text, i * 96);
        appendTime(text, i * 96 + 96);
        text += '\n';
        // Two and a half lines an event: one in four clip names makes every tenth line.
        const char* take = beyondASCII && i % 4 == 0 ? "Pr\u00EAte_\u30C6\u30A4\u30AF" : "Take_one";
        appendFormatted(text, "* FROM CLIP NAME: A%03u_C%03u_%s.mov\n", reel, number % 97, take);
        if (i % 3 == 0) {
            appendFormatted(text, "* SOURCE FILE: /media/day_%02u/A%03u_C%03u_1114QX.mxf\n",
                            number % 30, reel, number % 97);
        }
        if (i % 10 == 0) appendFormatted(text, "M2   A%03uC%03u  048.0\n", reel, number % 97);
        if (i % 8 == 0) {
            text += "* COMMENT: the second half is better, see the notes of the director\n";
        }
    }
    return text;
}

}  // namespace

std::string generatedEDL(std::size_t events) {
    return edl(events, false);
}

std::string generatedEDLBeyondASCII(std::size_t events) {
    return edl(events, true);
}

std::string generatedFCPXML(std::size_t events) {
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE fcpxml>\n<fcpxml version=\"1.10\">\n"
        "  <resources>\n";
    constexpr unsigned assets = 400;
    for (unsigned i = 0; i < assets; ++i) {
        appendFormatted(text,
                        "    <asset id=\"r%u\" name=\"A%03u_C001\" src=\"file:///media/A%03u.mov\" "
                        "start=\"0s\" hasVideo=\"1\" duration=\"3600s\"/>\n",
                        i + 1, i, i);
    }
    text +=
        "  </resources>\n  <library><event name=\"Day\"><project name=\"Cut\"><sequence>\n"
        "    <spine>\n";
    for (std::size_t i = 0; i < events; ++i) {
        const auto number = static_cast<unsigned>(i + 1);
        appendFormatted(text,
                        "      <asset-clip name=\"A%03u_C%03u_Take_one\" ref=\"r%u\" "
                        "offset=\"%u/24000s\" start=\"%u/24000s\" duration=\"96096/24000s\" "
                        "audioRole=\"dialogue\" tcFormat=\"NDF\">\n",
                        number % 400, number % 97, number % assets + 1, number % 1000000 * 1001,
                        number % 50000 * 1001);
        if (i % 5 == 0) {
            text +=
                "        <note>second half is better</note>\n"
                "        <marker start=\"1001/24000s\" duration=\"1001/24000s\" "
                "value=\"look\"/>\n";
        }
        text += "      </asset-clip>\n";
    }
    text += "    </spine>\n  </sequence></project></event></library>\n</fcpxml>\n";
    return text;
}

std::string generatedXMEML(std::size_t events) {
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE xmeml>\n<xmeml version=\"5\">\n"
        "<sequence id=\"cut\">\n<name>cut</name>\n<media><video><track>\n";
    for (std::size_t i = 0; i < events; ++i) {
        const auto number = static_cast<unsigned>(i + 1);
        const unsigned in = number % 50000;
        appendFormatted(text,
                        "<clipitem id=\"clipitem-%u\">\n  <name>A%03u_C%03u_Take_one</name>\n"
                        "  <enabled>TRUE</enabled>\n  <duration>9600</duration>\n"
                        "  <start>%u</start>\n  <end>%u</end>\n  <in>%u</in>\n  <out>%u</out>\n",
                        number, number % 400, number % 97, number * 96, number * 96 + 96, in,
                        in + 96);
        appendFormatted(text,
                        "  <file id=\"file-%u\">\n    <name>A%03u.mov</name>\n"
                        "    <pathurl>file://localhost/media/A%03u.mov</pathurl>\n  </file>\n"
                        "  <sourcetrack>\n    <mediatype>video</mediatype>\n  </sourcetrack>\n"
                        "</clipitem>\n",
                        number % 400, number % 400, number % 400);
    }
    text += "</track></video></media>\n</sequence>\n</xmeml>\n";
    return text;
}

}  // namespace clipvane
