#include "platform/bounded_call.h"

#include <future>
#include <thread>
#include <utility>

#include "base/error_boundary.h"

namespace platform {

bool SucceedsWithin(std::chrono::milliseconds limit, std::function<void()> call) {
  std::packaged_task<bool()> task([call = std::move(call)] { return base::RunGuarded(call); });
  auto result = task.get_future();
  std::thread(std::move(task)).detach();
  return result.wait_for(limit) == std::future_status::ready && result.get();
}

}  // namespace platform
