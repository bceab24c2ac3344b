#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "memory/MemoryCommands.h"

namespace clipvane::test {

/// The files of a run, in a folder of the test's own.
class Place {
  public:
    explicit Place(std::filesystem::path folder) : folder(std::move(folder)) {}

    std::filesystem::path timeline(std::string_view name) const { return folder / name; }
    std::filesystem::path exports() const { return folder / "exports"; }
    std::filesystem::path log() const { return folder / "log"; }
    std::filesystem::path notes() const { return folder / "notes"; }

    /// Writes the timelines that the scenarios open.
    void writeTimelines() const;

  private:
    std::filesystem::path folder;
};

/// A command in a state in which it has something to do.
struct Scenario {
    const char* name;
    void (DocumentCommands::*command)();
    std::function<void(MemoryCommands& commands, const Place& place)> prepare;
    bool isLarge = false;  ///< asks for memory too often to let each time fail in every test run
};

std::vector<Scenario> allScenarios();

/// All that a command can change but the status line: the document, the exported files and the
/// pasteboard. Identifiers, which are drawn anew in each run, are left out.
std::string essence(const MemoryCommands& commands, const Place& place);

}  // namespace clipvane::test
