#include "calls.h"

#include "NR-RRC-Definitions.h"
#include "asn1FromText.h"
#include "cellgroupcfg/version.h"
#include "plat_syslog.h"
#include "rrcCodec/rrcBitString.h"
#include "rrcCodec/rrcCompose.h"
#include "rrcCodec/rrcInit.h"
#include "rrcDecompose.h"
#include "rrcDraw.h"
#include "rrcExplain.h"
#include "rrcMessageFindings.h"
#include "rrcPage.h"
#include "rrcRecordCheck.h"
#include "rrcRecordFromJson.h"
#include "rrcRecordJson.h"
#include "rrcRecordToCpp.h"
#include "rrcRules.h"
#include "rrcSettings.h"
#include "vos_lib.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <type_traits>

namespace
{

using assurance::Input;
using assurance::Octets;
using assurance::Result;
using assurance::Stage;

thread_local Result* console = nullptr; // of the call that runs on this thread

// A line of any of the calls that write one, as its first octets and its whole length.
template <typename Told>
void addLine(Result& result, size_t (*format)(const Told*, char*, size_t), const Told* told)
{
    static thread_local char text[300]; // not on the stack that is measured
    result.add(static_cast<std::int64_t>(format(told, text, sizeof text)));
    result.add(text);
}

void addText(void* to, const char* text)
{
    static_cast<Result*>(to)->add(text);
}

class Context
{
public:
    Context()
    {
        rtxInitContext(&context_);
    }
    ~Context()
    {
        rtFreeContext(&context_);
    }
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    OSCTXT* operator&()
    {
        return &context_;
    }

private:
    OSCTXT context_;
};

int decode(OSCTXT* context, const Octets& octets, CellGroupConfig* tree)
{
    (void)pu_setBuffer(context, const_cast<OSOCTET*>(octets.data()), octets.size(), 0);
    return asn1PD_CellGroupConfig(context, tree);
}

// A message and its successor, decoded into one context; what cannot be decoded is what the decoder left of it.
struct Trees
{
    explicit Trees(const Input& input) : first(), second()
    {
        readFirst = decode(&context, input.octets, &first) == RTX_OK;
        readSecond = decode(&context, input.nextOctets, &second) == RTX_OK;
        rtxErrReset(&context);
    }

