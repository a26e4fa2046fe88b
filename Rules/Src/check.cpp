#include "check.h"

namespace rules
{

Report& Report::found(const char* format, ...)
{
    if (finding_ != nullptr)
    {
        va_list args;
        va_start(args, format);
        finding_->found = memory_.format(format, args);
        va_end(args);
    }
    return *this;
}

Report& Report::allowed(const char* format, ...)
{
    if (finding_ != nullptr)
    {
        va_list args;
        va_start(args, format);
        finding_->allowed = memory_.format(format, args);
        va_end(args);
    }
    return *this;
}

Report& Report::advice(const char* format, ...)
{
    if (finding_ != nullptr)
    {
        va_list args;
        va_start(args, format);
        finding_->advice = memory_.format(format, args);
        va_end(args);
    }
    return *this;
}

void Check::undecided(OSUINT32 inputs)
{
    undecided_[index_] |= model.complete ? inputs & ~OSUINT32{RRC_RULE_INPUT_PREVIOUS} : inputs;
}

Report Check::report(OSUINT8 severity, const void* at, size_t size, OSUINT32 decidedBy)
{
    const OSUINT32 number = count_++;
    auto* const finding = findings_ == nullptr ? nullptr : model.memory.take<Finding>();
    if (finding != nullptr)
    {
        *finding = {&rule_->told, at, size, decidedBy, number, severity, false, nullptr, "", nullptr};
        findings_->add(model.memory, finding);
    }
    return {model.memory, finding};
}

void Check::writeIds(char* text, size_t size, OSUINT32* numbers, OSUINT32 count)
{
    std::sort(numbers, numbers + count);
    rtx::Line line(text, size);
    appendRuns(line, {numbers, count});
}

} // namespace rules
