// What is known besides the message that rules are checked of, in the words of options and project files.
#pragma once

#include "message.h"
#include "rrcSettings.h"
#include "states.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tool
{

// An option of the context: "--band", or "band" in a project file.
struct Setting
{
    const RrcSetting* setting;
    std::string value;  // empty for a flag
    std::string origin; // what an error begins with: "--band", ".cellgroupcfg.toml:3: band"
};
using Settings = std::vector<Setting>;

// The options, in words, that would tell each of these RrcRuleInput bits.
std::vector<std::string> optionsOf(OSUINT32 inputs);

// What both say, where they say the same thing the first ones.
Settings merged(const Settings& first, const Settings& second);

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
        return *context_;
    }
    const std::optional<Encoding>& held() const
    {
        return held_;
    }

private:
    struct Free
    {
        void operator()(RrcSettings* settings) const
        {
            rrcSettingsFree(settings);
        }
    };
    using Owner = std::unique_ptr<RrcSettings, Free>;

    static Owner newSettings();

    Owner settings_ = newSettings();
    const RrcRuleContext* context_ = nullptr;
    std::optional<Encoding> held_; // what the UE has before the message
};

} // namespace tool
