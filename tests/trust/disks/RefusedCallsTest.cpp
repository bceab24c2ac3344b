// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <memory>
#include <span>
#include <string>

#include <clipvane/CSVReport.h>
#include <clipvane/EditedEDL.h>
#include "base/SystemCalls.h"
#include "commands/EventText.h"
#include "support/RowName.h"
#include "support/Scale.h"
#include "support/TemporaryFolder.h"

namespace clipvane::test {
namespace {

// Every call of both writers is refused with every error: at the first time, at a later one, and
// always. Whatever fails, the place holds the old or the new file, whole, and nothing else is left.

constexpr std::array calls{
    SystemCall::openWithoutName, SystemCall::open,   SystemCall::access, SystemCall::lstat,
    SystemCall::fstat,           SystemCall::lseek,  SystemCall::read,   SystemCall::write,
    SystemCall::fsync,           SystemCall::fchmod, SystemCall::fchown, SystemCall::linkat,
    SystemCall::rename,          SystemCall::unlink, SystemCall::close};
constexpr std::array errors{EIO, EINTR, EACCES, ENOSPC, EDQUOT, EROFS};
constexpr std::size_t errorCount = isInstrumented ? 3 : errors.size();
/// Which of the calls of a kind are refused.
struct Which {
    int spared;
    int times;
};
constexpr std::array refused{Which{0, 1}, Which{1, 1}, Which{0, Refusal::always}};
constexpr int often = 100;  // what "always" is for interruptions, after which a call is made again

/// What the file system cannot do.
enum class Lack { nothing, namelessFiles, hardLinks };

std::unique_ptr<Refusal> refusalFor(Lack lack) {
    switch (lack) {
        case Lack::nothing:
            return nullptr;
        case Lack::namelessFiles:
            return std::make_unique<Refusal>(SystemCall::openWithoutName, EOPNOTSUPP);
        case Lack::hardLinks:
            return std::make_unique<Refusal>(SystemCall::linkat, EPERM);
    }
    return nullptr;
}

bool isTakenBy(Lack lack, SystemCall call) {
    return (lack == Lack::namelessFiles && call == SystemCall::openWithoutName) ||
           (lack == Lack::hardLinks && call == SystemCall::linkat);
}

using Write = Result<void> (*)(const TimelineDocument&, const std::filesystem::path&);

void fill(TimelineDocument& document) {
    for (int i = 0; i < 1500; ++i) {
        TimelineEvent event;
        event.clipName = std::string(150, 'n');
        event.comments = std::string(100, 'c');
        event.sourceIn = event.recordIn = "00:00:00:00";
        event.sourceOut = event.recordOut = "00:00:01:00";
        document.events.push_back(event);
    }
}

struct Scenario {
    std::string name;
    bool isReplaced = false;
    Lack lack = Lack::nothing;
    Write write = writeCSV;
    std::string (*text)(const TimelineDocument&) = csvText;
};

class RefusedCalls : public testing::TestWithParam<Scenario> {
  protected:
    RefusedCalls() {
        fill(document);
        whole = GetParam().text(document);
    }

    void expectOldOrNewFile(SystemCall call, int error, Which which) const {
        const bool isReplaced = GetParam().isReplaced;
        const TemporaryFolder folder;
        if (isReplaced) {
            writeContent(folder / "out", old);
            ::chmod((folder / "out").c_str(), 0600);
        }
        Result<void> written;
        {
            const auto lacking = refusalFor(GetParam().lack);
            const Refusal refusal(call, error, which.times, which.spared);
            written = GetParam().write(document, folder / "out");
        }
        const std::string content = contentOf(folder / "out");
        const bool isThere = std::filesystem::exists(folder / "out");
        if (written) {
            EXPECT_TRUE(content == whole) << content.size();
        } else {
            EXPECT_EQ(written.error(), fileError("written", "out", error));
            EXPECT_NE(error, EINTR);
            EXPECT_EQ(isThere, isReplaced);
            EXPECT_EQ(content, isReplaced ? old : "");
        }
        EXPECT_EQ(folder.count(), isThere ? 1 : 0);
        if (isReplaced) {
            EXPECT_EQ(modeOf(folder / "out"), 0600U);
        }
    }

    const WithoutWaiting disk;
    TimelineDocument document;
    std::string whole;
    const std::string old = "what was exported yesterday\n";
};

TEST_P(RefusedCalls, TheOldOrTheNewFileIsThereWhole) {
    ASSERT_GT(whole.size(), chunkSize) << "too little for several writes";
    for (const SystemCall call : calls) {
        if (isTakenBy(GetParam().lack, call)) continue;
        for (const int error : std::span(errors).first(errorCount)) {
            for (Which which : refused) {
                SCOPED_TRACE("call " + std::to_string(static_cast<int>(call)) + ", error " +
                             std::to_string(error) + ", spared " + std::to_string(which.spared) +
                             ", times " + std::to_string(which.times));
                if (error == EINTR && which.times == Refusal::always) which.times = often;
                expectOldOrNewFile(call, error, which);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Exports, RefusedCalls,
    testing::Values(Scenario{"New"},
                    Scenario{"NewWithoutNamelessFiles", false, Lack::namelessFiles},
                    Scenario{"NewWithoutHardLinks", false, Lack::hardLinks},
                    Scenario{"NewEDL", false, Lack::nothing, writeEDL, edlText},
                    Scenario{"Replaced", true},
                    Scenario{"ReplacedWithoutNamelessFiles", true, Lack::namelessFiles},
                    Scenario{"ReplacedWithoutHardLinks", true, Lack::hardLinks},
                    Scenario{"ReplacedEDL", true, Lack::nothing, writeEDL, edlText}),
    RowName());

}  // namespace
}  // namespace clipvane::test