    Context context;
    CellGroupConfig first;
    CellGroupConfig second;
    bool readFirst;
    bool readSecond;
};

// What a call on trees returned.
void addStatus(Result& result, OSCTXT* context, std::int64_t status)
{
    result.refused = status == RTX_E_HEAP;
    result.add(status);
    addLine(result, rtxErrFormat, static_cast<const OSCTXT*>(context));
    rtxErrPrint(context);
    rtxErrReset(context);
}

// The same of a call that leaves its error in the context.
void addDeltaStatus(Result& result, OSCTXT* context, int status)
{
    result.wrong = result.wrong || (status < 0 && context->error.status != status);
    addStatus(result, context, status);
}

// What a tree is encoded as, once more.
void addTree(Result& result, OSCTXT* context, const CellGroupConfig& tree)
{
    Octets octets(65536);
    (void)pu_setBuffer(context, octets.data(), octets.size(), 0);
    const int status = asn1PE_CellGroupConfig(context, &tree);
    result.add(std::int64_t{status});
    result.add(octets.data(), status == RTX_OK ? pu_getMsgLen(context) : 0);
    rtxErrReset(context);
}

// The special cell's band and some of what else may be known.
RrcRuleContext known(const CellGroupConfig* previous)
{
    RrcRuleContext context{};
    context.band = 78;
    context.previous = previous;
    return context;
}

constexpr UINT32 untouched = 0x5A5A5A5A;

// What one of the two calls with an Mbuf_t gave.
void addMessage(Result& result, INT32 status, const Mbuf_t& message)
{
    result.add(std::int64_t{status});
    result.wrong = status < 0 && message.bufLen != untouched;
    result.refused = status < 0 && result.lines != 0;
    if (status >= 0)
    {
        Result sent;
        sent.add(message.buf, message.bufLen);
        result.sent = sent.hash;
        result.add(message.buf, message.bufLen);
    }
}

void entry(const Input& input, Stage& stage, Result& result)
{
    Octets octets(8192);
    Mbuf_t message = {untouched, octets.data()};
    INT32 status = 0;
    stage.run(nullptr, [&] { status = rrcComposeCellGroupCfg(input.record.get(), &message); });
    addMessage(result, status, message);
}

void composeDelta(const Input& input, Stage& stage, Result& result)
{
    Octets octets(8192);
    Mbuf_t message = {untouched, octets.data()};
    INT32 status = 0;
    stage.run(nullptr, [&] { status = rrcComposeCellGroupDelta(input.record.get(), input.next.get(), &message); });
    addMessage(result, status, message);
}

void composeTree(const Input& input, Stage& stage, Result& result)
{
    Context context;
    CellGroupConfig* tree = nullptr;
    INT32 status = 0;
    stage.run(&context, [&] { status = rrcComposeCellGroupTree(&context, input.record.get(), &tree); });
    result.add(std::int64_t{status});
    result.refused = status == RRC_COMPOSE_E_MEMORY;
    result.wrong = (status == RRC_COMPOSE_OK) != (tree != nullptr);
    if (tree != nullptr)
    {
        addTree(result, &context, *tree);
    }
}

// What one of the careful calls gave.
void addEncoding(Result& result, INT32 status, const Octets& octets, size_t length, const char* error)
{
    result.add(std::int64_t{status});
    result.refused = status == RRC_COMPOSE_E_MEMORY;
    result.wrong = status != RRC_COMPOSE_OK && (length != 0 || error[0] == '\0');
    result.add(octets.data(), length);
    result.add(error);
}

void encodeRecord(const Input& input, Stage& stage, Result& result)
{
    Octets octets(8192);
    size_t length = 77;
    char error[512] = "";
    INT32 status = 0;
    stage.run(nullptr,
              [&] {
                  status = rrcEncodeCellGroupCfg(input.record.get(), octets.data(), octets.size(), &length, error,
                                                 sizeof error);
              });
    addEncoding(result, status, octets, length, error);
}

void encodeRecordInMemory(const Input& input, Stage& stage, Result& result)
{
    Octets memory(RRC_COMPOSE_MEMORY_SIZE);
    Octets octets(8192);
    size_t length = 77;
    char error[512] = "";
    INT32 status = 0;
    stage.run(nullptr,
              [&]
              {
                  status = rrcEncodeCellGroupCfgInMemory(input.record.get(), memory.data(), memory.size(),
                                                         octets.data(), octets.size(), &length, error, sizeof error);
              });
    addEncoding(result, status, octets, length, error);
}

void encodeTree(const Input& input, Stage& stage, Result& result)
{
    Trees trees(input);
    Octets octets(65536);
    (void)pu_setBuffer(&trees.context, octets.data(), octets.size(), 0);
    int status = 0;
    stage.run(&trees.context, [&] { status = asn1PE_CellGroupConfig(&trees.context, &trees.first); });
    result.add(octets.data(), status == RTX_OK ? pu_getMsgLen(&trees.context) : 0);
    addStatus(result, &trees.context, status);
}

void decodeMessage(const Input& input, Stage& stage, Result& result)
{
    Context context;
    CellGroupConfig tree;
    int status = 0;
    stage.run(&context, [&] { status = decode(&context, input.octets, &tree); });
    addStatus(result, &context, status);
    if (status == RTX_OK)
    {
        addTree(result, &context, tree);
    }
}

void decodePrefix(const Input& input, Stage& stage, Result& result)
{
    Context context;
    CellGroupConfig tree;
    Octets longer = input.octets;
    longer.resize(longer.size() + 9, 0x55);
    (void)pu_setBuffer(&context, longer.data(), longer.size(), 0);
    int status = 0;
    stage.run(
        &context, [&]
        { status = rtxDecode(&context, asn1Type_CellGroupConfig(), &tree, RTX_DECODE_PREFIX | RTX_DECODE_STRICT); });
    addStatus(result, &context, status);
}

void trace(const Input& input, Stage& stage, Result& result)
{
    const auto sink = [](void* to, const RtxField* field)
    {
        Result& all = *static_cast<Result*>(to);
        for (const std::int64_t number : {std::int64_t{field->kind}, static_cast<std::int64_t>(field->offset),
                                          static_cast<std::int64_t>(field->width),
                                          static_cast<std::int64_t>(field->bits), std::int64_t{field->depth}})
        {
            all.add(number);
        }
        const char* const name = field->kind == RTX_FIELD_PRESENCE || field->kind == RTX_FIELD_ADDITIONS
                                     ? rtxFieldBitName(field, 0)
                                     : nullptr;
        all.add(name == nullptr ? "" : name);
    };
    Context context;
    CellGroupConfig tree;
    (void)pu_setBuffer(&context, const_cast<OSOCTET*>(input.octets.data()), input.octets.size(), 0);
    Result told;
    int status = 0;
    stage.run(&context, [&] { status = rtxTrace(&context, asn1Type_CellGroupConfig(), &tree, 0, sink, &told); });
    addStatus(result, &context, status);
    if (!result.refused)
    {
        result.add(&told.hash, sizeof told.hash);
    }
}

void find(const Input& input, Stage& stage, Result& result)
{
    struct Search
    {
        Result told;
        const Octets* data;
    };
    const auto sink = [](void* to, const RtxFound* found)
    {
        Search& search = *static_cast<Search*>(to);
        OSOCTET first[8] = {};
        rtxCopyBits(first, search.data->data(), found->contentBit, found->octets < 8 ? found->octets : 8);
        search.told.add(first, sizeof first);
        search.told.add(static_cast<std::int64_t>(found->bit));
        search.told.add(std::int64_t{found->octets});
    };
    Octets data = {0x13, 0x37};
    const size_t length = input.octets.size();
    if (length > 127)
    {
        data.push_back(static_cast<OSOCTET>(0x80 | length >> 8));
    }
    data.push_back(static_cast<OSOCTET>(length));
    data.insert(data.end(), input.octets.begin(), input.octets.end());
    Search search{{}, &data};
    Context context;
    std::int64_t status = 0;
    stage.run(&context,
              [&] {
                  status = rtxFind(&context, asn1Type_CellGroupConfig(), data.data(), data.size(), 3, sink, nullptr,
                                   &search);
              });
    addStatus(result, &context, status);
    if (!result.refused)
    {
        result.add(&search.told.hash, sizeof search.told.hash);
    }
}

void check(const Input& input, Stage& stage, Result& result)
{
    const auto sink = [](void* to, const RtxError* finding)
    {
        addLine(*static_cast<Result*>(to), rtxErrorFormat, finding);
        return 0;
    };
    Trees trees(input);
    std::int64_t status = 0;
    stage.run(&trees.context,
              [&] { status = rtxCheck(&trees.context, asn1Type_CellGroupConfig(), &trees.first, sink, &result); });
    addStatus(result, &trees.context, status);
}

void compare(const Input& input, Stage& stage, Result& result)
{
    const auto sink = [](void* to, const RtxDifference* difference)
    {
        addLine(*static_cast<Result*>(to), rtxDifferenceFormat, difference);
        return 0;
    };
    Trees trees(input);
    std::int64_t status = 0;
    stage.run(&trees.context,
              [&]
              {
                  status = rtxCompare(&trees.context, nullptr, asn1Type_CellGroupConfig(), &trees.first, &trees.second,
                                      sink, &result);
              });
    addStatus(result, &trees.context, status);
}

void addItem(void* to, const RtxDeltaItem* item)
{
    addLine(*static_cast<Result*>(to), rtxDeltaFormat, item);
}

void equal(const Input& input, Stage& stage, Result& result)
{
    Trees trees(input);
    int status = 0;
    stage.run(&trees.context, [&] { status = asn1Equal_CellGroupConfig(&trees.context, &trees.first, &trees.second); });
    addStatus(result, &trees.context, status);
}

void state(const Input& input, Stage& stage, Result& result)
{
    Trees trees(input);
    CellGroupConfig made;
    int status = 0;
    stage.run(&trees.context, [&] { status = asn1State_CellGroupConfig(&trees.context, &trees.first, &made); });
    addDeltaStatus(result, &trees.context, status);
    if (status == RTX_OK)
    {
        addTree(result, &trees.context, made);
    }
}

void apply(const Input& input, Stage& stage, Result& result)
{
    Trees trees(input);
    CellGroupConfig made;
    int status = 0;
    stage.run(&trees.context,
              [&]
              {
                  status = rtxApply(&trees.context, asn1Type_CellGroupConfig(), &trees.first, &trees.second, &made,
                                    addItem, &result);
              });
    addDeltaStatus(result, &trees.context, status);
    if (status == RTX_OK)
    {
        addTree(result, &trees.context, made);
    }
}

void diff(const Input& input, Stage& stage, Result& result)
{
    Trees trees(input);
    CellGroupConfig made;
    const RtxDeltaOptions options = {RTX_DELTA_RECREATE_BWPS | RTX_DELTA_RECREATE_SCELLS, &result};
    int status = 0;
    stage.run(
        &trees.context, [&]
        { status = asn1Diff_CellGroupConfig(&trees.context, &trees.first, &trees.second, &options, &made, addItem); });
    addDeltaStatus(result, &trees.context, status);
    if (status >= RTX_OK)
    {
        addTree(result, &trees.context, made);
    }
}

void deltaHolds(const Input& input, Stage& stage, Result& result)
{
    Trees trees(input);
    int status = 0;
    stage.run(
        &trees.context, [&]
        { status = rtxDeltaHolds(&trees.context, asn1Type_CellGroupConfig(), &trees.first, nullptr, &trees.second); });
    addDeltaStatus(result, &trees.context, status);
}

// A writer of the message's tree.
template <typename Write>
void written(const Input& input, Stage& stage, Result& result, const Write& write)
{
    Trees trees(input);
    int status = 0;
    stage.run(&trees.context, [&] { status = write(&trees.context, trees.first); });
    addStatus(result, &trees.context, status);
}

void jer(const Input& input, Stage& stage, Result& result)
{
    written(input, stage, result,
            [&](OSCTXT* context, const CellGroupConfig& tree)
            { return asn1ToJson_CellGroupConfig(context, &tree, RTX_INDENTED, addText, &result); });
}

void valueNotation(const Input& input, Stage& stage, Result& result)
{
    written(input, stage, result,
            [&](OSCTXT* context, const CellGroupConfig& tree)
            { return asn1ToValueNotation_CellGroupConfig(context, &tree, RTX_COMPACT, addText, &result); });
}

void flat(const Input& input, Stage& stage, Result& result)
{
    written(input, stage, result,
            [&](OSCTXT* context, const CellGroupConfig& tree)
            { return asn1ToFlat_CellGroupConfig(context, &tree, addText, &result); });
}

void flatWithRemarks(const Input& input, Stage& stage, Result& result)
{
    const auto remark = [](void*, const RtxType*, const void* value)
    {
        return value == nullptr ? nullptr : "here";
    };
    written(input, stage, result,
            [&](OSCTXT* context, const CellGroupConfig& tree) {
                return rtxToFlatWithRemarks(context, asn1Type_CellGroupConfig(), &tree, remark, nullptr, addText,
                                            &result);
            });
}

void print(const Input& input, Stage& stage, Result& result)
{
    written(input, stage, result,
            [&](OSCTXT* context, const CellGroupConfig& tree)
            {
                rtxPrintSetContext(context);
                asn1Print_CellGroupConfig("CellGroupConfig", &tree);
                rtxPrintSetContext(nullptr);
                return int{RTX_OK};
            });
}

void printTo(const Input& input, Stage& stage, Result& result)
{
    written(input, stage, result,
            [&](OSCTXT* context, const CellGroupConfig& tree)
            {
                asn1PrintTo_CellGroupConfig(context, "CellGroupConfig", &tree, addText, &result);
                return int{RTX_OK};
            });
}

struct Mistakes
{
    Result told;
    bool isMemory = false;

