// Of each CellGroupConfig, a line of hex on standard input, the fields of its trace that take bits as lines
// "offset width kind path", and "end" or "error <line>" behind the last.
#include "NR-RRC-Definitions.h"

#include <cinttypes>
#include <cstdio>
#include <iostream>
#include <string>

#include "support/Hex.h"

namespace
{

const char* nameOf(unsigned kind)
{
    switch (kind)
    {
    case RTX_FIELD_EXTENSION:
        return "extension";
    case RTX_FIELD_PRESENCE:
        return "presence";
    case RTX_FIELD_CHOICE:
        return "choice";
    case RTX_FIELD_COUNT:
        return "count";
    case RTX_FIELD_VALUE:
        return "value";
    default:
        return "other";
    }
}

// Members' names and elements' indices; an extension group is no step of the value.
std::string pathOf(const RtxField& field)
{
    std::string path;
    for (OSUINT32 i = 0; i < field.depth; ++i)
    {
        const RtxPathStep& step = field.path[i];
        if (step.group == 0)
        {
            path += step.name != nullptr ? "." + std::string(step.name) : "[" + std::to_string(step.index) + "]";
        }
    }
    return path;
}

void print(void*, const RtxField* field)
{
    if (field->width != 0)
    {
        (void)std::printf("%" PRIu64 " %" PRIu64 " %s %s\n", field->offset, field->width, nameOf(field->kind),
                          pathOf(*field).c_str());
    }
}

} // namespace

int main()
{
    for (std::string line; std::getline(std::cin, line);)
    {
        auto octets = test::octetsOf(line);
        OSCTXT context;
        (void)rtxInitContext(&context);
        (void)pu_setBuffer(&context, octets.data(), octets.size(), 0);
        CellGroupConfig tree;
        if (asn1Trace_CellGroupConfig(&context, &tree, print, nullptr) == RTX_OK)
        {
            (void)std::puts("end");
        }
        else
        {
            char text[512];
            (void)rtxErrFormat(&context, text, sizeof text);
            (void)std::printf("error %s\n", text);
        }
        rtFreeContext(&context);
    }
    return 0;
}
