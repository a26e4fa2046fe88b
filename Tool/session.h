// What all commands share: where messages come from, where data and words go, and how a command ends.
#pragma once

#include "readMessage.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

struct RtxPdu;

namespace tool
{

// The exit status; of several messages the greatest counts.
enum class Exit
{
    Done = 0,
    Findings = 1,  // or differences
    Usage = 2,     // or a file that cannot be read or written
    Malformed = 3, // an input that cannot be recognised, read or decoded
    Nothing = 4,   // a delta has nothing to send
};

// Ends the command with one line on standard error.
class Failure : public std::runtime_error
{
public:
    Failure(Exit status, const std::string& message) : std::runtime_error(message), status_(status) {}

    Exit status() const
    {
        return status_;
    }

private:
    Exit status_;
};

// Standard output is closed by its reader: nothing is left to do.
class Closed : public std::exception
{
};

enum class When
{
    Auto, // on a terminal, unless NO_COLOR is set
    Always,
    Never,
};

struct Common
{
    std::optional<Form> as;
    const RtxPdu* type = nullptr;
    bool lines = false;
    bool verbose = false;
    When color = When::Auto;
};

// A message as it was given.
struct Given
{
    std::string source; // file name, "standard input" or "operand"
    std::size_t line;   // with --lines, from 1; else 0
    Input input;

    // "capture.log:12"
    std::string place() const;
};

class Session
{
public:
    explicit Session(const Common& common);

    const Common& common() const
    {
        return common_;
    }
    bool color() const
    {
        return color_;
    }

    // Data, to standard output, or to the file of outputTo().
    void put(std::string_view text);
    // Gives the data to a file instead, "-" for standard output. It is written whole at the end, or not at all.
    void outputTo(const std::string& file);
    // Refuses binary data on a terminal.
    void expectBinary();
    // Writes what is left; to a file only what a command that did not fail has put. Throws Failure or Closed.
    void finish(bool hasFailed = false);

    // A line of words, to standard error.
    void say(std::string_view text);
    // The same, with -v only.
    void note(std::string_view text);

    void raise(Exit status)
    {
        status_ = status > status_ ? status : status_;
    }
    Exit status() const
    {
        return status_;
    }

    // The operand's content: a file, "-" for standard input, or the operand itself when it is no file and can be
    // recognised. Of longer content one octet more than `most`.
    struct Source
    {
        std::string name;
        std::string raw;
    };
    static Source source(const std::string& operand, std::optional<Form> as, std::size_t most = maxInputOctets);

    // Gives the content of each operand, standard input without any, to the visitor; failures are treated as below.
    void forOperands(std::vector<std::string> operands, std::size_t most,
                     const std::function<void(const Source&)>& visitor);
    // Gives every message of the operands, standard input without any, to the visitor. A Failure, the visitor's or that
    // of an input, ends the command when there is only one message; of several it is said, and raises the status.
    void forEach(const std::vector<std::string>& operands, const std::function<void(const Given&)>& visitor);
    // Whether forEach gives more than one message, or lines of them.
    bool isSeveral(const std::vector<std::string>& operands) const
    {
        return operands.size() > 1 || common_.lines;
    }
    // Lets forEach say them among the data: a line for each message.
    void verdicts()
    {
        verdicts_ = true;
    }
    // What was read from a source, at this line of it or, 0, all of it.
    Given given(const Source& from, std::size_t line, std::string_view raw, std::optional<Form> as);
    // The only message of an operand, in this form whatever --as says.
    Given only(const std::string& operand, std::optional<Form> as);
    Given only(const std::string& operand)
    {
        return only(operand, common_.as);
    }
    // A file's content, or with "-" that of standard input. Throws Failure, also where it is longer than `most`.
    static Source file(const std::string& operand, std::size_t most);

    // Tells on a terminal how far a long job is, from its second second on.
    void progress(std::uint64_t done, std::uint64_t all);

private:
    void forLines(const Source& from, const std::function<void(const Given&)>& visitor);
    // Says what fails, and goes on.
    void attempt(const std::function<void()>& action);
    void clearProgress();
    void write(std::string_view text);

    Common common_;
    bool color_;
    bool verdicts_ = false;
    Exit status_ = Exit::Done;
    std::string output_;
    std::string file_; // empty: standard output
    std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
    std::chrono::steady_clock::time_point shown_ = begin_;
    bool progressShown_ = false;
};

} // namespace tool
