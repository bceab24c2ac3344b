#include "documents/GoodDocument.h"

namespace clipvane::test {
namespace {

/// The document in UTF-16, least byte first, with a mark.
GoodDocument wide(const char* name, GoodDocument document) {
    const auto widen = [](std::string& text) {
        std::string wider;
        for (const char c : text) wider += {c, '\0'};
        text = wider;
    };
    widen(document.head);
    widen(document.tail);
    for (std::string& event : document.events) widen(event);
    document.head.insert(0, "\xFF\xFE");
    document.name = name;
    return document;
}

GoodDocument edl(const char* name, const std::string& lineEnd) {
    const std::string times = " 01:00:00:00 01:00:04:00 00:00:00:00 00:00:04:00";
    return {name,
            true,
            "TITLE: x" + lineEnd + "* FPS: 25" + lineEnd,
            {"001  A\u00E9 V C " + times + lineEnd + "* FROM CLIP NAME: ph\u00E9re" + lineEnd,
             "002 AX AA/V D 024" + times + lineEnd + "M2 AX" + lineEnd + " * note: it" + lineEnd,
             "003 B A2 C" + times + "  " + lineEnd},
            "FCM: DROP FRAME" + lineEnd};
}

GoodDocument xmeml() {
    return {"xmeml",
            false,
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><!DOCTYPE xmeml><xmeml><rate><timebase>25"
            "</timebase></rate>",
            {"<clipitem id=\"c1\"><name>A &amp; B</name><start>0</start><end>75</end><in>1</in>"
             "<out>76</out><file id='f'><pathurl>file:///m/a%20b</pathurl></file></clipitem>",
             "<clipitem><name>ph\u00E9re</name><start>-1</start><in>40</in><duration>50</duration>"
             "<!-- c --><comments><![CDATA[1<2]]></comments></clipitem>",
             "<event number='7' highlighted='true'><source in='1s' out='1999s'/></event>"},
            "</xmeml>"};
}

GoodDocument fcpxml(const char* name, const std::string& encoding, const std::string& accent) {
    return {name,
            false,
            "<?xml version='1.0' encoding='" + encoding +
                "'?><!DOCTYPE f [<!ENTITY e 'x'>]><f frameDuration='1001/30000s'>"
                "<asset id='r' name='n" +
                accent + "'/>",
            {"<asset-clip ref='r' offset='0s' duration='1001/30000s' lane='-1'></asset-clip>",
             "<gap name='&e;&#8211;' start='3600s'/>",
             "<title ref='q' offset='01:00:00:00' "
             "duration='5'><text>" +
                 accent + "</text></title>"},
            "<?p i?></f>"};
}

}  // namespace

std::string GoodDocument::bytes() const {
    std::string all = head;
    for (const std::string& event : events) all += event;
    return all + tail;
}

std::size_t GoodDocument::wholeEventsBefore(std::size_t position) const {
    std::size_t end = head.size();
    std::size_t whole = 0;
    for (const std::string& event : events) {
        end += event.size();
        if (end > position) break;
        ++whole;
    }
    // A comment may still come to an EDL's last event, and a tag without end is none yet.
    return isEDL && whole > 0 ? whole - 1 : whole;
}

std::vector<GoodDocument> goodDocuments() {
    return {edl("EDL", "\n"),
            edl("EDL with CR LF", "\r\n"),
            xmeml(),
            fcpxml("FCPXML", "UTF-8", "\u00E9"),
            fcpxml("windows-1252", "windows-1252", "\xE9"),
            wide("UTF-16", fcpxml("", "UTF-16", "e"))};
}

}  // namespace clipvane::test
