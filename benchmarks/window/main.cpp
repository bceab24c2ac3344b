// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <vector>

#include "ui/EventTableModel.h"
#include "ui/EventTableView.h"
#include "ui/Startup.h"
#include "window/WindowUnderLoad.h"

// Times of the window, from a key or a command to the painted frame, in milliseconds: the median of
// several. Absolute, so that they mean something on a quiet machine only.

namespace clipvane::benchmark {
namespace {

constexpr std::array<std::size_t, 3> rowCounts{1'000, 100'000, 1'000'000};

Milliseconds median(int times, const std::function<Milliseconds()>& measure) {
    std::vector<Milliseconds> all;
    for (int i = 0; i < times; ++i) all.push_back(measure());
    std::nth_element(all.begin(), all.begin() + times / 2, all.end());
    return all[static_cast<std::size_t>(times / 2)];
}

void writeTimeline(const std::filesystem::path& path, std::size_t rows) {
    std::ofstream file(path);
    file << "TITLE: LOAD\n* FPS: 25\n\n";
    for (std::size_t row = 0; row < rows; ++row) {
        file
            << 100'000 + row
            << "  A001_C001_0203AB V     C        01:00:00:00 01:00:04:00 02:00:00:00 02:00:04:00\n"
               "* FROM CLIP NAME: A001_C001_0203AB.mov\n";
    }
}

Milliseconds emptyTable() {
    const TimelineDocument document;
    EventTableModel model(document);
    EventTableView view;
    view.setModel(&model);
    view.resize(946, 689);
    view.show();
    QCoreApplication::processEvents();
    return median(21, [&] { return WindowUnderLoad::painted([&] { view.viewport()->update(); }); });
}

using Row = std::array<double, rowCounts.size()>;

void print(const char* name, const Row& row, const char* unit = "ms") {
    std::printf("%-52s", name);
    for (const double value : row) std::printf("%12.2f", value);
    std::printf("  %s\n", unit);
}

void run() {
    Row refill{}, memory{}, arrow{}, page{}, removal{}, rate{}, lines{}, longLine{};
    const auto path = std::filesystem::temp_directory_path() /
                      ("clipvane-window-benchmark-" +
                       std::to_string(QCoreApplication::applicationPid()) + ".edl");
    const QString megabyte = (QString(59, 'a') + '\n').repeated(1'000'000 / 60);
    for (std::size_t i = 0; i < rowCounts.size(); ++i) {
        WindowUnderLoad window;
        writeTimeline(path, rowCounts[i]);
        const auto opened = window.open(path);
        std::filesystem::remove(path);
        refill[i] = opened.time.count();
        memory[i] = opened.bytesPerRow;
        arrow[i] = median(51, [&] { return window.pressInTable(Qt::Key_Down); }).count();
        page[i] = median(21, [&] { return window.pressInTable(Qt::Key_PageDown); }).count();
        removal[i] = median(5, [&] { return window.removeFirst(); }).count();
        const std::array titles{"24 fps", "25 fps", "30 fps"};
        std::size_t title = 0;
        rate[i] = median(3, [&] { return window.changeRate(titles[title++]); }).count();
        window.setComment(megabyte);
        lines[i] = median(21, [&] { return window.typeInComment(); }).count();
        window.setComment(QString(1'000'000, 'a'));
        longLine[i] = median(3, [&] { return window.typeInComment(); }).count();
    }

    std::printf("%-52s%12s%12s%12s\n", "rows", "1,000", "100,000", "1,000,000");
    print("list refill to painted frame, after the import", refill);
    print("one arrow key: selection, eleven rows, painted", arrow);
    print("page step, painted", page);
    print("Remove Event on row 0, painted", removal);
    print("keystroke in a 1 MB comment of normal lines", lines);
    print("keystroke in a comment that is one 1 MB line", longLine);
    print("rate change of the whole list, painted", rate);
    print("memory above the events, per row", memory, "bytes");
    std::printf("%-52s%12.2f  ms\n", "for comparison: an empty table, painted",
                emptyTable().count());
}

}  // namespace
}  // namespace clipvane::benchmark

int main() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    clipvane::prepareToolkit();
    int argumentCount = 1;
    char name[] = "window_benchmark";
    char* arguments[] = {name, nullptr};
    QApplication application(argumentCount, arguments);
    clipvane::dressApplication(application);
    clipvane::benchmark::run();
}
