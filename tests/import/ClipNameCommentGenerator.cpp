#include "import/ClipNameCommentGenerator.h"

#include <array>
#include <string_view>

#include "base/UTF8.h"
#include "import/GeneratedCharacters.h"

namespace clipvane::test {
namespace {

using namespace std::string_view_literals;

constexpr std::array starts{
    "* "sv,          ""sv,       "*"sv,   " \t* "sv, "M2 "sv,    "\uFEFF* "sv,
    "* SCENE: 1 "sv, "FROM "sv,  "F"sv,   "ff"sv,    "\uFB00"sv, "from clip "sv,
    "\0"sv,          "\uFB03"sv, "*:f"sv, "fro"sv,   "\u00DF"sv, "\U0001F3AC"sv};

/// Characters that some kind of upper case takes for letters of the keyword, with the letter.
struct LookAlike {
    char letter;
    std::string_view character;
};
constexpr std::array lookAlikes{
    LookAlike{'i', "\u0131"sv}, LookAlike{'i', "\u0130"sv}, LookAlike{'f', "\uFB00"sv},
    LookAlike{'f', "\uFB01"sv}, LookAlike{'f', "\uFF26"sv}, LookAlike{'f', "\u0192"sv},
    LookAlike{'o', "\u00BA"sv}, LookAlike{'m', "\u217F"sv}, LookAlike{'l', "\u2113"sv},
    LookAlike{'c', "\u0421"sv}, LookAlike{' ', "\u00A0"sv}, LookAlike{' ', "\t"sv},
    LookAlike{' ', "  "sv},     LookAlike{'a', "\u00AA"sv}, LookAlike{'e', "e\u0301"sv},
    LookAlike{'n', "\u0149"sv}, LookAlike{'i', "\u012F"sv}, LookAlike{'p', "\u0440"sv}};

constexpr std::array names{"A001_C003"sv,
                           "Take 3: Scene: 12"sv,
                           ""sv,
                           "a b"sv,
                           ":"sv,
                           "\u00E9"sv,
                           "from clip name"sv,
                           "\0"sv,
                           "\u200B"sv,
                           "x:"sv,
                           "caf\u0065\u0301.mov"sv,
                           "file:///a/b"sv,
                           "*"sv,
                           "a\uFF1Ab"sv,
                           ":\u0301c"sv};

std::string keyword(Random& random) {
    std::string text;
    const bool shouts = random.oneIn(2);
    for (const char letter : "from clip name"sv) {
        const LookAlike& other = random.pick(lookAlikes);
        if (other.letter == letter && random.oneIn(6)) {
            text += other.character;
        } else if (letter != ' ' && shouts != random.oneIn(8)) {
            text += static_cast<char>(letter ^ 0x20);
        } else {
            text += letter;
        }
    }
    return text;
}

std::string space(Random& random) {
    std::string text;
    while (random.oneIn(2)) text += random.oneIn(2) ? " " : anyCharacter(random);
    return text;
}

}  // namespace

std::string generateClipNameComment(Random& random) {
    std::string line;
    while (!random.oneIn(2)) line += random.pick(starts);
    line += keyword(random);
    if (!random.oneIn(6)) line += ':';
    line += space(random);
    line += random.pick(names);
    if (random.oneIn(300)) line.append(random.below(2000), random.oneIn(2) ? 'f' : ' ');
    line += space(random);
    if (random.oneIn(3)) slip(random, line);
    return replaceInvalidUTF8(line);
}

}  // namespace clipvane::test
