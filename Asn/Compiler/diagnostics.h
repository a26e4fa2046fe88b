// Messages with file:line:col, collected so that one run reports as many faults as it can.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace asncomp
{

struct Location
{
    unsigned line = 1;
    unsigned column = 1;
};

class Diagnostics
{
public:
    explicit Diagnostics(std::string file) : file_(std::move(file)) {}

    void error(Location at, const std::string& message)
    {
        if (messages_.size() < limit)
        {
            messages_.push_back(file_ + ":" + std::to_string(at.line) + ":" + std::to_string(at.column) + ": " +
                                message);
        }
        else if (messages_.size() == limit)
        {
            messages_.push_back(file_ + ": there are more errors");
        }
    }

    bool failed() const
    {
        return !messages_.empty();
    }
    const std::vector<std::string>& messages() const
    {
        return messages_;
    }

private:
    static constexpr std::size_t limit = 50;
    std::string file_;
    std::vector<std::string> messages_;
};

} // namespace asncomp
