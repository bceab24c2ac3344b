// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace clipvane::diff {

/// A stretch of one of several axes: the contents, or the tracks' record time.
struct AxisStretch {
    std::uint32_t axis = 0;
    std::int64_t from = 0;
    std::int64_t to = 0;
};

/// What of some axes stretches cover together.
class Coverage {
  public:
    explicit Coverage(std::vector<AxisStretch> stretches);

    /// How much of `stretch` is covered.
    std::int64_t within(const AxisStretch& stretch) const;

  private:
    struct Part {
        AxisStretch stretch;
        std::int64_t before;  // how much of its axis the parts before it cover
    };

    void add(const Part& part);
    static std::int64_t upTo(std::span<const Part> ofAxis, std::int64_t position);

    std::vector<Part> parts;            // by axis, then position; they do not touch
    std::vector<std::uint32_t> starts;  // where each axis' parts begin; one more at the end
};

}  // namespace clipvane::diff
