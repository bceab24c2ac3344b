// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// Takes a sentence about what could not be looked at.
using Complain = std::function<void(const std::string& sentence)>;

/// The timelines at the places named, sorted: every file of a folder and of the folders in it whose
/// extension Clipvane reads, and every file that is named itself. Links to folders are not
/// followed.
std::vector<std::filesystem::path> timelinesAt(const std::vector<std::filesystem::path>& places,
                                               const Complain& complain);

/// `path` for one line on the screen: valid UTF-8 without control characters.
std::string shown(const std::filesystem::path& path);
