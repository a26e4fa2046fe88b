// Fills a record field by field from the input, with what is known besides taken from the octets behind: the check of
// the record and its composition agree, all calls give the same octets, these are decoded and encoded again to
// themselves, and the rules look at what they say.
#include "ruleFindings.h"

#include "rrcCodec/rrcCompose.h"
#include "rrcRecordCheck.h"
#include "rrcRecordType.h"
#include "vos_lib.h"

#include <cstring>
#include <vector>

// Stands in place of the platform's: a record may bring notices by the thousand, and a refusal prints a tree.
INT32 VOS_Printf(const char* /*format*/, ...)
{
    return 0;
}

using fuzz::require;

namespace
{

constexpr size_t bufferSize = 8192;

// Numbers are mostly within their range, and behind the input's end the least: masks and counts are 0 then, and what
// they guard is not read.
class Filling
{
public:
    explicit Filling(fuzz::Octets& octets) : octets_(octets) {}

    void structure(const RrcRecordType& type, void* record)
    {
        // First what the others depend on.
        for (UINT32 i = 0; i < type.fieldCount; ++i)
        {
            if (decides(type.fields[i]))
            {
                field(type, i, record, std::max<UINT32>(type.fields[i].bound, 1), -1);
            }
        }
        for (UINT32 i = 0; i < type.fieldCount; ++i)
        {
            if (!decides(type.fields[i]) && rrcRecordIsRead(&type, record, i) != 0)
            {
                field(type, i, record, rrcRecordEntries(&type, record, i), rrcRecordMember(&type, record, i));
            }
        }
    }

private:
    static bool decides(const RrcRecordField& field)
    {
        return field.kind == RRC_FIELD_MASK || field.kind == RRC_FIELD_COUNT || field.kind == RRC_FIELD_ALTERNATIVE;
    }

    void field(const RrcRecordType& type, UINT32 index, void* record, UINT32 entries, INT32 member)
    {
        const RrcRecordField& field = type.fields[index];
        for (UINT32 entry = 0; entry < entries; ++entry)
        {
            void* const place = const_cast<void*>(rrcRecordPlace(&field, record, entry));
            if (field.kind == RRC_FIELD_RECORD)
            {
                structure(*field.record, place);
            }
            else if (field.kind == RRC_FIELD_UNION)
            {
                content(*field.record, place, member);
            }
            else if (field.kind == RRC_FIELD_OCTETS)
            {
                std::memcpy(place, octets_.raw(field.size), field.size);
            }
            else if (field.kind != RRC_FIELD_UNREAD)
            {
                rrcRecordStore(&field, record, entry, number(field, rrcRecordValueType(&type, record, index)));
            }
        }
    }

    void content(const RrcRecordType& type, void* place, INT32 member)
    {
        if (member >= 0 && type.fields[member].kind != RRC_FIELD_UNREAD)
        {
            const auto index = static_cast<UINT32>(member);
            field(type, index, place, rrcRecordEntries(&type, place, index), -1);
        }
    }

    UINT64 number(const RrcRecordField& field, const RtxType* value)
    {
        if (field.kind == RRC_FIELD_MASK)
        {
            return anything(field.size);
        }
        INT64 lower = field.lower;
        INT64 upper = field.upper;
        if (field.kind == RRC_FIELD_VALUE && value != nullptr)
        {
            lower = value->lower;
            upper = value->upper;
        }
        else if (field.kind == RRC_FIELD_BITS)
        {
            upper = static_cast<INT64>((UINT64{1} << std::min<unsigned>(field.bits, 62)) - 1);
        }
        const unsigned first = octets_.number();
        constexpr unsigned outOfRange = 255;
        if (first == outOfRange)
        {
            return anything(field.size);
        }
        const auto range = static_cast<UINT64>(upper) - static_cast<UINT64>(lower) + 1;
        const UINT64 chosen = range < outOfRange ? first : first | anything(sizeof(UINT64) - 1) << 8;
        return static_cast<UINT64>(lower) + (range == 0 ? chosen : chosen % range);
    }

