// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

// ThreadSanitizer does not see what QMutex does in the system's Qt, which is built without it.
// These stand before Qt's own functions, tell it and pass the call on. Only the thread
// sanitizer's builds link this file.

#include <sanitizer/tsan_interface.h>

#include <dlfcn.h>

#define EXPORTED __attribute__((visibility("default")))

namespace {

using MutexFunction = void(void* mutex);

MutexFunction* qtFunction(const char* symbol)
{
    return reinterpret_cast<MutexFunction*>(dlsym(RTLD_NEXT, symbol));
}

} // namespace

extern "C" {

// QMutex::lock()
EXPORTED void _ZN6QMutex4lockEv(void* mutex)
{
    static MutexFunction* const lock = qtFunction("_ZN6QMutex4lockEv");
    __tsan_mutex_pre_lock(mutex, 0);
    lock(mutex);
    __tsan_mutex_post_lock(mutex, 0, 0);
}

// QMutex::unlock()
EXPORTED void _ZN6QMutex6unlockEv(void* mutex)
{
    static MutexFunction* const unlock = qtFunction("_ZN6QMutex6unlockEv");
    __tsan_mutex_pre_unlock(mutex, 0);
    unlock(mutex);
    __tsan_mutex_post_unlock(mutex, 0);
}

} // extern "C"
