// Deltas are minimal: without any one of their optional members, or any one entry of their lists, they lead elsewhere.
// What may be left out all the same is listed in mayBeLeftOut.
#include "deltaTest.h"
#include "randomPairs.h"

#include <functional>

namespace
{

using namespace delta;

// A member or an element of a delta that can be taken away.
struct Part
{
    std::string path;
    bool withSync; // it is or has something that reconfigurationWithSync asks for
    std::function<void()> take;
};

// Whether a member, or one outside entries in it, is sent again with reconfigurationWithSync.
bool isSentWithSync(const Type& type, unsigned index, const void* sequence)
{
    const Change word = need(type, index).change;
    if (word == Change::Setup || word == Change::Creation || word == Change::CreationOptional || word == Change::Switch)
    {
        return true;
    }
    const Type* inner = type.members[index].type;
    const void* value = at(type, sequence, index);
    while (inner->kind == Kind::Choice && alternative(value) < inner->memberCount)
    {
        const unsigned chosen = alternative(value);
        value = content(*inner, value);
        inner = inner->members[chosen].type;
    }
    for (unsigned i = 0; inner->kind == Kind::Sequence && i < inner->memberCount; ++i)
    {
        if (has(*inner, value, i) && isSentWithSync(*inner, i, value))
        {
            return true;
        }
    }
    return false;
}

class Parts
{
public:
    explicit Parts(Heap& heap) : heap_(heap) {}

    std::vector<Part> of(CellGroupConfig* delta)
    {
        path_ = "CellGroupConfig";
        walk(root(), delta);
        return std::move(parts_);
    }

private:
    void walk(const Type& type, void* value)
    {
        switch (type.kind)
        {
        case Kind::Sequence:
            for (unsigned i = 0; i < type.memberCount; ++i)
            {
                if (has(type, value, i))
                {
                    inside(std::string(".") + type.names[i], [&] { member(type, i, value); });
                }
            }
            break;
        case Kind::Choice:
            if (const unsigned index = alternative(value); index < type.memberCount)
            {
                inside(std::string(".") + type.names[index],
                       [&] { walk(*type.members[index].type, content(type, value)); });
            }
            break;
        case Kind::Array:
        case Kind::List:
            list(type, value);
            break;
        default:
            break;
        }
    }

    void member(const Type& type, unsigned index, void* sequence)
    {
        const Type* const of = &type;
        if (isOptional(type, index))
        {
            parts_.push_back({path_, isSentWithSync(type, index, sequence),
                              [=]
                              {
                                  drop(*of, sequence, index);
                              }});
        }
        walk(*type.members[index].type, at(type, sequence, index));
    }

    void list(const Type& type, void* value)
    {
        const std::vector<void*> all = elements(type, value);
        for (size_t i = 0; i < all.size(); ++i)
        {
            inside("[" + std::to_string(i) + "]",
                   [&]
                   {
                       if (all.size() > static_cast<size_t>(type.lower))
                       {
                           parts_.push_back({path_, false,
                                             [&heap = heap_, &type, value, i]
                                             {
                                                 std::vector<void*> less = elements(type, value);
                                                 less.erase(less.begin() + static_cast<std::ptrdiff_t>(i));
                                                 setElements(heap, type, value, less);
                                             }});
                       }
                       if (type.kind == Kind::List)
                       {
                           walk(type.element(), all[i]);
                       }
                   });
        }
    }

    template <typename Run>
    void inside(const std::string& step, const Run& run)
    {
        const size_t length = path_.size();
        path_ += step;
        run();
        path_.resize(length);
    }

    Heap& heap_;
    std::string path_;
    std::vector<Part> parts_;
};

class Minimal : public DeltaTest
{
protected:
    // Why the delta may lead to the same state without the part; null where it may not.
    static const char* mayBeLeftOut(const Part& part, const Expected& expected)
    {
        const auto within = [&](const char* step)
        {
            return part.path.find(step) != std::string::npos;
        };
        if (expected.sync && part.withSync)
        {
            return "reconfigurationWithSync asks for it";
        }
        if (within(".t311-v1530"))
        {
            return "mandatory in its group, of which no code speaks";
        }
        if (!expected.recreated.empty() && (within("ToReleaseList") || within("ToreleaseList")))
        {
            return "release of what is added again";
        }
        return nullptr;
    }

    std::map<std::string, unsigned> counts;
};

TEST_F(Minimal, WithoutAnyPart)
{
    unsigned deltas = 0;
    for (uint64_t seed = 1; deltas < 1000 && !isEnough(); ++seed)
    {
        Heap heap;
        const Pair pair = randomPair(heap, seed, Distance::Near, seed % 4 == 0);
        // States, as nothing is held of actions.
        const CellGroupConfig* const prev = stateOf(heap, pair.prev);
        const CellGroupConfig* const next = stateOf(heap, pair.next);
        const Expected expected = expect(heap, prev, next, allEntries);
        const Result result = diff(heap, prev, next, allEntries);
        if (result.status != RTX_DELTA_TO_SEND)
        {
            continue;
        }
        ++deltas;
        const Octets wanted = heap.encode(expected.wanted);
        const size_t parts = Parts(heap).of(result.delta).size();
        for (size_t i = 0; i < parts; ++i)
        {
            CellGroupConfig* const less = copy(heap, result.delta);
            const Part part = Parts(heap).of(less)[i];
            part.take();
            const char* const reason = mayBeLeftOut(part, expected);
            const Applied applied = apply(heap, prev, less);
            const bool same = applied.status == RTX_OK && heap.encode(applied.next) == wanted;
            ++counts[!same ? "elsewhere" : reason != nullptr ? reason : "in vain"];
            if (same && reason == nullptr)
            {
                fail("seed " + std::to_string(seed), part.path + " is sent in vain");
            }
        }
    }
    print(counts);
    EXPECT_EQ(deltas, 1000U);
}

} // namespace
