// What is known besides the message that rules are checked of, in the words of options and project files.
#pragma once

#include "message.h"
#include "rrcRules.h"
#include "states.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tool
{

struct KnownValues;
struct InputOption;

struct Setting
{
    const InputOption* option;
    std::string value;  // empty for a flag
    std::string origin; // what an error begins with: "--band", ".cellgroupcfg.toml:3: band"
};
using Settings = std::vector<Setting>;

// An option of the context: "--band", or "band" in a project file.
struct InputOption
{
    const char* name;
    const char* argument; // what it takes; empty: a flag
    bool isRepeatable;
    const char* group; // of those that say the same thing; a command line's take the place of a file's
    const char* description;
    void (*take)(KnownValues& known, Session& session, const Setting& setting); // throws Failure
};
std::span<const InputOption> inputOptions();

// The options, in words, that would tell each of these RrcRuleInput bits.
std::vector<std::string> optionsOf(OSUINT32 inputs);

// What both say, where they say the same thing the first ones.
Settings merged(const Settings& first, const Settings& second);

// What an RrcRuleContext points to.
struct KnownValues
{
    RrcRuleContext context{};
    std::optional<Encoding> held; // what the UE has before the message
    std::vector<SCS_SpecificCarrier> carriersDl;
    std::vector<SCS_SpecificCarrier> carriersUl;
    std::optional<BWP> bwp0Dl;
    std::optional<BWP> bwp0Ul;
    std::array<OSOCTET, 8> ssb{};
    std::optional<OSUINT32> typeAPosition;
    std::optional<ControlResourceSetZero> coreset0;
    std::optional<TDD_UL_DL_ConfigCommon> tdd;
    std::optional<Given> rachText;
    std::optional<Message> rach; // of rachText
    std::optional<RrcRuleCapabilities> capabilities;
    std::optional<RrcRuleBearers> bearers;
    std::vector<RrcRuleMeasObject> measObjects;
    std::optional<OSUINT32> otherCells;
};

class RuleInputs
{
public:
    // Reads files where settings name some. Throws Failure.
    RuleInputs(Session& session, const Settings& settings);
    RuleInputs(const RuleInputs&) = delete;
    RuleInputs& operator=(const RuleInputs&) = delete;

    // Without `previous`, which has to be in the heap of a check's context.
    const RrcRuleContext& context() const
    {
        return known_.context;
    }
    const std::optional<Encoding>& held() const
    {
        return known_.held;
    }

private:
    KnownValues known_;
};

} // namespace tool
