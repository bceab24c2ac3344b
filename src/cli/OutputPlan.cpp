// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/OutputPlan.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <system_error>

#include "base/Links.h"
#include "cli/FileIdentity.h"
#include "cli/Output.h"
#include "cli/Reason.h"

namespace clipvane::cli {
namespace {

using Plan = std::vector<std::optional<std::string>>;

std::string placeOf(const Input& input, const OutputOptions& options, OutputNaming naming) {
    if (options.inPlace) return input.name();
    if (options.folder.empty()) return options.file;
    return (std::filesystem::path(options.folder) / naming(input)).native();
}

/// What the file is called that writing to `place` replaces or makes: links are followed then.
std::string realName(const std::string& place) {
    std::filesystem::path file = place;
    if (followLinks(file) != 0) return place;  // writing it will say why
    std::error_code unknown;
    const auto folder = std::filesystem::weakly_canonical(
        file.has_parent_path() ? file.parent_path() : ".", unknown);
    return unknown ? place : (folder / file.filename()).native();
}

/// Says which outputs would be one file; true when there are any.
bool wouldMeet(const Plan& plan, const std::vector<Input>& inputs, Session& session) {
    std::map<std::string, std::vector<std::size_t>> uses;
    for (std::size_t i = 0; i < plan.size(); ++i) uses[realName(*plan[i])].push_back(i);
    bool meet = false;
    for (const auto& [name, those] : uses) {
        if (those.size() == 1) continue;
        meet = true;
        for (const std::size_t i : those) {
            session.fail(inputs[i].title(),
                         because("would be written to " + *plan[i] +
                                 ", and so would another of these files: nothing is written"));
        }
    }
    return meet;
}

void refuseInputs(Plan& plan, const std::vector<Input>& inputs, Session& session) {
    std::set<FileIdentity> read;
    for (const Input& input : inputs) {
        if (const auto identity = input.identity()) read.insert(*identity);
    }
    for (auto& place : plan) {
        if (!place) continue;
        const auto written = Output::identityOf(*place);
        if (!written || !read.contains(*written)) continue;
        session.fail(outputTitle(*place), isInputError());
        place.reset();
    }
}

bool makeFolder(const std::string& folder, Session& session) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!error) return true;
    session.fail(folder, systemError("made", error.value()));
    return false;
}

}  // namespace

std::optional<std::string> misuseOf(const OutputOptions& options,
                                    const std::vector<Input>& inputs) {
    const int places = static_cast<int>(!options.file.empty()) +
                       static_cast<int>(!options.folder.empty()) +
                       static_cast<int>(options.inPlace);
    if (places == 0) {
        return std::string("say where the output goes: ") +
               (options.offersInPlace ? "-o, -d or --in-place" : "-o or -d");
    }
    if (places > 1) {
        return std::string(options.offersInPlace ? "-o, -d and --in-place" : "-o and -d") +
               " exclude each other";
    }
    if (!options.file.empty()) {
        if (inputs.size() > 1) return "-o is for one file: say -d for several";
        return std::nullopt;
    }
    const auto isStream = [](const Input& input) { return input.isStream(); };
    const auto stream = std::ranges::find_if(inputs, isStream);
    if (stream == inputs.end()) return std::nullopt;
    return stream->title() + " has no name for a file: say -o";
}

std::vector<std::optional<std::string>> planOutputs(const OutputOptions& options,
                                                    const std::vector<Input>& inputs,
                                                    OutputNaming naming, Session& session) {
    Plan plan;
    for (const Input& input : inputs) plan.emplace_back(placeOf(input, options, naming));
    if (options.inPlace) return plan;
    const bool isRefused = (inputs.size() > 1 && wouldMeet(plan, inputs, session)) ||
                           (!options.folder.empty() && !makeFolder(options.folder, session));
    if (isRefused) return Plan(inputs.size());
    refuseInputs(plan, inputs, session);
    return plan;
}

}  // namespace clipvane::cli
