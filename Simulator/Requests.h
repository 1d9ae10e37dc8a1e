// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/KelpServer.h"
#include "Simulator/ReplyWriter.h"
#include "Simulator/RequestReader.h"

#include <string>

namespace quorvan::simulator {

/// Who asks which server for what.
struct Request {
    KelpServer& server;
    const Identity& user;           ///< who is logged in
    const RequestElement& elements; ///< what readRequest made of the text
};

// One function per pipe: check the request, carry it out, answer. What is wrong with a request as a whole is
// thrown as a Refusal, before anything has been carried out.

std::string answerFileRequest(const Request& request);
std::string answerRightsRequest(const Request& request);
std::string answerSmbRequest(const Request& request);
std::string answerTreeRequest(const Request& request);
std::string answerQuotaRequest(const Request& request);

/// A reply in the layout that the request asks for, with `code` as the result of everything in it.
std::string failureReply(const RequestElement& elements, int code);
std::string failureReply(int code); ///< for a request that cannot be read at all

/// Writes the "result" element of one operation.
void writeResult(ReplyWriter& reply, int code);

/// Carries out one operation of several in a request; the code of its result.
template <class Operation>
int resultOf(const Operation& operation) {
    try {
        operation();
        return 0;
    } catch (const Refusal& refusal) {
        return refusal.code;
    }
}

} // namespace quorvan::simulator
