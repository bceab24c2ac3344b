// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/XMLReader.h"

// Expat declares its guards against expanding entities only with this macro.
#define XML_DTD
#include <expat.h>

#include <algorithm>
#include <exception>
#include <map>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "import/CommonTimelineXMLDelegate.h"
#include "import/EntityChains.h"
#include "import/XMLElement.h"
#include "import/XMLEncoding.h"

namespace clipvane {
namespace {

// Behind each piece but the last the parser goes through it again to count its lines, so nearly
// every document is one piece. But it copies what it is given, and counts it in ints: of a larger
// one it gets pieces that stay in the processor's cache. As it starts a long comment or tag again
// with every piece, pieces grow until it has read past it.
constexpr std::size_t largestWhole = std::size_t{1} << 26;
constexpr std::size_t smallestPiece = std::size_t{1} << 18;
constexpr std::size_t largestPiece = std::size_t{1} << 28;

// What no timeline needs but a hostile document could ask for ends the reading as malformed XML
// does: the events read so far stay.

/// The parser keeps some 140 bytes for each level of elements, and a level takes only three bytes
/// to write.
constexpr std::size_t mostLevels = 1'000'000;

/// The parser calls itself for an entity within an entity, and the stack is limited.
constexpr std::size_t longestEntityChain = 256;

/// How many times its own size a document may grow by its entities, beyond the parser's eight
/// megabytes for every document.
constexpr float largestAmplification = 4;

/// The work that reading may take, in bytes of text handled. A text is usually handled once. But
/// each of many end tags may need all of a long text again, and each of many clips a long name.
constexpr std::size_t mostEffort(std::size_t size) {
    return 8 * size + (std::size_t{64} << 20);
}
constexpr std::size_t effortPerDefaultAttribute = 16;
constexpr std::size_t effortPerEntityStep = 64;
constexpr std::size_t effortPerComparedAttribute = 1;

/// One run of the parser over a document, calling back the delegate.
class ParserRun {
  public:
    ParserRun(CommonTimelineXMLDelegate& delegate, const char* encoding, XMLWatcher* watcher)
        : delegate(delegate), watcher(watcher), parser(XML_ParserCreate(encoding), XML_ParserFree) {
        if (!parser) throw std::bad_alloc();
        XML_SetUserData(parser.get(), this);
        XML_SetElementHandler(parser.get(), startElement, endElement);
        XML_SetEntityDeclHandler(parser.get(), entityDeclaration);
        XML_SetAttlistDeclHandler(parser.get(), attributeDeclaration);
        XML_SetBillionLaughsAttackProtectionMaximumAmplification(parser.get(),
                                                                 largestAmplification);
    }

