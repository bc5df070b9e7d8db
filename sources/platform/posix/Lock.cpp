#include "platform/Lock.h"

#include <new>

#include <pthread.h>

namespace zent::platform {

struct Lock::Native {
    pthread_mutex_t mutex = {};

    Native() {
        pthread_mutexattr_t attributes;
        pthread_mutexattr_init(&attributes);
        pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE);
        const int result = pthread_mutex_init(&mutex, &attributes);
        pthread_mutexattr_destroy(&attributes);
        if (result != 0) {
            throw std::bad_alloc();
        }
    }
    ~Native() { pthread_mutex_destroy(&mutex); }
    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;
};

Lock::Lock() : m_native(std::make_unique<Native>()) {}

Lock::~Lock() = default;

void Lock::enter() noexcept { pthread_mutex_lock(&m_native->mutex); }

void Lock::leave() noexcept { pthread_mutex_unlock(&m_native->mutex); }

} // namespace zent::platform
