#include <expat.h>

#include <algorithm>
#include <exception>
#include <memory>
#include <new>
#include <utility>

#include "import/CommonTimelineXMLDelegate.h"
#include "import/EventReservation.h"
#include "import/TimelineParser.h"
#include "import/XMLEncoding.h"

namespace clipvane {
namespace {

// The parser counts in ints, and a piece that stays in the processor's cache is read faster. But of
// a long comment or tag the parser starts anew with every piece, so these grow until one is
// through.
constexpr std::size_t smallestPiece = std::size_t{1} << 18;
constexpr std::size_t largestPiece = std::size_t{1} << 28;

/// One run of the parser over a document, calling back the delegate.
class ParserRun {
  public:
    ParserRun(CommonTimelineXMLDelegate& delegate, const char* encoding)
        : delegate(delegate), parser(XML_ParserCreate(encoding), XML_ParserFree) {
        if (!parser) throw std::bad_alloc();
        XML_SetUserData(parser.get(), this);
        XML_SetElementHandler(parser.get(), startElement, endElement);
        XML_SetCharacterDataHandler(parser.get(), characters);
    }

    /// Parses to the document's end or to its first error.
    void parse(std::string_view data) {
        const std::size_t total = data.size();
        XML_Status status = XML_STATUS_OK;
        bool isFinal = false;
        std::size_t pieceSize = smallestPiece;
        while (status == XML_STATUS_OK && !isFinal) {
            const std::string_view piece = data.substr(0, pieceSize);
            data.remove_prefix(piece.size());
            isFinal = data.empty();
            const bool isFirst = piece.size() + data.size() == total;
            hasProgressed = false;
            status = XML_Parse(parser.get(), piece.data(), static_cast<int>(piece.size()), isFinal);
            pieceSize = hasProgressed ? smallestPiece : std::min(pieceSize * 2, largestPiece);
            if (isFirst && !isFinal) reserveForRest(delegate.events, piece.size(), total);
        }
        if (failure) std::rethrow_exception(failure);
        if (XML_GetErrorCode(parser.get()) == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
    }

  private:
    /// The parser is written in C: an exception waits until it has returned.
    template <class Callback>
    static void guarded(void* userData, Callback callback) noexcept {
        auto& run = *static_cast<ParserRun*>(userData);
        if (run.failure) return;
        run.hasProgressed = true;
        try {
            callback(run.delegate);
        } catch (...) {
            run.failure = std::current_exception();
            XML_StopParser(run.parser.get(), XML_FALSE);
        }
    }

    static void startElement(void* userData, const XML_Char* name, const XML_Char** attributes) {
        guarded(userData, [&](CommonTimelineXMLDelegate& reader) {
            reader.didStartElement(name, XMLAttributes(attributes));
        });
    }

    static void characters(void* userData, const XML_Char* text, int length) {
        guarded(userData, [&](CommonTimelineXMLDelegate& reader) {
            reader.foundCharacters({text, static_cast<std::size_t>(length)});
        });
    }

    static void endElement(void* userData, const XML_Char* name) {
        guarded(userData, [&](CommonTimelineXMLDelegate& reader) { reader.didEndElement(name); });
    }

    CommonTimelineXMLDelegate& delegate;
    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser;
    std::exception_ptr failure;
    bool hasProgressed = false;  ///< called back during the current piece
};

}  // namespace

std::vector<TimelineEvent> TimelineParser::parseXML(std::string_view data, double fps) {
    CommonTimelineXMLDelegate delegate(fps);
    const XMLBytes bytes = readableXML(data);
    ParserRun(delegate, bytes.encoding).parse(bytes.of(data));
    return std::move(delegate.events);
}

}  // namespace clipvane
