// Makes element trees that nobody has decoded, with faults in them as the input says: what reads a tree neither crashes
// nor follows what is wrong, and says the same as the encoder.
#include "Asn/randomTree.h"
#include "meanings.h"
#include "ruleFindings.h"
#include "support/JsonText.h"

using fuzz::require;

namespace
{

const RtxType& type = *asn1Type_CellGroupConfig();

std::string lineOf(const RtxError& error)
{
    std::string line(rtxErrorFormat(&error, nullptr, 0), '\0');
    (void)rtxErrorFormat(&error, line.data(), line.size() + 1);
    return line;
}

// Two octets of the input for each choice, and behind its end chance, as choices that are all alike never end.
CellGroupConfig& treeOf(OSCTXT& ctxt, fuzz::Octets& octets)
{
    test::RandomTree::Options options;
    options.budget = 8 * octets.number();
    const unsigned flags = octets.number();
    options.unknown = (flags & 1U) != 0;
    options.sameIdentity = (flags & 2U) != 0;
    const unsigned faults = flags / 4 % 8;
    const auto number = [&octets, chance = std::mt19937_64(flags)]() mutable
    {
        if (octets.isAtEnd())
        {
            return static_cast<uint64_t>(chance());
        }
        const uint64_t low = octets.number();
        return low + 256 * octets.number();
    };
    test::RandomTree random(ctxt, number, options);
    auto* const tree = static_cast<CellGroupConfig*>(random.make(type));
    if (faults != 0)
    {
        (void)random.spoil(type, tree, faults);
    }
    return *tree;
}

struct Findings
{
    int64_t number = 0;
    std::string first;
};

int tellError(void* arg, const RtxError* finding)
{
    auto& findings = *static_cast<Findings*>(arg);
    if (++findings.number == 1)
    {
        findings.first = lineOf(*finding);
    }
    return 0;
}

// How much keeps it from being sent; the encoder says the first of it.
int64_t checkEncoder(OSCTXT& ctxt, const CellGroupConfig& tree)
{
    static OSOCTET octets[1 << 20]; // no tree of a fuzzer is as large
    Findings findings;
    require(rtxCheck(&ctxt, &type, &tree, tellError, &findings) == findings.number, "another number than was told");
    require(pu_setBuffer(&ctxt, octets, sizeof octets, 0) == RTX_OK, "no buffer");
    const int status = asn1PE_CellGroupConfig(&ctxt, &tree);
    require((status == RTX_OK) == (findings.number == 0), "the check and the encoder disagree");
    require(findings.number == 0 || lineOf(ctxt.error) == findings.first, "the encoder's error is another one");
    rtxErrReset(&ctxt);
    return findings.number;
}

void checkWriters(OSCTXT& ctxt, const CellGroupConfig& tree, bool isSent)
{
    std::string json;
    const auto append = [](void* to, const char* piece)
    {
        *static_cast<std::string*>(to) += piece;
    };
    const int status = rtxToJson(&ctxt, &type, &tree, RTX_COMPACT, append, &json);
    require(test::JsonText::isValid(json), "JER is not JSON");
    // The encoder takes a list that is a loop, as far as it counts.
    require(!isSent || status == RTX_OK || status == RTX_E_LIST, "what can be sent is not written");
}

void tellItem(void* /*arg*/, const RtxDeltaItem* item)
{
    require(rtxDeltaFormat(item, nullptr, 0) != 0, "an item without a line");
}

int tellDifference(void* /*arg*/, const RtxDifference* difference)
{
    require(rtxDifferenceFormat(difference, nullptr, 0) != 0, "a difference without a line");
    return 0;
}

// Trees that the encoder refuses. What is wrong may be a pointer behind the heap's end, which is one into the heap once
// that has grown: only what was wrong and still is has been wrong all the time.
bool areWrong(OSCTXT& ctxt, const CellGroupConfig& a, const CellGroupConfig& b)
{
    return rtxCheck(&ctxt, &type, &a, nullptr, nullptr) != 0 || rtxCheck(&ctxt, &type, &b, nullptr, nullptr) != 0;
}

void checkPair(OSCTXT& ctxt, const CellGroupConfig& a, const CellGroupConfig& b, bool areSent)
{
    const int64_t differences = rtxCompare(&ctxt, nullptr, &type, &a, &b, tellDifference, nullptr);
    require(differences >= 0 && rtxCompare(&ctxt, nullptr, &type, &b, &a, nullptr, nullptr) == differences,
            "the other way round there are not as many differences");
    const int equal = rtxEqual(&ctxt, &type, &a, &b);
    require(!areSent || equal == (differences == 0 ? 1 : 0), "another answer whether they are equal");

    auto* const delta = static_cast<CellGroupConfig*>(rtxMemHeapAlloc(&ctxt, sizeof(CellGroupConfig)));
    auto* const next = static_cast<CellGroupConfig*>(rtxMemHeapAlloc(&ctxt, sizeof(CellGroupConfig)));
    require(delta != nullptr && next != nullptr, "no memory");
    const int status = rtxDiff(&ctxt, &type, &a, &b, nullptr, delta, tellItem);
    require(areSent || status < 0 || !areWrong(ctxt, a, b), "a delta of what cannot be sent");
    if (areSent && status == RTX_DELTA_TO_SEND)
    {
        require(rtxDeltaHolds(&ctxt, &type, &a, delta, &b) == 1, "the delta does not lead there");
        require(rtxApply(&ctxt, &type, &a, delta, next, tellItem, nullptr) == RTX_OK, "the delta is refused");
    }
    const int applied = rtxApply(&ctxt, &type, &a, &b, next, tellItem, nullptr);
    require(areSent || applied < 0 || !areWrong(ctxt, a, b), "what cannot be sent is applied");
    rtxErrReset(&ctxt);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    OSCTXT ctxt;
    require(rtxInitContext(&ctxt) == RTX_OK, "no context");
    fuzz::Octets octets(ctxt, data, size);
    RrcRuleContext known = fuzz::contextOf(octets);
    const bool isOnTop = octets.flag();
    const CellGroupConfig& first = treeOf(ctxt, octets);
    const CellGroupConfig& second = treeOf(ctxt, octets);
    if (isOnTop)
    {
        known.previous = &first;
    }
    const bool isFirstSent = checkEncoder(ctxt, first) == 0;
    const bool isSecondSent = checkEncoder(ctxt, second) == 0;
    checkWriters(ctxt, first, isFirstSent);
    checkWriters(ctxt, second, isSecondSent);
    fuzz::checkRules(ctxt, second, known);
    fuzz::checkMeanings(ctxt, second, known);
    checkPair(ctxt, first, second, isFirstSent && isSecondSent);
    checkPair(ctxt, second, second, isSecondSent);
    rtFreeContext(&ctxt);
    return 0;
}
