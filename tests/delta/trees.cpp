#include "trees.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace delta
{

namespace
{

[[noreturn]] void fail(const char* what)
{
    (void)std::fprintf(stderr, "%s\n", what);
    std::abort();
}

template <typename T>
void store(void* at, const T& value)
{
    std::memcpy(at, &value, sizeof value);
}

void storeInteger(void* at, unsigned width, int64_t value)
{
    const auto octets = static_cast<uint64_t>(value);
    width == 1   ? store(at, static_cast<OSUINT8>(octets))
    : width == 2 ? store(at, static_cast<OSUINT16>(octets))
                 : store(at, static_cast<OSUINT32>(octets));
}

OSOCTET* octetAt(void* structure, size_t offset)
{
    return static_cast<OSOCTET*>(structure) + offset;
}

void setFlag(void* structure, int flag, bool set)
{
    OSOCTET& octet = *octetAt(structure, static_cast<size_t>(flag / 8));
    const unsigned mask = 1U << rtx::flagShift(flag);
    octet = static_cast<OSOCTET>(set ? octet | mask : octet & ~mask);
}

// The extension addition that a member stands in, or null.
const rtx::Addition* additionOf(const Type& type, unsigned index)
{
    for (unsigned i = 0; i < type.additionCount; ++i)
    {
        const rtx::Addition& addition = type.additions[i];
        if (index >= addition.first && index < addition.first + addition.count)
        {
            return &addition;
        }
    }
    return nullptr;
}

OSRTDList& unknownOf(const Type& type, void* sequence)
{
    return *reinterpret_cast<OSRTDList*>(octetAt(sequence, type.extElem));
}

void* elementAt(const Type& type, void* array, uint32_t index)
{
    return octetAt(array, type.members->offset + size_t{index} * type.element().size);
}

void setCount(const Type& type, void* array, size_t count)
{
    if (type.lower != type.upper)
    {
        storeInteger(array, type.width, static_cast<int64_t>(count));
    }
}

const Type& identityType(const Type& list)
{
    return list.identity == rtx::ownIdentity ? list.element() : *list.element().members[list.identity].type;
}

bool isInitial(const Type& type)
{
    return type.kind <= Kind::Enumerated;
}

} // namespace

Heap::Heap()
{
    if (rtxInitContext(&ctxt) != RTX_OK)
    {
        fail("no context");
    }
}

Heap::~Heap()
{
    rtFreeContext(&ctxt);
}

void* Heap::allocate(size_t size)
{
    void* const p = rtxMemHeapAlloc(&ctxt, std::max<size_t>(size, 1));
    return p != nullptr ? p : (fail("no memory"), nullptr);
}

CellGroupConfig* Heap::tree()
{
    return static_cast<CellGroupConfig*>(allocate(sizeof(CellGroupConfig)));
}

Octets Heap::encode(const void* tree)
{
    static Octets buffer(size_t{1} << 20U);
    rtxErrReset(&ctxt);
    if (pu_setBuffer(&ctxt, buffer.data(), buffer.size(), 0) != RTX_OK ||
        asn1PE_CellGroupConfig(&ctxt, static_cast<const CellGroupConfig*>(tree)) != RTX_OK)
    {
        rtxErrPrint(&ctxt);
        return {};
    }
    return Octets(buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(pu_getMsgLen(&ctxt)));
}

CellGroupConfig* Heap::decode(const Octets& octets)
{
    Octets input = octets;
    rtxErrReset(&ctxt);
    CellGroupConfig* const value = tree();
    if (pu_setBuffer(&ctxt, input.data(), input.size(), 0) != RTX_OK || asn1PD_CellGroupConfig(&ctxt, value) != RTX_OK)
    {
        rtxErrPrint(&ctxt);
        return nullptr;
    }
    return value;
}

const Type& root()
{
    return *asn1Type_CellGroupConfig();
}

const Need& need(const Type& type, unsigned index)
{
    static constexpr Need mandatory;
    return type.needs == nullptr ? mandatory : type.needs[index];
}

bool has(const Type& type, const void* sequence, unsigned index)
{
    const rtx::Addition* const addition = additionOf(type, index);
    return (addition == nullptr || addition->flag < 0 || rtx::hasFlag(sequence, addition->flag)) &&
           rtx::isPresent(type.members[index], sequence);
}

void* at(const Type& type, void* sequence, unsigned index)
{
    return octetAt(sequence, type.members[index].offset);
}

const void* at(const Type& type, const void* sequence, unsigned index)
{
    return rtx::at(sequence, type.members[index]);
}

void* put(const Type& type, void* sequence, unsigned index)
{
    const rtx::Member& member = type.members[index];
    const rtx::Addition* const addition = additionOf(type, index);
    if (addition != nullptr && addition->flag >= 0)
    {
        setFlag(sequence, addition->flag, true);
    }
    if (member.flag >= 0)
    {
        setFlag(sequence, member.flag, true);
    }
    return std::memset(at(type, sequence, index), 0, member.type->size);
}

void drop(const Type& type, void* sequence, unsigned index)
{
    if (type.members[index].flag >= 0)
    {
        setFlag(sequence, type.members[index].flag, false);
    }
    const rtx::Addition* const addition = additionOf(type, index);
    if (addition != nullptr && addition->flag >= 0 &&
        (type.members[index].flag < 0 || !rtx::isSent(type, *addition, sequence)))
    {
        setFlag(sequence, addition->flag, false);
    }
}

bool isOptional(const Type& type, unsigned index)
{
    const rtx::Addition* const addition = additionOf(type, index);
    return type.members[index].flag >= 0 || (addition != nullptr && addition->flag >= 0);
}

bool isNamed(const char* name, const char* other)
{
    return std::strcmp(name, other) == 0;
}

unsigned indexOf(const Type& type, const char* member)
{
    for (unsigned i = 0; i < type.memberCount; ++i)
    {
        if (isNamed(type.names[i], member))
        {
            return i;
        }
    }
    fail(member);
}

unsigned alternative(const void* choice)
{
    return rtx::load<OSUINT32>(choice) - 1;
}

void* content(const Type& type, void* choice)
{
    const rtx::Member& member = type.members[alternative(choice)];
    void* const place = octetAt(choice, member.offset);
    return member.step == rtx::Step::Pointer ? rtx::load<void*>(place) : place;
}

const void* content(const Type& type, const void* choice)
{
    return content(type, const_cast<void*>(choice));
}

void* choose(Heap& heap, const Type& type, void* choice, unsigned index)
{
    const rtx::Member& member = type.members[index];
    std::memset(choice, 0, type.size);
    store(choice, static_cast<OSUINT32>(index + 1));
    if (member.step == rtx::Step::Pointer)
    {
        store(octetAt(choice, member.offset), heap.allocate(member.type->size));
    }
    return content(type, choice);
}

std::vector<void*> elements(const Type& type, const void* list)
{
    std::vector<void*> found;
    if (type.kind == Kind::Array)
    {
        for (uint32_t i = 0; i < rtx::countOf(type, list); ++i)
        {
            found.push_back(elementAt(type, const_cast<void*>(list), i));
        }
        return found;
    }
    const OSRTDListNode* node = rtx::load<OSRTDList>(list).head;
    for (; node != nullptr; node = node->next)
    {
        found.push_back(node->data);
    }
    return found;
}

void setElements(Heap& heap, const Type& type, void* list, const std::vector<void*>& elements)
{
    if (type.kind == Kind::Array)
    {
        Octets values;
        for (const void* const element : elements)
        {
            const auto* const octets = static_cast<const OSOCTET*>(element);
            values.insert(values.end(), octets, octets + type.element().size);
        }
        std::memset(list, 0, type.size);
        setCount(type, list, elements.size());
        std::copy(values.begin(), values.end(), octetAt(list, type.members->offset));
        return;
    }
    OSRTDList made{};
    for (void* const element : elements)
    {
        auto* const node = static_cast<OSRTDListNode*>(heap.allocate(sizeof(OSRTDListNode)));
        node->data = element;
        rtxDListAppendNode(&made, node);
    }
    store(list, made);
}

void setNumber(const Type& type, void* value, int64_t number)
{
    storeInteger(value, type.size, number);
}

int64_t identity(const Type& list, const void* element)
{
    return rtx::identityOf(list, element, 0);
}

void setIdentity(const Type& list, void* element, int64_t id)
{
    const Type& type = identityType(list);
    void* const place =
        list.identity == rtx::ownIdentity ? element : at(list.element(), element, static_cast<unsigned>(list.identity));
    setNumber(type, place, id);
}

int64_t firstIdentity(const Type& list)
{
    return identityType(list).lower;
}

int64_t lastIdentity(const Type& list)
{
    return identityType(list).upper;
}

std::vector<ASN1OpenType*> additions(const Type& type, const void* sequence)
{
    std::vector<ASN1OpenType*> found;
    if (type.extensible)
    {
        OSRTDListNode* node = unknownOf(type, const_cast<void*>(sequence)).head;
        for (; node != nullptr; node = node->next)
        {
            found.push_back(static_cast<ASN1OpenType*>(node->data));
        }
    }
    return found;
}

void addAddition(Heap& heap, const Type& type, void* sequence, OSUINT32 index, OSOCTET octet)
{
    auto* const open = static_cast<ASN1OpenType*>(heap.allocate(sizeof(ASN1OpenType)));
    open->index = index;
    open->numocts = 1;
    open->data = static_cast<OSOCTET*>(heap.allocate(1));
    *open->data = octet;
    auto* const node = static_cast<OSRTDListNode*>(heap.allocate(sizeof(OSRTDListNode)));
    node->data = open;
    rtxDListAppendNode(&unknownOf(type, sequence), node);
}

bool isBearer(const Type& type)
{
    return isNamed(type.name, "RLC-BearerConfig");
}

bool isDrb(const Type& bearer, const void* entry)
{
    const unsigned served = indexOf(bearer, "servedRadioBearer");
    return has(bearer, entry, served) &&
           isNamed(bearer.members[served].type->names[alternative(at(bearer, entry, served))], "drb-Identity");
}

Where inEntry(const Type& list, const void* entry)
{
    const Type& type = list.element();
    return {.entry = true, .drb = isBearer(type) && isDrb(type, entry), .sCell = isNamed(type.name, "SCellConfig")};
}

bool isDemanded(const Need& need, const Where& where)
{
    switch (need.change)
    {
    case Change::Setup:
    case Change::Creation:
    case Change::SCell:
    case Change::Reestablish:
        return where.entry;
    case Change::DrbSetup:
    case Change::Mode:
        return where.drb;
    case Change::Switch:
        return where.sCell;
    default:
        return false;
    }
}

bool isSetupRelease(const Type& type)
{
    return type.setupRelease;
}

bool isOneShot(const Need& need)
{
    return need.change == Change::Sync || need.change == Change::Switch;
}

bool isAction(const Need& need)
{
    return need.absence == Absence::Action && need.list == ListRole::None && !isOneShot(need);
}

void fill(Heap& heap, const Type& type, void* value, unsigned variant, const Where& where)
{
    switch (type.kind)
    {
    case Kind::Boolean:
        store(value, static_cast<OSBOOL>(variant));
        break;
    case Kind::Null:
        break;
    case Kind::Integer:
    case Kind::Enumerated:
        storeInteger(value, type.size, std::min<int64_t>(type.lower + int64_t{variant}, type.upper));
        break;
    case Kind::BitStr32:
        store(value, static_cast<OSUINT32>(type.upper));
        *octetAt(value, offsetof(ASN1BitStr32, data)) = static_cast<OSOCTET>(variant << 7U);
        break;
    case Kind::BitOctets:
        *octetAt(value, 0) = static_cast<OSOCTET>(variant << 7U);
        break;
    case Kind::Sequence:
    {
        Where inside = where;
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            if (!isOptional(type, i) || isDemanded(need(type, i), inside))
            {
                fill(heap, *type.members[i].type, put(type, value, i), variant, inside);
            }
            inside.drb = isBearer(type) ? isDrb(type, value) : inside.drb;
        }
        break;
    }
    case Kind::Choice:
    {
        // Of a bearer the DRB, as more is asked of it.
        const bool last = isSetupRelease(type) || isNamed(type.names[type.memberCount - 1U], "drb-Identity");
        const unsigned index = last ? type.memberCount - 1U : 0;
        fill(heap, *type.members[index].type, choose(heap, type, value, index), variant, where);
        break;
    }
    case Kind::Array:
    case Kind::List:
    {
        std::vector<void*> made;
        for (int32_t i = 0; i < std::max(type.lower, 1); ++i)
        {
            made.push_back(make(heap, type.element(), variant, where));
        }
        setElements(heap, type, value, made);
        break;
    }
    }
}

