// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <fcntl.h>
#include <unistd.h>

#include <clipvane/CSVReport.h>
#include <clipvane/EditedEDL.h>
#include <clipvane/TimelineParser.h>
#include "BenchmarkFile.h"
#include "GeneratedTimeline.h"
#include "Ratio.h"
#include "base/Descriptor.h"

/// Stands in for the system's own in this program: how fast the disk takes a file is not what is
/// measured here.
extern "C" int fsync(int) {
    return 0;
}

namespace clipvane {
namespace {

void writeBytes(const std::filesystem::path& path, std::string_view bytes) {
    const Descriptor file = openFile(path.c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0644);
    while (!bytes.empty()) {
        const ssize_t put = ::write(file.number(), bytes.data(), bytes.size());
        if (put <= 0) break;
        bytes.remove_prefix(static_cast<std::size_t>(put));
    }
}

/// Building the text and writing it, without waiting for the disk, against one write of the same
/// bytes.
template <class Text, class Write>
void measureExport(benchmark::State& state, Text textOf, Write writeTo) {
    TimelineDocument document;
    document.events =
        TimelineParser::parseEDL(generatedEDL(static_cast<std::size_t>(state.range(0))));
    const BenchmarkFile file(".export", "");
    const BenchmarkFile floorFile(".floor", "");
    const std::string text = textOf(document);
    measureAgainstFloor(
        state,
        [&] {
            if (!writeTo(document, file.path())) state.SkipWithError("the export failed");
        },
        [&] { writeBytes(floorFile.path(), text); });
    state.counters["MB"] = static_cast<double>(text.size()) / 1e6;
}

void exportCSV(benchmark::State& state) {
    measureExport(state, csvText, writeCSV);
}
BENCHMARK(exportCSV)->Arg(1'000'000)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

void exportEDL(benchmark::State& state) {
    measureExport(state, edlText, writeEDL);
}
BENCHMARK(exportEDL)->Arg(1'000'000)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace clipvane
