// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace clipvane::test {

/// A row of a table of inputs and expectations, as parameterised tests take them.
template <class Row>
concept NamedRow = std::is_aggregate_v<Row> && requires(const Row& row) {
    std::string_view(row.name);
};

struct Anything {
    template <class Value>
    operator Value() const;
};

template <class Row, std::size_t... index>
constexpr bool takes(std::index_sequence<index...>) {
    return requires {
        Row{(static_cast<void>(index), Anything())...};
    };
}

/// The number of the row's members.
template <class Row, std::size_t most = 10>
constexpr std::size_t memberCount() {
    if constexpr (most == 1 || takes<Row>(std::make_index_sequence<most>()))
        return most;
    else
        return memberCount<Row, most - 1>();
}

template <NamedRow Row>
auto membersOf(const Row& r) {
    constexpr std::size_t count = memberCount<Row>();
    // clang-format off
    if constexpr (count == 10) { const auto& [a, b, c, d, e, f, g, h, i, j] = r; return std::tie(a, b, c, d, e, f, g, h, i, j); }
    else if constexpr (count == 9) { const auto& [a, b, c, d, e, f, g, h, i] = r; return std::tie(a, b, c, d, e, f, g, h, i); }
    else if constexpr (count == 8) { const auto& [a, b, c, d, e, f, g, h] = r; return std::tie(a, b, c, d, e, f, g, h); }
    else if constexpr (count == 7) { const auto& [a, b, c, d, e, f, g] = r; return std::tie(a, b, c, d, e, f, g); }
    else if constexpr (count == 6) { const auto& [a, b, c, d, e, f] = r; return std::tie(a, b, c, d, e, f); }
    else if constexpr (count == 5) { const auto& [a, b, c, d, e] = r; return std::tie(a, b, c, d, e); }
    else if constexpr (count == 4) { const auto& [a, b, c, d] = r; return std::tie(a, b, c, d); }
    else if constexpr (count == 3) { const auto& [a, b, c] = r; return std::tie(a, b, c); }
    else if constexpr (count == 2) { const auto& [a, b] = r; return std::tie(a, b); }
    else { return std::tie(r.name); }
    // clang-format on
}

/// A text stands as it is, whatever its letters; anything else as the tests' library shows it.
template <class Member>
void showMember(const Member& member, std::ostream& out) {
    if constexpr (std::is_convertible_v<const Member&, std::string_view>) {
        out << '"' << std::string_view(member) << '"';
    } else {
        out << testing::PrintToString(member);
    }
}

}  // namespace clipvane::test

/// Shows a failing row by its name and texts. The tests' library would show its bytes, and looks
/// for no function of ours, as rows are of nameless namespaces.
template <clipvane::test::NamedRow Row>
class testing::internal::UniversalPrinter<Row> {
  public:
    static void Print(const Row& row, std::ostream* out) {
        const char* between = "{";
        const auto show = [&](const auto& member) {
            *out << std::exchange(between, ", ");
            clipvane::test::showMember(member, *out);
        };
        std::apply([&](const auto&... members) { (show(members), ...); },
                   clipvane::test::membersOf(row));
        *out << '}';
    }
};
