#include "memory/FailingMemory.h"

#include <cerrno>
#include <cstdlib>
#include <new>

#if defined(__SANITIZE_ADDRESS__)
#define CLIPVANE_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define CLIPVANE_ADDRESS_SANITIZER 1
#endif
#endif

// The allocator behind ours: the sanitizer's, which watches what becomes of the memory, or the
// system's.
#ifdef CLIPVANE_ADDRESS_SANITIZER
#define CLIPVANE_BEHIND(name) __interceptor_##name
#else
#define CLIPVANE_BEHIND(name) __libc_##name
#endif

extern "C" {
void* CLIPVANE_BEHIND(malloc)(std::size_t size);
void* CLIPVANE_BEHIND(calloc)(std::size_t count, std::size_t size);
void* CLIPVANE_BEHIND(realloc)(void* memory, std::size_t size);
#ifdef CLIPVANE_ADDRESS_SANITIZER
int __lsan_do_recoverable_leak_check();
#endif
}

namespace clipvane::test {
namespace {

// One thread; set up before anything runs, since the first allocations come before main.
bool isFailing = false;
Failing manner = Failing::once;
std::size_t firstFailing = 0;
std::size_t asked = 0;
std::size_t failed = 0;

/// Counts one allocation, and tells whether it is to fail.
bool failsNow() {
    if (!isFailing) return false;
    ++asked;
    const bool fails = manner == Failing::once ? asked == firstFailing : asked >= firstFailing;
    if (fails) {
        ++failed;
        errno = ENOMEM;
    }
    return fails;
}

}  // namespace

void startFailing(std::size_t first, Failing failing) {
    firstFailing = first;
    manner = failing;
    asked = 0;
    failed = 0;
    isFailing = true;
}

void stopFailing() {
    isFailing = false;
}

std::size_t failedAllocations() {
    return failed;
}

bool hasLeak() {
#ifdef CLIPVANE_ADDRESS_SANITIZER
    return __lsan_do_recoverable_leak_check() != 0;
#else
    return false;
#endif
}

}  // namespace clipvane::test

extern "C" {

void* malloc(std::size_t size) {
    return clipvane::test::failsNow() ? nullptr : CLIPVANE_BEHIND(malloc)(size);
}

void* calloc(std::size_t count, std::size_t size) {
    return clipvane::test::failsNow() ? nullptr : CLIPVANE_BEHIND(calloc)(count, size);
}

void* realloc(void* memory, std::size_t size) {
    return clipvane::test::failsNow() ? nullptr : CLIPVANE_BEHIND(realloc)(memory, size);
}

}  // extern "C"

void* operator new(std::size_t size) {
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

void* operator new[](std::size_t size) {
    return operator new(size);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete[](void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}