    void add(const Asn1Mistake& mistake)
    {
        isMemory = isMemory || std::strstr(mistake.words, "memory") != nullptr ||
                   std::strstr(mistake.words, "heap") != nullptr;
        told.add(mistake.path);
        told.add(mistake.words);
        told.add(std::int64_t{mistake.line});
    }
};

using FromText = int (*)(OSCTXT*, const RtxType*, void*, const char*, size_t, Asn1MistakeSink, void*);

void read(FromText reader, const std::string& text, Stage& stage, Result& result)
{
    const auto sink = [](void* to, const Asn1Mistake* mistake)
    {
        static_cast<Mistakes*>(to)->add(*mistake);
    };
    Context context;
    CellGroupConfig tree;
    Mistakes mistakes;
    int count = 0;
    stage.run(
        &context, [&]
        { count = reader(&context, asn1Type_CellGroupConfig(), &tree, text.data(), text.size(), sink, &mistakes); });
    result.refused = mistakes.isMemory;
    result.add(std::int64_t{count});
    result.add(&mistakes.told.hash, sizeof mistakes.told.hash);
    if (count == 0)
    {
        addTree(result, &context, tree);
    }
}

void fromJer(const Input& input, Stage& stage, Result& result)
{
    read(asn1FromJson, input.jer, stage, result);
}

void fromFlat(const Input& input, Stage& stage, Result& result)
{
    read(asn1FromFlat, input.flat, stage, result);
}

void recordJson(const Input& input, Stage& stage, Result& result)
{
    stage.run(nullptr, [&] { rrcRecordToJson(input.record.get(), addText, &result); });
}

void recordCpp(const Input& input, Stage& stage, Result& result)
{
    stage.run(nullptr, [&] { rrcRecordToCpp(input.record.get(), "record", addText, &result); });
}

void recordFromJson(const Input& input, Stage& stage, Result& result)
{
    const auto sink = [](void* to, const RrcRecordMistake* mistake)
    {
        static_cast<Mistakes*>(to)->add(mistake->mistake);
    };
    const auto record = std::make_unique<RrcCellGroupCfg_t>();
    Mistakes mistakes;
    int count = 0;
    stage.run(
        nullptr, [&]
        { count = rrcRecordFromJson(record.get(), input.json.data(), input.json.size(), nullptr, sink, &mistakes); });
    result.refused = mistakes.isMemory;
    result.add(std::int64_t{count});
    if (!result.refused)
    {
        result.add(&mistakes.told.hash, sizeof mistakes.told.hash);
        rrcRecordToJson(record.get(), addText, &result);
    }
}

void recordCheck(const Input& input, Stage& stage, Result& result)
{
    const auto sink = [](void* to, const RrcRecordFinding* finding)
    {
        addLine(*static_cast<Result*>(to), rrcRecordFindingFormat, finding);
        static_cast<Result*>(to)->wrong = rrcRecordRuleById(finding->rule->id) != finding->rule;
        return 0;
    };
    OSUINT32 count = 0;
    stage.run(nullptr, [&] { count = rrcCheckCellGroupCfg(input.record.get(), sink, &result); });
    result.add(std::int64_t{count});
}

void decompose(const Input& input, Stage& stage, Result& result)
{
    const auto sink = [](void* to, const RrcUnsaid* unsaid)
    {
        addLine(*static_cast<Result*>(to), rrcUnsaidFormat, unsaid);
        return 0;
    };
    Trees trees(input);
    const auto record = std::make_unique<RrcCellGroupCfg_t>();
    INT32 status = 0;
    stage.run(&trees.context,
              [&] { status = rrcDecomposeCellGroupCfg(&trees.context, &trees.first, record.get(), sink, &result); });
    result.refused = status == RRC_COMPOSE_E_MEMORY;
    result.add(std::int64_t{status});
    if (status >= 0)
    {
        rrcRecordToJson(record.get(), addText, &result);
    }
}

int addFinding(void* to, const RrcRuleFinding* finding)
{
    Result& result = *static_cast<Result*>(to);
    addLine(result, rrcRuleFindingFormat, finding);
    addLine(result, rrcRulePathFormat, finding);
    result.add(rrcRuleSeverityName(finding->severity));
    return 0;
}

// The successor as a message to a UE that has the first.
void rules(const Input& input, Stage& stage, Result& result)
{
    Trees trees(input);
    const RrcRuleContext besides = known(trees.readFirst ? &trees.first : nullptr);
    std::int64_t status = 0;
    stage.run(&trees.context,
              [&] { status = rrcCheckRules(&trees.context, &trees.second, &besides, addFinding, &result); });
    addStatus(result, &trees.context, status);
}

void someRules(const Input& input, Stage& stage, Result& result)
{
    const auto wanted = [](void*, const RrcRule* rule)
    {
        return std::strncmp(rule->id, "bwp", 3) == 0 ? 1 : 0;
    };
    Trees trees(input);
    std::int64_t status = 0;
    stage.run(&trees.context,
              [&] { status = rrcCheckSomeRules(&trees.context, &trees.first, nullptr, wanted, addFinding, &result); });
    addStatus(result, &trees.context, status);
}

void ruleTable(const Input&, Stage& stage, Result& result)
{
    stage.run(nullptr,
              [&]
              {
                  for (OSUINT32 i = 0; i < rrcRuleCount(); ++i)
                  {
                      const RrcRule* const rule = rrcRuleAt(i);
                      const char* const title = rrcRuleGroupTitle(rule->id);
                      result.add(rule->statement);
                      result.add(title == nullptr ? "" : title);
                      result.wrong = result.wrong || rrcRuleById(rule->id) != rule;
                  }
                  result.add(rrcRuleInputName(RRC_RULE_INPUT_BAND));
              });
}

int addMeaning(void* to, const RrcMeaning* meaning)
{
    Result& result = *static_cast<Result*>(to);
    addLine(result, rrcMeaningFormat, meaning);
    addLine(result, rrcMeaningPathFormat, meaning);
    return 0;
}

void explain(const Input& input, Stage& stage, Result& result)
{
    Trees trees(input);
    const RrcRuleContext besides = known(trees.readFirst ? &trees.first : nullptr);
    std::int64_t status = 0;
    stage.run(&trees.context,
              [&] { status = rrcExplain(&trees.context, &trees.second, &besides, addMeaning, &result); });
    addStatus(result, &trees.context, status);
}

void explainValue(const Input& input, Stage& stage, Result& result)
{
    struct Last
    {
        const void* value;
        const RtxType* type;
    };
    const auto keep = [](void* to, const RrcMeaning* meaning)
    {
        *static_cast<Last*>(to) = {meaning->value, meaning->type};
        return 0;
    };
    Trees trees(input);
    Last last = {nullptr, nullptr};
    (void)rrcExplain(&trees.context, &trees.first, nullptr, keep, &last);
    rtxErrReset(&trees.context);
    std::int64_t status = 0;
    stage.run(&trees.context,
              [&] {
                  status = rrcExplainValue(&trees.context, &trees.first, nullptr, last.value, last.type, addMeaning,
                                           &result);
              });
    addStatus(result, &trees.context, status);
}

void draw(const Input& input, Stage& stage, Result& result)
{
    Trees trees(input);
    const RrcRuleContext besides = known(trees.readFirst ? &trees.first : nullptr);
    const RrcDrawOptions options = {0, 10};
    const std::uint64_t before = result.length;
    std::int64_t status = 0;
    stage.run(&trees.context,
              [&] { status = rrcDraw(&trees.context, &trees.second, &besides, &options, addText, &result); });
    result.wrong = (status == RTX_OK) != (result.length != before);
    addStatus(result, &trees.context, status);
}

void page(const Input& input, Stage& stage, Result& result)
{
    const RrcPageMessage messages[] = {{"before", nullptr, input.octets.data(), input.octets.size()},
                                       {"<after>", "hex", input.nextOctets.data(), input.nextOctets.size()}};
    const RrcRuleContext besides = known(nullptr);
    int status = 0;
    stage.run(nullptr, [&] { status = rrcPage(messages, 2, &besides, nullptr, 0, addText, &result); });
    result.refused = status == RTX_E_HEAP;
    result.wrong = (status == RTX_OK) != (result.length != 0);
    result.add(std::int64_t{status});
}

void messageFindings(const Input& input, Stage& stage, Result& result)
{
    const auto sink = [](void* to, const RrcMessageFinding* finding)
    {
        for (const char* const text : {finding->id, finding->path, finding->message, finding->value, finding->allowed,
                                       finding->advice, finding->clause})
        {
            static_cast<Result*>(to)->add(text);
        }
        const char* const advice = rrcFindingAdvice(finding->id);
        const char* const clause = rrcFindingClause(finding->id);
        static_cast<Result*>(to)->add(advice == nullptr ? "" : advice);
        static_cast<Result*>(to)->add(clause == nullptr ? "" : clause);
        return 0;
    };
    const RrcRuleContext besides = known(nullptr);
    int status = 0;
    stage.run(nullptr,
              [&]
              {
                  status = rrcMessageFindings(input.nextOctets.data(), input.nextOctets.size(), &besides,
                                              input.octets.data(), input.octets.size(), sink, &result);
              });
    result.refused = status == RTX_E_HEAP;
    result.add(std::int64_t{status});
}

void settings(const Input&, Stage& stage, Result& result)
{
    static constexpr struct
    {
        const char* name;
        const char* value;
    } said[] = {{"band", "n78"},
                {"carrier", "30:0:273"},
                {"carrier", "15:12:270"},
                {"bwp0-dl", "1099:30"},
                {"tdd-pattern", "30:ms3:3:6:2:4+ms2:1:0:2:0"},
                {"bearers", "srb1,drb1,drb32:dup"},
                {"meas-object", "1:633312:30:csirs=0,9"},
                {"capability", R"({"sr-PeriodsSl5Sl10":"supported","supportedSRS-TxPortSwitch":["t1r2","t1r4-t2r4"]})"},
                {"rach", "{\"rach-ConfigGeneric\": 5}"},
                {"no-such", "1"},
                {"band", "n77"}};
    stage.run(nullptr,
              [&]
              {
                  char error[200] = "";
                  RrcSettings* const all = rrcSettingsNew();
                  result.refused = all == nullptr;
                  for (const auto& one : said)
                  {
                      if (!result.refused && rrcSettingsSet(all, one.name, one.value, std::strlen(one.value), nullptr,
                                                            error, sizeof error) != 0)
                      {
                          result.refused = std::strstr(error, "memory") != nullptr;
                          result.add(error);
                      }
                  }
                  const RrcRuleContext* const context =
                      result.refused ? nullptr : rrcSettingsContext(all, error, sizeof error);
                  result.refused = result.refused || (context == nullptr && std::strstr(error, "memory") != nullptr);
                  if (context != nullptr)
                  {
                      result.add(std::int64_t{context->band});
                      result.add(std::int64_t{context->numCarriersDl});
                      result.add(std::int64_t{context->numMeasObjects});
                  }
                  rrcSettingsFree(all);
              });
}

void settingTable(const Input&, Stage& stage, Result& result)
{
    stage.run(nullptr,
              [&]
              {
                  for (OSUINT32 i = 0; i < rrcSettingCount(); ++i)
                  {
                      const RrcSetting* const setting = rrcSettingAt(i);
                      result.add(setting->description);
                      result.wrong = result.wrong || rrcSettingByName(setting->name) != setting;
                  }
              });
}

// A list in a context's heap, of the caller's memory and behind it.
void heap(const Input& input, Stage& stage, Result& result)
{
    struct Item
    {
        OSRTDListNode node;
        std::array<OSOCTET, 600> room;
    };
    Octets memory(5000);
    Context context;
    result.add(static_cast<std::int64_t>(rtxMemHeapSetMemory(&context, memory.data(), memory.size())));
    OSRTDList list{};
    stage.run(&context,
              [&]
              {
                  for (const OSOCTET octet : input.octets)
                  {
                      auto* const item = static_cast<Item*>(rtxMemHeapAlloc(&context, sizeof(Item)));
                      if (item == nullptr)
                      {
                          result.refused = rtxMemHeapFailed(&context) != 0;
                          break;
                      }
                      result.wrong =
                          result.wrong || rtxMemHeapOwns(&context, item, sizeof(Item)) == 0 || item->room.back() != 0;
                      item->room.fill(octet);
                      rtxDListAppendNode(&list, &item->node);
                  }
              });
    result.add(std::int64_t{list.count});
    rtxMemHeapSetLimit(&context, 32);
    result.wrong = result.wrong || rtxMemHeapAlloc(&context, 48) != nullptr;
}

void initRecords(const Input&, Stage& stage, Result& result)
{
    const auto record = std::make_unique<RrcCellGroupCfg_t>();
    const auto patterned = std::make_unique<RrcCellGroupCfg_t>();
    std::memset(record.get(), 0x33, sizeof *record);
    stage.run(nullptr,
              [&]
              {
                  rrcInitRecord(record.get(), RrcRecordNumber<RrcCellGroupCfg_t>::number);
                  rrcInitRecordWithPattern(patterned.get(), RrcRecordNumber<RrcCellGroupCfg_t>::number);
              });
    result.add(record.get(), sizeof *record);
    result.add(patterned.get(), sizeof *patterned);
}

void versionAndBits(const Input& input, Stage& stage, Result& result)
{
    stage.run(nullptr,
              [&]
              {
                  UINT8 bits[8] = {};
                  UINT8 copy[8] = {1};
                  const UINT64 number = 0x123456789ABCDEFU * (input.octets.size() + 1);
                  for (const auto pack :
                       {uint64ToBitString43bit, uint64ToBitString48bit, uint64ToBitString59bit, uint64ToBitString64bit})
                  {
                      pack(number, bits);
                      VOS_MemCpy(copy, bits, sizeof bits);
                      result.add(copy, sizeof copy);
                      VOS_MemZero(bits, sizeof bits);
                  }
                  result.add(cellgroupcfgVersion());
                  result.add(std::int64_t{cellgroupcfgAbi()});
                  result.add(std::int64_t{CELLGROUPCFG_ABI_MATCHES()});
                  result.add(static_cast<std::int64_t>(cellgroupcfgSizeOf("OSCTXT")));
              });
}

constexpr assurance::Call all[] = {{"rrcComposeCellGroupCfg", true, entry},
                                   {"rrcComposeCellGroupTree", false, composeTree},
                                   {"rrcEncodeCellGroupCfg", false, encodeRecord},
                                   {"rrcEncodeCellGroupCfgInMemory", false, encodeRecordInMemory},
                                   {"rrcComposeCellGroupDelta", false, composeDelta},
                                   {"asn1PE", false, encodeTree},
                                   {"asn1PD", false, decodeMessage},
                                   {"rtxDecode", false, decodePrefix},
                                   {"rtxTrace", false, trace},
                                   {"rtxFind", false, find},
                                   {"rtxCheck", false, check},
                                   {"rtxCompare", false, compare},
                                   {"rtxEqual", false, equal},
                                   {"rtxState", false, state},
                                   {"rtxApply", false, apply},
                                   {"rtxDiff", false, diff},
                                   {"rtxDeltaHolds", false, deltaHolds},
                                   {"rtxToJson", false, jer},
                                   {"rtxToValueNotation", false, valueNotation},
                                   {"rtxToFlat", false, flat},
                                   {"rtxToFlatWithRemarks", false, flatWithRemarks},
                                   {"asn1Print", false, print},
                                   {"asn1PrintTo", false, printTo},
                                   {"asn1FromJson", false, fromJer},
                                   {"asn1FromFlat", false, fromFlat},
                                   {"rrcRecordToJson", false, recordJson},
                                   {"rrcRecordToCpp", false, recordCpp},
                                   {"rrcRecordFromJson", false, recordFromJson},
                                   {"rrcCheckCellGroupCfg", false, recordCheck},
                                   {"rrcDecomposeCellGroupCfg", false, decompose},
                                   {"rrcCheckRules", false, rules},
                                   {"rrcCheckSomeRules", false, someRules},
                                   {"rrcRuleAt", false, ruleTable},
                                   {"rrcExplain", false, explain},
                                   {"rrcExplainValue", false, explainValue},
                                   {"rrcDraw", false, draw},
                                   {"rrcPage", false, page},
                                   {"rrcMessageFindings", false, messageFindings},
                                   {"rrcSettingsSet", false, settings},
                                   {"rrcSettingAt", false, settingTable},
                                   {"rtxMemHeapAlloc", false, heap},
                                   {"rrcInitRecord", false, initRecords},
                                   {"cellgroupcfgVersion", false, versionAndBits}};

} // namespace