void* make(Heap& heap, const Type& type, unsigned variant, const Where& where)
{
    void* const value = heap.allocate(type.size);
    fill(heap, type, value, variant, where);
    return value;
}

void* makeEntry(Heap& heap, const Type& list, int64_t id, unsigned variant)
{
    const Where where = {.entry = true, .drb = false, .sCell = isNamed(list.element().name, "SCellConfig")};
    void* const entry = make(heap, list.element(), variant, where);
    setIdentity(list, entry, id);
    return entry;
}

void complete(Heap& heap, const Type& type, void* value, const Where& where)
{
    switch (type.kind)
    {
    case Kind::Sequence:
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            const Type& member = *type.members[i].type;
            if (has(type, value, i))
            {
                complete(heap, member, at(type, value, i), where);
            }
            else if (isDemanded(need(type, i), where))
            {
                fill(heap, member, put(type, value, i), 0, where);
            }
        }
        break;
    case Kind::Choice:
        if (const unsigned index = alternative(value); index < type.memberCount)
        {
            complete(heap, *type.members[index].type, content(type, value), where);
        }
        break;
    case Kind::List:
        for (void* const element : elements(type, value))
        {
            const bool entry = type.identity != rtx::noIdentity;
            if (entry && isBearer(type.element()))
            {
                // Which bearer it is tells what is asked of it.
                const unsigned served = indexOf(type.element(), "servedRadioBearer");
                if (!has(type.element(), element, served))
                {
                    fill(heap, *type.element().members[served].type, put(type.element(), element, served), 0, where);
                }
            }
            complete(heap, type.element(), element, entry ? inEntry(type, element) : where);
        }
        break;
    default:
        break;
    }
}

