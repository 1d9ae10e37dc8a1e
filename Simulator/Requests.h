// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/KelpServer.h"
#include "Simulator/ReplyWriter.h"
#include "Simulator/RequestReader.h"

#include <string>

namespace quorvan::simulator {

// One function per pipe: check the request, carry it out for the logged-in user, answer. What is wrong with a
// request as a whole is thrown as a Refusal, before anything has been carried out.

std::string answerFileRequest(KelpServer& server, const Identity& user, const RequestElement& request);
std::string answerSmbRequest(const Identity& user, const RequestElement& request);

/// A reply in the layout that the request asks for, with `code` as the result of everything in it.
std::string failureReply(const RequestElement& request, int code);
std::string failureReply(int code); ///< for a request that cannot be read at all

/// Writes the "result" element of one operation.
void writeResult(ReplyWriter& reply, int code);

} // namespace quorvan::simulator
