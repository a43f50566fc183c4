#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

#include "platform/FileDescriptor.h"
#include "platform/HostStatistics.h"

namespace lurkwell {

/// Hears from the kernel of each process that begins, through its process connector. The kernel
/// tells those who may administer the network; later ones tell everybody, but whose buffer is small
/// then. Inside a container's namespaces it tells nobody. Main thread.
class ProcessConnector final : public ProcessBirths {
 public:
  /// Null where the kernel refuses at once; what it says nothing of is known when it is asked.
  static std::unique_ptr<ProcessConnector> Open();
  ~ProcessConnector() override;

  std::optional<std::int64_t> Since() override;

 private:
  enum class Wish : std::uint32_t { kListen = 1, kIgnore = 2 };

  explicit ProcessConnector(FileDescriptor socket) : mSocket(std::move(socket)) {}
  bool HearOfBirthsAlone() const;
  bool Send(Wish wish) const;

  FileDescriptor mSocket;
  bool mIsTold = false;
};

}  // namespace lurkwell
