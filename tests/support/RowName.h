// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/RowText.h"

namespace clipvane::test {

/// Names a parameterised test after its row's `name`.
struct RowName {
    template <class Row>
    std::string operator()(const testing::TestParamInfo<Row>& info) const {
        return std::string(info.param.name);
    }
};

}  // namespace clipvane::test
