// Flat lines, `path = value`, to an element tree.
#include "reading.h"

#include <algorithm>
#include <charconv>
#include <tuple>

namespace text
{
namespace
{

constexpr std::string_view blanks = " \t\r";
constexpr std::size_t mostSteps = 64; // of a path; no type of the schema is as deep

std::string_view trimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

// Without quotes a word is all that its letters can be.
unsigned formsOf(std::string_view word)
{
    unsigned forms = stringForm | nameForm | numberForm(word);
    forms |= word == "true" || word == "false" ? unsigned{booleanForm} : 0;
    forms |= word == "null" ? unsigned{nullForm} : 0;
    return forms;
}

// A step of a path: a name, or the number of an element.
struct PathStep
{
    std::string_view name; // empty for an element
    std::uint64_t index = 0;
    std::size_t offset = 0;

    bool isElement() const
    {
        return name.empty();
    }

    // Elements stand in their order, before names.
    auto key() const
    {
        return std::tuple(!isElement(), index, name);
    }
};

// The steps of a path one by one.
class Steps
{
public:
    Steps(std::string_view text, std::size_t begin, std::size_t end) : path_(text.substr(0, end)), at_(begin) {}

    bool atEnd() const
    {
        return at_ == path_.size();
    }

    // False where there is none as it should be.
    bool next(PathStep& step)
    {
        step = {{}, 0, at_};
        const bool wellFormed = path_[at_] == '[' ? element(step) : name(step);
        first_ = false;
        return wellFormed && (atEnd() || path_[at_] == '.' || path_[at_] == '[');
    }

private:
    bool element(PathStep& step)
    {
        const char* const end = path_.data() + path_.size();
        const auto [behind, error] = std::from_chars(path_.data() + at_ + 1, end, step.index);
        if (error != std::errc() || behind == end || *behind != ']')
        {
            return false;
        }
        at_ = static_cast<std::size_t>(behind - path_.data()) + 1;
        return true;
    }

    bool name(PathStep& step)
    {
        if (!first_)
        {
            step.offset = ++at_; // behind a dot
        }
        while (!atEnd() && isLetter(path_[at_]))
        {
            ++at_;
        }
        step.name = path_.substr(step.offset, at_ - step.offset);
        return !step.name.empty();
    }

    static bool isLetter(char c)
    {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_' ||
               c == '$';
    }

    std::string_view path_;
    std::size_t at_;
    bool first_ = true;
};

// Places in the text.
struct Line
{
    std::uint32_t path;
    std::uint32_t pathEnd;
    std::uint32_t value;
    std::uint32_t valueEnd;
};
static_assert(ASN1_MAX_TEXT <= UINT32_MAX);

class FlatReader
{
public:
    FlatReader(std::string_view text, const RtxType& type, TreeBuilder& builder, Mistakes& mistakes)
        : text_(text), type_(type), builder_(builder), mistakes_(mistakes)
    {
    }

    // The lines in any order are sorted by their paths, so that what belongs together is built together.
    void read()
    {
        for (std::size_t at = 0; at < text_.size() && !mistakes_.full();)
        {
            const std::size_t end = std::min(text_.find('\n', at), text_.size());
            line(text_.substr(at, end - at));
            at = end + 1;
        }
        std::stable_sort(lines_.begin(), lines_.end(), [this](const Line& a, const Line& b) { return isBefore(a, b); });
        for (const Line& line : lines_)
        {
            if (mistakes_.full())
            {
                return;
            }
            build(line);
        }
        if (lines_.empty() && mistakes_.none()) // all that may be absent is absent
        {
            builder_.beginObject(0);
            builder_.endObject();
        }
        closeTo(0);
    }

private:
    void line(std::string_view line)
    {
        line = trimmed(line.substr(0, line.find('#'))); // the rest is a comment; no value has the character
        if (line.empty())
        {
            return;
        }
        const std::size_t equals = std::min(line.find('='), line.size());
        const std::string_view path = trimmed(line.substr(0, equals));
        const std::string_view value = trimmed(line.substr(std::min(equals + 1, line.size())));
        if (path.empty() || value.empty())
        {
            mistakes_.add(offsetOf(line), type_.name, "expected a line \"path = value\", found " + quoted(line));
            return;
        }
        const Line places = {offsetOf(path), offsetOf(path) + static_cast<std::uint32_t>(path.size()), offsetOf(value),
                             offsetOf(value) + static_cast<std::uint32_t>(value.size())};
        if (isPath(places))
        {
            lines_.push_back(places);
        }
    }

