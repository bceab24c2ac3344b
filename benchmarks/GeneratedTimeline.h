// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>

namespace clipvane {

// Timelines of any length for the benchmarks: alike in their mixture to what editing systems write,
// the same for the same count. None names a frame rate, so that detection reads them to their end.

/// A CMX-style EDL: event lines, a FROM CLIP NAME line each, some SOURCE FILE, M2 and COMMENT
/// lines. About 157 bytes an event.
std::string generatedEDL(std::size_t events);

/// The same with every tenth line outside ASCII.
std::string generatedEDLBeyondASCII(std::size_t events);

/// An FCPXML of assets and asset-clips with rational times, some with markers and notes.
std::string generatedFCPXML(std::size_t events);

/// An XMEML of clipitems with files, frame numbers and links.
std::string generatedXMEML(std::size_t events);

}  // namespace clipvane
