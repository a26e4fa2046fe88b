#ifndef CAPTUREDOUTPUT_H
#define CAPTUREDOUTPUT_H

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace test
{

// Catches, octet for octet, what the process writes to standard output while it lives.
class CapturedOutput
{
public:
    CapturedOutput() : saved_(dup(STDOUT_FILENO)), file_(memfd_create("captured", 0))
    {
        std::fflush(stdout);
        if (saved_ < 0 || file_ < 0 || dup2(file_, STDOUT_FILENO) < 0)
        {
            std::abort();
        }
    }

    ~CapturedOutput()
    {
        std::fflush(stdout);
        dup2(saved_, STDOUT_FILENO);
        close(saved_);
        close(file_);
    }

    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;

    // What was written since the beginning or since the last call.
    std::string take()
    {
        std::fflush(stdout);
        std::string text;
        char part[4096];
        ssize_t size = 0;
        while ((size = pread(file_, part, sizeof(part), taken_)) > 0)
        {
            text.append(part, static_cast<size_t>(size));
            taken_ += size;
        }
        return text;
    }

private:
    int saved_;
    int file_;
    off_t taken_ = 0;
};

} // namespace test

#endif
