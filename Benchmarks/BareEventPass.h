// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <string>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

namespace quorvan::benchmarks {

/// What libxml2 itself needs for a document: one event pass whose callbacks do nothing.
inline void bareEventPass(const std::string& document) {
    xmlParserCtxtPtr context = xmlNewParserCtxt();
    inputPush(context, xmlNewStringInputStream(context, reinterpret_cast<const xmlChar*>(document.c_str())));
    *context->sax = xmlSAXHandler{};
    context->sax->initialized = 1;
    context->sax->startElement = [](void*, const xmlChar*, const xmlChar**) {};
    context->sax->endElement = [](void*, const xmlChar*) {};
    context->sax->characters = [](void*, const xmlChar*, int) {};
    context->sax->ignorableWhitespace = context->sax->characters;
    xmlCtxtUseOptions(context, XML_PARSE_HUGE);
    xmlParseDocument(context);
    if (context->wellFormed == 0)
        std::abort();
    xmlFreeParserCtxt(context);
}

} // namespace quorvan::benchmarks
