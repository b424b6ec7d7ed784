#include "velcoreplatform/Locks.h"

#include <atomic>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

template <class Body>
void RunInThreads(int count, Body const & body)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
        threads.emplace_back(body);
    for (std::thread & thread : threads)
        thread.join();
}

TEST(TRecursiveMutex, OneThreadMayLockItAgain)
{
    TRecursiveMutex mutex(0);
    AutoSynchronize const outer(mutex, 13, __FILE__, __func__, __LINE__);
    AutoSynchronize const inner(mutex, 13, __FILE__, __func__, __LINE__);
    mutex.Lock();
    mutex.Unlock();
    SUCCEED();
}

TEST(AutoSynchronize, ExcludesOtherThreadsForItsLifetime)
{
    TRecursiveMutex mutex(0);
    int count = 0;
    RunInThreads(8, [&] {
        for (int i = 0; i < 1000; ++i) {
            AutoSynchronize const lock(mutex, 2, __FILE__, __func__, __LINE__);
            ++count;
        }
    });
    EXPECT_EQ(count, 8000);
}

TEST(AutoSynchronize, UnlocksAtItsEnd)
{
    TRecursiveMutex mutex(0);
    {
        AutoSynchronize const lock(mutex, 2, __FILE__, __func__, __LINE__);
    }
    bool locked = false;
    std::thread other([&] {
        mutex.Lock();
        locked = true;
        mutex.Unlock();
    });
    other.join();
    EXPECT_TRUE(locked);
}

TEST(TReadWriteLock, AWriterIsAlone)
{
    TReadWriteLock lock(0);
    int first = 0;
    int second = 0;
    std::atomic<int> torn{0};
    RunInThreads(6, [&] {
        for (int i = 0; i < 500; ++i) {
            lock.Lock();
            ++first;
            ++second;
            lock.Unlock();
            lock.LockRead();
            if (first != second)
                ++torn;
            lock.UnlockRead();
        }
    });
    EXPECT_EQ(first, 3000);
    EXPECT_EQ(torn, 0);
}

TEST(TReadWriteLock, ReadersShareIt)
{
    TReadWriteLock lock(0);
    lock.LockRead();
    bool shared = false;
    std::thread other([&] {
        ScopedReadLock const reader(lock);
        shared = true;
    });
    other.join();
    lock.UnlockRead();
    EXPECT_TRUE(shared);
}

TEST(TReadWriteLock, TheScopedFormsUnlockAtTheirEnd)
{
    TReadWriteLock lock(0);
    int value = 0;
    RunInThreads(4, [&] {
        for (int i = 0; i < 500; ++i) {
            {
                ScopedWriteLock const writer(lock);
                ++value;
            }
            ScopedReadLock const reader(lock);
            ASSERT_GT(value, 0);
        }
    });
    EXPECT_EQ(value, 2000);
}

}  // namespace
