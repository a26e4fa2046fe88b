// Draws what an element configures.
#include "rrcDraw.h"

#include <cstdio>

int main()
{
    OSCTXT ctxt;
    if (rtxInitContext(&ctxt) != 0)
    {
        return 1;
    }
    CellGroupConfig group{};
    group.m.spCellConfigPresent = 1;
    const std::string svg = draw::svg(ctxt, group, nullptr, {});
    rtFreeContext(&ctxt);
    std::printf("%.4s, SpCell %s\n", svg.c_str(), svg.find("SpCell") == std::string::npos ? "missing" : "drawn");
    return svg.find("SpCell") == std::string::npos ? 1 : 0;
}
