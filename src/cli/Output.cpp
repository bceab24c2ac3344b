// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Output.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "cli/Descriptors.h"
#include "cli/Reason.h"
#include "cli/Terminal.h"

namespace clipvane::cli {
namespace {

constexpr std::size_t piece = std::size_t{64} << 10;
constexpr std::string_view nowhere = "/dev/null";

bool isStandardOutput(const std::string& name) {
    return name.empty() || name == "-";
}

/// The open stream that the name means, if it means one.
std::optional<int> streamCalled(const std::string& name) {
    if (isStandardOutput(name)) return STDOUT_FILENO;
    return namedDescriptor(name);
}

Error writeError(const Error& error) {
    if (error.domain == "POSIX" && error.code == EEXIST) {
        return because("is there already; --force replaces it");
    }
    return reworded(error, "written");
}

Result<void> written(Result<void> result) {
    return std::move(result).map_error(writeError);
}

}  // namespace

Result<Output> Output::open(const std::string& name, AtomicFile::Existing existing) {
    Output output(outputTitle(name));
    if (const auto stream = streamCalled(name)) {
        output.descriptor = *stream;
        // Whoever reads along sees each list with what is said about it.
        output.heldBack = output.columns() ? 0 : piece;
    } else if (name == nowhere) {
        output.device = openFile(name.c_str(), O_WRONLY | O_CLOEXEC);
        if (!output.device.isOpen()) return tl::unexpected(systemError("written", errno));
        output.descriptor = output.device.number();
    } else {
        auto file = AtomicFile::create(name, existing);
        if (!file) return tl::unexpected(writeError(file.error()));
        output.file.emplace(std::move(*file));
    }
    return output;
}

std::optional<std::size_t> Output::columns() const {
    return file ? std::nullopt : terminalColumns(descriptor);
}

Result<void> Output::write(std::string_view bytes) {
    if (file) return written(file->write(bytes));
    if (pending.size() + bytes.size() <= heldBack) {
        pending += bytes;
        return {};
    }
    if (auto flushed = flush(); !flushed) return flushed;
    return hand(bytes);
}

Result<void> Output::flush() {
    const std::string bytes = std::exchange(pending, {});
    return hand(bytes);
}

Result<void> Output::hand(std::string_view bytes) const {
    const int code = writeStream(descriptor, bytes);
    if (code != 0) return tl::unexpected(systemError("written", code));
    return {};
}

Result<void> Output::finish() {
    if (file) return written(file->commit());
    return flush();
}

std::optional<FileIdentity> Output::identityOf(const std::string& name) {
    if (const auto stream = streamCalled(name)) return cli::identityOf(*stream);
    return cli::identityOf(std::filesystem::path(name));
}

std::string outputTitle(const std::string& name) {
    return isStandardOutput(name) ? "standard output" : name;
}

Result<void> writeOutput(const std::string& name, AtomicFile::Existing existing,
                         std::string_view text) {
    auto output = Output::open(name, existing);
    if (!output) return tl::unexpected(std::move(output.error()));
    if (auto done = output->write(text); !done) return done;
    return output->finish();
}

}  // namespace clipvane::cli
