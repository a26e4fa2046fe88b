// What the calls of asn1FromText.h have in common: a cleared tree, the text's bound, no exception that leaves.
#pragma once

#include "treeBuilder.h"
#include "whileMemory.h"

#include <cstring>

namespace text
{

// Calls read(builder, mistakes) for a text that is not too long, and reports the mistakes.
template <typename Read>
int readTree(OSCTXT* ctxt, const RtxType* type, void* value, std::string_view text, Asn1MistakeSink sink, void* arg,
             const Read& read)
{
    const auto readAll = [&]
    {
        std::memset(value, 0, type->size);
        Mistakes mistakes;
        if (text.size() > ASN1_MAX_TEXT)
        {
            mistakes.add(0, type->name,
                         "a text of " + std::to_string(text.size()) + " octets; at most " +
                             std::to_string(ASN1_MAX_TEXT) + " are read");
        }
        else
        {
            TreeBuilder builder(*ctxt, *type, value, mistakes);
            read(builder, mistakes);
        }
        return mistakes.report(text, sink, arg);
    };
    const auto withoutMemory = [&]
    {
        const Asn1Mistake mistake = {0, 1, 1, type->name, "there is no memory to read the text"};
        if (sink != nullptr)
        {
            sink(arg, &mistake);
        }
        return 1;
    };
    return whileMemory(readAll, withoutMemory);
}

} // namespace text
