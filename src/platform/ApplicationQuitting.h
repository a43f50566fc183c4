#pragma once

#include <atomic>

namespace lurkwell {

/// False until the application begins to shut down, then true for good. Set once, on the main
/// thread; read by window-close handlers and by the drawing thread, which ends when it sees it.
inline std::atomic<bool> gApplicationQuitting{false};

}  // namespace lurkwell
