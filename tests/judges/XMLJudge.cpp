#include "judges/XMLJudge.h"

#include <expat.h>
#include <unicode/locid.h>

#include <initializer_list>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "judges/Pattern.h"
#include "judges/TimecodeJudge.h"
#include "judges/TimingJudge.h"

namespace clipvane::test {
namespace {

using Attributes = std::map<std::string, std::string>;

/// What the parser called back. It is written in C, which exceptions must not cross: the document
/// is read to its end before anything is made of it.
struct Call {
    enum Kind { start, characters, end } kind;
    std::string text;
    Attributes attributes;
};
using Calls = std::vector<Call>;

void startElement(void* calls, const XML_Char* name, const XML_Char** attributes) {
    Call call{Call::start, name, {}};
    for (; *attributes != nullptr; attributes += 2) call.attributes[attributes[0]] = attributes[1];
    static_cast<Calls*>(calls)->push_back(call);
}

void characters(void* userData, const XML_Char* text, int length) {
    auto& calls = *static_cast<Calls*>(userData);
    if (calls.empty() || calls.back().kind != Call::characters) {
        calls.push_back({Call::characters, {}, {}});
    }
    calls.back().text.append(text, static_cast<std::size_t>(length));
}

void endElement(void* calls, const XML_Char* name) {
    static_cast<Calls*>(calls)->push_back({Call::end, name, {}});
}

Calls callsOf(std::string_view data, const char* encoding) {
    Calls calls;
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(encoding), XML_ParserFree);
    XML_SetUserData(parser.get(), &calls);
    XML_SetElementHandler(parser.get(), startElement, endElement);
    XML_SetCharacterDataHandler(parser.get(), characters);
    XML_Parse(parser.get(), data.data(), static_cast<int>(data.size()), true);
    return calls;
}

const std::set<std::string> assetElements{"asset", "media", "file"};
const std::set<std::string> clipElements{"clipitem", "clip", "asset-clip", "sync-clip",
                                         "mc-clip",  "gap",  "title"};
const std::set<std::string> closingElements{"event",     "clipitem", "clip", "asset-clip",
                                            "sync-clip", "mc-clip",  "gap",  "title",
                                            "sequence",  "project"};
const std::set<std::string> reelElements{"reelid", "reel", "reelname", "file", "masterclipid"};

std::string lowerCase(const std::string& text) {
    return utf8(utf16(text).toLower(icu::Locale::getRoot()));
}

class Reader {
  public:
    explicit Reader(double fps) : fps(fps) {}

    void take(const Call& call) {
        if (call.kind == Call::start) start(call.text, call.attributes);
        if (call.kind == Call::characters) currentText += call.text;
        if (call.kind == Call::end) end(call.text);
    }

    std::vector<TimelineEvent> events;

  private:
    void start(const std::string& name, const Attributes& attributes) {
        currentText.clear();
        const std::string key = lowerCase(name);
        if (assetElements.contains(key)) startAsset(attributes);
        if (key == "event") startEvent(name, attributes);
        if (key == "source" && pending) {
            setRange(attributes, pending->sourceIn, pending->sourceOut);
        }
        if (key == "record" && pending) {
            setRange(attributes, pending->recordIn, pending->recordOut);
        }
        if (clipElements.contains(key)) startClip(name, attributes);
    }

    /// The first of the attributes that is there.
    static const std::string* first(const Attributes& attributes,
                                    std::initializer_list<const char*> names) {
        for (const char* const name : names) {
            const auto found = attributes.find(name);
            if (found != attributes.end()) return &found->second;
        }
        return nullptr;
    }

    static std::string firstOr(const Attributes& attributes,
                               std::initializer_list<const char*> names,
                               const std::string& otherwise = {}) {
        const std::string* const value = first(attributes, names);
        return value != nullptr ? *value : otherwise;
    }

    void startAsset(const Attributes& attributes) {
        const std::string* const id = first(attributes, {"id", "uid"});
        if (id != nullptr) assetNames[*id] = firstOr(attributes, {"name", "src", "pathurl"}, *id);
    }

    TimelineEvent newEvent(const std::string& name) const {
        TimelineEvent event;
        event.eventNumber = std::to_string(events.size() + 1);
        event.format = "XML";
        event.rawText = name;
        return event;
    }

