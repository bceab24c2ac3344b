// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <expat.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <memory>

#include <clipvane/TimelineParser.h>
#include "BenchmarkFile.h"
#include "GeneratedTimeline.h"
#include "Ratio.h"
#include "base/Descriptor.h"

namespace clipvane {
namespace {

/// Reads a file into memory that nobody has touched before, as that of a freshly started program
/// is: what any import has to do. (The allocator would hand out the pages of the last run again.)
void readIntoFreshBuffer(const std::filesystem::path& path, std::size_t size) {
    const auto release = [size](char* memory) { ::munmap(memory, size); };
    const std::unique_ptr<char, decltype(release)> buffer(
        static_cast<char*>(
            ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)),
        release);
    const Descriptor file = openFile(path.c_str(), O_RDONLY);
    std::size_t used = 0;
    while (used < size) {
        const ssize_t got = ::read(file.number(), buffer.get() + used, size - used);
        if (got <= 0) break;
        used += static_cast<std::size_t>(got);
    }
    benchmark::DoNotOptimize(buffer.get());
}

void measureImport(benchmark::State& state, const char* extension, const std::string& content,
                   std::size_t events) {
    const BenchmarkFile file(extension, content);
    EventList kept;  // freeing them is not the import's time
    measureAgainstFloor(
        state,
        [&] {
            auto result = TimelineParser::parse(file.path());
            kept = std::move(result->events);
        },
        [&] {
            if (!kept.empty() && kept.size() != events) state.SkipWithError("events are missing");
            kept = {};
            readIntoFreshBuffer(file.path(), content.size());
        });
    state.counters["MB"] = static_cast<double>(content.size()) / 1e6;
}

void importEDL(benchmark::State& state) {
    const auto events = static_cast<std::size_t>(state.range(0));
    measureImport(state, ".edl", generatedEDL(events), events);
}
BENCHMARK(importEDL)
    ->Arg(3'727)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->UseManualTime()
    ->Iterations(7)
    ->Unit(benchmark::kMillisecond);

void importEDLBeyondASCII(benchmark::State& state) {
    const auto events = static_cast<std::size_t>(state.range(0));
    measureImport(state, ".edl", generatedEDLBeyondASCII(events), events);
}
BENCHMARK(importEDLBeyondASCII)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->UseManualTime()
    ->Iterations(7)
    ->Unit(benchmark::kMillisecond);

void detectFrameRate(benchmark::State& state) {
    const std::string text = generatedEDL(static_cast<std::size_t>(state.range(0)));
    constexpr char absent = '\x01';
    measureAgainstFloor(
        state, [&] { benchmark::DoNotOptimize(TimelineParser::detectFPS(text)); },
        [&] { benchmark::DoNotOptimize(std::memchr(text.data(), absent, text.size())); });
}
BENCHMARK(detectFrameRate)
    ->Arg(1'000'000)
    ->UseManualTime()
    ->Iterations(7)
    ->Unit(benchmark::kMillisecond);

void parseWithEmptyCallbacks(const std::string& document) {
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), XML_ParserFree);
    XML_SetElementHandler(
        parser.get(), [](void*, const XML_Char*, const XML_Char**) {},
        [](void*, const XML_Char*) {});
    XML_SetCharacterDataHandler(parser.get(), [](void*, const XML_Char*, int) {});
    XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), true);
}

void measureXML(benchmark::State& state, const std::string& document) {
    EventList kept;
    measureAgainstFloor(
        state, [&] { kept = TimelineParser::parseXML(document, 24); },
        [&] {
            kept = {};
            parseWithEmptyCallbacks(document);
        });
    state.counters["MB"] = static_cast<double>(document.size()) / 1e6;
}

void importFCPXML(benchmark::State& state) {
    measureXML(state, generatedFCPXML(static_cast<std::size_t>(state.range(0))));
}
BENCHMARK(importFCPXML)
    ->Arg(100'000)
    ->UseManualTime()
    ->Iterations(7)
    ->Unit(benchmark::kMillisecond);

void importXMEML(benchmark::State& state) {
    measureXML(state, generatedXMEML(static_cast<std::size_t>(state.range(0))));
}
BENCHMARK(importXMEML)->Arg(100'000)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace clipvane
