// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>

#include "ui/InspectorWindowController.h"

namespace clipvane::benchmark {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// The real window, opening its files without panels and alerts, with a clock.
class WindowUnderLoad : public InspectorWindowController {
  public:
    WindowUnderLoad();

    struct Refill {
        Milliseconds time{};     ///< from the end of the import to the painted frame
        double bytesPerRow = 0;  ///< that the window allocates for the list, the events aside
    };
    Refill open(const std::filesystem::path& path);

    Milliseconds pressInTable(Qt::Key key);
    Milliseconds removeFirst();
    Milliseconds changeRate(const QString& title);
    void setComment(const QString& text);
    /// A character typed in the middle of the comment.
    Milliseconds typeInComment();

    /// Runs `step` and everything that it makes the window paint.
    static Milliseconds painted(const std::function<void()>& step);

  private:
    template <class Widget>
    Widget& find();

    std::optional<std::filesystem::path> runOpenPanel() override { return file; }
    void runAlert(const Alert& alert) override;
    void whileBusy(const std::function<void()>& work) override;

    std::filesystem::path file;
    std::chrono::steady_clock::time_point imported;
    std::size_t heapThen = 0;
    Refill refill;
};

}  // namespace clipvane::benchmark