    // The low octet first.
    UINT64 anything(unsigned size)
    {
        UINT64 all = 0;
        for (unsigned i = 0; i < std::min<unsigned>(size, sizeof all); ++i)
        {
            all |= UINT64{octets_.number()} << 8 * i;
        }
        return all;
    }

    fuzz::Octets& octets_;
};

struct Findings
{
    OSUINT32 number = 0;
    bool isRefused = false;
    std::string line; // of the error
};

int tellRecordFinding(void* arg, const RrcRecordFinding* finding)
{
    auto& findings = *static_cast<Findings*>(arg);
    char line[4096];
    const size_t length = rrcRecordFindingFormat(finding, line, sizeof line);
    require(length != 0 && length < sizeof line, "a finding of a record without a line");
    require(rrcRecordRuleById(finding->rule->id) == finding->rule, "a finding of no rule of records");
    require(finding->severity >= RRC_RECORD_NOTICE && finding->severity <= RRC_RECORD_ERROR,
            "a finding of no severity");
    require(*finding->path != '\0', "a finding of a record without a place");
    ++findings.number;
    if (finding->severity == RRC_RECORD_ERROR && !findings.isRefused)
    {
        findings.isRefused = true;
        findings.line = line;
    }
    return 0;
}

Findings checked(const RrcCellGroupCfg_t& record)
{
    Findings findings;
    require(rrcCheckCellGroupCfg(&record, tellRecordFinding, &findings) == findings.number,
            "another number of findings than was told");
    require(rrcCheckCellGroupCfg(&record, nullptr, nullptr) == findings.number,
            "another number of findings where nobody listens");
    return findings;
}

struct Composed
{
    INT32 status;
    std::vector<UINT8> octets;
    std::string error;
};

// `call(octets, capacity, length, error, size)` is one of those that respect a capacity.
template <typename Call>
Composed composed(size_t capacity, const Call& call)
{
    Composed result{0, std::vector<UINT8>(capacity), {}}; // of its exact size, so that writing past it is found
    size_t length = capacity + 1;
    char error[512] = "?";
    result.status = call(result.octets.data(), capacity, &length, error, sizeof error);
    require(length <= capacity, "a length that is not set, or beyond the capacity");
    require((result.status == RRC_COMPOSE_OK) == (*error == '\0'), "the error's line and the status disagree");
    require((result.status == RRC_COMPOSE_OK) == (length != 0), "the length and the status disagree");
    result.octets.resize(length);
    result.error = error;
    return result;
}

Composed encoded(const RrcCellGroupCfg_t& record, size_t capacity)
{
    const auto call = [&](UINT8* octets, size_t size, size_t* length, char* error, size_t errorSize)
    {
        return rrcEncodeCellGroupCfg(&record, octets, size, length, error, errorSize);
    };
    return composed(capacity, call);
}

Composed encodedInMemory(const RrcCellGroupCfg_t& record)
{
    static const auto memory = std::make_unique_for_overwrite<UINT8[]>(RRC_COMPOSE_MEMORY_SIZE);
    const auto call = [&](UINT8* octets, size_t size, size_t* length, char* error, size_t errorSize)
    {
        return rrcEncodeCellGroupCfgInMemory(&record, memory.get(), RRC_COMPOSE_MEMORY_SIZE, octets, size, length,
                                             error, errorSize);
    };
    return composed(bufferSize, call);
}

// The entry has no capacity and a result of two values.
void checkEntry(RrcCellGroupCfg_t& record, const Composed& whole)
{
    constexpr UINT32 untouched = 0xA5A5A5A5;
    std::vector<UINT8> octets(bufferSize);
    Mbuf_t message = {untouched, octets.data()};
    const INT32 result = rrcComposeCellGroupCfg(&record, &message);
    require(result == VOS_OK || result == VOS_ERROR, "another result");
    require((result == VOS_OK) == (message.bufLen != untouched), "the result and bufLen disagree");
    require(result != VOS_OK || (message.bufLen != 0 && message.bufLen <= bufferSize), "a length that cannot be");
    if (whole.status == RRC_COMPOSE_OK)
    {
        octets.resize(result == VOS_OK ? message.bufLen : 0);
        require(octets == (whole.octets.size() <= bufferSize ? whole.octets : std::vector<UINT8>()),
                "the entry gives other octets");
    }
}

void checkCalls(RrcCellGroupCfg_t& record, const Composed& whole)
{
    const Composed once = encoded(record, bufferSize);
    const Composed inMemory = encodedInMemory(record);
    if (whole.octets.size() <= bufferSize)
    {
        // What is refused may need more memory until it is.
        require(once.status == whole.status && once.octets == whole.octets && once.error == whole.error,
                "another capacity gives something else");
        require(whole.status != RRC_COMPOSE_OK || inMemory.octets == whole.octets, "other octets in given memory");
    }
    else
    {
        require(once.status == RRC_COMPOSE_E_CAPACITY, "more than the capacity holds");
        require(inMemory.status == RRC_COMPOSE_E_CAPACITY || inMemory.status == RRC_COMPOSE_E_MEMORY,
                "more than the capacity holds, in given memory");
    }
    checkEntry(record, whole);
}

void checkMessage(OSCTXT& ctxt, std::vector<UINT8>& octets, const RrcRuleContext& known)
{
    const RtxType& type = *asn1Type_CellGroupConfig();
    auto* const tree = static_cast<CellGroupConfig*>(rtxMemHeapAlloc(&ctxt, sizeof(CellGroupConfig)));
    require(tree != nullptr, "no memory");
    require(pu_setBuffer(&ctxt, octets.data(), octets.size(), 0) == RTX_OK, "no buffer");
    require(rtxDecode(&ctxt, &type, tree, RTX_DECODE_STRICT) == RTX_OK, "what was composed is not decoded");
    require(rtxCheck(&ctxt, &type, tree, nullptr, nullptr) == 0, "what was composed is refused");
    std::vector<OSOCTET> again(octets.size());
    require(pu_setBuffer(&ctxt, again.data(), again.size(), 0) == RTX_OK, "no buffer to encode to");
    require(asn1PE_CellGroupConfig(&ctxt, tree) == RTX_OK && pu_getMsgLen(&ctxt) == octets.size() && again == octets,
            "what was decoded is encoded otherwise");
    fuzz::checkRules(ctxt, *tree, known);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    OSCTXT ctxt;
    require(rtxInitContext(&ctxt) == RTX_OK, "no context");
    fuzz::Octets octets(ctxt, data, size);
    // What is not read may hold anything.
    std::memset(record.get(), static_cast<int>(octets.number()), sizeof *record);
    Filling(octets).structure(*rrcRecordTypes[0], record.get());

    constexpr size_t plenty = 1U << 20; // an empty element may become a large one
    if (record->sCellAddModNum > MAX_NROF_SCellS)
    {
        require(checked(*record).number != 0, "a count beyond its array without a finding");
        require(encoded(*record, plenty).status == RRC_COMPOSE_E_ARGUMENT, "a count beyond its array is taken");
        record->sCellAddModNum = MAX_NROF_SCellS; // what the entry makes of it
    }
    const Findings findings = checked(*record);
    Composed whole = encoded(*record, plenty);
    if (findings.isRefused != (whole.status != RRC_COMPOSE_OK))
    {
        (void)std::fprintf(stderr, "check: %s\ncomposition: %s\n", findings.line.c_str(), whole.error.c_str());
    }
    require(findings.isRefused == (whole.status != RRC_COMPOSE_OK), "the check and the composition disagree");
    checkCalls(*record, whole);
    if (whole.status == RRC_COMPOSE_OK)
    {
        const RrcRuleContext known = fuzz::contextOf(octets);
        checkMessage(ctxt, whole.octets, known);
    }
    rtFreeContext(&ctxt);
    return 0;
}
