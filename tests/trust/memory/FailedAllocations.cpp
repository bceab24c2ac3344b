// Runs window commands again and again, each time in a process of its own and with the next
// allocation failing, until a run needs no more: once with that allocation failing alone, once with
// all after it, too. Whatever fails, a command does the whole of its work, or tells the user and
// leaves everything as it was.
//
//     failed_allocations FOLDER SAMPLES small | large | SCENARIO
//
// The folder is for files; what is in it goes. SAMPLES 0 fails every allocation, another number n
// the first n and then one of ever more.

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "memory/FailingMemory.h"
#include "memory/Scenario.h"

namespace {

using namespace clipvane::test;

struct Failure {
    std::size_t first = 0;  ///< none for 0
    Failing manner = Failing::once;
};

/// How a run ended; the status of its process.
enum Outcome : unsigned char {
    nothingFailed = 0,
    doneAllTheSame = 10,
    told,        ///< and nothing has changed
    toldOfShow,  ///< the change was made, but is not shown
    broken,
    outcomeCount
};

/// What the state becomes when nothing fails, noted by a run of its own: a library may remember a
/// failure for the rest of its process.
struct Whole {
    std::string essence;
    std::string status;

    void write(const std::filesystem::path& path) const {
        std::ofstream(path, std::ios::binary) << status << '\0' << essence;
    }
    static Whole read(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        Whole whole;
        std::getline(file, whole.status, '\0');
        whole.essence = {std::istreambuf_iterator<char>(file), {}};
        return whole;
    }
};

/// Nothing, or what is wrong with the state that a failure has led to.
const char* faultIn(const MemoryCommands& commands, const std::string& before,
                    const std::string& after, const Whole& whole) {
    if (commands.warnings > 1) return "the user is told twice";
    if (commands.warnings == 0) {
        if (after != whole.essence) return "neither done nor told";
        return commands.status.view() == whole.status ? nullptr : "done, but with a wrong status";
    }
    const bool saysDone = commands.warningReason.view().starts_with("The change was made");
    if (saysDone) return after == whole.essence ? nullptr : "told that it was done, which is wrong";
    return after == before ? nullptr : "told of a failure, but something has changed";
}

Outcome attempt(const Scenario& scenario, const Place& place, const Failure& failure) {
    std::filesystem::remove_all(place.exports());
    std::filesystem::create_directory(place.exports());
    MemoryCommands commands(place.log());
    scenario.prepare(commands, place);
    commands.warnings = 0;
    commands.status.keep("as before");
    const std::string before = essence(commands, place);

    if (failure.first > 0) startFailing(failure.first, failure.manner);
    (commands.*scenario.command)();
    stopFailing();
    const std::size_t failed = failedAllocations();
    const std::string after = essence(commands, place);
    if (failure.first == 0) {
        Whole{after, std::string(commands.status.view())}.write(place.notes());
        return nothingFailed;
    }
    if (failed == 0) return nothingFailed;
    if (const char* fault = faultIn(commands, before, after, Whole::read(place.notes()))) {
        std::fprintf(stderr, "%s, allocation %zu%s: %s\n", scenario.name, failure.first,
                     failure.manner == Failing::once ? "" : " and all after it", fault);
        return broken;
    }
    if (commands.warnings == 0) return doneAllTheSame;
    return after == before ? told : toldOfShow;
}

Outcome attemptInAnotherProcess(const Scenario& scenario, const Place& place,
                                const Failure& failure) {
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        const Outcome outcome = attempt(scenario, place, failure);
        ::_exit(hasLeak() ? broken : outcome);
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child) return broken;
    if (WIFEXITED(status) && WEXITSTATUS(status) < outcomeCount) {
        return static_cast<Outcome>(WEXITSTATUS(status));
    }
    std::fprintf(stderr, "%s, allocation %zu%s: ended with wait status %#x\n", scenario.name,
                 failure.first, failure.manner == Failing::once ? "" : " and all after it",
                 static_cast<unsigned>(status));
    return broken;
}

/// Fails allocation after allocation; true when every run ended well.
bool failEach(const Scenario& scenario, const Place& place, Failing manner, std::size_t samples) {
    std::array<std::size_t, outcomeCount> counts{};
    Failure failure{1, manner};
    while (counts[broken] < 10) {
        const Outcome outcome = attemptInAnotherProcess(scenario, place, failure);
        if (outcome == nothingFailed) break;
        ++counts[outcome];
        failure.first += samples == 0 ? 1 : 1 + failure.first / samples;
    }
    const std::size_t runs =
        counts[doneAllTheSame] + counts[told] + counts[toldOfShow] + counts[broken];
    std::printf("%-24s %-10s %6zu of %6zu failed: done %zu, told %zu, told late %zu, BROKEN %zu\n",
                scenario.name, manner == Failing::once ? "alone" : "and after", runs,
                failure.first - 1, counts[doneAllTheSame], counts[told], counts[toldOfShow],
                counts[broken]);
    return counts[broken] == 0 && counts[told] > 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("usage: failed_allocations FOLDER SAMPLES small | large | SCENARIO\n", stderr);
        return 2;
    }
    const Place place(argv[1]);
    const std::size_t samples = std::strtoull(argv[2], nullptr, 10);
    const std::string_view chosen = argv[3];
    std::filesystem::remove_all(argv[1]);
    std::filesystem::create_directories(argv[1]);
    place.writeTimelines();

    bool allWell = true;
    std::size_t run = 0;
    for (const Scenario& scenario : allScenarios()) {
        if (chosen != scenario.name && chosen != (scenario.isLarge ? "large" : "small")) continue;
        ++run;
        allWell &= attemptInAnotherProcess(scenario, place, {}) == nothingFailed;
        allWell &= failEach(scenario, place, Failing::once, samples);
        allWell &= failEach(scenario, place, Failing::fromThere, samples);
    }
    std::filesystem::remove_all(argv[1]);
    return allWell && run > 0 ? 0 : 1;
}
