// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/FrameRateDetection.h"

#include "base/Characters.h"
#include "import/ByteBlock.h"
#include "import/FrameRateText.h"

namespace clipvane {
namespace {

/// Bytes that are looked at together, as two blocks.
constexpr std::size_t stride = 2 * sizeof(ByteBlock);

/// Bytes in lower case. Other characters may turn into letters; the full match rejects those.
ByteBlock lowerCaseBlock(const char* bytes) {
    return loadBlock(bytes) | 0x20;
}

/// Where "fp", "fr" or "ti" starts: most bytes hold not even two letters of a name.
auto mayBeginName(const char* bytes) {
    const ByteBlock first = lowerCaseBlock(bytes);
    const ByteBlock second = lowerCaseBlock(bytes + 1);
    return ((first == 'f') & ((second | 2) == 'r')) | ((first == 't') & (second == 'i'));
}

/// Where "fp", "fra" or "tim" starts, and a few others that the full match rejects.
auto beginsName(const char* bytes) {
    const ByteBlock second = lowerCaseBlock(bytes + 1);
    const ByteBlock third = lowerCaseBlock(bytes + 2);
    return mayBeginName(bytes) & ((second == 'p') | (third == 'a') | (third == 'm'));
}

/// Whether a place where a frame rate may be named starts in the bytes. Reads two beyond them.
bool mayHoldName(const char* bytes) {
    const char* const next = bytes + sizeof(ByteBlock);
    return holdsAnywhere(mayBeginName(bytes) | mayBeginName(next)) &&
           holdsAnywhere(beginsName(bytes) | beginsName(next));
}

/// The first match of each form in which a file may name its rate. An unusable rate is a match,
/// too: later ones of the same form are not looked at.
struct FirstMatches {
    std::optional<NamedRate> named;          // fps: 25
    std::optional<NamedRate> element;        // <timebase>25</timebase>
    std::optional<NamedRate> attribute;      // timebase="25"
    std::optional<NamedRate> frameDuration;  // frameDuration="1/25s"

    void lookAt(std::string_view text, std::size_t position) {
        const std::string_view rest = text.substr(position);
        switch (asciiLower(rest.front())) {
            case 'f':
                if (!named) named = matchNamedRate(rest);
                if (!frameDuration) frameDuration = matchFrameDuration(rest);
                break;
            case 't':
                if (!element && position > 0) element = matchElement(text.substr(position - 1));
                if (!attribute) attribute = matchAttribute(rest);
                break;
            default:
                break;
        }
    }

    /// Nothing takes precedence over the first form.
    bool decided() const { return named && named->isUsable; }

    std::optional<double> rate() const {
        for (const auto& match : {named, element, attribute, frameDuration}) {
            if (match && match->isUsable) return match->fps;
        }
        return std::nullopt;
    }
};

}  // namespace

std::optional<double> detectFPS(std::string_view in) {
    FirstMatches matches;
    std::size_t position = 0;
    while (position < in.size() && !matches.decided()) {
        const bool isWhole = position + stride + 2 <= in.size();
        const std::size_t end = isWhole ? position + stride : in.size();
        if (!isWhole || mayHoldName(in.data() + position)) {
            for (std::size_t i = position; i < end && !matches.decided(); ++i)
                matches.lookAt(in, i);
        }
        position = end;
    }
    return matches.rate();
}

}  // namespace clipvane
