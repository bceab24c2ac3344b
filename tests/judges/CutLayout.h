// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "judges/CutJudge.h"

// Two small cuts laid out frame by frame, for their judge.
namespace clipvane::test::layout {

inline constexpr std::size_t nobody = static_cast<std::size_t>(-1);

enum class Kind { plain, whole, point, odd };

struct Event {
    std::size_t row = 0;
    Kind kind = Kind::odd;
    std::string source;
    std::string name;
    std::string track;
    std::string texts;
    std::int64_t sourceIn = 0, sourceOut = 0, recordIn = 0, recordOut = 0;
    std::pair<std::int64_t, std::size_t> order;  // record in, row

    std::int64_t frames() const {
        return kind == Kind::plain || kind == Kind::whole ? recordOut - recordIn : 0;
    }
    std::int64_t low() const { return std::min(sourceIn, sourceOut); }
    std::int64_t high() const { return std::max({sourceIn, sourceOut, low() + 1}); }
};

/// A frame, or what is compared as one.
struct Unit {
    std::size_t event = 0;
    std::string axis;           // units of one axis and position are equal
    std::int64_t position = 0;  // the source frame of a plain event
    std::optional<std::int64_t> place;
    std::int64_t frames = 0;  // that it stands for
    std::size_t mate = nobody;
};

struct Side {
    std::vector<Event> events;  // in record order
    std::vector<Unit> units;    // by event, then position
};

/// The parts as one text, for keys.
std::string join(const std::vector<std::string>& parts);

std::string text(std::int64_t number);

struct Layout {
    Side olds;
    Side news;
};

Layout layOut(const std::vector<JudgedEvent>& oldList, const std::vector<JudgedEvent>& newList,
              JudgedBy by);

/// Pairs the units of the two sides, round by round.
void pairAll(Layout& layout);

}  // namespace clipvane::test::layout
