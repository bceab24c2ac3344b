#include "import/XMLElement.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>

#include <algorithm>
#include <array>
#include <string>

#include "base/Characters.h"
#include "base/UTF8.h"

namespace clipvane {
namespace {

struct Entry {
    std::string_view name;
    XMLElement element;
};

constexpr std::array entries{
    Entry{"asset", XMLElement::asset},
    Entry{"asset-clip", XMLElement::clip},
    Entry{"clip", XMLElement::clip},
    Entry{"clipitem", XMLElement::clip},
    Entry{"clipname", XMLElement::clipName},
    Entry{"comment", XMLElement::comments},
    Entry{"comments", XMLElement::comments},
    Entry{"duration", XMLElement::duration},
    Entry{"end", XMLElement::end},
    Entry{"event", XMLElement::event},
    Entry{"file", XMLElement::file},
    Entry{"gap", XMLElement::clip},
    Entry{"in", XMLElement::in},
    Entry{"masterclipid", XMLElement::reel},
    Entry{"mc-clip", XMLElement::clip},
    Entry{"media", XMLElement::asset},
    Entry{"name", XMLElement::name},
    Entry{"out", XMLElement::out},
    Entry{"project", XMLElement::container},
    Entry{"record", XMLElement::record},
    Entry{"reel", XMLElement::reel},
    Entry{"reelid", XMLElement::reel},
    Entry{"reelname", XMLElement::reel},
    Entry{"sequence", XMLElement::container},
    Entry{"source", XMLElement::source},
    Entry{"start", XMLElement::start},
    Entry{"sync-clip", XMLElement::clip},
    Entry{"title", XMLElement::clip},
    Entry{"track", XMLElement::track},
};

constexpr std::size_t longestName = 12;
static_assert(std::ranges::is_sorted(entries, {}, &Entry::name));
static_assert(std::ranges::all_of(entries,
                                  [](const Entry& e) { return e.name.size() <= longestName; }));

XMLElement lookUp(std::string_view lowerCaseName) {
    const auto* const found = std::ranges::lower_bound(entries, lowerCaseName, {}, &Entry::name);
    return found != entries.end() && found->name == lowerCaseName ? found->element
                                                                  : XMLElement::other;
}

/// For names with a character such as the Kelvin sign, whose lower case is an ASCII letter.
XMLElement classifyBeyondASCII(std::string_view name) {
    std::string lowerCaseName;
    icu::StringByteSink<std::string> sink(&lowerCaseName);
    UErrorCode error = U_ZERO_ERROR;
    icu::CaseMap::utf8ToLower("", 0, {name.data(), static_cast<std::int32_t>(name.size())}, sink,
                              nullptr, error);
    return U_SUCCESS(error) ? lookUp(lowerCaseName) : XMLElement::other;
}

}  // namespace

XMLElement classifyXMLElement(std::string_view name) {
    if (name.size() > longestName || !isASCII(name)) {
        constexpr std::size_t longestSequence = 4;
        if (name.size() > longestName * longestSequence || isASCII(name)) return XMLElement::other;
        return classifyBeyondASCII(name);
    }
    std::array<char, longestName> lowerCaseName;
    std::ranges::transform(name, lowerCaseName.begin(), asciiLower);
    return lookUp({lowerCaseName.data(), name.size()});
}

}  // namespace clipvane
