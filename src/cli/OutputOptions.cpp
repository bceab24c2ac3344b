// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/OutputOptions.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/Output.h"

namespace clipvane::cli {

void addOutputOption(CLI::App& app, OutputOptions& options, const std::string& description) {
    const auto take = [&options](const CLI::results_t& given) {
        options.file = given.front();
        if (options.file.empty()) throw CLI::ValidationError("-o", "the name is empty");
        return true;
    };
    app.add_option("-o,--output", take, description)->type_name("FILE")->expected(1);
}

void addForceOption(CLI::App& app, OutputOptions& options) {
    app.add_flag("--force", options.force, "replace files that are there already");
}

bool isAnInput(const std::string& file, const std::vector<Input>& inputs) {
    const auto written = Output::identityOf(file);
    return written && std::ranges::any_of(
                          inputs, [&](const Input& input) { return input.identity() == written; });
}

}  // namespace clipvane::cli
