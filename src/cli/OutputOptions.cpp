// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/OutputOptions.h"

#include <algorithm>

#include "cli/Output.h"
#include "cli/Reason.h"

namespace clipvane::cli {

namespace {

void addName(Options& options, const std::string& option, const std::string& type,
             std::string& name, const std::string& description) {
    const auto take = [&name](const std::string& given) -> std::optional<std::string> {
        name = given;
        if (name.empty()) return "the name is empty";
        return std::nullopt;
    };
    options.addValue(option, type, take, description);
}

}  // namespace

void addOutputOption(Options& options, OutputOptions& output, const std::string& description) {
    addName(options, "-o,--output", "FILE", output.file, description);
}

void addFolderOption(Options& options, OutputOptions& output, const std::string& description) {
    addName(options, "-d,--directory", "FOLDER", output.folder, description);
}

void addInPlaceOption(Options& options, OutputOptions& output) {
    output.offersInPlace = true;
    options.addFlag("--in-place", output.inPlace, "replace the files themselves");
}

void addForceOption(Options& options, OutputOptions& output) {
    options.addFlag("--force", output.force, "replace files that are there already");
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
