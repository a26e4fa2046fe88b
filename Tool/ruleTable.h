// The table of rules as the commands tell it.
#pragma once

#include "findingIds.h"
#include "rrcRecordCheck.h"
#include "rrcRules.h"

#include <string>
#include <string_view>
#include <vector>

namespace tool
{

// All rules, in the order of the table.
std::vector<const RrcRule*> allRules();

// The ids of all rules.
std::vector<std::string_view> ruleIds();

// The rules of the record, in the order of the table.
std::vector<const RrcRecordRule*> allRecordRules();
std::vector<std::string_view> recordRuleIds();

// What a rule of the record says, in one sentence.
std::string recordStatement(const RrcRecordRule& rule);

// "error", "warning", "notice"; "fact" of one that no record can break.
const char* recordSeverityName(const RrcRecordRule& rule);

// The lines of an example, with the whole paths of flat lines: "CellGroupConfig.cellGroupId = 2".
std::vector<std::string> exampleLines(std::string_view example);

// What there is to say of a rule: what holds, what to do where it does not, examples, how to silence it.
std::string ruleText(const RrcRule& rule, bool color);

// The same of a rule of the record.
std::string recordRuleText(const RrcRecordRule& rule, bool color);

// What there is to say of another finding's id.
std::string idText(const std::string& id, const IdWords& words, bool color);

} // namespace tool