void copyTo(Heap& heap, const Type& type, const void* from, void* to)
{
    std::memcpy(to, from, type.size);
    switch (type.kind)
    {
    case Kind::Sequence:
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            if (has(type, from, i))
            {
                copyTo(heap, *type.members[i].type, at(type, from, i), at(type, to, i));
            }
        }
        if (type.extensible)
        {
            unknownOf(type, to) = {};
            for (const ASN1OpenType* const open : additions(type, from))
            {
                auto* const node = static_cast<OSRTDListNode*>(heap.allocate(sizeof(OSRTDListNode)));
                node->data = std::memcpy(heap.allocate(sizeof *open), open, sizeof *open);
                rtxDListAppendNode(&unknownOf(type, to), node);
            }
        }
        break;
    case Kind::Choice:
        if (const unsigned index = alternative(from); index < type.memberCount)
        {
            copyTo(heap, *type.members[index].type, content(type, from), choose(heap, type, to, index));
        }
        break;
    case Kind::List:
    {
        std::vector<void*> copies;
        for (const void* const element : elements(type, from))
        {
            copies.push_back(heap.allocate(type.element().size));
            copyTo(heap, type.element(), element, copies.back());
        }
        setElements(heap, type, to, copies);
        break;
    }
    default:
        break;
    }
}

