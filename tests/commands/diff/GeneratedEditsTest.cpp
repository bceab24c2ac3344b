// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// Edits of cuts in which every shot has a source of its own, so that only one explanation fits:
// they are reported as they were made.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <utility>

#include "commands/diff/Cuts.h"
#include "support/Random.h"
#include "support/Scale.h"

namespace clipvane::test {
namespace {

/// A cut without gaps, and what is expected of its events by reel; "shifted" where nothing else is.
struct Edited {
    std::vector<Row> oldRows;
    std::vector<Row> newRows;
    std::map<std::string, std::vector<std::string>>
        newWords;  // of each event of the reel, in order
    std::map<std::string, std::string> oldWords;
};

std::int64_t lengthOf(const Row& row) {
    return row.sourceOut - row.sourceIn;
}

std::string text(std::int64_t number) {
    return std::to_string(number);
}

class Editor {
  public:
    explicit Editor(Random& random) : random(random) {}

    Edited edit() {
        shots.clear();
        const std::size_t count = 4 + random.below(6);
        for (std::size_t i = 0; i < count; ++i) shots.push_back(shot("R" + std::to_string(i)));
        lineUp(shots);
        Edited made;
        made.oldRows = shots;
        at = 1 + random.below(count - 2);
        make(made);
        lineUp(shots);
        made.newRows = shots;
        return made;
    }

  private:
    std::int64_t number(std::int64_t from, std::int64_t below) {
        return from +
               static_cast<std::int64_t>(random.below(static_cast<std::size_t>(below - from)));
    }

    Row shot(const std::string& reel) {
        const std::int64_t in = number(100, 1000);
        return cut(reel, in, in + number(20, 100), 0, "V", "name " + reel);
    }

    static void lineUp(std::vector<Row>& rows) {
        std::int64_t place = 0;
        for (Row& row : rows) {
            place += std::exchange(row.recordIn, 0);  // black before it
            row.recordOut = place + lengthOf(row);
            row.recordIn = place;
            place = row.recordOut;
        }
    }

    static void lineUpAgain(std::vector<Row>& rows) {
        for (Row& row : rows) row.recordIn = 0;
        lineUp(rows);
    }

    void make(Edited& made) {
        for (Row& row : shots) row.recordIn = 0;
        Row& row = shots[at];
        const auto position = shots.begin() + static_cast<std::ptrdiff_t>(at);
        const std::int64_t length = lengthOf(row);
        const std::int64_t n = number(1, 10);
        switch (random.below(12)) {
            case 0:
                shots.insert(position, shot("NEW"));
                made.newWords["NEW"] = {"new"};
                break;
            case 1:  // lifted: black stays
                made.oldWords[row.reel] = "gone";
                (position + 1)->recordIn = length;
                shots.erase(position);
                break;
            case 2:
                row.sourceIn += n;
                made.newWords[row.reel] = {"trimmed " + text(-n) + " 0 0"};
                break;
            case 3:
                row.sourceOut += n;
                made.newWords[row.reel] = {"trimmed 0 " + text(n) + " 0"};
                break;
            case 4:
                row.sourceIn -= n;
                row.sourceOut -= n;
                made.newWords[row.reel] = {"slipped " + text(-n)};
                break;
            case 5: {  // the longer of two stays on the chain, and nothing else is moved
                Row& next = *(position + 1);
                if (lengthOf(next) == length) ++next.sourceOut, ++made.oldRows[at + 1].sourceOut;
                lineUpAgain(made.oldRows);
                const bool isShorter = length < lengthOf(next);
                made.newWords[(isShorter ? row : next).reel] = {"moved"};
                std::swap(row, next);
                break;
            }
            case 6: {  // with n frames left out
                Row second = row;
                row.sourceOut = row.sourceIn + length / 2;
                second.sourceIn = row.sourceOut + n;
                made.newWords[row.reel] = {"split 1/2", "split 2/2 trimmed " + text(-n) + " 0 0"};
                shots.insert(position + 1, second);
                break;
            }
            case 7: {  // a through edit of OLD healed
                Row& first = made.oldRows[at];
                Row second = first;
                first.sourceOut = second.sourceIn = first.sourceIn + length / 2;
                made.oldRows.insert(made.oldRows.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                                    second);
                lineUpAgain(made.oldRows);
                made.newWords[row.reel] = {"joined 2"};
                break;
            }
            case 8:  // used once more, at the end
                made.newWords[row.reel] = {"", "again"};
                shots.push_back(row);
                break;
            case 9: {  // used once less
                Row second = row;
                made.oldRows.push_back(second);
                lineUpAgain(made.oldRows);
                made.oldWords[row.reel] = "fewer";
                break;
            }
            case 10:
                made.newWords[row.reel] = {"renamed"};
                row.name = "another";
                break;
            default:  // black before it: nothing but the shift that all behind have
                row.recordIn = n;
        }
    }

