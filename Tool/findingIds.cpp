#include "findingIds.h"

#include "encodingIds.h"
#include "nearest.h"
#include "rrcRecordCheck.h"
#include "ruleTable.h"
#include "session.h"

#include <algorithm>
#include <optional>

namespace tool
{
namespace
{

// Those that can be passed over.
std::vector<std::string_view> optionalIds()
{
    std::vector<std::string_view> all;
    for (const page::EncodingId& id : page::encodingIds())
    {
        if (id.isOptional)
        {
            all.emplace_back(id.id);
        }
    }
    for (const std::vector<std::string_view>& rules : {ruleIds(), recordRuleIds()})
    {
        all.insert(all.end(), rules.begin(), rules.end());
    }
    return all;
}

} // namespace

IdWords wordsOf(const std::string& id)
{
    if (const page::EncodingId* const found = page::encodingIdNamed(id))
    {
        return {found->statement, found->advice, found->clause};
    }
    if (const RrcRule* const rule = rrcRuleById(id.c_str()))
    {
        return {rule->statement, rule->advice, rule->clause};
    }
    const RrcRecordRule* const rule = rrcRecordRuleById(id.c_str());
    return rule == nullptr ? IdWords{} : IdWords{recordStatement(*rule), rule->instead, ""};
}

bool isIdOf(std::string_view word, std::string_view id)
{
    return word == id || (word.ends_with('-') && id.starts_with(word));
}

std::string wrongId(const std::string& word)
{
    const std::vector<std::string_view> all = optionalIds();
    const auto namesAny = [&](const std::string& one)
    {
        return std::any_of(all.begin(), all.end(), [&](std::string_view id) { return isIdOf(one, id); });
    };
    if (namesAny(word))
    {
        return "";
    }
    if (page::encodingIdNamed(word) != nullptr)
    {
        return "'" + word + "' is about messages that cannot be read, which are never passed over";
    }
    const std::string group = word + "-";
    const auto close = namesAny(group) ? std::optional<std::string_view>(group) : text::nearest(word, all);
    return "there is no rule '" + word + "'" + (close ? "; did you mean " + std::string(*close) + "?" : "");
}

Ids::Ids(std::vector<std::string> words, const std::string& origin) : words_(std::move(words))
{
    for (const std::string& word : words_)
    {
        if (const std::string wrong = wrongId(word); !wrong.empty())
        {
            throw Failure(Exit::Usage, origin + ": " + wrong);
        }
    }
}

bool Ids::have(std::string_view id) const
{
    return std::any_of(words_.begin(), words_.end(), [&](const std::string& word) { return isIdOf(word, id); });
}

} // namespace tool