    std::uint32_t offsetOf(std::string_view piece) const
    {
        return static_cast<std::uint32_t>(piece.data() - text_.data());
    }

    Steps stepsOf(const Line& line) const
    {
        return {text_, line.path, line.pathEnd};
    }

    bool isPath(const Line& line)
    {
        Steps steps = stepsOf(line);
        PathStep step;
        for (unsigned count = 0; !steps.atEnd(); ++count)
        {
            if (!steps.next(step) || count == mostSteps)
            {
                mistakes_.add(step.offset, type_.name,
                              (count == mostSteps ? "too long a path " : "not a path: ") +
                                  quoted(text_.substr(line.path, line.pathEnd - line.path)));
                return false;
            }
        }
        return true;
    }

    bool isBefore(const Line& a, const Line& b) const
    {
        Steps left = stepsOf(a);
        Steps right = stepsOf(b);
        PathStep l;
        PathStep r;
        while (!left.atEnd() && !right.atEnd())
        {
            (void)left.next(l);
            (void)right.next(r);
            if (l.key() != r.key())
            {
                return l.key() < r.key();
            }
        }
        return left.atEnd() && !right.atEnd();
    }

    void build(const Line& line)
    {
        std::vector<PathStep> path = pathOf(line);
        std::size_t keep = 0; // containers that stay open: container i holds step i
        while (keep < open_.size() && keep < path.size() && open_[keep].isElement() == path[keep].isElement())
        {
            ++keep;
            if (open_[keep - 1].key() != path[keep - 1].key())
            {
                break;
            }
        }
        closeTo(keep);
        for (std::size_t i = keep == 0 ? 0 : keep - 1; i < path.size(); ++i)
        {
            if (i >= keep)
            {
                path[i].isElement() ? builder_.beginArray(line.path) : builder_.beginObject(line.path);
                open_.push_back(path[i]);
            }
            open_[i] = path[i];
            path[i].isElement() ? builder_.element(path[i].offset, path[i].index)
                                : builder_.member(path[i].offset, path[i].name);
        }
        value(line);
    }

    // Without the root's name.
    std::vector<PathStep> pathOf(const Line& line) const
    {
        std::vector<PathStep> path;
        PathStep step;
        for (Steps steps = stepsOf(line); !steps.atEnd();)
        {
            (void)steps.next(step);
            if (!path.empty() || step.name != type_.name)
            {
                path.push_back(step);
            }
        }
        return path;
    }

    void value(const Line& line)
    {
        const std::string_view word = text_.substr(line.value, line.valueEnd - line.value);
        if (word == "{}")
        {
            builder_.beginObject(line.value);
            builder_.endObject();
        }
        else if (word == "[]")
        {
            builder_.beginArray(line.value);
            builder_.endArray();
        }
        else
        {
            builder_.scalar(line.value, {formsOf(word), word});
        }
    }

    void closeTo(std::size_t count)
    {
        for (; open_.size() > count; open_.pop_back())
        {
            open_.back().isElement() ? builder_.endArray() : builder_.endObject();
        }
    }

    std::string_view text_;
    const RtxType& type_;
    TreeBuilder& builder_;
    Mistakes& mistakes_;
    std::vector<Line> lines_;
    std::vector<PathStep> open_; // the step that was last taken in each open object and array
};

} // namespace
} // namespace text

int asn1FromFlat(OSCTXT* pctxt, const RtxType* type, void* value, const char* text, size_t length, Asn1MistakeSink sink,
                 void* arg)
{
    const std::string_view lines(text, length);
    const auto read = [&](text::TreeBuilder& builder, text::Mistakes& mistakes)
    {
        text::FlatReader(lines, *type, builder, mistakes).read();
    };
    return text::readTree(pctxt, type, value, lines, sink, arg, read);
}
