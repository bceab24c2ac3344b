// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <clipvane/TimelineDocument.h>

namespace clipvane::fuzz {

// What was exported, read back and compared with the document. End the program with a finding.

/// Reads the CSV report with a plain reader: every field must stand where it belongs.
void requireCSVReadsBack(const TimelineDocument& document);

/// Reads the edited EDL: each event must come back renumbered, with its columns and its name. Every
/// event must be one that an EDL can hold.
void requireEDLReadsBack(const TimelineDocument& document);

/// Whether an EDL can hold the event: columns without white space, timecodes in its form, and a
/// name without colon and line breaks.
bool fitsEDL(const TimelineEvent& event);

/// The keyed form of every event must give the event back.
void requireJSONReadsBack(const TimelineDocument& document);

}  // namespace clipvane::fuzz
