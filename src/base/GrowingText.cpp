// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/GrowingText.h"

#include <algorithm>
#include <utility>

namespace clipvane {

std::string GrowingText::take() {
    bytes.resize(size());
    std::string text = std::exchange(bytes, {});
    end = bytes.data();
    limit = end;
    return text;
}

void GrowingText::grow(std::size_t size) {
    const std::size_t used = this->size();
    bytes.resize(std::max(used + size, 2 * bytes.size()));
    end = bytes.data() + used;
    limit = bytes.data() + bytes.size();
}

}  // namespace clipvane
