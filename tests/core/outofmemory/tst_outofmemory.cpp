#include "core/autolayout/kwlayoutrun.h"
#include "core/model/kwrandom.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"
#include "support/testplan.h"

#include <QtTest>

#include <cstdlib>
#include <new>

// Any one allocation may fail, and the plan is whole afterwards.

/// The toolkit leaves texts behind where an exception passes through its own code.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libQt6Core\n";
}

namespace {
/// Counts down while it is not negative; the allocation at 0 fails.
long allocationsLeft = -1;

void *allocate(std::size_t size, std::size_t alignment)
{
    if (allocationsLeft >= 0 && allocationsLeft-- == 0)
        throw std::bad_alloc();
    void *memory = std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}
} // namespace

void *operator new(std::size_t size)
{
    return allocate(size, alignof(std::max_align_t));
}
void *operator new(std::size_t size, std::align_val_t alignment)
{
    return allocate(size, static_cast<std::size_t>(alignment));
}
void *operator new(std::size_t size, const std::nothrow_t & /*tag*/) noexcept
{
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}
void operator delete(void *memory) noexcept
{
    std::free(memory);
}
void operator delete(void *memory, const std::nothrow_t & /*tag*/) noexcept
{
    std::free(memory);
}
void operator delete(void *memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
void operator delete(void *memory, std::align_val_t /*alignment*/) noexcept
{
    std::free(memory);
}
void operator delete(void *memory, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept
{
    std::free(memory);
}

namespace {
/// Runs something with one failing allocation; true if it got as far as that allocation.
template <typename Function>
bool failsAt(long allocation, Function function)
{
    allocationsLeft = allocation;
    function();
    const bool reached = allocationsLeft < 0;
    allocationsLeft = -1;
    return reached;
}

void fill(KWDocument &plan)
{
    fillRandomly(plan, {.guests = 12, .seats = 14, .wishes = 10, .locked = 1});
}
} // namespace

class TestOutOfMemory : public QObject
{
    Q_OBJECT

private slots:
    void aLayoutRunEndsWithTheBestOrLeavesThePlan()
    {
        setFixedRandomSeed(1);
        int endedEarly = 0;
        for (long allocation = 0;; allocation += 13) {
            KWDocument plan;
            fill(plan);
            const QByteArray before = plan.toPlanText({});
            KWLayoutResult result;
            bool thrown = false;
            const bool reached = failsAt(allocation, [&] {
                try {
                    result = runLayout(plan, {.maxGenerationsUnimproved = 3});
                } catch (const std::bad_alloc &) {
                    thrown = true;
                }
            });
            if (!reached)
                break;
            endedEarly += result.stoppedBy == KWLayoutResult::Memory;
            if (thrown)
                QCOMPARE(plan.toPlanText({}), before);
            else
                QCOMPARE(plan.guestCount(), 12);
            QCOMPARE(KWDocument::liveCount(), 1);
            int events = 0;
            connect(&plan, &KWDocument::eventModified, this, [&events] { ++events; });
            plan.blockEvents();
            plan.setEvent(s("blocked"));
            QCOMPARE(events, 0);
            plan.unblockEvents();
            plan.setEvent(s("heard"));
            QCOMPARE(events, 1);
        }
        QVERIFY(endedEarly > 50);
        setFixedRandomSeed({});
    }

    void aFailedLoadLeavesAnEmptyPlanAndBlamesNotTheFile()
    {
        const QString path = sourcePath("examples/small.kw");
        for (long allocation = 0;; allocation += 7) {
            KWDocument plan;
            KWViewSettings views;
            bool differs = false;
            int result = -1;
            const bool reached = failsAt(allocation, [&] {
                try {
                    result = plan.load(path, views, differs);
                } catch (const std::bad_alloc &) {
                    QVERIFY(plan.isEmpty() && plan.groupCount() == 0);
                }
            });
            QVERIFY(result == -1 || result == KWDocument::FileOk);
            if (!reached)
                break;
        }
    }

    void aFailedAdditionLeavesAPlanThatCanBeCopied()
    {
        for (long allocation = 0;; ++allocation) {
            KWDocument plan;
            const QList<KWGuest *> guests = addGuests(plan, 16);
            const bool reached = failsAt(allocation, [&] {
                try {
                    KWGuest *guest = addGuest(plan, {.name = "New"}, plan.groupAt(0));
                    plan.setAffinity(guest, guests.first(), KWScore::Loves, false);
                } catch (const std::bad_alloc &) {
                    // As many wishes as the store says there are.
                    QCOMPARE(plan.affinities().size(), plan.affinityCount());
                }
            });
            addGuest(plan, {.name = "Next"});
            QCOMPARE(KWDocument(plan).toPlanText({}), plan.toPlanText({}));
            if (!reached)
                break;
        }
    }

    void aFailedAssignmentLeavesThePlan()
    {
        KWDocument source;
        fill(source);
        int failed = 0;
        for (long allocation = 0;; ++allocation) {
            KWDocument plan;
            addTable(plan, "T", KWTable::Circular, 4);
            plan.assignGuest(addGuests(plan, 2).constFirst(), plan.tableAt(0), 1, true);
            const QByteArray before = plan.toPlanText({});
            bool thrown = false;
            const bool reached = failsAt(allocation, [&] {
                try {
                    plan = source;
                } catch (const std::bad_alloc &) {
                    thrown = true;
                }
            });
            if (!reached)
                break;
            QVERIFY(thrown);
            ++failed;
            QCOMPARE(plan.toPlanText({}), before);
            QCOMPARE(KWDocument::liveCount(), 2);
        }
        QVERIFY(failed > 5);
    }
};

REGISTER_TEST(TestOutOfMemory)
#include "tst_outofmemory.moc"