namespace assurance
{

void Result::add(const char* text)
{
    add(text, std::strlen(text));
}

void Result::addLine(const char* text)
{
    add(text);
    if (lines < first.size())
    {
        Result line;
        line.add(text);
        first[lines] = line.hash;
    }
    ++lines;
}

bool Result::tellsMoreThan(const Result& other) const
{
    const auto theirs = std::span(other.first).first(std::min<std::size_t>(other.lines, other.first.size()));
    const auto ours = std::span(first).first(std::min<std::size_t>(lines, first.size()));
    return lines > other.lines || std::any_of(ours.begin(), ours.end(),
                                              [&](std::uint64_t line) {
                                                  return std::find(theirs.begin(), theirs.end(), line) == theirs.end();
                                              });
}

std::span<const Call> calls()
{
    return all;
}

Result resultOf(const Call& call, const Input& input, Stage& stage)
{
    Result result;
    Result* const outer = console;
    console = &result;
    call.run(input, stage, result);
    console = outer;
    return result;
}

Result resultOf(const Call& call, const Input& input)
{
    Stage stage;
    return resultOf(call, input, stage);
}

} // namespace assurance

// Stands in place of the platform's: what a call prints is part of its result.
INT32 VOS_Printf(const char* format, ...)
{
    static thread_local char line[2000]; // not on the stack that is measured
    va_list args;
    va_start(args, format);
    const INT32 length = std::vsnprintf(line, sizeof line, format, args);
    va_end(args);
    if (console != nullptr)
    {
        console->addLine(line);
    }
    return length;
}

// The same: a red line is asked for here, and left out.
BOOL vos_info_print_filter_is_filtered(INT32 /*level*/, const char* name)
{
    if (console != nullptr)
    {
        console->addLine(name);
    }
    return 1;
}
