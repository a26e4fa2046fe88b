#ifndef FAILURELINES_H
#define FAILURELINES_H

#include <cstddef>

// While it lives, the lines with which composers of its thread tell of a failure, as one: ", " between them, and "..."
// for what there is no room for. They are printed all the same.
class FailureLines
{
public:
    // The text goes to the caller's `size` octets, more than 3; it is always terminated.
    FailureLines(char* text, std::size_t size) : text_(text), end_(text + size - 1), next_(text), outer_(listening_)
    {
        *next_ = '\0';
        listening_ = this;
    }
    ~FailureLines()
    {
        listening_ = outer_;
    }
    FailureLines(const FailureLines&) = delete;
    FailureLines& operator=(const FailureLines&) = delete;

    bool any() const
    {
        return next_ != text_;
    }

    // Another line, of the function where it has one. Nothing where nobody listens.
    static void add(const char* func, const char* line)
    {
        FailureLines* const lines = listening_;
        if (lines == nullptr)
        {
            return;
        }
        if (lines->any())
        {
            lines->put(',');
            lines->put(' ');
        }
        for (; func != nullptr && *func != '\0'; ++func)
        {
            lines->put(*func);
        }
        if (func != nullptr)
        {
            lines->put(':');
        }
        for (; *line != '\0' && *line != '\r' && *line != '\n'; ++line)
        {
            lines->put(*line);
        }
    }

private:
    void put(char c)
    {
        if (next_ == end_)
        {
            end_[-1] = end_[-2] = end_[-3] = '.';
            return;
        }
        *next_++ = c;
        *next_ = '\0';
    }

    char* text_;
    char* end_; // the terminator of a full text
    char* next_;
    FailureLines* outer_;

    // Null but in a call of rrcCompose.h. In a header, as the distributed unit's library prints such lines, too.
    static inline constinit thread_local FailureLines* listening_ = nullptr;
};

#endif
