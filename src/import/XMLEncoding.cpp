// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/XMLEncoding.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <new>
#include <string>

#include "base/UTF8.h"

namespace clipvane {
namespace {

using namespace std::string_view_literals;

using ConverterPointer = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

constexpr std::string_view declarationStart = "<?xml";
constexpr std::string_view markup = "<?xml =\"'/>&;#![]-:_09";
constexpr const char* utf8 = "UTF-8";
constexpr const char* utf16 = "UTF-16";  // the parser finds the byte order

bool looksLikeUTF16(std::string_view data) {
    return data.starts_with("\xFE\xFF"sv) || data.starts_with("\xFF\xFE"sv) ||
           data.starts_with("\0<"sv) || data.starts_with("<\0"sv);
}

/// The encoding that an XML declaration in ASCII-compatible bytes names, or empty text.
std::string declaredEncoding(std::string_view data) {
    const bool isDeclared = data.starts_with(declarationStart) &&
                            data.find_first_of(" \t\r\n") == declarationStart.size();
    if (!isDeclared) return {};
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

/// Lack of memory must not look like an unknown encoding.
void throwIfOutOfMemory(UErrorCode error) {
    if (error == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
}

bool knowsEncoding(const char* name) {
    UErrorCode error = U_ZERO_ERROR;
    return ucnv_countAliases(name, &error) > 0;
}

/// Nothing when ICU knows no such name.
ConverterPointer openConverter(const char* name) {
    UErrorCode error = U_ZERO_ERROR;
    ConverterPointer converter(ucnv_open(name, &error), ucnv_close);
    throwIfOutOfMemory(error);
    // When ICU has no memory for its table of names it only reports that it knows no such name.
    if (!converter && !knowsEncoding("windows-1252")) throw std::bad_alloc();
    return converter;
}

/// Whether the converter reads the ASCII of markup as ASCII. Wider encodings and EBCDIC do not, nor
/// do those that have other characters in place of its quotes.
bool readsASCII(UConverter& converter) {
    std::array<UChar, markup.size() * 2> text;
    UErrorCode error = U_ZERO_ERROR;
    const auto length =
        ucnv_toUChars(&converter, text.data(), static_cast<std::int32_t>(text.size()),
                      markup.data(), static_cast<std::int32_t>(markup.size()), &error);
    throwIfOutOfMemory(error);
    return U_SUCCESS(error) &&
           std::equal(text.data(), text.data() + length, markup.begin(), markup.end(),
                      [](UChar a, char b) { return a == UChar(b); });
}

/// Whether a document labelled with the converter's name is to be read as UTF-8: the label is
/// false, or it means UTF-8 or ASCII, which is a part of UTF-8.
bool meansUTF8(UConverter& converter, std::string_view data) {
    switch (ucnv_getType(&converter)) {
        case UCNV_UTF8:
            return true;
        case UCNV_US_ASCII:
            return validUTF8Prefix(data) == data.size();
        default:
            return !readsASCII(converter);
    }
}

/// Writes U+FFFD for bytes without meaning. ICU's own substitution may write U+001A, which no XML
/// document can hold.
void replaceBytes(const void* /*context*/, UConverterToUnicodeArgs* arguments,
                  const char* /*bytes*/, std::int32_t /*count*/, UConverterCallbackReason reason,
                  UErrorCode* error) {
    constexpr UChar replacementCharacter = 0xFFFD;
    if (reason > UCNV_IRREGULAR) return;
    *error = U_ZERO_ERROR;
    ucnv_cbToUWriteUChars(arguments, &replacementCharacter, 1, 0, error);
}

/// `data` in UTF-8; bytes that mean nothing in the converter's encoding become U+FFFD.
std::string transcode(UConverter& from, std::string_view data) {
    const ConverterPointer to = openConverter(utf8);
    UErrorCode callbackError = U_ZERO_ERROR;
    ucnv_setToUCallBack(&from, replaceBytes, nullptr, nullptr, nullptr, &callbackError);
    if (!to || U_FAILURE(callbackError)) return std::string(data);
    std::string text;
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
        throwIfOutOfMemory(error);
        if (error != U_BUFFER_OVERFLOW_ERROR) return text;
    }
}

}  // namespace

XMLBytes readableXML(std::string_view data) {
    if (looksLikeUTF16(data)) return {data, utf16};
    const std::string name = declaredEncoding(data);
    if (name.empty()) return {data, utf8};
    const ConverterPointer converter = openConverter(name.c_str());
    if (!converter || meansUTF8(*converter, data)) return {data, utf8};
    return {transcode(*converter, data), utf8};
}

}  // namespace clipvane
