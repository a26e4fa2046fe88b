// JER (X.697) to an element tree, through the events of a JSON parser.
#include "jsonEvents.h"
#include "reading.h"

int asn1FromJson(OSCTXT* pctxt, const RtxType* type, void* value, const char* text, size_t length, Asn1MistakeSink sink,
                 void* arg)
{
    const std::string_view json(text, length);
    const auto read = [&](text::TreeBuilder& builder, text::Mistakes& mistakes)
    {
        text::JsonEvents(json, builder, mistakes).read();
    };
    return text::readTree(pctxt, type, value, json, sink, arg, read);
}
