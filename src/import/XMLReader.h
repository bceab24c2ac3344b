// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string_view>

#include <clipvane/EventList.h>

namespace clipvane {

/// Is told what the reader finds besides events.
class XMLWatcher {
  public:
    XMLWatcher() = default;
    XMLWatcher(const XMLWatcher&) = delete;
    XMLWatcher& operator=(const XMLWatcher&) = delete;
    virtual ~XMLWatcher() = default;

    /// An element begins: its name as written, and its line, counted from 1.
    virtual void element(std::string_view name, bool hasAttributes, std::size_t line) = 0;

    /// Reading ended before the document did, at a line and a column counted from 1, for a reason
    /// in the parser's words.
    virtual void brokeOff(std::size_t line, std::size_t column, std::string_view reason) = 0;
};

/// The events of an XMEML, FCPXML or generic XML document, in document order, with times at `fps`
/// frames per second. `data` is the file's raw bytes, in any encoding that the document declares.
/// Malformed XML yields the events before the error. A watcher costs a little time.
EventList readXML(std::string_view data, double fps, XMLWatcher* watcher = nullptr);

}  // namespace clipvane
