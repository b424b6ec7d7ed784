#include "velcoredata/data/CollatorPools.h"

#include <gtest/gtest.h>

#include <new>
#include <thread>

#include "main/data/BinaryCollator.h"
#include "main/data/ICUCollatorPool.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/RecordingLogger.h"
#include "velcoredata/data/Collator.h"
#include "velcoredata/data/CollatorRef.h"
#include "velicu/ScopedStatusFault.h"

TEST(CollatorPools, OneKeyOnePool)
{
    CollatorPool & pool = GetICUCollatorPool({u"LEN_RUS", 0});
    EXPECT_EQ(&GetICUCollatorPool({u"LEN_RUS", 0}), &pool);
    EXPECT_NE(&GetICUCollatorPool({u"LEN_RUS", 0x10}), &pool);
    EXPECT_NE(&GetICUCollatorPool({u"LEN_RUS_S2", 0}), &pool);
    EXPECT_EQ(GetICUCollatorPool({u"LEN_RUS", 0x10}).GetCmpFlags(), 0x10u);
    EXPECT_EQ(pool.GetName(), u"LEN_RUS");
    EXPECT_EQ(&GetBinaryCollatorPool(), &GetBinaryCollatorPool());
    EXPECT_TRUE((CollatorPoolKey{u"a", 1} == CollatorPoolKey{u"a", 1}));
    EXPECT_FALSE((CollatorPoolKey{u"a", 1} == CollatorPoolKey{u"a", 2}));
    EXPECT_FALSE((CollatorPoolKey{u"a", 1} == CollatorPoolKey{u"b", 1}));
    EXPECT_EQ((CollatorPoolKey{u"a", 1}.GetHashCode()), (CollatorPoolKey{u"a", 1}.GetHashCode()));
}

TEST(CollatorPools, AThreadKeepsItsOwnCollator)
{
    CollatorPool & icu = GetICUCollatorPool({u"LEN_RUS", 0});
    CollatorPool & other = GetICUCollatorPool({u"LSV_RSE", 0});
    CollatorPool & binary = GetBinaryCollatorPool();
    Collator const * const mine = icu.GetCollator();
    EXPECT_EQ(icu.GetCollator(), mine);
    EXPECT_NE(other.GetCollator(), mine);
    EXPECT_EQ(icu.GetCollator(), mine);
    std::thread([&] {
        Collator const * const theirs = icu.GetCollator();
        EXPECT_NE(theirs, mine);
        EXPECT_EQ(icu.GetCollator(), theirs);
        EXPECT_NE(other.GetCollator(), theirs);
        EXPECT_EQ(theirs->Compare(u"a", u"b"), -1);
        EXPECT_EQ(binary.GetCollator(), GetBinaryCollatorPool().GetCollator());
    }).join();
    Collator const * const shared = binary.GetCollator();
    std::thread([&] { EXPECT_EQ(binary.GetCollator(), shared); }).join();
}

TEST(CollatorPools, ARefThatIsCopiedToAnotherThreadFetchesThatThreadsCollator)
{
    CollatorRef const mine(GetICUCollatorPool({u"LEN_RUS", 0}));
    EXPECT_EQ(mine->Compare(u"a", u"b"), -1);
    std::thread([&] {
        CollatorRef const copy(mine);
        EXPECT_NE(&*copy, &*mine);
        CollatorRef assigned(GetBinaryCollatorPool());
        assigned = mine;
        EXPECT_EQ(&*assigned, &*copy);
    }).join();
    CollatorRef const here(mine);
    EXPECT_EQ(&*here, &*mine);
}

TEST(CollatorPools, AFailureOfIcuRaisesAndLeavesNoPool)
{
    // Each operation of the construction in turn: open, the attribute, the display texts, the language, the strength.
    int failures = 0;
    for (int step = 0;; ++step) {
        test_support::RecordingLogger log;
        VelICU::ScopedStatusFault fault(VelICU::U_MEMORY_ALLOCATION_ERROR, step);
        try {
            GetICUCollatorPool({u"AS_LDE_RLU_S2_WO", 0});
            EXPECT_FALSE(fault.HasStruck());
            break;
        } catch (VeltriaException const & e) {
            EXPECT_TRUE(fault.HasStruck());
            EXPECT_EQ(e.GetErrorInfo().GetError().GetName().toQString().toStdString(),
                      "StringException_AutoGen_0x5EA10C35");
            ASSERT_EQ(log.GetRecords().size(), 1u);
            EXPECT_NE(log.GetRecords()[0].text.find("U_MEMORY_ALLOCATION_ERROR, AS_LDE_RLU_S2_WO"), std::string::npos);
            ++failures;
        }
    }
    // open, A, S, openRules and 8 attributes read and set, two display texts, language, strength, alternate, and six
    // settings that the table needs.
    EXPECT_EQ(failures, 1 + 2 + 1 + 16 + 2 + 1 + 2 + 6);
    EXPECT_EQ(GetICUCollatorPool({u"AS_LDE_RLU_S2_WO", 0}).GetCmpFlags(), 0x5u);
}

TEST(CollatorPools, APoolThatGoesTakesItsCollatorAlong)
{
    // As a pool that lost a race: the next one at the same address must not find the old collator.
    alignas(ICUCollatorPool) unsigned char storage[sizeof(ICUCollatorPool)];
    auto * pool = new (storage) ICUCollatorPool({u"LEN_RUS_S2", 0});
    EXPECT_EQ(pool->GetCollator()->Compare(u"a", u"A"), 0);
    pool->~ICUCollatorPool();
    pool = new (storage) ICUCollatorPool({u"LEN_RUS", 0});
    EXPECT_EQ(pool->GetCollator()->Compare(u"a", u"A"), -1);
    pool->~ICUCollatorPool();
}
