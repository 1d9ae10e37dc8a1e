// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/XMLEventParser.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <exception>
#include <functional>
#include <memory>
#include <string_view>
#include <unordered_set>
#include <vector>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

namespace quorvan {
namespace {

/// The names that libxml2 keeps in its dictionary, known by their addresses there. That has a fixed number of
/// buckets: millions of names would be compared with each other, so they are counted.
class ElementNames {
public:
    /// Counts a name; measures it and looks it up when it was not seen lately.
    ElementName known(const xmlChar* name) {
        const auto* begin = reinterpret_cast<const char*>(name);
        ElementName& recent = recent_[std::hash<const void*>()(name) % places];
        if (recent.data() != begin) {
            recent = ElementName(begin);
            all_.insert(name);
        }
        return recent;
    }
    bool areTooMany() const { return all_.size() > XMLEventParser::mostNames; }

private:
    /// As many as the bytes that libxml2 stores its first names in, one after the other: they get places of
    /// their own. Constant, because this is asked for every tag and a real division takes as long as the
    /// rest.
    static constexpr std::size_t places = 1024;
    std::vector<ElementName> recent_{places, ElementName("")};
    std::unordered_set<const void*> all_;
};

/// One run of libxml2 and what stands between its C callbacks and the delegate.
struct Run {
    XMLEventHandler& delegate;
    xmlParserCtxtPtr context = nullptr;
    std::optional<XMLError> error;
    std::exception_ptr exception; ///< must not pass through libxml2's frames
    ElementNames names;
    bool isRefused = false;
};

/// Ends the reading because of something that no reply needs.
void refuse(Run& run, const char* what) {
    if (!run.isRefused)
        run.error = {XML_ERR_NOT_STANDALONE, what};
    run.isRefused = true;
    xmlStopParser(run.context);
}

template <class Event>
void forward(void* data, Event&& event) {
    Run& run = *static_cast<Run*>(data);
    if (run.exception)
        return;
    try {
        event(run.delegate);
    } catch (...) {
        run.exception = std::current_exception();
    }
}

const char* text(const xmlChar* bytes) {
    return reinterpret_cast<const char*>(bytes);
}

void startElement(void* data, const xmlChar* name, const xmlChar** attributes) {
    Run& run = *static_cast<Run*>(data);
    const ElementName element = run.names.known(name);
    for (const xmlChar** each = attributes; each != nullptr && *each != nullptr; each += 2)
        run.names.known(*each);
    if (run.names.areTooMany())
        return refuse(run, "the document has too many different names");
    forward(data, [&](XMLEventHandler& delegate) {
        delegate.didStartElement(element, XMLAttributes(reinterpret_cast<const char**>(attributes)));
    });
}

void endElement(void* data, const xmlChar* name) {
    const ElementName element = static_cast<Run*>(data)->names.known(name);
    forward(data, [&](XMLEventHandler& delegate) { delegate.didEndElement(element); });
}

void characters(void* data, const xmlChar* bytes, int length) {
    forward(data, [&](XMLEventHandler& delegate) {
        delegate.foundCharacters({text(bytes), static_cast<std::size_t>(length)});
    });
}

void internalSubset(void* data, const xmlChar*, const xmlChar*, const xmlChar*) {
    refuse(*static_cast<Run*>(data), "the document has a document type");
}

void processingInstruction(void* data, const xmlChar*, const xmlChar*) {
    refuse(*static_cast<Run*>(data), "the document has a processing instruction");
}

/// Keeps the first error: what follows it is often only its consequence. Nothing of it is told to the
/// delegate, so it need not be read either.
void keepError(void* data, const char*, ...) {
    Run& run = *static_cast<Run*>(data);
    if (run.error)
        return;
    const xmlErrorPtr last = xmlCtxtGetLastError(run.context);
    std::string description = last != nullptr && last->message != nullptr ? last->message : "unknown error";
    description.erase(description.find_last_not_of('\n') + 1);
    run.error = {last != nullptr ? last->code : XML_ERR_INTERNAL_ERROR,
                 "line " + std::to_string(last != nullptr ? last->line : 0) + ": " + description};
    if (run.context->wellFormed == 0)
        xmlStopParser(run.context);
}

/// Whether a start tag may hold more attributes than libxml2, which compares each with all before it, reads
/// in a moment. No tag holds a "<", so that the stretch between two of them bounds it.
bool hasHugeTag(const std::string& document) {
    constexpr std::size_t longTag = 8192;
    for (std::size_t begin = document.find('<'); begin != std::string::npos;) {
        // As far as a tag may reach before it is looked at: the last "<" there, without those between.
        std::size_t next = document.rfind('<', begin + longTag);
        if (next == begin) {
            next = document.find('<', begin + 1);
            const std::string_view stretch = std::string_view(document).substr(begin, next - begin);
            if (std::count(stretch.begin(), stretch.end(), '=') > XMLEventParser::mostAttributes)
                return true;
        }
        begin = next;
    }
    return false;
}

void freeContext(xmlParserCtxtPtr context) {
    xmlFreeDoc(context->myDoc); // libxml2 makes one by itself to keep the entities of a DTD
    xmlFreeParserCtxt(context);
}

} // namespace

std::optional<XMLError> XMLEventParser::parse(const std::string& document, XMLEventHandler& delegate) {
    if (document.empty())
        return XMLError{XML_ERR_DOCUMENT_EMPTY, "the document is empty"};
    if (document.size() > INT_MAX)
        return XMLError{XML_ERR_DOCUMENT_END, "the document is too long"};
    if (hasHugeTag(document))
        return XMLError{XML_ERR_ATTRIBUTE_NOT_FINISHED, "the document has a tag with too many attributes"};
    const std::unique_ptr<xmlParserCtxt, decltype(&freeContext)> context(xmlNewParserCtxt(), &freeContext);
    const auto* bytes = reinterpret_cast<const xmlChar*>(document.c_str());
    const xmlParserInputPtr input =
        context ? xmlNewStringInputStream(context.get(), bytes) : nullptr; // no copy
    if (input == nullptr || inputPush(context.get(), input) < 0)
        return XMLError{XML_ERR_NO_MEMORY, "out of memory"};
    if (static_cast<std::size_t>(input->end - input->base) !=
        document.size()) // libxml2 measured it as a C string
        return XMLError{XML_ERR_INVALID_CHAR, "the document holds a NUL"};

    // The first version of the SAX interface: faster, and names come as they are written. Callbacks
    // that are not set here (entities and DTDs above all) do nothing.
    *context->sax = xmlSAXHandler{};
    context->sax->initialized = 1;
    context->sax->startElement = startElement;
    context->sax->endElement = endElement;
    context->sax->characters = characters;
    context->sax->ignorableWhitespace = characters;
    context->sax->error = keepError;
    context->sax->internalSubset = internalSubset;
    context->sax->processingInstruction = processingInstruction;
    Run run{delegate, context.get(), {}, {}, {}, false};
    context->userData = &run;
    // HUGE lifts the limits on size and depth. NOENT only makes "&amp;" in an attribute come as "&".
    // What the reply was decoded from is known, whatever its declaration says: IGNORE_ENC.
    xmlCtxtUseOptions(context.get(),
                      XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_NOENT | XML_PARSE_IGNORE_ENC);

    xmlParseDocument(context.get());
    if (run.exception)
        std::rethrow_exception(run.exception);
    if (context->wellFormed == 0 && !run.error)
        run.error = {XML_ERR_INTERNAL_ERROR, "not well-formed"};
    return context->wellFormed == 0 || run.isRefused ? run.error : std::nullopt;
}

} // namespace quorvan
