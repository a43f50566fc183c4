#pragma once

#include <chrono>
#include <string>

namespace lurkwell {

/// Whether something answers at the first of a message bus's addresses (";" between them) that does
/// not refuse, asked on a connection that is closed again. The bus library itself would wait for
/// one that hangs as long as it likes. Addresses other than sockets of this machine count as
/// answering. Waits `longest` at most.
bool DoesBusAnswer(const std::string& addresses,
                   std::chrono::milliseconds longest = std::chrono::seconds(2));

}  // namespace lurkwell