    /// Parses to the document's end or to its first error.
    void parse(std::string_view data) {
        effortAllowed = mostEffort(data.size());
        XML_Status status = XML_STATUS_OK;
        bool isFinal = false;
        std::size_t pieceSize = data.size() <= largestWhole ? data.size() : smallestPiece;
        while (status == XML_STATUS_OK && !isFinal) {
            const std::string_view piece = data.substr(0, pieceSize);
            data.remove_prefix(piece.size());
            isFinal = data.empty();
            hasProgressed = false;
            status = XML_Parse(parser.get(), piece.data(), static_cast<int>(piece.size()), isFinal);
            pieceSize = hasProgressed ? smallestPiece : std::min(pieceSize * 2, largestPiece);
        }
        if (failure) std::rethrow_exception(failure);
        if (XML_GetErrorCode(parser.get()) == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
        if (status != XML_STATUS_OK && watcher != nullptr) tellTheEnd();
    }

  private:
    /// The parser is written in C: an exception waits until it has returned.
    template <class Callback>
    static void guarded(void* userData, Callback callback) noexcept {
        auto& run = *static_cast<ParserRun*>(userData);
        if (run.hasStopped) return;
        run.hasProgressed = true;
        try {
            callback(run.delegate);
        } catch (...) {
            run.failure = std::current_exception();
            run.stop();
        }
        if (run.delegate.effort > run.effortAllowed) run.stop();
    }

    /// After it was stopped the parser may still call back once.
    void stop() {
        if (!hasStopped) XML_StopParser(parser.get(), XML_FALSE);
        hasStopped = true;
    }

    std::size_t line() const { return XML_GetCurrentLineNumber(parser.get()); }

    void tellTheEnd() {
        const auto* const reason = hasStopped ? "it asks for more than any timeline needs"
                                              : XML_ErrorString(XML_GetErrorCode(parser.get()));
        watcher->brokeOff(line(), XML_GetCurrentColumnNumber(parser.get()) + 1, reason);
    }

    static void startElement(void* userData, const XML_Char* name, const XML_Char** attributes) {
        auto& run = *static_cast<ParserRun*>(userData);
        if (run.open.size() == mostLevels) run.stop();
        // Attributes that the element's declaration adds take no room in the document, so they are
        // counted.
        const int specified = XML_GetSpecifiedAttributeCount(run.parser.get());
        for (auto added = attributes + specified; *added != nullptr; added += 2) {
            run.delegate.effort += effortPerDefaultAttribute;
        }
        guarded(userData, [&](CommonTimelineXMLDelegate& reader) {
            run.open.push_back(classifyXMLElement(name));
            reader.didStartElement(run.open.back(), name, attributes);
            run.askForCharacters();
            if (run.watcher != nullptr)
                run.watcher->element(name, *attributes != nullptr, run.line());
        });
    }

    static void characters(void* userData, const XML_Char* text, int length) {
        guarded(userData, [&](CommonTimelineXMLDelegate& reader) {
            reader.foundCharacters({text, static_cast<std::size_t>(length)});
        });
    }

    static void endElement(void* userData, const XML_Char* /*name*/) {
        auto& run = *static_cast<ParserRun*>(userData);
        guarded(userData, [&](CommonTimelineXMLDelegate& reader) {
            reader.didEndElement(run.open.back());
            run.open.pop_back();
            run.askForCharacters();
        });
    }

    /// Text that nobody asks for, such as the blanks between elements, need not be handed over.
    void askForCharacters() {
        if (delegate.awaitsCharacters() == hasAsked) return;
        hasAsked = !hasAsked;
        XML_SetCharacterDataHandler(parser.get(), hasAsked ? characters : nullptr);
    }

    /// Parameter entities have no chains: the parser is not told to expand them.
    static void entityDeclaration(void* userData, const XML_Char* name, int isParameter,
                                  const XML_Char* value, int length, const XML_Char* /*base*/,
                                  const XML_Char* /*system*/, const XML_Char* /*publicName*/,
                                  const XML_Char* /*notation*/) {
        if (value == nullptr || isParameter != 0) return;
        auto& run = *static_cast<ParserRun*>(userData);
        guarded(userData, [&](CommonTimelineXMLDelegate& reader) {
            const std::size_t before = run.chains.steps();
            if (!run.chains.declare(name, {value, static_cast<std::size_t>(length)})) run.stop();
            reader.effort += (run.chains.steps() - before) * effortPerEntityStep;
        });
    }

    /// The parser compares an attribute that has a default, or is an ID, with all that were
    /// declared for the same element before it.
    static void attributeDeclaration(void* userData, const XML_Char* element,
                                     const XML_Char* /*name*/, const XML_Char* type,
                                     const XML_Char* value, int /*isRequired*/) {
        auto& run = *static_cast<ParserRun*>(userData);
        guarded(userData, [&](CommonTimelineXMLDelegate& reader) {
            const std::size_t before = run.declaredAttributes[element]++;
            if (value == nullptr && std::string_view(type) != "ID") return;
            reader.effort += before * effortPerComparedAttribute;
        });
    }

    CommonTimelineXMLDelegate& delegate;
    XMLWatcher* watcher;
    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser;
    std::exception_ptr failure;
    bool hasStopped = false;
    bool hasProgressed = false;    ///< called back during the current piece
    bool hasAsked = false;         ///< for character data
    std::vector<XMLElement> open;  ///< the meanings of the elements that have not ended
    std::size_t effortAllowed = 0;
    EntityChains chains{longestEntityChain};
    /// Their number by element. A tree, as in `EntityChains`.
    std::map<std::string, std::size_t> declaredAttributes;
};

}  // namespace

EventList readXML(std::string_view data, double fps, XMLWatcher* watcher) {
    CommonTimelineXMLDelegate delegate(fps);
    const XMLBytes readable = readableXML(data);
    ParserRun(delegate, readable.encoding, watcher).parse(readable.bytes.view());
    return delegate.finish();
}

}  // namespace clipvane