    void append(const TimelineEvent& event) {
        events.push_back(event);
        pending = &events.back();
    }

    void startEvent(const std::string& name, const Attributes& attributes) {
        TimelineEvent event = newEvent(name);
        event.eventNumber = judgedCleaning(firstOr(attributes, {"number"}, event.eventNumber));
        event.highlighted = lowerCase(firstOr(attributes, {"highlighted"})) == "true";
        append(event);
    }

    void setRange(const Attributes& attributes, std::string& in, std::string& out) const {
        if (attributes.contains("in")) in = judgedTiming(attributes.at("in"), fps);
        if (attributes.contains("out")) out = judgedTiming(attributes.at("out"), fps);
    }

    void startClip(const std::string& name, const Attributes& attributes) {
        TimelineEvent event = newEvent(name);
        const std::string reference = firstOr(attributes, {"ref", "asset", "id"});
        const auto asset = assetNames.find(reference);
        const std::string otherName =
            asset != assetNames.end() ? asset->second : firstOr(attributes, {"lane"}, name);
        event.clipName = judgedCleaning(firstOr(attributes, {"name"}, otherName));
        const std::string duration = firstOr(attributes, {"duration"});
        event.sourceIn = judgedTiming(firstOr(attributes, {"start", "tcStart", "in"}), fps);
        event.recordIn =
            judgedTiming(firstOr(attributes, {"offset", "timelineStart", "start"}), fps);
        event.reelID =
            judgedCleaning(reference.empty() ? firstOr(attributes, {"reel", "src"}) : reference);
        event.sourceOut = attributes.contains("out") ? judgedTiming(attributes.at("out"), fps)
                                                     : sum(event.sourceIn, duration);
        event.recordOut = attributes.contains("end") ? judgedTiming(attributes.at("end"), fps)
                                                     : sum(event.recordIn, duration);
        event.track = judgedCleaning(firstOr(attributes, {"lane", "track"}, name));
        append(event);
    }

    std::string sum(const std::string& start, const std::string& duration) const {
        const auto first = judgedTimingFrames(start, fps);
        const auto count = first ? judgedTimingFrames(duration, fps) : std::nullopt;
        if (!count) return {};
        return judgedTimecode(within64Bits(static_cast<Wide>(*first) + *count), fps, ':');
    }

    void end(const std::string& name) {
        if (pending == nullptr) return;
        const std::string key = lowerCase(name);
        const std::string text = judgedCleaning(currentText);
        if (closingElements.contains(key)) {
            pending = nullptr;
        } else if (!text.empty()) {
            setField(key, text, *pending);
        }
    }

    void setField(const std::string& key, const std::string& text, TimelineEvent& event) const {
        const auto fill = [](std::string& field, const std::string& value) {
            if (field.empty()) field = value;
        };
        const auto fillTime = [&](std::string& field) {
            if (field.empty()) field = judgedTiming(text, fps);
        };
        const auto fillEnd = [&](std::string& field, const std::string& start) {
            if (field.empty()) field = sum(start, text);
        };
        if (key == "clipname") event.clipName = text;
        if (key == "name" && (event.clipName.empty() || event.clipName.starts_with("clip") ||
                              event.clipName == "Clip")) {
            event.clipName = text;
        }
        if (reelElements.contains(key)) fill(event.reelID, text);
        if (key == "track") fill(event.track, text);
        if (key == "comments" || key == "comment") event.comments = text;
        if (key == "in") fillTime(event.sourceIn);
        if (key == "out") fillTime(event.sourceOut);
        if (key == "start") fillTime(event.recordIn);
        if (key == "end") fillTime(event.recordOut);
        if (key == "duration") {
            fillEnd(event.sourceOut, event.sourceIn);
            fillEnd(event.recordOut, event.recordIn);
        }
    }

    double fps;
    Attributes assetNames;
    std::string currentText;
    TimelineEvent* pending = nullptr;  ///< always the last event
};

}  // namespace

std::vector<TimelineEvent> judgedXML(std::string_view data, const char* encoding, double fps) {
    Reader reader(fps);
    for (const Call& call : callsOf(data, encoding)) reader.take(call);
    return reader.events;
}

}  // namespace clipvane::test
