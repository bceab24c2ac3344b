#include "import/XMLEncoding.h"

#include <unicode/ucnv.h>

#include <array>
#include <memory>

#include "base/UTF8.h"
#include "import/Scan.h"

namespace clipvane {
namespace {

using namespace std::string_view_literals;

using ConverterPointer = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

constexpr const char* utf8 = "UTF-8";
constexpr const char* utf16 = "UTF-16";  // the parser finds out which of the two byte orders

bool looksLikeUTF16(std::string_view data) {
    return data.starts_with("\xFE\xFF"sv) || data.starts_with("\xFF\xFE"sv) ||
           data.starts_with("\0<"sv) || data.starts_with("<\0"sv);
}

/// The encoding that an XML declaration in ASCII-compatible bytes names, or empty text.
std::string declaredEncoding(std::string_view data) {
    if (!data.starts_with("<?xml")) return {};
    const std::string_view declaration = data.substr(0, data.find("?>"));
    const std::size_t key = declaration.find("encoding");
    if (key == std::string_view::npos) return {};
    std::string_view rest = declaration.substr(key + "encoding"sv.size());
    const std::size_t opening = rest.find_first_of("\"'");
    if (opening == std::string_view::npos) return {};
    const char quote = rest[opening];
    rest.remove_prefix(opening + 1);
    return std::string(rest.substr(0, rest.find(quote)));
}

ConverterPointer openConverter(const char* name) {
    UErrorCode error = U_ZERO_ERROR;
    return {ucnv_open(name, &error), ucnv_close};
}

/// Whether documents labelled with the converter's name had better be read as UTF-8: the ASCII in
/// front of us excludes the wider encodings, and UTF-8 includes ASCII.
bool meansUTF8(const UConverter& converter, std::string_view data) {
    switch (ucnv_getType(&converter)) {
        case UCNV_UTF8:
        case UCNV_UTF16:
        case UCNV_UTF16_BigEndian:
        case UCNV_UTF16_LittleEndian:
        case UCNV_UTF32:
        case UCNV_UTF32_BigEndian:
        case UCNV_UTF32_LittleEndian:
            return true;
        case UCNV_US_ASCII:
            return validUTF8Prefix(data) == data.size();
        default:
            return false;
    }
}

/// `data` in UTF-8; bytes that mean nothing in the converter's encoding become U+FFFD.
std::string transcode(UConverter& from, std::string_view data) {
    const ConverterPointer to = openConverter(utf8);
    std::string text;
    if (!to) return text;
    text.reserve(data.size() + data.size() / 8);
    std::array<UChar, 4096> pivot;
    std::array<char, 16384> piece;
    UChar* pivotSource = pivot.data();
    UChar* pivotTarget = pivot.data();
    const char* source = data.data();
    UBool starting = true;
    while (true) {
        UErrorCode error = U_ZERO_ERROR;
        char* target = piece.data();
        ucnv_convertEx(to.get(), &from, &target, piece.data() + piece.size(), &source,
                       data.data() + data.size(), pivot.data(), &pivotSource, &pivotTarget,
                       pivot.data() + pivot.size(), starting, true, &error);
        text.append(piece.data(), target);
        starting = false;
        if (error != U_BUFFER_OVERFLOW_ERROR) return text;
    }
}

}  // namespace

XMLBytes readableXML(std::string_view data) {
    if (looksLikeUTF16(data)) return {{}, utf16};
    const std::string name = declaredEncoding(data);
    if (name.empty()) return {{}, utf8};
    const ConverterPointer converter = openConverter(name.c_str());
    if (!converter || meansUTF8(*converter, data)) return {{}, utf8};
    return {transcode(*converter, data), utf8};
}

}  // namespace clipvane
