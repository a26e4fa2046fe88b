// What the values of a message mean, for the lines that show them.
#pragma once

#include "ruleInputs.h"

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace tool
{

struct ExplainOptions
{
    bool isOn = false;
    Settings context;
};

// The meanings of a tree's values, by their places.
class Meanings
{
public:
    // None of a type other than CellGroupConfig.
    Meanings() = default;
    // Of a tree in the heap of the message's context, or of a state that follows from it. Throws Failure.
    Meanings(Message& message, const void* value, const RuleInputs& inputs);
    // With all that is known, `previous` too. None where they cannot be told.
    Meanings(OSCTXT& context, const CellGroupConfig& value, const RrcRuleContext& known);

    // Empty where a value has none.
    const std::string& of(const RtxType* type, const void* value) const;
    // For the writers of lines: `arg` is the Meanings.
    static const char* remark(void* arg, const RtxType* type, const void* value);

private:
    std::int64_t tell(OSCTXT& context, const CellGroupConfig& value, const RrcRuleContext& known);

    std::map<std::pair<const void*, const RtxType*>, std::string> all_;
};

// The inputs that the meanings are made with; nothing where they are not asked for. Throws Failure where they cannot
// be.
std::unique_ptr<RuleInputs> explainInputs(Session& session, const ExplainOptions& options);

} // namespace tool
