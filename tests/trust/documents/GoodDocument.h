#pragma once

#include <string>
#include <vector>

namespace clipvane::test {

/// A document without fault, in parts: what comes first, each event, and what comes last.
struct GoodDocument {
    const char* name;
    bool isEDL;
    std::string head;
    std::vector<std::string> events;
    std::string tail;

    std::string bytes() const;

    /// How many events end before the byte at `position`. Of an EDL the next event's line must have
    /// come, too: until then there may be comments.
    std::size_t wholeEventsBefore(std::size_t position) const;
};

/// One of each kind that the readers know, in several encodings.
std::vector<GoodDocument> goodDocuments();

}  // namespace clipvane::test
