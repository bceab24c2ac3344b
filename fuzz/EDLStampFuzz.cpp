// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// A stamped EDL names the rate, is the old one but for a line, holds the same events and can be
// stamped again without a change. The first byte chooses the rate and whether to stamp anew.

#include <algorithm>
#include <array>

#include "Target.h"
#include "base/UTF8.h"
#include "cli/Encoding.h"
#include "cli/Stamp.h"
#include "import/EDLReader.h"
#include "import/FrameRateDetection.h"
#include "support/SameFields.h"

namespace {

using namespace clipvane;
using namespace clipvane::fuzz;

constexpr std::array rates{25.0, 24.0, 23.976, 24000.0 / 1001, 0.1, 1000.0, 1e-7, 30.0};

/// Whether `text` is `original` with something put in at one place.
bool isInsertion(std::string_view text, std::string_view original) {
    if (text.size() < original.size()) return false;
    const auto [left, right] = std::ranges::mismatch(text, original);
    return text.ends_with(std::string_view(right, original.end()));
}

void requireSameEvents(std::string_view original, std::string_view text, bool showsHiddenEvent) {
    const auto before = readEDL(replaceInvalidUTF8(original));
    const auto after = readEDL(replaceInvalidUTF8(text));
    const std::size_t added = showsHiddenEvent ? 1 : 0;
    require(after.size() == before.size() + added, "no event comes or goes");
    for (std::size_t i = 0; i < before.size(); ++i) {
        require(test::sameFields(before[i].record(), after[i + added].record()), "the events stay");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const double rate = rates[data[0] % rates.size()];
    const bool restamp = (data[0] & 0x80) != 0;
    const std::string_view bytes = textOf(data + 1, size - 1);
    const auto named = detectFPS(replaceInvalidUTF8(bytes));
    const auto result = cli::stamped(bytes, rate, restamp);
    if (!result) {
        require(cli::isUTF16(bytes) || (!restamp && named), "only what must be refused is");
        return 0;
    }
    require(detectFPS(replaceInvalidUTF8(result->text)) == rate, "it names the rate");
    require(!result->showsHiddenEvent || bytes.starts_with(cli::byteOrderMark),
            "only a byte-order mark hides an event");
    requireSameEvents(bytes, result->text, result->showsHiddenEvent);
    if (!named && !restamp) require(isInsertion(result->text, bytes), "every byte stays");
    if (named == rate) require(result->text == bytes, "what names the rate is left alone");
    const auto again = cli::stamped(result->text, rate, false);
    require(again && again->text == result->text, "a stamp is enough");
    return 0;
}
