// A product that shows a message as a page.
#include "rrcPage.h"

#include <cstdio>

int main()
{
    const page::Shown shown = {"empty cell group", "", {0x00, 0x00}};
    const std::string text = page::document({&shown, 1}, nullptr);
    return std::fputs(text.c_str(), stdout) < 0 ? 1 : 0;
}
