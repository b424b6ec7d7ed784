// The locks of the platform, thin wrappers over the standard ones.
#pragma once

#include <mutex>
#include <shared_mutex>

class TRecursiveMutex
{
public:
    // The argument is a spin count of other platforms; it is not used here. Pass 0.
    explicit TRecursiveMutex(unsigned = 0) {}
    TRecursiveMutex(TRecursiveMutex const &) = delete;
    TRecursiveMutex & operator=(TRecursiveMutex const &) = delete;

    void Lock() { m_mutex.lock(); }
    void Unlock() { m_mutex.unlock(); }

private:
    std::recursive_mutex m_mutex;
};

// Scoped lock of a TRecursiveMutex. The integer is the lock class of the site, the rest names the site, for
// diagnostics.
class [[nodiscard]] AutoSynchronize
{
public:
    AutoSynchronize(TRecursiveMutex & mutex, int, char const *, char const *, int) : m_mutex(mutex) { m_mutex.Lock(); }
    ~AutoSynchronize() { m_mutex.Unlock(); }
    AutoSynchronize(AutoSynchronize const &) = delete;
    AutoSynchronize & operator=(AutoSynchronize const &) = delete;

private:
    TRecursiveMutex & m_mutex;
};

// Many readers or one writer; not recursive.
class TReadWriteLock
{
public:
    explicit TReadWriteLock(unsigned = 0) {}
    TReadWriteLock(TReadWriteLock const &) = delete;
    TReadWriteLock & operator=(TReadWriteLock const &) = delete;

    void Lock() { m_mutex.lock(); }
    void Unlock() { m_mutex.unlock(); }
    void LockRead() { m_mutex.lock_shared(); }
    void UnlockRead() { m_mutex.unlock_shared(); }

private:
    std::shared_mutex m_mutex;
};

class [[nodiscard]] ScopedReadLock
{
public:
    explicit ScopedReadLock(TReadWriteLock & lock) : m_lock(lock) { m_lock.LockRead(); }
    ~ScopedReadLock() { m_lock.UnlockRead(); }
    ScopedReadLock(ScopedReadLock const &) = delete;
    ScopedReadLock & operator=(ScopedReadLock const &) = delete;

private:
    TReadWriteLock & m_lock;
};

class [[nodiscard]] ScopedWriteLock
{
public:
    explicit ScopedWriteLock(TReadWriteLock & lock) : m_lock(lock) { m_lock.Lock(); }
    ~ScopedWriteLock() { m_lock.Unlock(); }
    ScopedWriteLock(ScopedWriteLock const &) = delete;
    ScopedWriteLock & operator=(ScopedWriteLock const &) = delete;

private:
    TReadWriteLock & m_lock;
};
