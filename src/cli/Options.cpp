// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace clipvane::cli {

void Options::addFlag(const std::string& name, bool& flag, const std::string& description) {
    app.add_flag(name, flag, description);
}

// The callbacks get a value as it is; the library's own conversions would change some.

void Options::addValue(const std::string& name, const std::string& type, const Take& take,
                       const std::string& description) {
    const auto check = [name, take](const CLI::results_t& given) {
        if (const auto fault = take(given.front())) throw CLI::ValidationError(name, *fault);
        return true;
    };
    app.add_option(name, check, description)->type_name(type)->expected(1);
}

void Options::addChoice(const std::string& name, std::string& chosen,
                        const std::vector<std::string>& choices, const std::string& description) {
    const std::string type = CLI::detail::join(choices, "|");
    const auto take = [type, choices, &chosen](const std::string& value) {
        chosen = value;
        const bool isOffered = std::ranges::find(choices, value) != choices.end();
        return isOffered ? std::nullopt : std::optional("\"" + value + "\" is none of " + type);
    };
    addValue(name, type, take, description);
}

void Options::addValues(const std::string& name, const std::string& type,
                        std::vector<std::string>& values, const std::string& description) {
    app.add_option(name, values, description)->type_name(type)->allow_extra_args(false);
}

void Options::addNames(const std::string& title, std::vector<std::string>& names,
                       const std::string& description) {
    const auto take = [&names](const CLI::results_t& given) {
        if (std::ranges::find(given, "") != given.end()) {
            throw CLI::ValidationError("a name is empty");
        }
        names = given;
        return true;
    };
    app.add_option(title, take, description)
        ->type_name("")
        ->allow_extra_args()
        ->expected(1, CLI::detail::expected_max_vector_size)
        ->required();
}

void Options::require(const std::string& name) {
    app.get_option(name)->required();
}

}  // namespace clipvane::cli