CellGroupConfig* copy(Heap& heap, const CellGroupConfig* tree)
{
    CellGroupConfig* const made = heap.tree();
    copyTo(heap, root(), tree, made);
    return made;
}

bool varyEntry(Heap& heap, const Type& list, void* entry)
{
    return list.element().kind == Kind::Sequence &&
           vary(heap, list.element(), entry, inEntry(list, entry), list.identity);
}

bool vary(Heap& heap, const Type& type, void* value, const Where& where, int identity)
{
    switch (type.kind)
    {
    case Kind::Boolean:
        store(value, static_cast<OSBOOL>(rtx::load<OSBOOL>(value) == 0));
        return true;
    case Kind::Null:
        return false;
    case Kind::Integer:
    case Kind::Enumerated:
    {
        const int64_t old = rtx::loadNumber(type, value);
        storeInteger(value, type.size, old < type.upper ? old + 1 : type.lower);
        return type.lower != type.upper;
    }
    case Kind::BitStr32:
        *octetAt(value, offsetof(ASN1BitStr32, data)) ^= 0x80U;
        return true;
    case Kind::BitOctets:
        *octetAt(value, 0) ^= 0x80U;
        return true;
    case Kind::Sequence:
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            const Need& code = need(type, i);
            if (isOptional(type, i) || code.change != Change::Free || static_cast<int>(i) == identity)
            {
                continue;
            }
            if (vary(heap, *type.members[i].type, at(type, value, i), where))
            {
                return true;
            }
        }
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            const Need& code = need(type, i);
            const bool cleared = code.absence == Absence::Clear || code.absence == Absence::Default;
            if (cleared && code.change == Change::Free && code.list == ListRole::None)
            {
                has(type, value, i) ? drop(type, value, i)
                                    : fill(heap, *type.members[i].type, put(type, value, i), 0, where);
                return true;
            }
        }
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            const Change word = need(type, i).change;
            const bool modified = word == Change::Free || word == Change::Setup || word == Change::DrbSetup ||
                                  word == Change::Mode || word == Change::SCell;
            if (modified && need(type, i).absence == Absence::Keep && has(type, value, i) &&
                vary(heap, *type.members[i].type, at(type, value, i), where))
            {
                return true;
            }
        }
        return false;
    case Kind::Choice:
        return alternative(value) < type.memberCount &&
               vary(heap, *type.members[alternative(value)].type, content(type, value), where);
    case Kind::Array:
    case Kind::List:
        return vary(heap, type.element(), elements(type, value).front(), where);
    }
    return false;
}

