// Brackets, commas and indentation of the writers that have them.
#ifndef RTXLAYOUT_H
#define RTXLAYOUT_H

#include "rtxTree.h"

namespace rtx
{

class Layout
{
public:
    // On one line `spaced` puts a blank where an indented text begins a line.
    Layout(Output& out, RtxLayout layout, bool spaced) : out_(out), indented_(layout == RTX_INDENTED), spaced_(spaced)
    {
    }

    void open(char bracket)
    {
        out_.put(bracket);
        ++depth_;
        empty_ = true;
        first_ = true;
    }

    // Before each item.
    void item()
    {
        if (!first_)
        {
            out_.put(',');
        }
        first_ = false;
        aside();
    }

    // Before what is not an item, and has no comma for it.
    void aside()
    {
        empty_ = false;
        separate();
    }

    void close(char bracket)
    {
        --depth_;
        if (!empty_)
        {
            separate();
        }
        else if (spaced_)
        {
            out_.put(' ');
        }
        out_.put(bracket);
        empty_ = false;
        first_ = false;
    }

private:
    void separate()
    {
        if (indented_)
        {
            out_.put('\n');
            for (unsigned i = 0; i < depth_; ++i)
            {
                out_.put("  ");
            }
        }
        else if (spaced_)
        {
            out_.put(' ');
        }
    }

    Output& out_;
    bool indented_;
    bool spaced_;
    bool empty_ = true; // nothing stands between the brackets
    bool first_ = true; // no item does
    unsigned depth_ = 0;
};

} // namespace rtx

#endif
