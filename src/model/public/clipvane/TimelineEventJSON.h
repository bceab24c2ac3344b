// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include <clipvane/Error.h>
#include <clipvane/TimelineEvent.h>

namespace clipvane {

/// The event as a JSON object of thirteen keys, named and ordered as its fields: "id" as a UUID in
/// upper case, "highlighted" as a boolean, the others as text.
std::string encodeJSON(const TimelineEvent& event);

/// Reads what `encodeJSON` writes. Every key must be there with a value of its type, and "id" must
/// be a UUID, in either case; other keys are ignored. Fails with domain "JSON" and the reason.
Result<TimelineEvent> decodeJSON(std::string_view json);

}  // namespace clipvane
