// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/OutputOptions.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/Output.h"
#include "cli/Reason.h"

namespace clipvane::cli {

namespace {

void addName(CLI::App& app, const std::string& option, const std::string& type, std::string& name,
             const std::string& description) {
    // The library's own conversion would read signs into some names.
    const auto take = [option, &name](const CLI::results_t& given) {
        name = given.front();
        if (name.empty()) throw CLI::ValidationError(option, "the name is empty");
        return true;
    };
    app.add_option(option, take, description)->type_name(type)->expected(1);
}

}  // namespace

void addOutputOption(CLI::App& app, OutputOptions& options, const std::string& description) {
    addName(app, "-o,--output", "FILE", options.file, description);
}

void addFolderOption(CLI::App& app, OutputOptions& options, const std::string& description) {
    addName(app, "-d,--directory", "FOLDER", options.folder, description);
}

void addInPlaceOption(CLI::App& app, OutputOptions& options) {
    options.offersInPlace = true;
    app.add_flag("--in-place", options.inPlace, "replace the files themselves");
}

void addForceOption(CLI::App& app, OutputOptions& options) {
    app.add_flag("--force", options.force, "replace files that are there already");
}

Error isInputError() {
    return because("is one of the files that are read, and is not written over");
}

bool isAnInput(const std::string& file, const std::vector<Input>& inputs) {
    const auto written = Output::identityOf(file);
    return written && std::ranges::any_of(
                          inputs, [&](const Input& input) { return input.identity() == written; });
}

}  // namespace clipvane::cli
