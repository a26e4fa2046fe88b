// Takes each line of the input as a setting, "name=value": refused with one line, or part of a context that rules take,
// the same each time.
#include "ruleFindings.h"

#include "rrcSettings.h"

#include <cstring>
#include <string>
#include <string_view>

using fuzz::require;

namespace
{

// What a refusal says, in as much room as there is.
class Refusal
{
public:
    explicit Refusal(size_t room) : room_(room), text_(std::make_unique<char[]>(room)) {}

    char* text()
    {
        return text_.get();
    }
    size_t room() const
    {
        return room_;
    }
    void expectLine() const
    {
        const size_t length = strnlen(text_.get(), room_);
        require(length < room_, "a refusal without an end");
        require(room_ == 1 || length != 0, "a refusal without words");
        require(std::memchr(text_.get(), '\n', length) == nullptr, "a refusal of several lines");
    }

private:
    size_t room_;
    std::unique_ptr<char[]> text_;
};

class Settings
{
public:
    ~Settings()
    {
        rrcSettingsFree(settings_);
    }
    Settings() = default;
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    // The lines up to the first that is refused. Null where there is such a one, or they do not fit each other.
    const RrcRuleContext* read(std::string_view text, Refusal& refusal)
    {
        while (!text.empty())
        {
            const std::string_view line = text.substr(0, text.find('\n'));
            text.remove_prefix(std::min(line.size() + 1, text.size()));
            const std::string name(line.substr(0, line.find('=')));
            const std::string_view value = line.substr(std::min(name.size() + 1, line.size()));
            const bool hasValue = name.size() != line.size();
            // Of its exact size, so that reading past it is found.
            const auto octets = std::make_unique<char[]>(value.size());
            std::copy(value.begin(), value.end(), octets.get());
            const int status = rrcSettingsSet(settings_, name.c_str(), hasValue ? octets.get() : nullptr, value.size(),
                                              nullptr, refusal.text(), refusal.room());
            require(status == 0 || status == -1, "another result");
            require(status != 0 || rrcSettingByName(name.c_str()) != nullptr, "a setting that does not exist");
            if (status != 0)
            {
                refusal.expectLine();
                return nullptr;
            }
        }
        const RrcRuleContext* const known = rrcSettingsContext(settings_, refusal.text(), refusal.room());
        if (known == nullptr)
        {
            refusal.expectLine();
        }
        return known;
    }

private:
    RrcSettings* settings_ = rrcSettingsNew();
};

void check(const RrcRuleContext& known)
{
    require(known.previous == nullptr, "a tree that nobody has read");
    require(known.numCarriersDl == 0 || known.carriersDl != nullptr, "carriers that are nowhere");
    require(known.numCarriersUl == 0 || known.carriersUl != nullptr, "uplink carriers that are nowhere");
    require(known.numMeasObjects == 0 || known.measObjects != nullptr, "objects that are nowhere");
    require(known.extent <= RRC_RULE_EXTENT_DELTA && known.group <= RRC_RULE_GROUP_SCG, "a value that is none");
    OSCTXT ctxt;
    require(rtxInitContext(&ctxt) == RTX_OK, "no context");
    auto* const tree = static_cast<CellGroupConfig*>(rtxMemHeapAlloc(&ctxt, sizeof(CellGroupConfig)));
    require(tree != nullptr, "no memory");
    asn1Init_CellGroupConfig(tree);
    tree->m.spCellConfigPresent = 1;
    tree->spCellConfig.m.spCellConfigDedicatedPresent = 1;
    fuzz::checkRules(ctxt, *tree, known);
    rtFreeContext(&ctxt);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    const size_t room = data[0] + 1U;
    Refusal refusal(room);
    Settings settings;
    const RrcRuleContext* const known = settings.read(text, refusal);
    Refusal second(room);
    Settings again;
    require((again.read(text, second) == nullptr) == (known == nullptr), "another result the second time");
    require(known != nullptr || std::strcmp(refusal.text(), second.text()) == 0, "another refusal the second time");
    if (known != nullptr)
    {
        check(*known);
    }
    return 0;
}
