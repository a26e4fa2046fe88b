// The rules of docs/behaviour.md: each row of its table with the runs that prove it.
#ifndef BEHAVIOUR_H
#define BEHAVIOUR_H

#include <deque>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "rrcCodec/rrcInit.h"
#include "rrcRecordCheck.h"

namespace behaviour
{

// A record of the cell group and its element in the message.
template <typename Record>
struct Place
{
    // Switches on the way to the record, which comes valid and otherwise empty.
    std::function<Record&(RrcCellGroupCfg_t&)> on;
    // The message as JSON, with @ for the element.
    std::string message;
};

// The message with the element in its place.
std::string filled(std::string message, const std::string& element);

// The encoder's name for the place: "CellGroupConfig.rlc-BearerToAddModList[0]".
std::string pathTo(const std::string& message);

template <typename Record>
Record& fresh(Record& record)
{
    rrcInit(&record);
    return record;
}

// A record inside another one; `step` switches it on and returns its address.
template <typename Outer, typename Step>
auto within(const Place<Outer>& outer, const std::string& element, Step step)
{
    using Record = std::remove_pointer_t<std::invoke_result_t<Step, Outer&>>;
    return Place<Record>{[on = outer.on, step](RrcCellGroupCfg_t& record) -> Record& { return *step(on(record)); },
                         filled(outer.message, element)};
}

// One cell group and what comes of it.
struct Run
{
    std::function<void(RrcCellGroupCfg_t&)> empty; // the place as it comes
    std::function<void(RrcCellGroupCfg_t&)> fill;
    std::string message;                                   // the message as JSON; empty: it is refused
    std::string refusal;                                   // the line that says why
    std::string notice{};                                  // what is printed before
    std::function<bool(const RrcCellGroupCfg_t&)> holds{}; // what the record has to be like afterwards
    bool isMeant = false;                                  // a check has nothing to say
};

// Leaves the record as it comes.
struct Nothing
{
    template <typename Record>
    void operator()(Record&) const
    {
    }
};

struct Row
{
    const RrcRecordRule& rule;
    std::vector<Run> runs{};
    std::string untested{}; // why there are no runs

    // The element goes out as `element`.
    template <typename Record, typename Fill = Nothing>
    Row& sent(const Place<Record>& place, const std::string& element, Fill fill = {})
    {
        runs.push_back({filling(place, Nothing{}), filling(place, fill), filled(place.message, element), ""});
        return *this;
    }

    // The encoder refuses it; `line` goes on behind the path to the element.
    template <typename Record, typename Fill = Nothing>
    Row& refused(const Place<Record>& place, const std::string& line, Fill fill = {})
    {
        runs.push_back({filling(place, Nothing{}), filling(place, fill), "", pathTo(place.message) + line});
        return *this;
    }

    // An enumeration of one value: with its bit set the encoder refuses 1.
    template <typename Record, typename Mask, typename Field>
    Row& oneValue(const Place<Record>& place, Mask bit, Field Record::*one, const std::string& name)
    {
        const auto fill = [bit, one](Record& record)
        {
            record.bitMask = static_cast<decltype(record.bitMask)>(bit);
            record.*one = 1;
        };
        return refused(place, "." + name + ": 1 is not in 0..0", fill);
    }

    // Said of the run before: the line that comes before the refusal.
    Row& printing(const std::string& line)
    {
        runs.back().notice = line;
        return *this;
    }

    // Said of the run before: the record afterwards.
    Row& leaving(std::function<bool(const RrcCellGroupCfg_t&)> holds)
    {
        runs.back().holds = std::move(holds);
        return *this;
    }

    // Said of the run before: this is how one says it, or what is not sent lies behind a clear bit, where nobody looks.
    Row& asMeant()
    {
        runs.back().isMeant = true;
        return *this;
    }

private:
    template <typename Record, typename Fill>
    static std::function<void(RrcCellGroupCfg_t&)> filling(const Place<Record>& place, Fill fill)
    {
        return [on = place.on, fill](RrcCellGroupCfg_t& record)
        {
            fill(on(record));
        };
    }
};

class Table
{
public:
    // The row of the rule with this id, which is there and has no row yet.
    Row& row(const std::string& id);

    const std::deque<Row>& rows() const
    {
        return rows_;
    }

private:
    std::deque<Row> rows_;
};

// All rows, made once.
const Table& table();

// The rules that are rows of the document.
std::vector<const RrcRecordRule*> rules();

// They as they stand in the document.
std::string markdown();

void cellGroupRows(Table& table);
void servingCellRows(Table& table);
void downlinkRows(Table& table);
void uplinkRows(Table& table);
void csiRows(Table& table);

} // namespace behaviour

#endif
