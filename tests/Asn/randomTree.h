// Random element trees of any type: valid ones, changed ones and spoilt ones. The same seed makes the same tree.
#ifndef RANDOMTREE_H
#define RANDOMTREE_H

#include "rtxTree.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace test
{

class RandomTree
{
public:
    struct Options
    {
        unsigned budget = 400;     // elements of the tree, about; what has to be there comes on top
        bool unknown = true;       // additions and alternatives that the schema does not know
        bool sameIdentity = false; // elements of a list may share what identifies them
    };

    // What it makes lies in the context's heap.
    RandomTree(OSCTXT& ctxt, uint64_t seed) : RandomTree(ctxt, seed, Options()) {}
    RandomTree(OSCTXT& ctxt, uint64_t seed, const Options& options)
        : RandomTree(
              ctxt, [random = std::mt19937_64(seed)]() mutable { return random(); }, options)
    {
    }
    // From numbers of another origin, which must not be the same for ever.
    RandomTree(OSCTXT& ctxt, std::function<uint64_t()> random, const Options& options)
        : ctxt_(ctxt),
          options_(options),
          random_(std::move(random)),
          left_(options.budget),
          present_(10 + 20 * static_cast<unsigned>(below(5)))
    {
    }

    // A number below `end`.
    uint64_t below(uint64_t end)
    {
        return random_() % end;
    }

    // A cleared element with a valid value.
    void* make(const rtx::Type& type)
    {
        void* const value = allocate(type.size);
        fill(type, value);
        return value;
    }

    // Gives a cleared element a valid value.
    void fill(const rtx::Type& type, void* value)
    {
        left_ -= left_ != 0 ? 1 : 0;
        switch (type.kind)
        {
        case rtx::Kind::Boolean:
            store(value, static_cast<OSBOOL>(below(2)));
            break;
        case rtx::Kind::Null:
            break;
        case rtx::Kind::Integer:
        case rtx::Kind::Enumerated:
            storeNumber(type, value, number(type.lower, type.upper));
            break;
        case rtx::Kind::BitStr32:
            store(value, static_cast<OSUINT32>(type.upper));
            bits(static_cast<OSOCTET*>(value) + offsetof(ASN1BitStr32, data), static_cast<unsigned>(type.upper));
            break;
        case rtx::Kind::BitOctets:
            bits(static_cast<OSOCTET*>(value), static_cast<unsigned>(type.upper));
            break;
        case rtx::Kind::Sequence:
            sequence(type, value);
            break;
        case rtx::Kind::Choice:
            choice(type, value);
            break;
        case rtx::Kind::Array:
            array(type, value);
            break;
        case rtx::Kind::List:
            list(type, value);
            break;
        }
    }

    // Changes a valid tree in some random places, each to what is valid again and mostly to something else. Returns
    // what was done.
    std::vector<std::string> change(const rtx::Type& type, void* value, unsigned places = 1)
    {
        left_ = std::max(left_, 20U);
        std::vector<std::string> done;
        for (; places != 0; --places) // one after the other, as each may change what others stand in
        {
            for (std::string& change : act(type, value, 1, &RandomTree::offerChanges))
            {
                done.push_back(std::move(change));
            }
        }
        return done;
    }

    // Breaks a valid tree in some random places. Returns what was done; a list that was made a loop is no fault by
    // itself.
    std::vector<std::string> spoil(const rtx::Type& type, void* value, unsigned places = 1)
    {
        return act(type, value, places, &RandomTree::offerFaults);
    }

private:
    using Offers = void (RandomTree::*)(const rtx::Type&, void*);

    struct Action
    {
        std::function<void()> run;
        unsigned seen = 0;
    };

    void* allocate(size_t size)
    {
        void* const p = rtxMemHeapAlloc(&ctxt_, size);
        if (p == nullptr)
        {
            std::abort(); // a test's heap has no limit
        }
        return std::memset(p, 0, size);
    }

    bool chance(unsigned percent)
    {
        return below(100) < percent;
    }

    bool spend(unsigned percent)
    {
        return left_ != 0 && chance(percent);
    }

    // The ends of a range are as likely as all between them.
    int64_t number(int64_t lower, int64_t upper)
    {
        const uint64_t choice = below(4);
        return choice == 0   ? lower
               : choice == 1 ? upper
                             : lower + static_cast<int64_t>(below(static_cast<uint64_t>(upper - lower) + 1));
    }

    template <typename T>
    static void store(void* at, const T& value)
    {
        std::memcpy(at, &value, sizeof value);
    }

    static void storeInteger(void* at, unsigned width, int64_t value)
    {
        const auto octets = static_cast<uint64_t>(value);
        width == 1   ? store(at, static_cast<OSUINT8>(octets))
        : width == 2 ? store(at, static_cast<OSUINT16>(octets))
                     : store(at, static_cast<OSUINT32>(octets));
    }

    static void storeNumber(const rtx::Type& type, void* at, int64_t value)
    {
        storeInteger(at, type.size, value);
    }

    void bits(OSOCTET* octets, unsigned count)
    {
        for (unsigned i = 0; i < (count + 7) / 8; ++i)
        {
            octets[i] = static_cast<OSOCTET>(below(256));
        }
        if (count % 8 != 0)
        {
            octets[count / 8] = static_cast<OSOCTET>(octets[count / 8] & 0xFF00U >> count % 8);
        }
    }

    // Also of a pointer that is wrong, and must not be followed: it is a number then.
    static OSOCTET* at(void* structure, size_t offset)
    {
        return reinterpret_cast<OSOCTET*>(reinterpret_cast<uintptr_t>(structure) + offset);
    }

    static void setFlag(void* structure, int flag, bool set)
    {
        OSOCTET& octet = *at(structure, static_cast<size_t>(flag / 8));
        const unsigned mask = 1U << rtx::flagShift(flag);
        octet = static_cast<OSOCTET>(set ? octet | mask : octet & ~mask);
    }

    // Whether one of them came to be there.
    bool members(const rtx::Type& type, unsigned first, unsigned count, void* structure)
    {
        bool any = false;
        for (unsigned i = first; i < first + count; ++i)
        {
            const rtx::Member& member = type.members[i];
            if (member.flag < 0 || spend(present_))
            {
                any = true;
                addMember(member, structure);
            }
        }
        return any;
    }

    void addMember(const rtx::Member& member, void* structure)
    {
        if (member.flag >= 0)
        {
            setFlag(structure, member.flag, true);
        }
        fill(*member.type, at(structure, member.offset));
    }

    void sequence(const rtx::Type& type, void* value)
    {
        members(type, 0, type.rootCount, value);
        for (unsigned i = 0; i < type.additionCount; ++i)
        {
            const rtx::Addition& addition = type.additions[i];
            const bool sent =
                (addition.flag < 0 || spend(present_)) && members(type, addition.first, addition.count, value);
            if (sent && addition.flag >= 0)
            {
                setFlag(value, addition.flag, true);
            }
        }
        if (type.extensible && options_.unknown && spend(5))
        {
            OSRTDList list{};
            for (uint64_t number = 1 + below(3); number != 0; --number)
            {
                appendAddition(list);
            }
            store(at(value, type.extElem), list);
        }
    }

    // Some places may be left out before it.
    void appendAddition(OSRTDList& list)
    {
        ASN1OpenType* const open = openType();
        const OSUINT32 next = list.count == 0 ? 0 : static_cast<ASN1OpenType*>(list.tail->data)->index + 1;
        open->index = next + static_cast<OSUINT32>(below(2) * below(3));
        append(list, open);
    }

    // 1 to 3 octets, or more than a length of one octet counts.
    ASN1OpenType* openType()
    {
        auto* const open = static_cast<ASN1OpenType*>(allocate(sizeof(ASN1OpenType)));
        open->numocts = static_cast<OSUINT32>(chance(5) ? 128 + below(300) : 1 + below(3));
        open->data = static_cast<OSOCTET*>(allocate(open->numocts));
        bits(open->data, open->numocts * 8);
        return open;
    }

    void append(OSRTDList& list, void* data)
    {
        auto* const node = static_cast<OSRTDListNode*>(allocate(sizeof(OSRTDListNode)));
        node->data = data;
        rtxDListAppendNode(&list, node);
    }

    void choice(const rtx::Type& type, void* value)
    {
        if (type.extensible && options_.unknown && chance(5))
        {
            store(value, static_cast<OSUINT32>(type.memberCount + 1 + below(3)));
            store(at(value, type.extElem), openType());
        }
        else
        {
            alternative(type, value, static_cast<unsigned>(below(type.memberCount)));
        }
    }

    void alternative(const rtx::Type& type, void* value, unsigned index)
    {
        const rtx::Member& member = type.members[index];
        store(value, static_cast<OSUINT32>(index + 1));
        if (member.step == rtx::Step::Pointer)
        {
            store(at(value, member.offset), make(*member.type));
        }
        else
        {
            fill(*member.type, at(value, member.offset));
        }
    }

    uint32_t count(const rtx::Type& type)
    {
        const auto spread = static_cast<uint64_t>(type.upper - type.lower);
        const uint64_t more = left_ == 0 ? 0 : chance(10) ? spread : below(std::min<uint64_t>(spread, 3) + 1);
        return static_cast<uint32_t>(type.lower) + static_cast<uint32_t>(more);
    }

    void array(const rtx::Type& type, void* value)
    {
        uint32_t number = static_cast<uint32_t>(type.upper);
        if (type.lower != type.upper)
        {
            number = count(type);
            storeInteger(value, type.width, number);
        }
        for (uint32_t i = 0; i < number; ++i)
        {
            fill(type.element(), element(type, value, i));
        }
        identify(type, number, [&](uint32_t i) { return element(type, value, i); });
    }

    static OSOCTET* element(const rtx::Type& type, void* array, uint32_t index)
    {
        return at(array, type.members->offset + size_t{index} * type.element().size);
    }

    void list(const rtx::Type& type, void* value)
    {
        OSRTDList list{};
        std::vector<void*> elements(count(type));
        for (void*& element : elements)
        {
            element = make(type.element());
            append(list, element);
        }
        store(value, list);
        identify(type, list.count, [&](uint32_t i) { return elements[i]; });
    }

    // Gives the elements of a list identities of their own, as far as there are enough.
    template <typename At>
    void identify(const rtx::Type& type, uint32_t number, const At& elementAt)
    {
        if (type.identity == rtx::noIdentity || options_.sameIdentity)
        {
            return;
        }
        const bool own = type.identity == rtx::ownIdentity;
        const rtx::Type& id = own ? type.element() : *type.element().members[type.identity].type;
        const size_t offset = own ? 0 : type.element().members[type.identity].offset;
        const auto ids = static_cast<uint64_t>(int64_t{id.upper} - id.lower) + 1;
        std::set<int64_t> used;
        for (uint32_t i = 0; i < number && i < ids; ++i)
        {
            void* const place = at(elementAt(i), offset);
            int64_t value = rtx::loadNumber(id, place);
            while (!used.insert(value).second)
            {
                value = id.lower + static_cast<int64_t>(below(ids));
            }
            storeNumber(id, place, value);
        }
    }

    // Walks a valid tree, takes a random offer of as many kinds and acts on them.
    std::vector<std::string> act(const rtx::Type& type, void* value, unsigned places, Offers offers)
    {
        actions_.clear();
        visit(type, value, offers);
        std::vector<std::string> done;
        for (; places != 0 && !actions_.empty(); --places)
        {
            const auto taken = std::next(actions_.begin(), static_cast<std::ptrdiff_t>(below(actions_.size())));
            taken->second.run();
            done.push_back(taken->first);
            actions_.erase(taken);
        }
        return done;
    }

    // Of the offers of a kind each is as likely to be kept.
    template <typename Run>
    void offer(const char* kind, const Run& run)
    {
        Action& action = actions_[kind];
        if (below(++action.seen) == 0)
        {
            action.run = run;
        }
    }

    // Everything that is sent.
    void visit(const rtx::Type& type, void* value, Offers offers)
    {
        (this->*offers)(type, value);
        switch (type.kind)
        {
        case rtx::Kind::Sequence:
            visitMembers(type, 0, type.rootCount, value, offers);
            for (unsigned i = 0; i < type.additionCount; ++i)
            {
                if (rtx::isSent(type, type.additions[i], value))
                {
                    visitMembers(type, type.additions[i].first, type.additions[i].count, value, offers);
                }
            }
            break;
        case rtx::Kind::Choice:
            if (const auto tag = rtx::load<OSUINT32>(value); tag <= type.memberCount)
            {
                const rtx::Member& member = type.members[tag - 1];
                void* const place = at(value, member.offset);
                visit(*member.type, member.step == rtx::Step::Pointer ? rtx::load<void*>(place) : place, offers);
            }
            break;
        case rtx::Kind::Array:
            for (uint32_t i = 0; i < rtx::countOf(type, value); ++i)
            {
                visit(type.element(), element(type, value, i), offers);
            }
            break;
        case rtx::Kind::List:
            for (OSRTDListNode* node = rtx::load<OSRTDList>(value).head; node != nullptr; node = node->next)
            {
                visit(type.element(), node->data, offers);
            }
            break;
        default:
            break;
        }
    }

    void visitMembers(const rtx::Type& type, unsigned first, unsigned count, void* structure, Offers offers)
    {
        for (unsigned i = first; i < first + count; ++i)
        {
            const rtx::Member& member = type.members[i];
            if (rtx::isPresent(member, structure))
            {
                visit(*member.type, at(structure, member.offset), offers);
            }
        }
    }

    static OSRTDListNode* nodeAt(const OSRTDList& list, uint64_t index)
    {
        OSRTDListNode* node = list.head;
        for (; index != 0 && node->next != nullptr; --index)
        {
            node = node->next;
        }
        return node;
    }

    void offerChanges(const rtx::Type& type, void* value)
    {
        const rtx::Type* const of = &type;
        switch (type.kind)
        {
        case rtx::Kind::Sequence:
            offerPresence(type, value);
            break;
        case rtx::Kind::Choice:
            offer("alternative", [this, of, value] { refill(*of, value); });
            break;
        case rtx::Kind::Array:
            offer("array", [this, of, value] { refill(*of, value); });
            break;
        case rtx::Kind::List:
            offerListChanges(type, static_cast<OSRTDList*>(value));
            break;
        default:
            offer("value", [this, of, value] { refill(*of, value); });
            break;
        }
    }

    void refill(const rtx::Type& type, void* value)
    {
        std::memset(value, 0, type.size);
        fill(type, value);
    }

    void offerPresence(const rtx::Type& type, void* value)
    {
        for (unsigned i = 0; i < type.rootCount; ++i)
        {
            const rtx::Member* const member = &type.members[i];
            if (member->flag < 0)
            {
                continue;
            }
            if (rtx::hasFlag(value, member->flag))
            {
                offer("absent", [=] { setFlag(value, member->flag, false); });
            }
            else
            {
                offer("present",
                      [this, value, member]
                      {
                          std::memset(at(value, member->offset), 0, member->type->size);
                          addMember(*member, value);
                      });
            }
        }
        for (unsigned i = 0; i < type.additionCount; ++i)
        {
            const rtx::Addition* const addition = &type.additions[i];
            if (addition->flag >= 0)
            {
                offer("group", [=] { setFlag(value, addition->flag, !rtx::hasFlag(value, addition->flag)); });
            }
        }
        if (type.extensible)
        {
            auto* const list = reinterpret_cast<OSRTDList*>(at(value, type.extElem));
            offer("unknown", [=, this] { appendAddition(*list); });
        }
    }

    void offerListChanges(const rtx::Type& type, OSRTDList* list)
    {
        const rtx::Type* const of = &type;
        if (list->count > static_cast<uint32_t>(type.lower) && list->count > 1)
        {
            offer("remove",
                  [this, list]
                  {
                      OSRTDListNode* const node = nodeAt(*list, below(list->count - 1));
                      node->next = node->next->next;
                      --list->count;
                  });
        }
        if (list->count < static_cast<uint32_t>(type.upper) && list->count != 0)
        {
            offer("append",
                  [this, of, list]
                  {
                      list->tail = nodeAt(*list, list->count - 1);
                      append(*list, make(of->element()));
                  });
        }
        if (list->count > 1)
        {
            offer("order", [this, list]
                  { std::swap(nodeAt(*list, below(list->count))->data, nodeAt(*list, below(list->count))->data); });
        }
    }

    void offerFaults(const rtx::Type& type, void* value)
    {
        const rtx::Type* const of = &type;
        switch (type.kind)
        {
        case rtx::Kind::Integer:
        case rtx::Kind::Enumerated:
            offerNumberFaults(type, value);
            break;
        case rtx::Kind::BitStr32:
            offer("bits", [this, of, value] { store(value, badCount(of->upper, of->upper, UINT32_MAX)); });
            break;
        case rtx::Kind::Sequence:
            if (type.extensible)
            {
                offerUnknownFaults(reinterpret_cast<OSRTDList*>(at(value, type.extElem)));
            }
            break;
        case rtx::Kind::Choice:
            offerChoiceFaults(type, value);
            break;
        case rtx::Kind::Array:
            if (type.lower != type.upper)
            {
                offer("count",
                      [this, of, value]
                      {
                          const uint32_t most = of->width == 1 ? 0xFF : 0xFFFF;
                          storeInteger(value, of->width, badCount(of->lower, of->upper, most));
                      });
            }
            break;
        case rtx::Kind::List:
            offerListFaults(type, static_cast<OSRTDList*>(value));
            break;
        default:
            break;
        }
    }

    // A number that is out of the bounds, where there is one.
    uint32_t badCount(int64_t lower, int64_t upper, uint32_t most)
    {
        const int64_t candidates[] = {lower - 1, 0, upper + 1, most};
        const int64_t value = candidates[below(4)];
        return static_cast<uint32_t>(value < 0 || value > most ? most : value);
    }

    void offerNumberFaults(const rtx::Type& type, void* value)
    {
        const bool isSigned = type.lower < 0;
        const unsigned width = type.size * 8;
        const int64_t most = (int64_t{1} << (width - (isSigned ? 1 : 0))) - 1;
        const int64_t least = isSigned ? -most - 1 : 0;
        const rtx::Type* const of = &type;
        if (most > type.upper)
        {
            offer("above", [=, this] { storeNumber(*of, value, chance(50) ? of->upper + int64_t{1} : most); });
        }
        if (least < type.lower)
        {
            offer("below", [=, this] { storeNumber(*of, value, chance(50) ? of->lower - int64_t{1} : least); });
        }
    }

    void offerChoiceFaults(const rtx::Type& type, void* value)
    {
        const rtx::Type* const of = &type;
        offer("tag",
              [=, this]
              {
                  const OSUINT32 tags[] = {0, of->memberCount + 1U, UINT32_MAX};
                  store(value, tags[below(3)]);
              });
        const auto tag = rtx::load<OSUINT32>(value);
        if (tag > type.memberCount)
        {
            auto* const open = rtx::load<ASN1OpenType*>(at(value, type.extElem));
            offer("unknown alternative", [=, this] { spoilOpenType(*open); });
        }
        else if (type.members[tag - 1].step == rtx::Step::Pointer)
        {
            auto* const place = reinterpret_cast<void**>(at(value, type.members[tag - 1].offset));
            offer("pointer", [=, this] { *place = badPointer(*place); });
        }
    }

    // Null, out of the heap, not aligned, or so near the heap's end that the element does not fit.
    void* badPointer(void* p)
    {
        static OSOCTET foreign[64];
        switch (below(4))
        {
        case 0:
            return nullptr;
        case 1:
            return foreign;
        case 2:
            return at(p, 1);
        default:
            return ctxt_.heap.next - 1;
        }
    }

    void spoilOpenType(ASN1OpenType& open)
    {
        switch (below(3))
        {
        case 0:
            open.numocts = 0;
            break;
        case 1:
            open.numocts = UINT32_MAX;
            break;
        default:
            open.data = static_cast<OSOCTET*>(badPointer(nullptr));
            break;
        }
    }

    void offerUnknownFaults(OSRTDList* list)
    {
        offer("empty addition", [=, this] { append(*list, allocate(sizeof(ASN1OpenType))); });
        offer("number of additions", [=, this] { list->count += 1 + static_cast<OSUINT32>(chance(50) ? 0 : 0x3FFF); });
        if (list->count != 0)
        {
            auto* const open = static_cast<ASN1OpenType*>(list->tail->data);
            offer("addition", [=, this] { spoilOpenType(*open); });
            const OSUINT32 before = static_cast<ASN1OpenType*>(list->head->data)->index;
            offer("addition's index",
                  [=, this] { open->index = open->index == before || chance(50) ? 0x4000 : before; });
            OSRTDListNode* const node = nodeAt(*list, below(list->count));
            offer("addition's node", [=, this] { spoilNode(*node); });
        }
    }

    void offerListFaults(const rtx::Type& type, OSRTDList* list)
    {
        const rtx::Type* const of = &type;
        offer("count", [=, this] { list->count = badCount(of->lower, of->upper, UINT32_MAX); });
        offer("end", [=] { ++list->count; });
        if (list->count != 0)
        {
            OSRTDListNode* const node = nodeAt(*list, below(list->count));
            offer("node", [=, this] { spoilNode(*node); });
            offer("loop",
                  [=, this]
                  {
                      list->tail->next = node;
                      list->count += static_cast<OSUINT32>(below(3));
                  });
        }
    }

    void spoilNode(OSRTDListNode& node)
    {
        if (chance(50))
        {
            node.data = badPointer(node.data);
        }
        else
        {
            node.next = static_cast<OSRTDListNode*>(badPointer(&node));
        }
    }

    OSCTXT& ctxt_;
    Options options_;
    std::function<uint64_t()> random_;
    unsigned left_;
    unsigned present_; // percent of the optional members
    std::map<std::string, Action> actions_;
};

} // namespace test

#endif
