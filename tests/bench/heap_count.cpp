// The benchmark program's replacement operators new and delete, counting the bytes held. A file of
// their own, so that no caller inlines them and sees malloc and free behind a new expression.
#include "heap_count.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {
std::atomic<long long> g_live_bytes{0};
// The size sits in front of each block, so that delete knows what it frees.
constexpr std::size_t kHeader = alignof(std::max_align_t);
}  // namespace

long long live_heap_bytes() {
  return g_live_bytes.load(std::memory_order_relaxed);
}

void* operator new(std::size_t size) {
  void* block = std::malloc(size + kHeader);
  if (block == nullptr)
    throw std::bad_alloc();
  *static_cast<std::size_t*>(block) = size;
  g_live_bytes.fetch_add(static_cast<long long>(size), std::memory_order_relaxed);
  return static_cast<char*>(block) + kHeader;
}

void operator delete(void* p) noexcept {
  if (p == nullptr)
    return;
  void* block = static_cast<char*>(p) - kHeader;
  g_live_bytes.fetch_sub(static_cast<long long>(*static_cast<std::size_t*>(block)),
                         std::memory_order_relaxed);
  std::free(block);
}

void operator delete(void* p, std::size_t) noexcept {
  operator delete(p);
}
