// Host operating services: counting semaphore, the process-wide creation guard, system time and
// local calendar time.
#include "orvanta/platform/osw.h"

#include <chrono>
#include <condition_variable>
#include <mutex>

#include "orvanta/host/panel_host.h"

namespace orvanta {

// Waits use real time: a semaphore stands between threads, which the virtual clock does not drive.
struct OSW_Mutex_Semaphore::impl {
  std::mutex lock;
  std::condition_variable freed;
  int count;
};

OSW_Mutex_Semaphore::OSW_Mutex_Semaphore(int count) : impl_(std::make_unique<impl>()) {
  impl_->count = count;
}

OSW_Mutex_Semaphore::~OSW_Mutex_Semaphore() = default;

int OSW_Mutex_Semaphore::request(int timeout_ms) {
  std::unique_lock<std::mutex> guard(impl_->lock);
  auto available = [this] { return impl_->count > 0; };
  if (timeout_ms < 0) {
    impl_->freed.wait(guard, available);
  } else if (!impl_->freed.wait_for(guard, std::chrono::milliseconds(timeout_ms), available)) {
    return 1;
  }
  --impl_->count;
  return 0;
}

int OSW_Mutex_Semaphore::release() {
  {
    std::lock_guard<std::mutex> guard(impl_->lock);
    ++impl_->count;
  }
  impl_->freed.notify_one();
  return 0;
}

namespace {
// Recursive: a singleton created under the guard may create another one under it.
std::recursive_mutex& creation_guard() {
  static auto* m = new std::recursive_mutex;
  return *m;
}
}  // namespace

OSW_Thread_Guard::OSW_Thread_Guard() {
  creation_guard().lock();
}

OSW_Thread_Guard::~OSW_Thread_Guard() {
  creation_guard().unlock();
}

unsigned long emwOSWGetSysTimer() {
  return host::host_clock::instance().now_ms();
}

int emwCLBLocalTime(long seconds, std::tm* out) {
  if (out == nullptr)
    return 1;
  const std::time_t t = static_cast<std::time_t>(seconds);
  return localtime_r(&t, out) != nullptr ? 0 : 1;
}

}  // namespace orvanta
