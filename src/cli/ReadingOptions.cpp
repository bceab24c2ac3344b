// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/ReadingOptions.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/Rate.h"

namespace clipvane::cli {
namespace {

void addRateOption(CLI::App& app, const std::string& option, std::optional<double>& rate,
                   const std::string& description) {
    const auto take = [option, &rate](const std::string& text) {
        rate = parseRate(text);
        if (!rate) {
            throw CLI::ValidationError(option, "\"" + text +
                                                   "\" is no rate: say 25, 23.976 or 24000/1001; "
                                                   "above 0 and at most 1000");
        }
    };
    app.add_option_function<std::string>(option, take, description)->type_name("R");
}

}  // namespace

void addFPSOption(CLI::App& app, ReadingOptions& options) {
    addRateOption(app, "--fps", options.fps, "read at R frames a second, whatever the file names");
}

void addToOption(CLI::App& app, ReadingOptions& options) {
    addRateOption(app, "--to", options.to, "then convert every timecode to R frames a second");
}

void addFromOption(CLI::App& app, ReadingOptions& options, const std::string& values) {
    const auto take = [&options, values](const std::string& text) {
        options.from = formatCalled(text);
        const bool isOffered = ("|" + values + "|").find("|" + text + "|") != std::string::npos;
        if (!options.from || !isOffered) {
            throw CLI::ValidationError("--from", "\"" + text + "\" is none of " + values);
        }
    };
    app.add_option_function<std::string>("--from", take,
                                         "format of \"-\", and of names that do not tell")
        ->type_name(values);
}

void addNames(CLI::App& app, ReadingOptions& options, const std::string& title) {
    // A callback of the library's own kind gets the names as they are; converting them to a vector
    // would read signs into some.
    const auto take = [&options](const CLI::results_t& names) {
        options.names = names;
        return true;
    };
    app.add_option(title, take, "files; \"-\" is standard input, and \"--\" ends the options")
        ->type_name("")
        ->allow_extra_args()
        ->expected(1, CLI::detail::expected_max_vector_size)
        ->required();
}

std::optional<TimelineFormat> formatOf(const Input& input, const ReadingOptions& options) {
    const auto byName = input.format();
    return byName ? byName : options.from;
}

std::optional<std::string> misuseOf(const std::vector<Input>& inputs,
                                    const ReadingOptions& options) {
    const auto isStream = [](const Input& input) { return input.isStream(); };
    const auto needsFormat = [](const Input& input) { return !input.format(); };
    std::vector<int> streams;
    for (const Input& input : inputs) {
        if (!input.isStream()) continue;
        if (std::ranges::find(streams, *input.streamNumber()) != streams.end()) {
            return input.title() + " is named twice, but can be read only once";
        }
        streams.push_back(*input.streamNumber());
    }
    const auto stream = std::ranges::find_if(inputs, isStream);
    if (stream != inputs.end() && !options.from) {
        return stream->title() + " has no name that tells its format: say it with --from";
    }
    if (options.from && std::ranges::none_of(inputs, needsFormat)) {
        return "--from is for \"-\" and for names that do not tell the format, and none is here";
    }
    return std::nullopt;
}

}  // namespace clipvane::cli
