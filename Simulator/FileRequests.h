// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/Requests.h"

namespace quorvan::simulator {

// The groups of requests on /FilesCmdPipe. Each gets the element below "fileRequest" and how often the
// command stream is announced before it.

std::string changeTrustees(const Request& request, const RequestElement& group, int prefixes);
std::string answerFileInfo(const Request& request, const RequestElement& group, int prefixes);

} // namespace quorvan::simulator
