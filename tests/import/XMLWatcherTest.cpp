// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "import/XMLReader.h"

namespace clipvane::test {
namespace {

using testing::ElementsAre;

class Recorder : public XMLWatcher {
  public:
    std::vector<std::string> words;

    void element(std::string_view name, bool hasAttributes, std::size_t line) override {
        words.push_back(std::to_string(line) + " " + std::string(name) +
                        (hasAttributes ? "+" : ""));
    }
    void brokeOff(std::size_t line, std::size_t column, std::string_view reason) override {
        words.push_back("end at " + std::to_string(line) + ":" + std::to_string(column) + ", " +
                        std::string(reason));
    }
};

std::vector<std::string> watched(std::string_view document) {
    Recorder recorder;
    static_cast<void>(readXML(document, 25, &recorder));
    return recorder.words;
}

TEST(XMLWatcher, IsToldOfElementsAndTheirLines) {
    EXPECT_THAT(watched("<a>\n<Video ref='r'/>\r\n\n<x:marker/></a>"),
                ElementsAre("1 a", "2 Video+", "4 x:marker"));
}

TEST(XMLWatcher, IsToldWhereTheDocumentBreaksOff) {
    EXPECT_THAT(watched("<a>\n <b></c>"), ElementsAre("1 a", "2 b", "end at 2:7, mismatched tag"));
    EXPECT_THAT(watched(""), ElementsAre("end at 1:1, no element found"));
}

TEST(XMLWatcher, IsToldOfTheReadersOwnLimits) {
    std::string attributes;
    for (int i = 0; i < 20'000; ++i) attributes += " n" + std::to_string(i) + " CDATA 'x'";
    EXPECT_THAT(watched("<!DOCTYPE a [<!ATTLIST b" + attributes + ">]><a/>"),
                ElementsAre(testing::EndsWith("it asks for more than any timeline needs")));
}

}  // namespace
}  // namespace clipvane::test
