#include "rrcMessageFindings.h"

#include "encodingIds.h"
#include "fields.h"
#include "messageFindings.h"
#include "whileMemory.h"

#include <optional>

namespace page
{
namespace
{

constexpr const char* rootName = "CellGroupConfig";

class Search
{
public:
    Search(const RrcRuleContext* known, RrcMessageSink sink, void* arg) : sink_(sink), arg_(arg)
    {
        rtxInitContext(&context_);
        if (known != nullptr)
        {
            known_ = *known;
        }
        known_.previous = nullptr;
    }
    ~Search()
    {
        rtFreeContext(&context_);
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    int hold(const OSOCTET* held, size_t count)
    {
        (void)pu_setBuffer(&context_, const_cast<OSOCTET*>(held), count, 0);
        known_.previous = &held_;
        return asn1PD_CellGroupConfig(&context_, &held_);
    }

    int look(const OSOCTET* octets, size_t count)
    {
        const auto note = [](void* to, const RtxField* field)
        {
            static_cast<Search*>(to)->keepNote(*field);
        };
        (void)pu_setBuffer(&context_, const_cast<OSOCTET*>(octets), count, 0);
        const int status = asn1Trace_CellGroupConfig(&context_, &value_, note, this);
        sinks_.finish();
        if (status == RTX_E_HEAP)
        {
            return status;
        }
        if (status != RTX_OK)
        {
            tell(findingOf(context_.error));
            return RTX_OK;
        }
        const RtxDecoded decoded = context_.decoded;
        const auto constraint = [](void* to, const RtxError* error)
        {
            return static_cast<Search*>(to)->tellInSink(*error);
        };
        (void)asn1Check_CellGroupConfig(&context_, &value_, constraint, this);
        sinks_.finish();
        tellNotes(
            decoded, rootName, [&] { return firstNote_; }, [&](const MessageFinding& found) { tell(found); });
        return isEnded_ ? RTX_OK : rules();
    }

private:
    int rules()
    {
        const auto rule = [](void* to, const RrcRuleFinding* told)
        {
            return static_cast<Search*>(to)->tellInSink(*told);
        };
        const std::int64_t status = checkOrAsDelta(
            context_, known_, [&] { return rrcCheckRules(&context_, &value_, &known_, rule, this); },
            [&](MessageFinding&& refusal) { tell(refusal); });
        sinks_.finish();
        return status < 0 ? static_cast<int>(status) : RTX_OK;
    }

    void keepNote(const RtxField& field)
    {
        (void)sinks_.run(
            [&]
            {
                firstNote_ = firstNote_.empty() ? noteText(rootName, field) : firstNote_;
                return 0;
            });
    }

    template <typename Told>
    int tellInSink(const Told& told)
    {
        return sinks_.run([&] { return tell(findingOf(told)); });
    }

    int tell(const MessageFinding& found)
    {
        if (!isEnded_)
        {
            const RrcMessageFinding finding = {found.id.c_str(),      found.severity,       found.path.c_str(),
                                               found.message.c_str(), found.value.c_str(),  found.allowed.c_str(),
                                               found.advice.c_str(),  found.clause.c_str(), found.decidedBy};
            isEnded_ = sink_(arg_, &finding) != 0;
        }
        return isEnded_ ? 1 : 0;
    }

    RrcMessageSink sink_;
    void* arg_;
    OSCTXT context_;
    RrcRuleContext known_{};
    CellGroupConfig held_{};
    CellGroupConfig value_{};
    bool isEnded_ = false;
    std::string firstNote_;
    text::Sinks sinks_;
};

const EncodingId* wordsNamed(const char* id)
{
    return id == nullptr ? nullptr : encodingIdNamed(id);
}

} // namespace
} // namespace page

int rrcMessageFindings(const OSOCTET* octets, size_t numocts, const RrcRuleContext* known, const OSOCTET* held,
                       size_t heldOctets, RrcMessageSink sink, void* arg)
{
    if (octets == nullptr || sink == nullptr)
    {
        return RTX_E_NULL;
    }
    const auto search = [&]
    {
        page::Search all(known, sink, arg);
        const int status = held == nullptr || heldOctets == 0 ? RTX_OK : all.hold(held, heldOctets);
        return status != RTX_OK ? status : all.look(octets, numocts);
    };
    return text::whileMemory(search, [] { return int{RTX_E_HEAP}; });
}

const char* rrcFindingAdvice(const char* id)
{
    const page::EncodingId* const words = page::wordsNamed(id);
    return words == nullptr ? nullptr : words->advice;
}

const char* rrcFindingClause(const char* id)
{
    const page::EncodingId* const words = page::wordsNamed(id);
    return words == nullptr ? nullptr : words->clause;
}