namespace
{

// Whether something of it is held.
bool makeState(Heap& heap, const Type& type, void* value, bool actions)
{
    switch (type.kind)
    {
    case Kind::Sequence:
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            const Need& code = need(type, i);
            if (has(type, value, i) && (code.list == ListRole::Release || (isAction(code) && !actions) ||
                                        !makeState(heap, *type.members[i].type, at(type, value, i), actions)))
            {
                drop(type, value, i);
            }
        }
        return true;
    case Kind::Choice:
        if (isSetupRelease(type) && isNamed(type.names[alternative(value)], "release"))
        {
            return false;
        }
        return alternative(value) >= type.memberCount ||
               makeState(heap, *type.members[alternative(value)].type, content(type, value), actions);
    case Kind::Array:
    case Kind::List:
    {
        std::vector<void*> held = elements(type, value);
        if (!isInitial(type.element()))
        {
            for (void* const element : held)
            {
                (void)makeState(heap, type.element(), element, actions);
            }
        }
        if (type.identity != rtx::noIdentity)
        {
            std::vector<std::pair<int64_t, void*>> ordered;
            for (void* const element : held)
            {
                void* const own = heap.allocate(type.element().size);
                std::memcpy(own, element, type.element().size);
                ordered.emplace_back(identity(type, element), own);
            }
            std::stable_sort(ordered.begin(), ordered.end(),
                             [](const auto& a, const auto& b) { return a.first < b.first; });
            std::transform(ordered.begin(), ordered.end(), held.begin(), [](const auto& each) { return each.second; });
            setElements(heap, type, value, held);
        }
        return true;
    }
    default:
        return true;
    }
}

} // namespace

CellGroupConfig* stateOf(Heap& heap, const CellGroupConfig* tree, bool actions)
{
    CellGroupConfig* const state = copy(heap, tree);
    (void)makeState(heap, root(), state, actions);
    return state;
}

void keepOneShots(Heap& heap, const Type& type, const void* held, void* wanted)
{
    if (type.kind != Kind::Sequence)
    {
        return;
    }
    for (unsigned i = 0; i < type.memberCount; ++i)
    {
        if (!has(type, held, i))
        {
            continue;
        }
        const Type& member = *type.members[i].type;
        if (!has(type, wanted, i))
        {
            if (isOneShot(need(type, i)))
            {
                copyTo(heap, member, at(type, held, i), put(type, wanted, i));
            }
        }
        else if (need(type, i).list == ListRole::AddMod && member.kind == Kind::List)
        {
            for (void* const entry : elements(member, at(type, wanted, i)))
            {
                for (const void* const before : elements(member, at(type, held, i)))
                {
                    if (identity(member, before) == identity(member, entry))
                    {
                        keepOneShots(heap, member.element(), before, entry);
                    }
                }
            }
        }
        else
        {
            keepOneShots(heap, member, at(type, held, i), at(type, wanted, i));
        }
    }
}

} // namespace delta