    Random& random;
    std::vector<Row> shots;
    std::size_t at = 0;
};

/// The words of an event but for its shift, which is looked at by itself.
std::string wordsOf(const diff::NewEvent& event) {
    std::string words;
    const auto add = [&](diff::Word word, const std::string& said) {
        if (event.words.has(word)) words += (words.empty() ? "" : " ") + said;
    };
    using diff::Word;
    add(Word::added, "new");
    add(Word::again, "again");
    add(Word::split, "split " + text(event.piece) + '/' + text(event.pieces));
    add(Word::joined, "joined " + text(event.parts));
    add(Word::retimed, "retimed");
    add(Word::slipped, "slipped " + text(event.sourceShift));
    add(Word::trimmed,
        "trimmed " + text(event.head) + ' ' + text(event.tail) + ' ' + text(event.inside));
    add(Word::moved, "moved");
    add(Word::otherTrack, "track");
    add(Word::renamed, "renamed");
    add(Word::partly, "partly");
    return words;
}

void expectReported(const Edited& made) {
    const diff::Events oldEvents = eventsOf(made.oldRows);
    const diff::Events newEvents = eventsOf(made.newRows);
    const auto diff = diff::compareCuts({oldEvents, at25}, {newEvents, at25});
    std::map<std::string, std::vector<std::string>> found;
    for (const auto& event : diff.newEvents) {
        found[made.newRows[event.row].reel].push_back(wordsOf(event));
        if (!event.partner) continue;
        const diff::Times& before = diff.oldEvents[*event.partner].times;
        const bool byInPoint = event.words.has(diff::Word::slipped);
        const std::int64_t intoSource = byInPoint ? 0 : event.times.sourceIn - before.sourceIn;
        ASSERT_EQ(event.shift, event.times.recordIn - before.recordIn - intoSource);
        const bool hasPlaceWord =
            event.words.has(diff::Word::shifted) || event.words.has(diff::Word::moved);
        ASSERT_EQ(hasPlaceWord, event.shift != 0);
    }
    for (const auto& [reel, words] : found) {
        const auto expected = made.newWords.find(reel);
        ASSERT_EQ(words,
                  expected == made.newWords.end() ? std::vector<std::string>{""} : expected->second)
            << reel;
    }
    std::map<std::string, std::string> lost;
    for (const auto& event : diff.oldEvents) {
        if (event.words.has(diff::Word::gone)) lost[made.oldRows[event.row].reel] = "gone";
        if (event.words.has(diff::Word::fewer)) lost[made.oldRows[event.row].reel] = "fewer";
    }
    ASSERT_EQ(lost, made.oldWords);
}

TEST(GeneratedEdits, EachIsReportedAsItWasMade) {
    Random random;
    Editor editor(random);
    for (std::size_t i = 0; i < generatedCases(8'000); ++i) {
        SCOPED_TRACE(i);
        expectReported(editor.edit());
        if (HasFatalFailure()) return;
    }
}

}  // namespace
}  // namespace clipvane::test
