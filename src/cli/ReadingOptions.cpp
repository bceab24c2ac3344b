// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/ReadingOptions.h"

#include <algorithm>

#include "cli/Rate.h"

namespace clipvane::cli {
namespace {

void addRateOption(Options& options, const std::string& name, std::optional<double>& rate,
                   const std::string& description) {
    const auto take = [&rate](const std::string& text) -> std::optional<std::string> {
        rate = parseRate(text);
        if (rate) return std::nullopt;
        return "\"" + text +
               "\" is no rate: say 25, 23.976 or 24000/1001; above 0 and at most 1000";
    };
    options.addValue(name, "R", take, description);
}

}  // namespace

void addFPSOption(Options& options, ReadingOptions& reading, const std::string& description) {
    addRateOption(options, "--fps", reading.fps, description);
}

void addToOption(Options& options, ReadingOptions& reading) {
    addRateOption(options, "--to", reading.to, "then convert every timecode to R frames a second");
}

void addFromOption(Options& options, ReadingOptions& reading,
                   const std::vector<std::string>& choices) {
    options.addChoice("--from", reading.from, choices,
                      "format of \"-\", and of names that do not tell");
}

void addNames(Options& options, ReadingOptions& reading, const std::string& title) {
    options.addNames(title, reading.names,
                     "files; \"-\" is standard input, and \"--\" ends the options");
}

std::optional<TimelineFormat> formatOf(const Input& input, const ReadingOptions& options) {
    const auto byName = input.format();
    return byName ? byName : formatCalled(options.from);
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
    if (stream != inputs.end() && options.from.empty()) {
        return stream->title() + " has no name that tells its format: say it with --from";
    }
    if (!options.from.empty() && std::ranges::none_of(inputs, needsFormat)) {
        return "--from is for \"-\" and for names that do not tell the format, and none is here";
    }
    return std::nullopt;
}

}  // namespace clipvane::cli
