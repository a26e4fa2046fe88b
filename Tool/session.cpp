#include "session.h"

#include "text.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace tool
{
namespace
{

constexpr std::size_t bufferSize = std::size_t{1} << 16;

struct CloseFile
{
    void operator()(std::FILE* file) const
    {
        (void)std::fclose(file);
    }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

std::string reason()
{
    return std::strerror(errno);
}

bool isColored(When when)
{
    const char* const none = std::getenv("NO_COLOR");
    return when == When::Always ||
           (when == When::Auto && (none == nullptr || *none == '\0') && isatty(STDOUT_FILENO) != 0);
}

// One octet more than is allowed tells that there is too much.
std::string readAll(std::FILE* file, const std::string& name, std::size_t most)
{
    std::string raw;
    while (raw.size() <= most)
    {
        const std::size_t before = raw.size();
        const std::size_t room = std::min(std::max(before, bufferSize), most + 1 - before);
        raw.resize(before + room);
        const std::size_t count = std::fread(raw.data() + before, 1, room, file);
        raw.resize(before + count);
        if (count == 0)
        {
            break;
        }
    }
    if (std::ferror(file) != 0)
    {
        throw Failure(Exit::Usage, name + ": " + reason());
    }
    return raw;
}

bool isFile(const std::string& name)
{
    struct stat info = {};
    return stat(name.c_str(), &info) == 0;
}

// Whether an operand is itself the text of a message. A word with a slash or with hex among other letters is a file's
// name that is wrong.
bool isMessage(const std::string& operand, std::optional<Form> as)
{
    const bool isWord = operand.find_first_of(" \t\n") == std::string::npos;
    const bool isPath = isWord && operand.find('/') != std::string::npos && as != Form::Base64;
    if (as == Form::Binary || isPath)
    {
        return false;
    }
    const Recognition recognition = recognise(operand, as);
    const auto* const input = std::get_if<Input>(&recognition);
    return input != nullptr && !(isWord && input->form == Form::LogLine);
}

} // namespace

std::string Given::place() const
{
    return line == 0 ? source : source + ":" + std::to_string(line);
}

Session::Session(const Common& common) : common_(common), color_(isColored(common.color)) {}

void Session::put(std::string_view text)
{
    output_ += text;
    if (file_.empty() && output_.size() >= bufferSize)
    {
        write(output_);
        output_.clear();
    }
}

void Session::outputTo(const std::string& file)
{
    file_ = file == "-" ? "" : file;
}

void Session::expectBinary()
{
    if (file_.empty() && isatty(STDOUT_FILENO) != 0)
    {
        throw Failure(Exit::Usage, "binary data is not written to a terminal; say -o FILE or redirect it");
    }
}

void Session::write(std::string_view text)
{
    clearProgress();
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() || std::fflush(stdout) != 0)
    {
        if (errno == EPIPE)
        {
            throw Closed();
        }
        throw Failure(Exit::Usage, "standard output: " + reason());
    }
}

void Session::finish(bool hasFailed)
{
    clearProgress();
    if (file_.empty())
    {
        write(output_);
        output_.clear();
        return;
    }
    if (hasFailed)
    {
        return;
    }
    const File file(std::fopen(file_.c_str(), "wb"));
    if (file == nullptr || std::fwrite(output_.data(), 1, output_.size(), file.get()) != output_.size() ||
        std::fflush(file.get()) != 0)
    {
        throw Failure(Exit::Usage, file_ + ": " + reason());
    }
}

void Session::say(std::string_view text)
{
    clearProgress();
    (void)std::fflush(stdout);
    (void)std::fprintf(stderr, "cellgroupcfg: %.*s\n", static_cast<int>(text.size()), text.data());
}

void Session::note(std::string_view text)
{
    if (common_.verbose)
    {
        say(text);
    }
}

Session::Source Session::source(const std::string& operand, std::optional<Form> as, std::size_t most)
{
    if (operand == "-")
    {
        return {"standard input", readAll(stdin, "standard input", most)};
    }
    const bool exists = isFile(operand);
    const bool message = isMessage(operand, as);
    if (exists && message && !as)
    {
        throw Failure(Exit::Usage, "'" + operand + "' is a file and can be read as a message; say ./" + operand +
                                       " for the file, or give the message on standard input");
    }
    if (!exists && message)
    {
        return {"operand", operand};
    }
    const File file(std::fopen(operand.c_str(), "rb"));
    if (file == nullptr)
    {
        throw Failure(Exit::Usage, operand + ": " + reason() + (exists ? "" : ", and no message"));
    }
    return {operand, readAll(file.get(), operand, most)};
}

Given Session::given(const Source& from, std::size_t line, std::string_view raw, std::optional<Form> as)
{
    Recognition recognition = recognise(raw, as);
    Given result{from.name, line, {}};
    if (auto* const refusal = std::get_if<Refusal>(&recognition))
    {
        throw Failure(Exit::Malformed, result.place() + ": " + refusal->message());
    }
    result.input = std::move(std::get<Input>(recognition));
    note(result.place() + ": " + result.input.note);
    if (result.input.octets.size() > maxMessageOctets)
    {
        throw Failure(Exit::Malformed, result.place() + ": " + counted(result.input.octets.size(), "octet") +
                                           " are no message; the longest that is read has " +
                                           std::to_string(maxMessageOctets));
    }
    return result;
}

void Session::attempt(const std::function<void()>& action)
{
    try
    {
        action();
    }
    catch (const Failure& failure)
    {
        if (verdicts_)
        {
            put(std::string(failure.what()) + "\n");
        }
        else
        {
            say(failure.what());
        }
        raise(failure.status());
    }
}

void Session::forLines(const Source& from, const std::function<void(const Given&)>& visitor)
{
    auto lines = MessageLines::of(from.raw);
    if (const auto* const refusal = std::get_if<Refusal>(&lines))
    {
        throw Failure(Exit::Malformed, from.name + ": " + refusal->message());
    }
    std::uint64_t done = 0;
    auto& messages = std::get<MessageLines>(lines);
    while (const auto line = messages.next())
    {
        attempt([&] { visitor(given(from, line->number, line->text, common_.as)); });
        done += line->text.size() + 1;
        progress(done, from.raw.size());
    }
}

void Session::forOperands(std::vector<std::string> operands, std::size_t most,
                          const std::function<void(const Source&)>& visitor)
{
    if (operands.empty())
    {
        operands.emplace_back("-");
    }
    for (const std::string& operand : operands)
    {
        const auto read = [&]
        {
            visitor(source(operand, common_.as, most));
        };
        if (operands.size() > 1)
        {
            attempt(read);
        }
        else
        {
            read();
        }
    }
}

void Session::forEach(const std::vector<std::string>& operands, const std::function<void(const Given&)>& visitor)
{
    const auto read = [&](const Source& from)
    {
        if (common_.lines)
        {
            forLines(from, visitor);
        }
        else
        {
            visitor(given(from, 0, from.raw, common_.as));
        }
    };
    forOperands(operands, maxInputOctets, read);
}

Given Session::only(const std::string& operand, std::optional<Form> as)
{
    const Source from = source(operand, as);
    return given(from, 0, from.raw, as);
}

Session::Source Session::file(const std::string& operand, std::size_t most)
{
    const bool isInput = operand == "-";
    const File opened(isInput ? nullptr : std::fopen(operand.c_str(), "rb"));
    if (!isInput && opened == nullptr)
    {
        throw Failure(Exit::Usage, operand + ": " + reason());
    }
    const std::string name = isInput ? "standard input" : operand;
    Source from{name, readAll(isInput ? stdin : opened.get(), name, most)};
    if (from.raw.size() > most)
    {
        throw Failure(Exit::Usage, name + ": more than " + counted(most, "octet"));
    }
    return from;
}

void Session::progress(std::uint64_t done, std::uint64_t all)
{
    using std::chrono::milliseconds;
    constexpr milliseconds quiet{1000};
    constexpr milliseconds pause{200};
    const auto now = std::chrono::steady_clock::now();
    if (now - begin_ < quiet || now - shown_ < pause || isatty(STDERR_FILENO) == 0)
    {
        return;
    }
    shown_ = now;
    progressShown_ = true;
    (void)std::fprintf(stderr, "\r%3llu %%", static_cast<unsigned long long>(all == 0 ? 100 : done * 100 / all));
    (void)std::fflush(stderr);
}

void Session::clearProgress()
{
    if (progressShown_)
    {
        (void)std::fputs("\r     \r", stderr);
        progressShown_ = false;
    }
}

} // namespace tool
